"""The machine and the programs that figures come from."""

import datetime
import os
import platform
import re
import subprocess
from pathlib import Path

# Debian packages of the peers.
PEERS = ("libgif7", "libcgif0", "gifsicle", "ffmpeg", "libavcodec59", "imagemagick-6.q16")


def first_match(path, pattern, default="unknown"):
    match = re.search(pattern, Path(path).read_text(errors="replace"), re.MULTILINE)
    return match.group(1).strip() if match else default


def output_of(*command):
    try:
        result = subprocess.run(command, check=True, stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL, text=True)
    except (OSError, subprocess.CalledProcessError):
        return ""
    return result.stdout.strip()


def package_version(package):
    return output_of("dpkg-query", "-W", "-f", "${Version}", package) or "version unknown"


def compiler(build):
    cache = build / "CMakeCache.txt"
    program = first_match(cache, r"^CMAKE_CXX_COMPILER:\w+=(.*)$", "c++")
    kind = first_match(cache, r"^CMAKE_BUILD_TYPE:\w+=(.*)$")
    version = output_of(program, "--version").splitlines()
    return f"{version[0] if version else program}, {kind}"


def describe(build):
    memory = int(first_match("/proc/meminfo", r"^MemTotal:\s+(\d+)", "0")) / 1024 / 1024
    cores = len(os.sched_getaffinity(0))
    processor = first_match("/proc/cpuinfo", r"^model name[^:]*:(.*)$")
    system = first_match("/etc/os-release", r'^PRETTY_NAME="?([^"\n]*)')
    peers = ", ".join(f"{name} {package_version(name)}" for name in PEERS)
    return [
        f"Date: {datetime.datetime.now(datetime.timezone.utc):%Y-%m-%d %H:%M} UTC, "
        f"load {os.getloadavg()[0]:.2f} at the start",
        f"Processor: {processor}, "
        f"{cores} core{'s' if cores != 1 else ''}, {memory:.0f} GiB of memory",
        f"System: {system}, "
        f"{platform.system()} {platform.release()}",
        f"Compiler: {compiler(build)}",
        f"Peers: {peers}",
    ]
