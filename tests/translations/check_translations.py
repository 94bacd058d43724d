"""Fails where a text of the sources has no translation, or one of another shape: place markers, accelerators, tags, line
breaks, blanks around, punctuation at the end.

usage: check_translations.py TS_FILE LUPDATE ARGUMENTS...
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree


def shape(text):
    """What a text and its translation have in common, by the name under which a difference is told."""
    return {
        "place markers": sorted(re.findall(r"%L?\d+", text)),
        "accelerators": len(re.findall(r"&(?=\w)(?!\w+;)", text)),
        "tags": sorted(re.findall(r"</?(?:a|b|br|code|h\d|i|li|ol|p|pre|span|table|td|th|tr|ul)\b[^>-]*>", text)),
        "quotation marks": len(re.findall(r"""(?<!\w)'[^'\n]+'(?!\w)|"[^"]+"|„[^“]+“""", text)),
        "line breaks": text.count("\n"),
        "blanks around": (text[:1].isspace(), text[-1:].isspace()),
        "end": (re.search(r"(\.\.\.|[.:;!?,…])?\s*$", text)[1] or "").replace("…", "..."),
    }


def forms(message):
    """The texts that stand for one text: a translation, or one for each plural form."""
    translation = message.find("translation")
    if message.get("numerus") != "yes":
        return [translation.text or ""]
    return [form.text or "" for form in translation.iter("numerusform")] or [""]


def faults(ts_file):
    for context in xml.etree.ElementTree.parse(ts_file).getroot().iter("context"):
        for message in context.iter("message"):
            source = message.findtext("source")
            where = f"{context.findtext('name')}: '{source}'"
            translated = forms(message)
            if message.find("translation").get("type") is not None or not all(map(str.strip, translated)):
                yield f"not translated: {where}"
                continue
            if message.get("numerus") == "yes" and (len(translated) != 2 or "%n" not in translated[-1]):
                yield f"German has two forms, and the second needs %n: {where}"
            elif "%n" in source and message.get("numerus") != "yes":
                yield f"%n without a number: {where}"
            for text in translated:
                wanted, found = shape(source), shape(text)
                if re.search(r"""(?<!\w)'[^'\n]+'(?!\w)|"[^"]+\"""", text):
                    yield f"quotation marks that are not „German“: {where} -> '{text}'"
                if re.search(r"(?<![.:!?]) Sie\b", text):
                    yield f"formal address: {where} -> '{text}'"
                for name in wanted:
                    if wanted[name] != found[name]:
                        yield f"other {name}: {where} -> '{text}'"


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
