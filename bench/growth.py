"""How costs grow: what a frame, a pixel costs where there are more and more of them."""

from dataclasses import dataclass

from contest import Entrant


@dataclass(frozen=True)
class Point:
    size: int
    units: int  # that the cost is divided by
    entrant: Entrant
    rounds: int


@dataclass(frozen=True)
class Series:
    name: str
    unit: str
    points: tuple


# Work on small sizes is repeated so that it takes as long as on these.
REPEATED_FRAMES = 1000
REPEATED_SIDE = 1024


def all_series(files):
    rounds = 1 if files.quick else 3
    counts = (10, 100, 1000, 10000)
    colors = (2, 256, 4096, 65536, 1 << 19, 1 << 21)
    sides = (64, 256, 1024, 2048) if files.quick else (64, 256, 1024, 4096, 8192)

    def of_frames(job, *arguments):
        return tuple(
            Point(count, count,
                  files.job(job, files.path(f"frames{count}.gif"), *arguments,
                            repeat=max(REPEATED_FRAMES // count, 1)), rounds)
            for count in counts)

    return [
        Series("open frames of 32 x 32", "frame", of_frames("open")),
        Series("save frames of 32 x 32", "frame", of_frames("save", files.path("grown.gif"))),
        Series("palette of so many colors, 1920 x 1080", "pixel",
               tuple(Point(count, 1920 * 1080, files.job("palette", str(count)), rounds)
                     for count in colors)),
        Series("save a photo of so many pixels a side", "pixel",
               tuple(Point(side, side * side,
                           files.job("save-picture", str(side),
                                     repeat=max(REPEATED_SIDE ** 2 // side ** 2, 1)),
                     rounds if side <= REPEATED_SIDE else 1)
                     for side in sides)),
    ]


def measure(track, series):
    """The processor time of a unit, in nanoseconds, for each point."""
    return [(point.size,
             track.contest([(point.entrant, 1)], point.rounds)[0].processor / point.units * 1e9)
            for point in series.points]
