"""Programs that are timed in turns.

On one core a program's processor time counts, of all its threads together; on two cores the clock
on the wall. Whole processes are timed from outside; the jobs of kirto_bench_jobs tell themselves what
the part of them that counts has taken.
"""

import json
import os
import statistics
import subprocess
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path


class Failed(Exception):
    """A program has failed, or competitors do not agree on the result."""


@dataclass(frozen=True)
class Entrant:
    name: str
    command: tuple
    whole: bool = False  # the whole process is timed
    # False: it never has more than one, so that a run tells its times on any number of cores.
    threads: bool = True


@dataclass(frozen=True)
class Sample:
    processor: float  # seconds
    wall: float  # seconds
    figures: dict  # what the program itself has printed; empty for whole processes


@dataclass(frozen=True)
class Result:
    """Medians, in seconds."""

    processor: float
    wall: float
    figures: list  # of each round

    def time(self, cores):
        return self.processor if cores == 1 else self.wall


class Track:
    """Runs programs on a choice of the machine's cores."""

    def __init__(self, work):
        self.all = sorted(os.sched_getaffinity(0))
        self.work = Path(work)

    def environment(self, cores):
        variables = dict(os.environ)
        variables.update(
            # The user's settings have no say.
            HOME=str(self.work), XDG_CONFIG_HOME=str(self.work), LC_ALL="C.UTF-8",
            KIRTO_THREADS=str(cores), MAGICK_THREAD_LIMIT=str(cores), OMP_NUM_THREADS=str(cores))
        return variables

    def run(self, entrant, cores):
        with tempfile.TemporaryFile() as output, tempfile.TemporaryFile() as errors:
            os.sched_setaffinity(0, self.all[-cores:])
            try:
                start = time.perf_counter()
                process = subprocess.Popen(
                    entrant.command, stdin=subprocess.DEVNULL, stdout=output, stderr=errors,
                    env=self.environment(cores))
                _, status, usage = os.wait4(process.pid, 0)
                wall = time.perf_counter() - start
            finally:
                os.sched_setaffinity(0, self.all)
            # wait4 has taken the status that the process object would ask for.
            process.returncode = os.waitstatus_to_exitcode(status)
            output.seek(0)
            errors.seek(0)
            if process.returncode != 0:
                raise Failed(f"{' '.join(entrant.command[:4])} has failed: "
                             f"{errors.read().decode(errors='replace')[-300:]}")
            if entrant.whole:
                return Sample(usage.ru_utime + usage.ru_stime, wall, {})
            figures = json.loads(output.read())
            return Sample(figures["processor"], figures["wall"], figures)

    def contest(self, runs, rounds):
        """Lets entrants, each with its number of cores, run in turns, A B A B and so on."""
        samples = [[] for _ in runs]
        for _ in range(rounds):
            for (entrant, cores), taken in zip(runs, samples):
                taken.append(self.run(entrant, cores))
        return [Result(statistics.median(sample.processor for sample in taken),
                       statistics.median(sample.wall for sample in taken),
                       [sample.figures for sample in taken])
                for taken in samples]

    def compare(self, ours, peer, all_cores, rounds):
        """Our result and the peer's, if there is one, by the number of cores."""
        if peer and not peer.threads and len(all_cores) > 1:
            runs = [(ours, cores) for cores in all_cores] + [(peer, all_cores[-1])]
            *results, of_peer = self.contest(runs, rounds)
            return {cores: (result, of_peer) for cores, result in zip(all_cores, results)}
        compared = {}
        for cores in all_cores:
            runs = [(entrant, cores) for entrant in (ours, peer) if entrant]
            compared[cores] = (*self.contest(runs, rounds), None)[:2]
        return compared
