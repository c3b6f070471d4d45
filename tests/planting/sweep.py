# SPDX-License-Identifier: MIT
"""Faults made by rule: a sample over all rooms, and which of it no test notices."""
import math
import os
import random
import re
from collections import Counter, defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path, PurePath

from places import Reader
from plot import Misplanted, Plot
from schema import Schema, linked_part
from trials import Trials, test_programs

NO_PRODUCT = ("tests", "bench", "tools", "docs", "data", "cmake", "package")
RESERVE = 0.3  # more than the sample, for faults that do not compile
MOST_EQUIVALENT = 0.05
LEAST_KILLED = 0.95
LEAST_JUDGED = 20  # faults of a room


def lines(path):
    """Of a list that may not be there, without comments."""
    text = path.read_text() if path.exists() else ""
    return [line for line in text.splitlines() if line.strip() and not line.startswith("#")]


class LeftOut:
    """Lines whose only effect is a shape or a distance that the eye judges."""

    def __init__(self, path):
        rows = [re.split(r"\s{2,}", line) for line in lines(path)]
        self.rows = [(re.compile(files), re.compile(line), why) for files, line, why in rows]
        self.places = Counter()

    def holds(self, fault):
        for row in self.rows:
            if row[0].search(fault.file) and row[1].search(fault.old):
                self.places[row] += 1
                return True
        return False

    def show(self):
        print("Left out, because the eye judges it:")
        for files, line, why in self.rows:
            print(f"  {files.pattern}  {line.pattern}  ({why})")


class Equivalent:
    """Faults that no test could notice: "file  line with «old => new»  why"."""

    LINE = re.compile("(.*?)  (.*)«(.*) => (.*)»(.*?)  (.*)")

    def __init__(self, path):
        self.why = {}
        for line in lines(path):
            file, left, old, new, right, why = self.LINE.fullmatch(line).groups()
            self.why[self.key(file, left + old + right, left + new + right)] = why

    @staticmethod
    def key(file, *texts):
        return file, *(" ".join(text.split()) for text in texts)

    def reason(self, fault):
        return self.why.get(self.key(fault.file, shown(fault.old), shown(fault.new)))


class Sample:
    """Draws faults: a file by its size, a rule of those it has places for, one of these."""

    def __init__(self, reader, left_out, names, seed, only):
        self.reader, self.left_out, self.only = reader, left_out, only
        self.random = random.Random(seed)
        self.rooms = defaultdict(dict)
        for name in sorted(names):
            size = sum(1 for line in reader.plot.contents[name].decode().splitlines()
                       if line.strip() and not line.strip().startswith("//"))
            self.rooms[str(PurePath(name).parent)][name] = size
        self.drawn = {}

    def quotas(self, count):
        """How many of a room, by its size; what is left over goes to the largest remainders."""
        total = sum(sum(files.values()) for files in self.rooms.values())
        exact = {room: count * sum(files.values()) / total for room, files in self.rooms.items()}
        quotas = {room: int(share) for room, share in exact.items()}
        for room in sorted(exact, key=lambda room: quotas[room] - exact[room])[
                :count - sum(quotas.values())]:
            quotas[room] += 1
        return quotas

    def families(self, name):
        if name not in self.drawn:
            families = defaultdict(list)
            for fault in self.reader.faults(name):
                if self.wanted(fault) and not self.left_out.holds(fault):
                    families[fault.rule.split()[0]].append(fault)
            self.drawn[name] = families
        return self.drawn[name]

    def wanted(self, fault):
        return not self.only or any(fault.where == each or
                                    (fault.file + "/").startswith(each.rstrip("/") + "/")
                                    for each in self.only)

    def draw_files(self, room, count):
        """The files of a room that a draw begins with; so they can be read at once before it."""
        files = self.rooms[room]
        return self.random.choices(list(files), list(files.values()), k=count)

    def draw(self, room, drawn, count):
        files, faults, drawn = dict(self.rooms[room]), [], iter(drawn)
        while files and len(faults) < count:
            name = next(drawn, None) or self.random.choices(list(files), list(files.values()))[0]
            if name not in files:
                continue
            families = self.families(name)
            if not families:
                del files[name]
                continue
            family = self.random.choice(sorted(families))
            chosen = self.random.choice(families[family])
            faults.append(chosen)
            # A place is drawn once, by one of its rules; of places that were asked for, all.
            families[family] = [each for each in families[family] if each is not chosen and
                                (self.only or each.piece != chosen.piece)]
            if not families[family]:
                del families[family]
        return faults


