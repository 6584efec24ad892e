"""What is measured: each row with its competitors, its goals and how their results are compared."""

import hashlib
import shutil
import subprocess
from dataclasses import dataclass, replace
from typing import Callable, Optional

from contest import Entrant, Failed

MANY_ROUNDS = 21  # for what takes milliseconds


@dataclass(frozen=True)
class Row:
    group: int
    name: str
    ours: Entrant
    peer: Optional[Entrant]
    # For one core and for two; None where there is none. A ratio is the peer's time by ours and at
    # least the goal; "seconds", "memory" and "size", which is ours by the peer's and depends on no
    # core, are at most the goal.
    goals: tuple
    kind: str = "ratio"
    rounds: Optional[int] = None
    # Raises Failed where the competitors' results differ; what it returns, if anything, is told.
    check: Optional[Callable] = None
    pixels: int = 0  # of a frame, for memory
    # Of the files that the competitors have just written; it lets nobody run again.
    sizes: Optional["Row"] = None

    def has(self, pattern):
        """Whether its name, or that of its sizes, has a pattern."""
        return any(row and pattern.search(row.name) for row in (self, self.sizes))

    @property
    def cores(self):
        """On how many cores it is measured: where there is a goal, or on one for scale."""
        return [cores for cores, goal in zip((1, 2), self.goals) if goal is not None] or [1]


class Files:
    """The files that the programs read and write, and the programs."""

    def __init__(self, build, work, quick):
        self.build = build
        self.work = work
        self.quick = quick
        self.rounds = 3 if quick else 7
        self.digests = {}
        self.magick = shutil.which("convert-im6.q16") or "convert"

    def path(self, name):
        return str(self.work / name)

    def cli(self, *arguments):
        return Entrant("kirto-cli", (str(self.build / "kirto-cli"), "--quiet", *arguments),
                       whole=True)

    def job(self, name, *arguments, repeat=1):
        return Entrant(name, (str(self.build / "kirto_bench_jobs"), "--repeat", str(repeat), name,
                              *arguments))

    def peer_job(self, name, *arguments):
        """A job of another library's."""
        return replace(self.job(name, *arguments), threads=False)

    def digest_of_source(self, track, *arguments):
        """The same as digest() for a file that does not change while this runs."""
        if arguments not in self.digests:
            self.digests[arguments] = self.digest(track, *arguments)
        return self.digests[arguments]

    def digest(self, track, *arguments):
        """The digest that a job gives its pictures, with how many there are."""
        command = (str(self.build / "kirto_bench_jobs"), "--digest", *arguments)
        figures = track.run(Entrant(arguments[0], command), 1).figures
        return figures["digest"], figures["frames"]

    def error(self, track, gif):
        """How far dithered pictures are from the clip."""
        return track.run(self.job("error", self.path("clip.raw"), gif), 1).figures


def agree(what, first, second):
    if first != second:
        raise Failed(f"{what}: {first} and {second} differ")


def reading(files, group, animation, peer, goals):
    """A file is opened; the peer's pictures are to be the same."""
    path = files.path(animation)

    def check(track):
        agree(animation, files.digest(track, "open", path),
              files.digest_of_source(track, peer, path))

    return Row(group, f"open {animation}", files.job("open", path), files.peer_job(peer, path),
               goals, check=check)


def decoder_alone(files, group, animation):
    """The same beside a decoder that keeps nothing: for scale."""
    path = files.path(animation)
    return Row(group, f"open {animation}, for scale", files.job("open", path),
               files.peer_job("giflib-rows", path), (None, None))


def writing(files, group, name, animation, ours, peer, goals, sizes=None):
    """Files are written; both have the pictures of the one that is read."""
    source = files.path(animation)

    def check(track):
        wanted = files.digest_of_source(track, "giflib", source)
        for entrant in (ours, peer):
            track.run(entrant, 1)
            agree(f"{name}, {entrant.name}", wanted,
                  files.digest(track, "giflib", entrant.command[-1]))

    return Row(group, name, ours, peer, goals, check=check, sizes=sizes)


def encoding(files, animation, job, name, goals):
    source = files.path(animation)
    return writing(files, 4, f"{name} {animation}", animation,
                   files.job(job, source, files.path("ours.gif")),
                   files.peer_job("cgif", source, files.path("peer.gif")), goals)


