"""Runs the fire example in all four layouts and checks decks and exported tables against the source data.

usage: check_deck.py EXAMPLE_FOLDER CHECKSUMS COMMAND...

COMMAND runs kdqsh. The deck is read by the rules of the layout alone, the data by Python's own csv and xml readers.
CHECKSUMS holds the SHA-256 of the four decks: on every system they are the same bytes.
"""
import csv
import hashlib
import math
import pathlib
import sys
import xml.etree.ElementTree

from deckfile import FOLDER, INT_WIDTH, ZERO_CELSIUS, Deck, check_points, read_csv, run_script, same


class Sources:
    def __init__(self, folder):
        _, steel = read_csv(folder / "steel_s355_en1993.csv")
        self.kelvin = [celsius + ZERO_CELSIUS for celsius in steel[0]]
        self.yield_stress, self.youngs_modulus = steel[1], steel[3]
        self.conductivity = list(zip(steel[0], steel[4]))
        header, columns = read_csv(folder / "s355_stress_strain_en1993.csv")
        self.strain, self.stress = columns[0], columns[1:]
        self.stress_kelvin = [float(celsius) + ZERO_CELSIUS for celsius in header[1:]]
        _, fire = read_csv(folder / "iso834_fire_curve.csv")
        self.fire_seconds = [minutes * 60.0 for minutes in fire[0]]
        self.fire_celsius = fire[1]
        self.fire_kelvin = [celsius + ZERO_CELSIUS for celsius in fire[1]]


def check_grid(deck, sources):
    assert deck.word("table") == "stress_strain"
    assert deck.ints() == [3, 2, 0, 0, 0]
    assert deck.ints() == [23, len(sources.strain), 2, 12, len(sources.stress_kelvin), 2]
    same(deck.reals(), sources.strain, "strain")
    same(deck.reals(), sources.stress_kelvin, "temperature of the grid")
    same(deck.reals(), [value for column in sources.stress for value in column], "stress")


def check_formula(deck, sources):
    assert deck.word("table") == "conductivity"
    assert deck.ints() == [4, 1, 0, 0, 3]
    assert deck.ints() == [12, 0, 2]
    formula = compile(deck.lines.pop(0), "formula", "eval")
    for celsius, conductivity in sources.conductivity:
        found = eval(formula, {"abs": abs, "v1": celsius + ZERO_CELSIUS})  # our own deck
        assert math.isclose(found, conductivity, abs_tol=0.0601), (celsius, found, conductivity)


def check_deck(text, layout, widths, sources):
    deck = Deck(text, layout, widths)
    assert any("mm, t, s, K" in comment for comment in deck.comments)
    assert any("EN 1993-1-2" in comment for comment in deck.comments)
    assert deck.word("title") == "Steel plate S355 in the standard fire"
    assert deck.key("table") == [0, 0, 2, 1, 1, 0, 0, 1]
    assert deck.key("autoforge") == [2, 0, 2, 0, 0, 1, 0, 0, 0, 14, 1, 0]
    deck.line("end")
    check_points(deck, 1, 12, sources.kelvin, sources.yield_stress, "yield_stress")
    check_points(deck, 2, 12, sources.kelvin, sources.youngs_modulus, "youngs_modulus")
    check_grid(deck, sources)
    check_formula(deck, sources)
    check_points(deck, 5, 1, sources.fire_seconds, sources.fire_kelvin, "fire_curve")
    assert "Using pardiso direct sparse (11)" in deck.comments
    deck.line("solver")
    assert deck.ints() == [11, 0, 0, 0, 0, 0, 0, 0]
    assert deck.key("optimize") == [11]
    assert "Point load for component 'steel plate'." in deck.comments
    deck.line("point load")
    assert deck.ints() == [1, 0, 0]
    labelled = deck.lines.pop(0)
    assert labelled.endswith("ptld_1_loaded_edge"), labelled
    same(deck.reals(), [0.0, 0.0, -20000.0], "force")
    assert deck.ints() == [0, 0, 0]
    assert deck.ints() == [2]
    deck.line("loaded_edge")
    deck.line("end option")
    assert deck.word("loadcase") == "fire"
    deck.line("auto load")
    line = deck.lines.pop(0)
    ints = 5 * INT_WIDTH[widths] if deck.fixed else len("480,0,10,1,0,")
    deck.lines[:0] = [line[:ints], line[ints:]]
    assert deck.ints() == [480, 0, 10, 1, 0]
    same(deck.reals(), [14400.0, 150.0], "automatic load")
    deck.line("continue")
    assert not deck.lines, deck.lines


