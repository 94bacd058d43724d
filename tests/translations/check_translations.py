"""Fails where a text of the sources has no translation, or one with other place markers.

usage: check_translations.py TS_FILE LUPDATE ARGUMENTS...
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree


def markers(text):
    return sorted(re.findall(r"%L?\d+|%n", text))


def faults(ts_file):
    for context in xml.etree.ElementTree.parse(ts_file).getroot().iter("context"):
        for message in context.iter("message"):
            where = f"{context.findtext('name')}: '{message.findtext('source')}'"
            translation = message.find("translation")
            if translation.get("type") is not None or not (translation.text or "").strip():
                yield f"not translated: {where}"
            elif markers(translation.text) != markers(message.findtext("source")):
                yield f"other place markers: {where} -> '{translation.text}'"


def main():
    ts_file, lupdate, *arguments = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        current = pathlib.Path(folder) / "current.ts"
        shutil.copy(ts_file, current)
        subprocess.run([lupdate, *arguments, "-ts", str(current)], check=True)
        found = list(faults(current))
    print("\n".join(found))
    sys.exit(f"{len(found)} texts; the target update_translations takes them into {ts_file}" if found else 0)


main()
