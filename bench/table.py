"""What was measured, the best of each, as a table."""

from dataclasses import dataclass, field


@dataclass
class Row:
    what: str
    digits: int
    values: dict[str, list[float]] = field(default_factory=dict)

    def best(self, name):
        return min(self.values[name]) if self.values.get(name) else None

    def text(self, name):
        best = self.best(name)
        return "–" if best is None else f"{best:.{self.digits}f}"

    def ratio(self):
        mine, theirs = self.best("Tromelo"), self.best("mpv")
        return f"{mine / theirs:.2f}" if mine is not None and theirs else "–"


class Table:
    def __init__(self):
        self.rows = {}

    def add(self, name, what, value, digits=0):
        """A value of a player, the lower the better."""
        row = self.rows.setdefault(what, Row(what, digits))
        row.values.setdefault(name, []).append(value)

    def print(self):
        width = max((len(what) for what in self.rows), default=0)
        print(f"{'':{width}} {'mpv':>9} {'Tromelo':>9} {'ratio':>7}")
        for row in self.rows.values():
            print(
                f"{row.what:{width}} {row.text('mpv'):>9} {row.text('Tromelo'):>9}"
                f" {row.ratio():>7}"
            )
