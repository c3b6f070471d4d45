# SPDX-License-Identifier: MIT
"""The copy of the tree in which faults are planted, and its build."""
import fcntl
import os
import shutil
import subprocess

TIME_LIMIT = 300  # seconds; a test that hangs has noticed the fault too


class Misplanted(Exception):
    """A fault that cannot be planted as it is described."""


def tracked(tree):
    """Names of the files of the working tree, those not yet committed too."""
    listed = subprocess.run(["git", "ls-files", "-z", "-co", "--exclude-standard"], cwd=tree,
                            check=True, capture_output=True, text=True).stdout.split("\0")
    return [name for name in listed if name and (tree / name).is_file()]


class Plot:
    def __init__(self, tree, folder, jobs):
        self.tree, self.folder, self.jobs = tree, folder, jobs
        self.source, self.build = folder / "src", folder / "src/build/debug"
        self.contents = {}  # as they were when they were laid out: the tree may change meanwhile
        folder.mkdir(parents=True, exist_ok=True)
        self.lock = open(folder / "lock", "w")
        fcntl.flock(self.lock, fcntl.LOCK_EX)

    def lay_out(self, flags="", settings=()):
        """Brings the copy to the state of the working tree; unchanged files keep their time."""
        self.contents = {name: (self.tree / name).read_bytes() for name in tracked(self.tree)}
        for name, content in self.contents.items():
            self.write(name, content)
            shutil.copymode(self.tree / name, self.source / name)
        for path in self.source.rglob("*"):
            relative = path.relative_to(self.source)
            if path.is_file() and relative.parts[0] != "build" and \
                    str(relative) not in self.contents:
                path.unlink()
        # A fault may leave an argument unused.
        self.run(["cmake", "--preset", "debug", f"-DCMAKE_CXX_FLAGS_DEBUG=-O0 -w {flags}",
                  *settings], check=True)

    def write(self, name, content):
        target = self.source / name
        if target.exists() and target.read_bytes() == content:
            return
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(content)

    def run(self, command, check=False, cwd=None, limit=TIME_LIMIT):
        surroundings = dict(os.environ, QT_QPA_PLATFORM="offscreen",
                            CCACHE_BASEDIR=str(self.source.parent))
        done = subprocess.run(command, cwd=cwd or self.source, env=surroundings, text=True,
                              errors="replace", stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              timeout=None if check else limit)
        if check and done.returncode:
            raise Misplanted(done.stdout[-3000:])
        return done

    def make(self, targets, keep_going=False):
        """Builds; returns what ninja says."""
        return self.run(["ninja", "-C", str(self.build), f"-j{self.jobs}",
                         *(["-k0"] if keep_going else []), *targets], limit=None)
