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
        """To the best of the others."""
        mine = self.best("Tromelo")
        theirs = [min(values) for name, values in self.values.items() if name != "Tromelo"]
        best = min(theirs, default=0)
        return f"{mine / best:.2f}" if mine is not None and best else "–"


class Table:
    def __init__(self):
        self.rows = {}

    def add(self, name, what, value, digits=0):
        """A value of a player, the lower the better."""
        row = self.rows.setdefault(what, Row(what, digits))
        row.values.setdefault(name, []).append(value)

    def print(self):
        width = max((len(what) for what in self.rows), default=0)
        names = sorted({name for row in self.rows.values() for name in row.values}, key=str.swapcase)
        print(f"{'':{width}}" + "".join(f" {name:>9}" for name in (*names, "ratio")))
        for row in self.rows.values():
            texts = [*map(row.text, names), row.ratio()]
            print(f"{row.what:{width}}" + "".join(f" {text:>9}" for text in texts))
