"""Puts results into words: tables in Markdown, and their place in the document."""

BEGIN = "<!-- ./dev bench writes from here on; changes are lost -->"
END = "<!-- ./dev bench writes to here -->"

HEADER = ("| | peer | ours, one core | peer | ratio | goal "
          "| ours, two cores | peer | ratio | goal |\n"
          "|---|---|---|---|---|---|---|---|---|---|\n")


def seconds(value):
    return f"{value * 1000:.1f} ms" if value < 1 else f"{value:.2f} s"


def goal_text(row, goal):
    if goal is None:
        return ""
    if row.kind == "ratio":
        return f">= {goal:.3g}"
    return f"<= {seconds(goal)}" if row.kind == "seconds" else f"<= {goal:.3g}"


def mark(text, missed):
    return f"**{text}**" if missed else text


class Line:
    """A row with its results by the number of cores, or with what went wrong."""

    def __init__(self, row, results=None, error=None, note=None):
        self.row = row
        self.results = results or {}
        self.error = error
        self.note = note

    def value(self, cores):
        """What is held against the goal."""
        if cores not in self.results:
            return None
        ours, peer = self.results[cores]
        if self.row.kind == "size":
            return ours / peer
        if self.row.kind == "seconds":
            return ours.time(cores)
        if self.row.kind == "memory":
            peak = max(figures["peak"] for figures in ours.figures)
            return peak / (ours.figures[0]["frames"] * self.row.pixels * 4)
        return peer.time(cores) / ours.time(cores)

    def missed(self, cores):
        value, goal = self.value(cores), self.row.goals[cores - 1]
        if goal is None:
            return False
        if value is None:
            return self.error is not None
        return value < goal if self.row.kind == "ratio" else value > goal

    def cells(self, cores):
        goal = goal_text(self.row, self.row.goals[cores - 1])
        if self.error:
            return ["", "", "", goal]
        if cores not in self.results:
            return ["", "", "", ""]
        ours, peer = self.results[cores]
        value, missed = self.value(cores), self.missed(cores)
        if self.row.kind == "size":
            return [f"{ours:,} bytes", f"{peer:,} bytes", mark(f"{value:.3f}", missed), goal]
        if self.row.kind == "seconds":
            return [mark(seconds(value), missed), "", "", goal]
        if self.row.kind == "memory":
            return [mark(f"{value:.3f}", missed), "", "", goal]
        return [seconds(ours.time(cores)), seconds(peer.time(cores)), mark(f"{value:.2f}", missed),
                goal]

    def markdown(self):
        peer = self.row.peer.name if self.row.peer else ""
        if self.error:
            peer += ": NOT TIMED"
        cells = [f"{self.row.group}. {self.row.name}", peer, *self.cells(1), *self.cells(2)]
        return "| " + " | ".join(cells) + " |\n"


def table(lines):
    text = HEADER + "".join(line.markdown() for line in lines)
    missed = [f"{line.row.group}. {line.row.name} ({cores})"
              for line in lines for cores in (1, 2) if line.missed(cores)]
    goals = sum(goal is not None for line in lines for goal in line.row.goals)
    text += f"\n{goals - len(missed)} of {goals} goals are met.\n"
    for line in lines:
        if line.error:
            text += f"\nNot timed: {line.row.name}: {line.error}\n"
        if line.note:
            text += f"\n{line.note}\n"
    return text


def growth(measured):
    text = "Processor time of one core; the last column is the last cost by the third last.\n\n"
    for series, points in measured:
        sizes = "".join(f" {size:,} |" for size, _ in points)
        text += f"| {series.name} |{sizes} |\n"
        text += "|---" * (len(points) + 2) + "|\n"
        text += f"| ns a {series.unit} |" + "".join(f" {cost:.4g} |" for _, cost in points)
        text += f" {points[-1][1] / points[-3][1]:.2f} |\n\n"
    return text


def document(machine, lines, measured, editor, took):
    text = "\n".join(f"- {line}" for line in machine)
    text += f"\n- The whole took {took / 60:.1f} minutes.\n\n### Rows\n\n{table(lines)}\n"
    if measured:
        text += f"### Growth\n\n{growth(measured)}"
    if editor:
        text += f"### The editor\n\n{editor}\n"
    return text


def put_into(path, text):
    """Replaces what stands between the marks in the document."""
    whole = path.read_text()
    start, end = whole.index(BEGIN) + len(BEGIN), whole.index(END)
    path.write_text(f"{whole[:start]}\n\n{text}\n{whole[end:]}")