def whole_program(files, animation):
    source = files.path(animation)
    ours = files.cli("--open", source, "--save", files.path("ours.gif"))
    peer = Entrant("gifsicle -U", ("gifsicle", "-U", source, "-o", files.path("peer.gif")),
                   whole=True, threads=False)
    return writing(files, 5, f"open and save {animation}", animation, ours, peer, (1.4, 2.4))


def untouched(files, animation):
    """An animation is opened and saved as it was."""
    source = files.path(animation)
    ours = files.cli("--faithful", "--open", source, "--save", files.path("ours.gif"))
    peer = Entrant("gifsicle", ("gifsicle", source, "-o", files.path("peer.gif")), whole=True,
                   threads=False)
    return writing(files, 15, f"save {animation} untouched", animation, ours, peer, (1, 1))


def as_small_as_found(files, animation):
    """What is opened as whole pictures is saved in as few bytes as can be found, without a loss: how
    long that takes, and in how many bytes it ends."""
    source = files.path(animation)
    ours = files.cli("--open", source, "--faithful", "--save", files.path("ours.gif"))
    peer = Entrant("gifsicle -O3", ("gifsicle", "-O3", source, "-o", files.path("peer.gif")),
                   whole=True)
    sizes = Row(17, f"size of {animation}", ours, peer, (1.01, None), kind="size")
    return writing(files, 16, f"save {animation} small", animation, ours, peer, (None, 2), sizes)


def dithering(files):
    ours_gif, peer_gif = files.path("ours.gif"), files.path("peer.gif")
    job = files.job("reduce", files.path("clip.raw"), "640", "480", ours_gif)
    ours = Entrant("reduce", job.command, whole=True)
    peer = Entrant("ffmpeg", (
        "ffmpeg", "-hide_banner", "-loglevel", "error", "-nostdin", "-y", "-f", "rawvideo",
        "-pixel_format", "bgra", "-video_size", "640x480", "-framerate", "20", "-i",
        files.path("clip.raw"), "-lavfi",
        "split[a][b];[a]palettegen[p];[b][p]paletteuse=dither=floyd_steinberg", peer_gif),
        whole=True)

    def check(track):
        # Other palettes make other pictures; there are to be as many.
        for entrant in (ours, peer):
            track.run(entrant, 2)
        errors = [files.error(track, gif) for gif in (ours_gif, peer_gif)]
        agree("dithering", errors[0]["frames"], errors[1]["frames"])
        ours_error, peer_error = (figures["error"] for figures in errors)
        return ("Row 6: blurred over 5 x 5 pixels, as the eye does, the dithered pictures differ "
                f"from the photographs by {ours_error:.2f} levels (Kirto) and {peer_error:.2f} "
                "(ffmpeg).")

    return Row(6, "photo to one palette, Floyd-Steinberg", ours, peer, (2.5, 4.5), check=check)


def inserting(files, extension):
    # The time of one more does not depend on how many there are, and more would take minutes.
    photos, count = (4, 4) if files.quick else (10, 30)
    paths = [files.path(f"photo{i % photos}.{extension}") for i in range(count)]
    insert = [word for path in paths for word in ("--insert", path)]
    reads = [word for path in paths[:-1] for word in (path, "+delete")]
    ours = files.cli(*insert)
    peer = Entrant("ImageMagick", (files.magick, *reads, paths[-1], "null:"), whole=True)

    def pixels(path):
        command = [files.magick, path, "-depth", "8", "rgb:-"]
        read = subprocess.run(command, check=True, stdout=subprocess.PIPE)
        return hashlib.sha256(read.stdout).hexdigest()

    def check(track):
        track.run(files.cli("--insert", paths[0], "--save-sequence", files.path("read.png")), 1)
        agree(extension, pixels(files.path("read0000.png")), pixels(paths[0]))

    return Row(7, f"insert {count} {extension} of 1920 x 1080", ours, peer, (1.5, 2.8),
               check=check)


def memory(files, animation, pixels, goal):
    return Row(10, f"memory of {animation}", files.job("open", files.path(animation)), None,
               (None, goal), kind="memory", rounds=3, pixels=pixels)


def seconds(group, name, ours, goals):
    return Row(group, name, ours, None, goals, kind="seconds")