class Sweep:
    def __init__(self, tree, folder, jobs):
        self.tree, self.lists = tree, tree / "tests/planted-faults.d"
        self.plot = Plot(tree, folder / "sweep", jobs)
        self.left_out = LeftOut(self.lists / "judged-by-eye")
        self.equivalent = Equivalent(self.lists / "equivalent")
        self.killed, self.survivors, self.alike, self.broken = [], [], [], []
        self.verdicts = {}

    def product(self, only):
        names = [name for name in self.plot.contents if re.search(r"\.(cpp|h)$", name) and
                 name.split("/")[0] not in NO_PRODUCT]
        return [name for name in names if not only or any(
            (name + "/").startswith(each.split(":")[0].rstrip("/") + "/") for each in only)]

    def prepare(self, count, seed, only):
        """Draws the sample, builds it and asks every test what it reaches."""
        # Beyond the end of a container is a fault that the sanitizers' build notices too.
        self.plot.lay_out("-D_GLIBCXX_ASSERTIONS",
                          ["-DKORVEL_UNITY=ON",  # half the time of a build of all
                           f"-DCMAKE_CXX_STANDARD_LIBRARIES={linked_part(self.plot)}"])
        reader = Reader(self.plot)
        sample = Sample(reader, self.left_out, self.product(only), seed, only)
        self.left_out.show()
        self.quotas = {room: quota for room, quota in sorted(sample.quotas(count).items()) if quota}
        wanted = {room: quota + math.ceil(RESERVE * quota) + 1
                  for room, quota in self.quotas.items()}
        files = {room: sample.draw_files(room, number) for room, number in wanted.items()}
        with ThreadPoolExecutor(self.plot.jobs) as pool:
            list(pool.map(reader.faults, sorted({name for each in files.values() for name in each})))
        self.drawn = {room: sample.draw(room, files[room], number)
                      for room, number in wanted.items()}
        every = [fault for faults in self.drawn.values() for fault in faults]
        self.schema = Schema(self.plot, every)
        self.schema.build(test_programs(self.plot))
        self.trials = Trials(self.plot)
        print(f"{len(self.schema.waiting)} faults of {len(every)} drawn in one build", flush=True)
        for test in self.trials.record_all():
            print(f"FAILS without a fault: {test.name}", flush=True)

    def verdict(self, fault):
        """What notices a fault of the common build."""
        tests = [test for test in self.trials.tests if fault.number in test.reaches]
        if not tests:
            return "", "no test reaches it"
        noticed = self.trials.noticed_by(fault, tests, PLANTED_FAULT=str(fault.number))
        return noticed, f"{len(tests)} tests reach it"

    def verdict_alone(self, fault):
        """The same for one that needs a build of its own; nothing when it does not compile."""
        def made():
            return {program: os.stat(program).st_mtime for program in self.trials.programs}
        targets = test_programs(self.plot)
        self.schema.write()
        self.plot.make(targets)
        before = made()
        if not self.schema.build_alone(fault, targets):
            return None
        after = made()
        relinked = {program for program in after if after[program] != before[program]}
        tests = [test for test in self.trials.tests if test.program in relinked]
        return self.trials.noticed_by(fault, tests), "in a build of its own"

    def judge(self, fault, verdict):
        noticed, how = verdict
        why = None if noticed else self.equivalent.reason(fault)
        told = "killed" if noticed else "equivalent" if why else "SURVIVES"
        {"killed": self.killed, "equivalent": self.alike, "SURVIVES": self.survivors}[told].append(
            fault)
        print(f"{told}  {fault.where}  {fault.rule}  {noticed or why or how}", flush=True)
        if told == "SURVIVES":
            print(f"    - {shown(fault.old)}\n    + {shown(fault.new)}", flush=True)

    def run(self):
        # The rooms in turn: a sweep that is broken off has seen all of them.
        turns = sorted(((turn, room, fault) for room, quota in self.quotas.items()
                       for turn, fault in enumerate(self.drawn[room][:quota])
                        if fault.number in self.schema.waiting), key=lambda each: each[:2])
        chosen = [fault for _, _, fault in turns]
        with ThreadPoolExecutor(self.plot.jobs) as pool:
            for fault, verdict in zip(chosen, pool.map(self.verdict, chosen)):
                self.judge(fault, verdict)
        for room, quota in self.quotas.items():
            self.run_rest(room, quota - sum(1 for fault in chosen if fault in self.drawn[room]),
                          [fault for fault in self.drawn[room] if fault not in chosen])

    def run_rest(self, room, missing, faults):
        """Faults with a build of their own, and the next ones for those that do not compile."""
        for fault in faults:
            if missing <= 0:
                return
            verdict = self.verdict(fault) if fault.number in self.schema.waiting else \
                self.verdict_alone(fault)
            if verdict is None:
                self.broken.append(fault)
                print(f"no fault  {fault.where}  {fault.rule}  does not compile", flush=True)
                continue
            self.judge(fault, verdict)
            missing -= 1

    def report(self):
        """Prints what survives, room by room. Returns the status of the command."""
        by_room = defaultdict(Counter)
        for told, faults in (("killed", self.killed), ("survive", self.survivors),
                             ("equivalent", self.alike)):
            for fault in faults:
                for room in list(PurePath(fault.file).parents)[:-1]:
                    by_room[str(room)][told] += 1
        enough = True
        for room, counts in sorted(by_room.items()):
            planted = counts["killed"] + counts["survive"]
            share = counts["killed"] / planted if planted else 1
            # One of three says nothing about 95 %: a small room is judged with those around it.
            judged = planted >= LEAST_JUDGED or "/" not in room
            enough = enough and (share >= LEAST_KILLED or not judged)
            print(f"{100 * share:5.1f} %  {counts['killed']} of {planted}  {room}"
                  f"{'' if judged else '  (too few to judge alone)'}")
        planted = len(self.killed) + len(self.survivors) + len(self.alike)
        print(f"{len(self.survivors)} of {planted} survive, {len(self.alike)} more are equivalent; "
              f"{len(self.broken)} did not compile and were replaced")
        if len(self.alike) > MOST_EQUIVALENT * planted:
            print("Too many are called equivalent: at most one in twenty may be.")
            return 2
        return 0 if enough and planted else 1


