# SPDX-License-Identifier: MIT
"""The tests of a build: what each reaches, and which of them notices a fault."""
import json
import os
import re
import signal
import subprocess
from concurrent.futures import ThreadPoolExecutor
from pathlib import PurePath


HANGS = "hangs"


class Test:
    def __init__(self, program, name, file):
        self.program, self.name, self.file = program, name, file
        self.suite = (program, name.split(".")[0])
        self.seconds, self.reaches, self.passes = 0.0, set(), False

    def nearness(self, file):
        """Sorts the tests of the file itself before those of its folder, these before others."""
        own = re.sub(r"Test$", "", PurePath(self.file).stem) == PurePath(file).stem
        folders = PurePath(self.file).parent.parts[1:]  # without tests/
        shared = len(os.path.commonprefix([folders, PurePath(file).parent.parts]))
        return (not own, -shared, self.seconds)


def test_programs(plot):
    """Names of all that are to be built."""
    listed = plot.run(["ninja", "-C", str(plot.build), "-t", "targets", "all"], check=True).stdout
    return re.findall(r"^(\S*_test): CXX_EXECUTABLE_LINKER", listed, re.MULTILINE)


class Trials:
    FIRST_SECONDS = 4  # as long as a batch of tests may take before the next is asked

    def __init__(self, plot):
        self.plot = plot
        shown = plot.run(["ctest", "--test-dir", str(plot.build), "--show-only=json-v1"],
                         check=True).stdout
        self.programs = {}
        for test in json.loads(shown[shown.index("{"):])["tests"]:
            command = test.get("command", [])
            if len(command) != 1 or not command[0].startswith(str(plot.build)):
                continue  # a script that looks at the build itself
            properties = {each["name"]: each["value"] for each in test["properties"]}
            settings = [each.split("=", 1) for each in properties.get("ENVIRONMENT", [])]
            self.programs[command[0]] = (properties["WORKING_DIRECTORY"],
                                         dict(each for each in settings
                                              if not each[0].startswith("GTEST_")))
        self.tests = []

    def run(self, program, arguments, limit, **settings):
        """(status or None when it hangs, output without the words of the platform in between)"""
        folder, own = self.programs[program]
        process = subprocess.Popen([program, *arguments], cwd=folder, text=True, errors="replace",
                                   env=dict(os.environ, **own, **settings), stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                   start_new_session=True)
        try:
            output, _ = process.communicate(timeout=limit)
            return process.returncode, output
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.communicate()
            return None, ""

    def list_tests(self):
        for program in self.programs:
            listed = self.plot.folder / "tests.json"
            self.run(program, ["--gtest_list_tests", f"--gtest_output=json:{listed}"], 60)
            for suite in json.loads(listed.read_text())["testsuites"]:
                for test in suite["testsuite"]:
                    name = f"{suite['name']}.{test['name']}"
                    if "DISABLED_" not in name:
                        file = os.path.relpath(os.path.realpath(test["file"]), self.plot.source)
                        self.tests.append(Test(program, name, file))

    def record(self, suite):
        """Runs the tests of a suite without a fault. Returns the names of those that pass."""
        tests = [test for test in self.tests if test.suite == suite]
        log = self.plot.folder / "reached" / re.sub(r"\W", "_", " ".join(suite[-1:]))
        log.parent.mkdir(exist_ok=True)
        log.unlink(missing_ok=True)
        _, output = self.run(suite[0], ["--gtest_filter=" + ":".join(test.name for test in tests)],
                             1200, PLANTED_RECORD=str(log))
        for test, milliseconds in re.findall(r"^\[       OK \] (\S+).*\((\d+) ms\)$", output,
                                             re.MULTILINE):
            for each in tests:
                if each.name == test:
                    each.seconds, each.passes = 0.3 + int(milliseconds) / 1000, True
        for line in log.read_text().splitlines() if log.exists() else []:
            name, site = line.split()
            for each in tests:
                if name in ("-", each.name):
                    each.reaches.add(int(site))

    def record_all(self):
        """Returns the tests that fail without a fault; they are asked nothing afterwards."""
        self.list_tests()
        with ThreadPoolExecutor(self.plot.jobs) as pool:
            list(pool.map(self.record, dict.fromkeys(test.suite for test in self.tests)))
        failing = [test for test in self.tests if not test.passes]
        self.tests = [test for test in self.tests if test.passes]
        return failing

    def batches(self, tests):
        """Small lots of tests of one program first, larger ones after them."""
        limit, lot = self.FIRST_SECONDS, []
        for test in tests:
            lot.append(test)
            if sum(each.seconds for each in lot) > limit:
                yield from self.by_program(lot)
                lot, limit = [], limit * 4
        yield from self.by_program(lot)

    @staticmethod
    def by_program(lot):
        for program in sorted({test.program for test in lot}):
            yield program, [test for test in lot if test.program == program]

    def noticed_by(self, fault, tests, **settings):
        """The first of the tests that fails, twice, with a fault; nearest first."""
        tests = sorted(tests, key=lambda test: test.nearness(fault.file))
        for program, lot in self.batches(tests):
            while lot:
                failed = self.fails(program, lot, settings)
                if not failed:
                    break
                if failed == HANGS:
                    return f"{lot[0].name} or one after it hangs"
                if self.fails(program, [failed], settings):
                    return failed.name
                lot = [test for test in lot if test is not failed]  # it fails now and then
        return None

    def fails(self, program, lot, settings):
        limit = 30 + 10 * sum(test.seconds for test in lot)
        status, output = self.run(program, ["--gtest_fail_fast", "--gtest_filter=" +
                                            ":".join(test.name for test in lot)],
                                  limit, **settings)
        if status == 0:
            return None
        if status is None:
            return HANGS
        names = re.findall(r"^\[  FAILED  \] ([^\s,]+)", output, re.MULTILINE) or \
            re.findall(r"^\[ RUN      \] (\S+)", output, re.MULTILINE)[-1:]
        return next((test for test in lot if test.name in names), lot[0])