def reading_rows(files):
    def read(group, animation, goals):
        return reading(files, group, animation, "giflib", goals)

    rows = [
        read(1, "photo.gif", (2.5, 4.5)),
        read(1, "noise.gif", (2.2, 4)),
        read(2, "flat.gif", (5, 9)),
        read(2, "sprites.gif", (3, 5)),
        read(2, "screen.gif", (5, 9)),
        read(3, "changes.gif", (10, 12)),
    ]
    if not files.quick:
        rows += [decoder_alone(files, group, animation) for group, animation in (
            (1, "photo.gif"), (1, "noise.gif"), (3, "changes.gif"))]
    return rows


def writing_rows(files):
    goals = {"photo.gif": (1.2, 2.2), "flat-part.gif": (2, 3.8), "sprites.gif": (1.2, 2.2)}
    # The encoder itself knows no threads.
    alone = [encoding(files, animation, "encode", "encoder alone,", (one, None))
             for animation, (one, _) in goals.items()]
    return alone + [encoding(files, animation, "save", "save", both)
                    for animation, both in goals.items()]


def memory_rows(files):
    pixels = {"flat.gif": 1920 * 1080, "sprites.gif": 128 * 128, "screen.gif": 800 * 600}
    return [*(memory(files, animation, size, 0.3) for animation, size in pixels.items()),
            memory(files, "changes.gif", 800 * 600, 0.08)]


def program_rows(files):
    animations = ("photo.gif", "noise.gif", "flat.gif", "sprites.gif", "screen.gif")
    return [*(whole_program(files, animation) for animation in animations),
            dithering(files), inserting(files, "jpg"), inserting(files, "png")]


def faithful_rows(files):
    untouched_ones = [untouched(files, animation) for animation in ("photo.gif", "sprites.gif")]
    small_ones = [as_small_as_found(files, animation)
                  for animation in ("flat-part.gif", "screen.gif", "changes.gif", "sprites.gif")]
    return [*untouched_ones, *small_ones]


def fading(files):
    frames = 5 if files.quick else 20
    return seconds(8, f"fade to next, {frames} of 1920 x 1080", files.job("fade", str(frames)),
                   (0.6 * frames / 20, 0.35 * frames / 20))


def resizing(files):
    """What is scaled makes no difference to the peer, so it reads nothing."""
    frames = 10 if files.quick else 40
    ffmpeg = Entrant("ffmpeg", (
        "ffmpeg", "-hide_banner", "-loglevel", "error", "-nostdin", "-f", "rawvideo",
        "-pixel_format", "bgra", "-video_size", "1920x1080", "-i", "/dev/zero",
        "-frames:v", str(frames), "-vf", "scale=1280:720:flags=lanczos", "-f", "null", "-"),
        whole=True)
    return Row(18, f"resize {frames} of 1920 x 1080 to 1280 x 720", files.job("resize", str(frames)),
               ffmpeg, (1, 1), rounds=3)


def large_pictures(files):
    goals = (0.4, 0.25)
    return [seconds(11, "insert a picture of 2,000,000 colors",
                    files.cli("--insert", files.path("colors.ppm")), goals),
            seconds(11, "insert a photo of 4000 x 3000",
                    files.cli("--insert", files.path("large.jpg")), goals)]


def long_list(files):
    animation = files.path("frames1000.gif")
    appended = Entrant("at their end", files.job("insert", animation, "end").command)
    return Row(12, "insert 1,000 frames at 0 of 10,000", files.job("insert", animation, "start"),
               appended, (1 / 1.1, None))


def start(files):
    kirto = Entrant("kirto-cli", (str(files.build / "kirto-cli"), "--version"), whole=True)
    gifsicle = Entrant("gifsicle", ("gifsicle", "--version"), whole=True)
    return Row(13, "kirto-cli --version", kirto, gifsicle, (1 / 2, None), rounds=MANY_ROUNDS)


def all_rows(files):
    return [*reading_rows(files), *writing_rows(files), *program_rows(files), fading(files),
            resizing(files),
            reading(files, 9, "scene.flc", "libavcodec", (2, 3.5)), *memory_rows(files),
            *large_pictures(files), long_list(files), start(files), *faithful_rows(files)]
