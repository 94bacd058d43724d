"""Runs the case-hardening example and checks the process's file, its curve and its deck against the source data.

usage: check_heat.py EXAMPLE_FOLDER COMMAND...
"""
import math
import pathlib
import sys
import xml.etree.ElementTree

from deckfile import FOLDER, ZERO_CELSIUS, Deck, check_points, read_csv, run_script

BOOST, DIFFUSION = "carbon_potential_boost.csv", "carbon_potential_diffusion.csv"
OIL, TRANSFER = "quench_oil_60.csv", "mass_transfer_endogas.csv"
# Minutes and degC of every stage, as the script and the factory have them.
STAGES = [(90, 20, 930), (180, 930, 930), (120, 930, 930), (30, 930, 820), (25, 820, 820), (10, 60, 60),
          (120, 180, 180), (60, 20, 20)]
IN_SECONDS = {"min": 60.0, "h": 3600.0}


def rows(table):
    return [tuple(float(cell) for cell in row.text.split(";")) for row in table.iter("row")]


def points(example, name):
    return list(zip(*read_csv(example / name)[1]))


def check_file(path, example):
    root = xml.etree.ElementTree.parse(path).getroot()
    assert (root.tag, root.get("factoryName")) == ("coHeatTreatmentData", "CaseHardening")
    stages = {int(stage.get("stage_index")): stage for stage in root.find("stages")}
    assert list(stages) == list(range(len(STAGES)))
    for index, (minutes, _, end) in enumerate(STAGES):
        duration, temperature = stages[index].find("stage_duration"), stages[index].find("stage_fixed_temp")
        assert float(duration.text) * IN_SECONDS[duration.get("unit")] == minutes * 60.0, index
        assert (float(temperature.text), temperature.get("unit")) == (end, "°C"), index
    for index, block, source in ((1, "potential", BOOST), (2, "potential", DIFFUSION),
                                 (1, "massTransferCoeff", TRANSFER), (4, "massTransferCoeff", TRANSFER)):
        assert stages[index].find(block).findtext("mode") == "2"
        assert rows(stages[index].find(block)) == points(example, source), (index, block)
    assert stages[1].find("potential").get("material") == "carbon"
    assert rows(stages[5].find("stage_htc_table")) == points(example, OIL)
    assert [stages[5].findtext(tag) for tag in ("stage_use_termination_temp", "stage_termination_rel")] == ["true", "1"]
    assert [item.text for item in stages[1].iter("pass")] == ["diffusion", "thermal"]


def expected_curve():
    """A jump between stages takes a millisecond."""
    time, curve = 0.0, []
    for minutes, start, end in STAGES:
        if curve and curve[-1][1] != start:
            curve.append((time + 0.001, start))
        elif not curve:
            curve.append((0.0, start))
        time += minutes * 60.0
        curve.append((time, end))
    return curve


def check_text(text):
    found = [[float(cell) for cell in line.split(";")] for line in text.splitlines() if not line.startswith("#")]
    for row, exact in zip(found, expected_curve(), strict=True):
        assert all(math.isclose(a, b) for a, b in zip(row, exact)), (row, exact)


def check_deck(text, example):
    deck = Deck(text, "free", "extended")
    assert deck.word("title") == "Case hardening of a gear, 16MnCr5"
    assert deck.key("table") == [0, 0, 2, 1, 1, 0, 0, 1]
    deck.line("end")
    seconds, celsius = zip(*expected_curve())
    boost, transfer, oil = (points(example, name) for name in (BOOST, TRANSFER, OIL))
    kelvin = lambda values: [value + ZERO_CELSIUS for value in values]
    check_points(deck, 1, 1, seconds, kelvin(celsius), "furnace")
    check_points(deck, 2, 12, kelvin(t for t, _ in oil), [value / 1000.0 for _, value in oil], "bath", 1)
    check_points(deck, 3, 1, [minutes * 60.0 for minutes, _ in boost], [value for _, value in boost], "potential", 1)
    check_points(deck, 4, 12, kelvin(t for t, _ in transfer), [value * 1000.0 for _, value in transfer], "transfer", 1)
    deck.line("end option")
    assert not deck.lines, deck.lines


def main():
    example, command = pathlib.Path(sys.argv[1]), sys.argv[2:]
    folder, lines = run_script(command, example, (example / "gear.kdqsh").read_text(encoding="utf-8"))
    with folder:
        path = pathlib.Path(folder.name) / FOLDER
        assert "The processes are equal." in lines, lines
        check_file(path / "gear.xml", example)
        check_deck((path / "gear.dat").read_text(encoding="ascii"), example)
        check_text((path / "furnace.txt").read_text(encoding="utf-8"))
        print("process, curve and deck agree with their sources")


main()
