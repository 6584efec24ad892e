#!/usr/bin/python3
"""export_torture.py KIRTO_CLI KIRTO_SAMPLE short|whole

Exports over existing files, in each kind that there is, while system calls fail, the programs are killed or
the disk is full, and demands every time that
  - each file is the old one or the new one, byte for byte,
  - the program says that it succeeded only if all of them are new,
  - nothing else is left in the folder, unless something was killed.
"""

import os
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time

CALLS = ("write", "fsync", "linkat", "openat", "pwrite64", "renameat")
CALLS_IN_SHORT = 3

# What kirto-cli is asked for behind the animation; {} is the folder.
KINDS = {
    "webp": ["--export", "{}/out.webp"],
    "apng": ["--export", "{}/out.png"],
    "mp4": ["--export", "{}/out.mp4"],
    "sheet": ["--save-sheet", "{}/out.png"],
    "images": ["--save-sequence", "{}/out.png"],
    "image": ["--save-frame", "{}/out.jpg"],
}
NEED_FFMPEG = ("mp4",)
IN_SHORT = ("webp", "mp4", "sheet")


class Torture:
    def __init__(self, cli, sample, whole, work):
        self.cli = os.path.abspath(cli)
        self.whole = whole
        self.folder = os.path.join(work, "folder")
        self.source = os.path.join(work, "source.gif")
        self.environment = dict(os.environ, HOME=work, XDG_CONFIG_HOME=work, LC_ALL="C")
        self.work = work
        self.old = {}
        self.new = {}
        self.cases = 0
        self.failures = 0
        self.all_failures = 0
        subprocess.run([os.path.abspath(sample), self.source], check=True, stdout=subprocess.DEVNULL)
        self.random = random.Random(int(os.environ.get("KIRTO_E2E_SEED", "1")))

    def command(self, kind, folder=None):
        files = [part.format(folder or self.folder) for part in KINDS[kind]]
        # Few frames are enough, and some are left for the images to be old and new in turn.
        return [self.cli, "--quiet", "--open", self.source, "--select", "4--1", "--remove", *files]

    def prepare(self, kind):
        os.makedirs(self.folder, exist_ok=True)
        self.empty()
        subprocess.run(self.command(kind), env=self.environment, check=True, stdout=subprocess.DEVNULL)
        self.new = self.content()
        self.old = {name: b"old " + name.encode() for name in self.new}

    def empty(self):
        for name in os.listdir(self.folder):
            os.remove(os.path.join(self.folder, name))

    def reset(self):
        self.empty()
        for name, data in self.old.items():
            with open(os.path.join(self.folder, name), "wb") as file:
                file.write(data)

    def content(self):
        found = {}
        for name in os.listdir(self.folder):
            with open(os.path.join(self.folder, name), "rb") as file:
                found[name] = file.read()
        return found

    def run(self, kind, prefix=()):
        done = subprocess.run([*prefix, *self.command(kind)], env=self.environment, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, check=False)
        return done.returncode

    def check(self, status, killed, what):
        self.cases += 1
        now = self.content()
        torn = [name for name in self.old if now.get(name) not in (self.old[name], self.new[name])]
        litter = [name for name in now if name not in self.old]
        late = status == 0 and any(now.get(name) != self.new[name] for name in self.old)
        if torn or late or (litter and not killed):
            self.failures += 1
            print(f"FAILED: {what}: exit {status}, neither old nor new: {torn}, besides: {litter}")

    def failing_calls(self, kind):
        errors = ("ENOSPC", "EIO") if self.whole else ("ENOSPC",)
        for call in CALLS if self.whole else CALLS[:CALLS_IN_SHORT]:
            trace = os.path.join(self.work, "trace")
            self.reset()
            self.run(kind, ["strace", "-f", "-qq", "-o", trace, "-e", f"trace={call}"])
            with open(trace, encoding="latin-1") as lines:
                count = sum(f"{call}(" in line for line in lines)
            # The last ones are about the file, those before them about libraries.
            first = max(1, count - (20 if self.whole else 1))
            for number in range(first, count + 1):
                for error in errors:
                    self.reset()
                    status = self.run(kind, ["strace", "-f", "-qq", "-o", "/dev/null", "-e", f"trace={call}", "-e",
                                             f"inject={call}:error={error}:when={number}+"])
                    self.check(status, False, f"{kind}, {call} {error} from call {number} on")

    def kills(self, kind, times):
        self.reset()
        start = time.monotonic()
        self.run(kind)
        longest = time.monotonic() - start
        for _ in range(times):
            self.reset()
            with subprocess.Popen(self.command(kind), env=self.environment, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL, start_new_session=True) as process:
                time.sleep(self.random.uniform(0, longest))
                # The programs that it has started go with it.
                try:
                    os.killpg(process.pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass
                status = process.wait()
            self.check(status, True, f"{kind}, killed")

    def full_disk(self, kind):
        """The folder is a disk that the old files fill, which are a page each."""
        size = 4 * len(self.old)
        self.empty()
        mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}k", "none", self.folder],
                                 stderr=subprocess.DEVNULL, check=False)
        if mounted.returncode != 0:
            return
        try:
            self.reset()
            status = self.run(kind)
            self.check(status, False, f"{kind}, full disk")
            if status == 0:
                self.failures += 1
                print(f"FAILED: {kind}: the full disk took the files")
        finally:
            subprocess.run(["umount", self.folder], check=True)

    def end_row(self, what):
        print(f"{what}: {self.cases} cases, {self.failures} failures", flush=True)
        table = os.environ.get("KIRTO_TORTURE_TABLE")
        if table and self.cases:
            with open(table, "a", encoding="utf-8") as rows:
                rows.write(f"{what}\t{self.cases}\t{self.failures}\n")
        self.all_failures += self.failures
        self.cases = self.failures = 0


def main():
    cli, sample, form = sys.argv[1:]
    whole = form == "whole"
    with tempfile.TemporaryDirectory() as work:
        torture = Torture(cli, sample, whole, work)
        kinds = [kind for kind in (KINDS if whole else IN_SHORT) if kind not in NEED_FFMPEG or shutil.which("ffmpeg")]
        traceable = shutil.which("strace") and subprocess.run(
            ["strace", "-qq", "-o", "/dev/null", "true"], check=False).returncode == 0
        steps = {
            "exports killed at random": lambda kind: torture.kills(kind, 2000 // len(kinds) if whole else 5),
            "exports onto a full disk": torture.full_disk,
        }
        if traceable:
            steps["exports with calls that fail"] = torture.failing_calls
        for what, step in steps.items():
            for kind in kinds:
                torture.prepare(kind)
                step(kind)
            torture.end_row(what)
        return 1 if torture.all_failures else 0


if __name__ == "__main__":
    sys.exit(main())
