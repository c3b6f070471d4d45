# SPDX-License-Identifier: MIT
"""Many faults in one build: each is chosen at run time by its number."""
import os
import re
import subprocess
from pathlib import Path

from places import Fault
from plot import Misplanted

MEMBER = re.compile(r"(?!return|if|for)[\w:<>, ]+ \w+ = [^;]*;")
DECLARATION = "bool planted(int site) noexcept; "


def inside(inner, outer):
    return outer[0] <= inner[0] and inner[1] <= outer[1]


def cross(one, other):
    return one[0] < other[1] and other[0] < one[1] and \
        not inside(one, other) and not inside(other, one)


def can_be_chosen(fault, text):
    """What is fixed when the program is compiled, or would move lines, needs its own build."""
    piece = text[slice(*fault.piece)]
    return not fault.fixed and (fault.statement or "\n" not in piece or
                                not re.search(r'//|#|R"', piece))


def rendered(text, begin, end, faults):
    """The piece of text with faults, {number: fault}, that lie in it; no line moves."""
    result, at, faults = [], begin, dict(faults)
    while faults:
        first = min((fault.piece[0], -fault.piece[1]) for fault in faults.values())
        outer = (first[0], -first[1])
        within = {number: fault for number, fault in faults.items() if inside(fault.piece, outer)}
        here = {number: fault for number, fault in within.items() if fault.piece == outer}
        faults = {number: fault for number, fault in faults.items() if number not in within}
        if any(fault.piece[0] < outer[1] for fault in faults.values()):
            raise Misplanted(f"{list(here.values())[0].where}: pieces overlap")
        deeper = {number: fault for number, fault in within.items() if number not in here}
        result += [text[at:outer[0]], one_place(text, outer, here, deeper)]
        at = outer[1]
    return "".join(result) + text[at:end]


def one_place(text, piece, here, deeper):
    def part(each):
        if isinstance(each, str):
            return each
        return rendered(text, *each, {number: fault for number, fault in deeper.items()
                                      if inside(fault.piece, each)})

    def flat(each):
        return part(each).replace("\n", " ")
    whole = part(piece)
    for number, fault in here.items():
        if isinstance(number, tuple):
            return fault.parts[0]  # no fault but the word before one
        chosen = f"::planted({number})"
        if fault.statement:
            whole = f"{{ if (!{chosen}) {{ {whole} }} }}"
        elif fault.rule == "swapped arguments":
            right, between, left = fault.parts
            whole = f"({chosen} ? ({flat(right)}) : ({part(left)})){part(between)}" \
                    f"({chosen} ? ({flat(left)}) : ({part(right)}))"
        else:
            changed = "".join(flat(each) for each in fault.parts)
            whole = f"({chosen} ? ({changed}) : ({whole}))"
    return whole


class Schema:
    """The build of a plot in which many faults wait; faults that do not fit in are in `alone`."""

    def __init__(self, plot, faults):
        self.plot = plot
        self.texts = {name: plot.contents[name].decode("latin-1")
                      for name in {fault.file for fault in faults}}
        self.waiting, self.alone = {}, []
        for number, fault in enumerate(faults):
            fault.number = number
            if can_be_chosen(fault, self.texts[fault.file]) and not self.in_the_way(fault):
                self.waiting[number] = fault
            else:
                self.alone.append(fault)

    def in_the_way(self, fault):
        """Whether another waits where this one would have to be written into it."""
        return any(cross(other.piece, fault.piece) or other.piece == fault.piece and
                   "swapped arguments" in (other.rule, fault.rule)
                   for other in self.waiting.values() if other.file == fault.file)

    def write(self):
        for name, text in self.texts.items():
            faults = {number: fault for number, fault in self.waiting.items()
                      if fault.file == name}
            faults |= {fault.relaxed: Fault("word", name, text, fault.relaxed[0],
                                            [fault.relaxed[1]])
                       for fault in faults.values() if fault.relaxed}
            self.plot.write(name, (DECLARATION + rendered(text, 0, len(text), faults)
                                   if faults else text).encode("latin-1"))

    def build(self, targets):
        while True:
            self.write()
            done = self.plot.make(targets, keep_going=True)
            if done.returncode == 0:
                return
            guilty = self.guilty(done.stdout)
            if not guilty:
                raise Misplanted(done.stdout[-3000:])
            for fault in guilty:
                self.alone.append(self.waiting.pop(fault.number))

    def first(self, fault):
        """The line of a fault, or that of the word before it that had to give way."""
        if not fault.relaxed:
            return fault.first
        return min(fault.first, self.texts[fault.file].count("\n", 0, fault.relaxed[0][0]) + 1)

    def guilty(self, output):
        """The faults on the lines where the compiler stopped, or else on those it speaks of."""
        stops = r"(\S+?):(\d+):\d+: (?:fatal )?error:"
        for pattern in (stops, r"(\S+?):(\d+):\d+:   required", r"(\S+?):(\d+):\d+:"):
            named = self.named(pattern, output)
            found = [fault for fault in self.waiting.values()
                     if any(fault.file == path and self.first(fault) <= line <= fault.last
                            for path, line in named)]
            if found:
                return found
        files = {path for path, _ in self.named(stops, output)}
        there = [fault for fault in self.waiting.values() if fault.file in files]
        return [fault for fault in there if self.is_size(fault) or MEMBER.match(fault.old)] or \
            there or \
            [fault for fault in self.waiting.values()  # what constants elsewhere begin with
             if fault.file.endswith(".h") and MEMBER.match(fault.old)]

    def named(self, pattern, output):
        return {(os.path.relpath(os.path.realpath(self.plot.build / path), self.plot.source),
                 int(line)) for path, line in re.findall(pattern, output)}

    def is_size(self, fault):
        """Whether it stands right in brackets, as the size of an array that is used elsewhere."""
        return self.texts[fault.file][fault.piece[0] - 1] == "["

    def build_alone(self, fault, targets):
        """Builds one fault; false when it does not compile."""
        text = self.texts[fault.file]
        self.write()
        begin, end = fault.piece
        self.plot.write(fault.file,
                        (text[:begin] + fault.planted(text) + text[end:]).encode("latin-1"))
        return self.plot.make(targets).returncode == 0


def linked_part(plot):
    """Compiles what tells a place whether its fault is chosen; every program links it."""
    built = plot.folder / "planted.o"
    subprocess.run(["g++", "-std=c++20", "-O1", "-c", "-o", built,
                    Path(__file__).parent / "planted.cpp"], check=True)
    return built