def check_exports(folder, sources):
    for name, y in (("yield_stress", sources.yield_stress), ("youngs_modulus", sources.youngs_modulus)):
        root = xml.etree.ElementTree.parse(folder / f"{name}.xml").getroot()
        assert (root.tag, root.get("name"), root.get("rows")) == ("kdDataTable", name, str(len(y)))
        assert [column.get("unit_symbol") for column in root.iter("columndata")] == ["K", "MPa"]
        rows = [[float(cell) for cell in row.text.split(";")] for row in root.iter("row")]
        for found, exact in zip(rows, zip(sources.kelvin, y), strict=True):
            assert all(math.isclose(a, b, rel_tol=1e-15) for a, b in zip(found, exact)), (name, found)
    check_rows(folder / "fire_curve.txt", [sources.fire_seconds, sources.fire_kelvin])
    check_rows(folder / "stress_strain.csv", [sources.strain] + sources.stress)
    check_rows(folder / "fire_curve.csv", [[s / 60.0 for s in sources.fire_seconds], sources.fire_celsius])
    celsius = [kelvin - ZERO_CELSIUS for kelvin in sources.kelvin]
    check_rows(folder / "yield_stress.csv", [celsius, sources.yield_stress], ["temperature [°C]", "yield_stress [MPa]"])
    check_rows(folder / "youngs_modulus.csv", [celsius, [modulus / 1000.0 for modulus in sources.youngs_modulus]],
               ["temperature [°C]", "youngs_modulus [GPa]"])
    tens = [float(celsius) for celsius in range(20, 1201, 10)]
    check_rows(folder / "conductivity.csv", [tens, [max(27.3, 54.0 - 0.0333 * celsius) for celsius in tens]],
               ["v1 [°C]", "conductivity [W/(m·K)]"])


def check_rows(path, columns, titles=None):
    """A file of values, comments apart; one with a row of titles is made for a spreadsheet: mark, decimal comma."""
    with open(path, newline="", encoding="utf-8-sig" if titles else "utf-8") as file:
        rows = list(csv.reader((line for line in file if not line.startswith("#")), delimiter=";"))
    assert path.read_bytes().startswith(b"\xef\xbb\xbf") == bool(titles), path
    if titles:
        assert rows.pop(0) == titles, path
        assert not any("." in cell for row in rows for cell in row), path
    for row, exact in zip(rows, zip(*columns), strict=True):
        found = [float(cell.replace(",", ".")) for cell in row]
        assert len(found) == len(exact) and all(
            math.isclose(a, b, rel_tol=1e-14, abs_tol=1e-12) for a, b in zip(found, exact)), (path, found, exact)


def run_example(command, example, layout, widths):
    """Runs the checked-in script, but for the layout, in a folder below the returned one."""
    script = (example / "fire.kdqsh").read_text(encoding="utf-8")
    wanted = script.replace("deck open fire.dat free extended", f"deck open fire.dat {layout} {widths}")
    assert wanted != script or (layout, widths) == ("free", "extended")
    folder, lines = run_script(command, example, wanted)
    log = lines[-1]
    assert log.endswith(".log"), log
    if not command[-1].endswith(".exe"):  # wine sets LOCALAPPDATA itself
        assert pathlib.Path(log).is_file(), log
    return folder


def main():
    example, command = pathlib.Path(sys.argv[1]), sys.argv[3:]
    checksums = dict(line.split()[::-1] for line in pathlib.Path(sys.argv[2]).read_text(encoding="utf-8").splitlines())
    sources = Sources(example)
    for layout in ("fixed", "free"):
        for widths in ("standard", "extended"):
            with run_example(command, example, layout, widths) as folder:
                path = pathlib.Path(folder) / FOLDER
                deck = (path / "fire.dat").read_bytes()
                check_deck(deck.decode("ascii"), layout, widths, sources)
                checksum = hashlib.sha256(deck).hexdigest()
                assert checksum == checksums[f"{layout}-{widths}"], f"{layout}-{widths} changed: {checksum}"
                check_exports(path, sources)
                print(f"{layout} {widths}: deck and tables agree with their sources")


main()
