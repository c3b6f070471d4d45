#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The source of all_constituents.csv, tide_waters.csv, tide_days.csv and tide_answers.csv: tides
summed up independently of the program.

    tests/golden/independent_tides.py

All constituents: mean longitudes of Schureman's table 1 (epoch 1900), node factors and phases from
the spherical triangle of orbit, equator and ecliptic at the instant itself, speeds from the motions
of the longitudes. Four constituents: the plain cosines of the two data files with the shallow-water
terms of the combined wave as amplitude and angle. Turns are looked for minute by minute.

The arguments of 2MK5, 2MO5, T3 and R3 are those to which their one source refers them: the multiples
of lunar time, s and h alone, which vanish at 00:00 but for s and h (tools/tidedata/METHOD.md).
"""
import cmath
import datetime
import math
import random
from pathlib import Path

DATA = Path(__file__).resolve().parent.parent.parent / "data"
HERE = Path(__file__).resolve().parent
EPOCH = datetime.datetime(1899, 12, 31, 12)
OBLIQUITY, INCLINATION = math.radians(23.452), math.radians(5.145)

# Multiples of the Sun's hour angle T, of s, h, p, p1, and a constant; the node of which constituent.
ARGUMENTS = {
    "M2": (2, -2, 2, 0, 0, 0, "M2"), "N2": (2, -3, 2, 1, 0, 0, "M2"), "2N2": (2, -4, 2, 2, 0, 0, "M2"),
    "MU2": (2, -4, 4, 0, 0, 0, "M2"), "NU2": (2, -3, 4, -1, 0, 0, "M2"),
    "EPS2": (2, -5, 4, 1, 0, 0, "M2"), "LAMBDA2": (2, -1, 0, 1, 0, 180, "M2"),
    "L2": (2, -1, 2, -1, 0, 180, "L2"), "S2": (2, 0, 0, 0, 0, 0, ""), "K2": (2, 0, 2, 0, 0, 0, "K2"),
    "T2": (2, 0, -1, 0, 1, 0, ""), "R2": (2, 0, 1, 0, -1, 180, ""), "S1": (1, 0, 0, 0, 0, 0, ""),
    "K1": (1, 0, 1, 0, 0, -90, "K1"), "P1": (1, 0, -1, 0, 0, 90, ""), "J1": (1, 1, 1, -1, 0, -90, "J1"),
    "OO1": (1, 2, 1, 0, 0, -90, "OO1"), "O1": (1, -2, 1, 0, 0, 90, "O1"), "Q1": (1, -3, 1, 1, 0, 90, "O1"),
    "2Q1": (1, -4, 1, 2, 0, 90, "O1"), "RHO1": (1, -3, 3, -1, 0, 90, "O1"),
    "SA": (0, 0, 1, 0, 0, 0, ""), "SSA": (0, 0, 2, 0, 0, 0, ""), "MM": (0, 1, 0, -1, 0, 0, "MM"),
    "MF": (0, 2, 0, 0, 0, 0, "MF"), "MTM": (0, 3, 0, -1, 0, 0, "MF"), "MSQM": (0, 4, -2, 0, 0, 0, "MF"),
    "M3": (3, -3, 3, 0, 0, 0, "M3"), "S3": (3, 0, 0, 0, 0, 0, ""), "T3": (3, 0, -1, 0, 0, 180, ""),
    "R3": (3, 0, 1, 0, 0, 180, ""), "2MK5": (5, -4, 5, 0, 0, 180, "2MK5"),
    "2MO5": (5, -6, 5, 0, 0, 180, "2MO5"), "MA2": (2, -2, 1, 0, 0, 0, "M2"), "MB2": (2, -2, 3, 0, 0, 0, "M2"),
}
COMPOUNDS = {
    "M4": {"M2": 2}, "M6": {"M2": 3}, "M8": {"M2": 4}, "S4": {"S2": 2}, "N4": {"N2": 2},
    "MN4": {"M2": 1, "N2": 1}, "MS4": {"M2": 1, "S2": 1}, "MK3": {"M2": 1, "K1": 1},
    "2MK3": {"M2": 2, "K1": -1}, "2MS6": {"M2": 2, "S2": 1}, "2SM2": {"S2": 2, "M2": -1},
    "MKS2": {"M2": 1, "K2": 1, "S2": -1}, "MSF": {"S2": 1, "M2": -1},
}


def seconds(degrees, minutes, rest):
    return degrees * 3600 + minutes * 60 + rest


def longitudes(moment):
    """s, h, p, p1 and N in degrees; moment in UT."""
    T = (moment - EPOCH) / datetime.timedelta(days=36525)
    turn = 1296000
    return [x / 3600 for x in (
        seconds(270, 26, 14.72) + (1336 * turn + 1108411.20) * T + 9.09 * T**2 + 0.0068 * T**3,
        seconds(279, 41, 48.04) + 129602768.13 * T + 1.089 * T**2,
        seconds(334, 19, 40.87) + (11 * turn + 392515.94) * T - 37.24 * T**2 - 0.045 * T**3,
        seconds(281, 13, 15.0) + 6189.03 * T + 1.63 * T**2 + 0.012 * T**3,
        seconds(259, 10, 57.12) - (5 * turn + 482912.63) * T + 7.58 * T**2 + 0.008 * T**3)]


def nodes(p, N):
    """f e^(iu) of every series."""
    N, p = math.radians(math.remainder(N, 360)), math.radians(p)
    I = math.acos(math.cos(INCLINATION) * math.cos(OBLIQUITY)
                  - math.sin(INCLINATION) * math.sin(OBLIQUITY) * math.cos(N))
    half = math.tan(N / 2)
    plus = 2 * math.atan(math.cos((OBLIQUITY - INCLINATION) / 2)
                         / math.cos((OBLIQUITY + INCLINATION) / 2) * half)
    minus = 2 * math.atan(math.sin((OBLIQUITY - INCLINATION) / 2)
                          / math.sin((OBLIQUITY + INCLINATION) / 2) * half)
    xi, nu = N - (plus + minus) / 2, (plus - minus) / 2
    wave = cmath.rect
    M2 = wave(math.cos(I / 2)**4 / 0.9154, 2 * xi - 2 * nu)
    P = p - xi
    # The Sun's part of K1 and K2 stands still, the Moon's goes with the node.
    K1 = math.sqrt(0.8965) * (wave(math.sin(2 * I), -nu) + 0.3347)
    K2 = math.sqrt(19.0444) * (wave(math.sin(I)**2, -2 * nu) + 0.0727)
    L2 = M2 * (1 - 6 * math.tan(I / 2)**2 * wave(1, 2 * P))
    O1 = wave(math.sin(I) * math.cos(I / 2)**2 / 0.3800, 2 * xi - nu)
    return {"": 1, "M2": M2, "K1": K1, "K2": K2, "L2": L2, "M3": wave(abs(M2)**1.5, 3 * (xi - nu)),
            "O1": O1, "2MK5": M2**2 * K1, "2MO5": M2**2 * O1,
            "J1": wave(math.sin(2 * I) / 0.7214, -nu),
            "OO1": wave(math.sin(I) * math.sin(I / 2)**2 / 0.0164, -2 * xi - nu),
            "MF": wave(math.sin(I)**2 / 0.1578, -2 * xi), "MM": (2 / 3 - math.sin(I)**2) / 0.5021}


def lines(name):
    return [line.rstrip("\r\n") for line in open(DATA / name, encoding="utf-8")
            if not line.startswith("#")]


class AllConstituents:
    def __init__(self, place):
        row = next(line for line in lines("constituents.txt") if line.startswith(place + "\t"))
        _, zone, level, *constants = row.split("\t")
        self.zone, self.level = float(zone), float(level)
        self.constants = [(name, float(H), float(G))
                          for name, H, G in (constant.split(" ") for constant in constants)]

    def waves(self, date, hours):
        """f e^(iu), V and speed of every constituent for an instant of zone time."""
        start = date - datetime.timedelta(hours=self.zone)
        node = nodes(*longitudes(start + datetime.timedelta(hours=hours))[2::2])
        at, later = longitudes(start), longitudes(start + datetime.timedelta(hours=1))
        T = 15 * (start.hour + start.minute / 60) + 180

        def basic(name):
            n, *multiples, constant, series = ARGUMENTS[name]
            V = n * T + constant + sum(m * x for m, x in zip(multiples, at))
            return node[series], V, 15 * n + sum(m * (y - x) for m, x, y in zip(multiples, at, later))

        for name, H, G in self.constants:
            f, V, speed = 1, 0, 0
            for part, power in COMPOUNDS.get(name, {name: 1}).items():
                fu, v, n = basic(part)
                f *= (fu if power > 0 else fu.conjugate() if isinstance(fu, complex) else fu)**abs(power)
                V += power * v
                speed += power * n
            yield f * cmath.rect(H, math.radians(math.remainder(V, 360) - G)), math.radians(speed)

    def curve(self, date):
        """Height at hours of a day; the node moves on every six hours."""
        steps = {step: list(self.waves(date, 6 * step + 3)) for step in range(-1, 5)}
        return lambda t: self.level + sum(
            (wave * cmath.rect(1, speed * t)).real for wave, speed in steps[int(t // 6)])


class FourConstituents:
    def __init__(self, place):
        fields = (DATA / "Harmonic Constants" / f"HC_{place}.txt").read_text("utf-8").split(",")
        self.fields = [float(field) for field in fields[1:]]
        self.factors = lines("AF2005.txt")

    def curve(self, date):
        day = (date - datetime.datetime(2002, 10, 1)).days
        this, following = ([float(x) for x in self.factors[d].split(",")[1:]] for d in (day, day + 1))
        _, level, *constants = self.fields[:10]
        k4, a4, k6, a6 = self.fields[10:14]
        level += self.fields[13 + date.month]

        def height(t):
            c, s = [], []
            for j in range(4):
                A, F, B, G = this[2 * j], this[2 * j + 1], following[2 * j], following[2 * j + 1]
                change, least = A - B, 600 if j < 2 else 300
                while change <= least:
                    change += 360
                psi = math.radians(A + constants[2 * j] - change / 24 * t)
                amplitude = (F + t * (G - F) / 24) * constants[2 * j + 1]
                c.append(amplitude * math.cos(psi))
                s.append(amplitude * math.sin(psi))
            R, theta = math.hypot(c[0] + c[1], s[0] + s[1]), math.atan2(s[0] + s[1], c[0] + c[1])
            return (sum(c) + a4 * R**2 * math.cos(2 * theta + math.radians(k4))
                    + a6 * R**3 * math.cos(3 * theta + math.radians(k6)) + level)
        return height


def turns(curve):
    heights = [curve(minute / 60) for minute in range(-1, 1442)]
    for i in range(1, 1442):
        for kind, sign in (("high", 1), ("low", -1)):
            if sign * heights[i] > sign * heights[i - 1] and sign * heights[i] >= sign * heights[i + 1]:
                a, b = (i - 2) / 60, i / 60
                while b - a > 1e-5:
                    third = (b - a) / 3
                    if sign * curve(a + third) < sign * curve(b - third):
                        a += third
                    else:
                        b -= third
                if 0 <= a < 24:
                    yield 60 * a, kind, curve(a)


def passages(curve, level):
    """Minutes of the day at which the curve passes a level."""
    heights = [curve(minute / 60) > level for minute in range(1441)]
    for i in range(1440):
        if heights[i] != heights[i + 1]:
            a, b = i / 60, (i + 1) / 60
            while b - a > 1e-6:
                middle = (a + b) / 2
                a, b = (middle, b) if (curve(middle) > level) == heights[i] else (a, middle)
            yield 60 * a


def clock(minutes):
    return f"{round(minutes) // 60:02d}:{round(minutes) % 60:02d}"


def spans(curve, level):
    times, above = list(passages(curve, level)), curve(0) > level
    if not times:
        return "all day" if above else "never"
    ends = (["00:00"] if above else []) + [clock(time) for time in times]
    ends += ["24:00"] if len(ends) % 2 else []
    return ", ".join(f"{a} to {b}" for a, b in zip(ends[::2], ends[1::2]))


def far_from_rounding(value, unit, margin):
    """Whether a difference of margin cannot change the figure that is shown."""
    return abs(value / unit - math.floor(value / unit) - 0.5) * unit > margin


def write(name, about, columns, rows):
    with open(HERE / name, "w", encoding="utf-8") as table:
        table.write(f"# {about}\n# source: independent_tides.py\n{columns}\n")
        table.writelines(row + "\n" for row in rows)


STATIONS = ("Tokyo", "Keling", "Saint John NB", "Port Headland", "Yokohama", "Kobe", "Hong Kong",
            "Manila", "Sydney", "Auckland", "Honolulu", "Karachi", "Cape Town", "Vancouver",
            "San Francisco")


def height_rows():
    chance = random.Random(2050)
    for place in STATIONS:
        station = AllConstituents(place)
        for first in range(2003, 2051, 8):
            heights = []
            for year in range(first, first + 8):
                date = datetime.datetime(year, 1, 1) + datetime.timedelta(days=chance.randrange(365))
                hours = chance.randrange(48) / 2
                heights.append(f"{date:%Y/%m/%d}={hours} {station.curve(date)(hours):.4f}")
            yield f"sum of {place} with its nodes from {first},{place},{'; '.join(heights)}"


def water_rows():
    for fault, place, date, count in (
            ("times of the sum", "Tokyo", datetime.datetime(2026, 11, 21), 4),
            ("a great tide with its node", "Saint John NB", datetime.datetime(2040, 3, 1), 4),
            ("three waters in a day", "Port Headland", datetime.datetime(2015, 9, 30), 3)):
        while True:
            waters = list(turns(AllConstituents(place).curve(date)))
            if len(waters) == count and all(
                    far_from_rounding(minutes, 1, 0.2) and far_from_rounding(height, 0.01, 0.0015)
                    for minutes, kind, height in waters):
                break
            date += datetime.timedelta(days=1)
        texts = (f"{kind.title()} {clock(minutes)} {height:.2f} m" for minutes, kind, height in waters)
        yield f"{fault},{place},{date:%Y/%m/%d},\"{', '.join(texts)}\""


def month_rows():
    for place, first in (("Tokyo", datetime.datetime(2003, 7, 1)),
                         ("Saint John NB", datetime.datetime(2004, 2, 1)),
                         ("Honolulu", datetime.datetime(2005, 12, 1))):
        date = first
        while date.month == first.month:
            sums = ("; ".join(f"{kind}={minutes:.2f} {height:.4f}"
                              for minutes, kind, height in turns(station(place).curve(date)))
                    for station in (FourConstituents, AllConstituents))
            yield f"a water of {place} moved or lost,{place},{date:%Y/%m/%d},{','.join(sums)}"
            date += datetime.timedelta(days=1)


def answer_rows():
    chance = random.Random(12)
    for place in ("Tokyo", "Kobe", "Hong Kong", "Honolulu", "Yokohama") * 6:
        date = datetime.datetime(2003, 1, 1) + datetime.timedelta(days=chance.randrange(1094))
        four, every = (station(place).curve(date) for station in (FourConstituents, AllConstituents))
        while True:
            minutes = chance.randrange(1440)
            heights = [curve(minutes / 60) for curve in (four, every)]
            if all(far_from_rounding(height, 0.01, 0.0015) for height in heights):
                break
        yield (f"height at a minute of {place},{place},{date:%Y/%m/%d},time,{clock(minutes)},"
               f"{heights[0]:.2f} m,all constituents {heights[1]:.2f} m")
        while True:
            level = chance.uniform(0, 2)
            level = round(level, 2)
            times = [time for curve in (four, every) for time in passages(curve, level)]
            if all(far_from_rounding(time, 1, 0.25) for time in times):
                break
        yield (f"times of a height at {place},{place},{date:%Y/%m/%d},height,{level:.2f},"
               f"\"{spans(four, level)}\",\"all constituents {spans(every, level)}\"")


if __name__ == "__main__":
    write("all_constituents.csv", "Heights by all constituents at hours of zone time, metres above chart datum, eight years a line.",
          "fault,place,heights", height_rows())
    write("tide_waters.csv", "High and low waters of a day by all constituents, zone time and metres above chart datum.",
          "fault,place,date,waters", water_rows())
    write("tide_days.csv", "Every high and low water of a month by both sums: minutes of zone time and metres, a day a line.",
          "fault,place,date,four,all", month_rows())
    write("tide_answers.csv", "What an officer asks of a day's curve, answered by both sums.",
          "fault,place,date,question,typed,four,all", answer_rows())