def shown(text):
    return text.encode("latin-1").decode("utf-8", "replace").replace("\n", "\n      ")


def sweep(tree, folder, jobs, count, seed, only):
    work = Sweep(tree, folder, jobs)
    work.prepare(count, seed, only)
    if not any(work.drawn.values()):
        raise Misplanted("no place for a fault")
    work.run()
    return work.report()


def self_check(folder, jobs):
    """Every fault of a tree of which it is known what becomes of each."""
    tree = Path(__file__).resolve().parent / "self-check"
    work = Sweep(tree, folder, jobs)
    work.prepare(1000, 1, ["room"])
    work.run()
    marked = {f"{name}:{number}" for name in work.product([])
              for number, line in enumerate((tree / name).read_text().splitlines(), 1)
              if "// lives" in line}
    wrong = marked ^ {fault.where for fault in work.survivors}
    wrong |= {f"left out: {row[0].pattern}" for row in work.left_out.rows if not work.left_out.places[row]}
    rules = {fault.rule.split()[0] for fault in work.killed}
    wrong |= {"comparison", "sign", "logic", "constant", "index", "deleted", "swapped"} - rules
    if not work.broken or len(work.alike) != 1 or not [each for each in work.killed if each.fixed]:
        wrong.add("what does not compile, is equivalent or needs a build of its own")
    print(f"Self-check: {sorted(wrong) or 'as it should be'}")
    return 1 if wrong else 0
