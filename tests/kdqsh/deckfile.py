"""What the checks of the examples share: running a script of kdqsh, reading a deck by the rules of its layout."""
import csv
import os
import pathlib
import subprocess
import tempfile

ZERO_CELSIUS = 273.15
FOLDER = "Ofen für Stähle"  # no ASCII in its path, as in many a user's home
SCRIPT = "Prüfung.kdqsh"
INT_WIDTH = {"standard": 5, "extended": 10}
REAL_WIDTH = {"standard": 10, "extended": 20}


class Deck:
    """The records of a deck, comments apart, read in their order."""

    def __init__(self, text, layout, widths):
        self.fixed = layout == "fixed"
        self.widths = widths
        lines = text.split("\n")
        assert lines.pop() == "", "the last line is not ended"
        for line in lines:
            assert len(line) <= 178 and not line.endswith("\r"), line  # 16 short reals with commas, " c"
        self.comments = [line[2:] for line in lines if line.startswith("$ ")]
        self.lines = [line for line in lines if not line.startswith("$")]

    def word(self, keyword, separator=True):
        """The text after a keyword that opens the line."""
        line = self.lines.pop(0)
        assert line.startswith(keyword), f"expected '{keyword}', found '{line}'"
        rest = line[len(keyword):]
        if separator and not self.fixed:
            assert rest.startswith(","), line
            rest = rest[1:]
        return rest

    def line(self, expected):
        found = self.lines.pop(0)
        assert found == expected, f"expected '{expected}', found '{found}'"

    def record(self, width):
        """The fields of a line and its continuations."""
        fields = []
        while True:
            line = self.lines.pop(0)
            continued = line.endswith(" c")
            if continued:
                line = line[:-2]
            if self.fixed:
                assert len(line) % width == 0, f"'{line}' is no row of fields {width} wide"
                fields += [line[i:i + width] for i in range(0, len(line), width)]
            else:
                assert continued or line.endswith(","), line
                fields += line.rstrip(",").split(",")
            if not continued:
                return fields

    def ints(self):
        return [int(field) for field in self.record(INT_WIDTH[self.widths])]

    def reals(self):
        return [Real(field) for field in self.record(REAL_WIDTH[self.widths])]

    def key(self, name):
        """A key of the parameter section and its integers."""
        opening = name.ljust(REAL_WIDTH[self.widths]) if self.fixed else name + ","
        line = self.lines[0]
        assert line.startswith(opening), line
        self.lines[0] = line[len(opening):]
        return self.ints()


class Real:
    """A number as the deck shows it: its last digit is cut, not rounded."""

    def __init__(self, field):
        self.text = field
        mantissa, exponent = field.strip().split("E")
        self.value = float(field)
        self.step = 10.0 ** (int(exponent) - len(mantissa.split(".")[1]))

    def shows(self, exact):
        slack = abs(exact) * 4e-16
        missing = abs(exact) - abs(self.value)
        return -slack <= missing < self.step + slack and self.value * exact >= 0


def same(found, expected, what):
    assert len(found) == len(expected), f"{what}: {len(found)} values instead of {len(expected)}"
    for index, (real, exact) in enumerate(zip(found, expected)):
        assert real.shows(exact), f"{what}, value {index + 1}: '{real.text}' does not show {exact!r}"


def read_csv(path):
    """Header and columns of a source file."""
    with open(path, newline="", encoding="utf-8") as file:
        rows = list(csv.reader((line for line in file if not line.startswith("#")), delimiter=";"))
    return rows[0], [[float(cell) for cell in column] for column in zip(*rows[1:])]


def check_points(deck, number, code, x, y, name, extrapolation=2):
    assert deck.word("table") == name
    assert deck.ints() == [number, 1, 0, 0, 2], name
    assert deck.ints() == [code, len(x), extrapolation], name
    for point in zip(x, y):
        same(deck.reals(), point, name)


def run_script(command, example, script):
    """Runs a script beside the example's data in a folder below the returned one."""
    folder = tempfile.TemporaryDirectory()
    path = pathlib.Path(folder.name) / FOLDER
    path.mkdir()
    for data in example.glob("*.csv"):
        (path / data.name).write_bytes(data.read_bytes())
    (path / SCRIPT).write_text(script, encoding="utf-8")
    environment = dict(os.environ, LANGUAGE="en", LOCALAPPDATA=str(path / "data"))
    done = subprocess.run([*command, SCRIPT], cwd=path, env=environment, capture_output=True, text=True,
                          encoding="utf-8", errors="replace", timeout=100, check=False)
    assert done.returncode == 0 and done.stderr == "", (done.returncode, done.stderr)
    assert "Warning" not in done.stdout, done.stdout
    return folder, done.stdout.splitlines()
