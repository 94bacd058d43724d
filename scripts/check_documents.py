#!/usr/bin/env python3
"""Holds the documents to what they promise.

usage: check_documents.py excerpts SOURCE
       check_documents.py sessions SOURCE PREFIX WORK

In a Markdown file, a comment alone on the line before a fenced block says what the block is:

  <!-- examples/tutorial/01_first_deck.cpp -->   lines of that file, as they stand there; a line of nothing but "..." or
                                                 "// ..." stands for lines left out
  <!-- run -->                                   a session at a shell: commands behind "% ", and what they print

excerpts compares every block of the first kind, of which every C++ and CMake block must be, and follows the links
between the pages.
sessions runs the blocks of the second kind against the package installed in PREFIX, page by page, each page in one
shell and in a folder of its own that holds a copy of examples/. A block that is a whole file is written there before
what comes after it is run, as a reader would. Where the output varies, "..." on a line of its own stands for any
number of lines, within a line for any text. A command must succeed, unless "echo $?" follows.
"""
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

ALL_COMPILED = ("docs/", "README.md")
BUILT_FIRST = "docs/howto/README.md"  # the other pages use the programs that this one builds
BLOCK = re.compile(r"(?:^<!-- (?P<marker>.*?) -->\n)?^```(?P<kind>\w*)\n(?P<text>.*?)^```$", re.M | re.S)
END = "==end-of-command=="


class Page:
    def __init__(self, source, path):
        self.name = path.relative_to(source).as_posix()
        self.text = path.read_text(encoding="utf-8")

    def blocks(self):
        for match in BLOCK.finditer(self.text):
            line = self.text.count("\n", 0, match.start("text")) + 1
            yield f"{self.name}:{line}", match["marker"] or "", match["kind"], match["text"]


def pages(source):
    found = [source / "README.md", source / "CONTRIBUTING.md", *sorted((source / "docs").rglob("*.md"))]
    return sorted((Page(source, path) for path in found), key=lambda page: page.name != BUILT_FIRST)


def is_file(marker):
    return bool(re.fullmatch(r"[\w./-]+", marker)) and marker != "run"


def chunks(text):
    """The runs of lines between those that stand for lines left out."""
    result = [[]]
    for line in text.splitlines():
        if re.fullmatch(r"\s*(//|#)?\s*\.\.\.", line):
            result.append([])
        else:
            result[-1].append(line)
    stripped = ("\n".join(chunk).strip("\n").splitlines() for chunk in result)
    return [chunk for chunk in stripped if chunk]


def find(chunk, lines, start):
    """Behind the lines of the chunk, which may be indented less than in the file; -1 where there are none."""
    for begin in range(start, len(lines) - len(chunk) + 1):
        indent = lines[begin][: len(lines[begin]) - len(lines[begin].lstrip())]
        own = chunk[0][: len(chunk[0]) - len(chunk[0].lstrip())]
        shift = indent[len(own):] if indent.startswith(own) else ""
        if all(line == (shift + wanted if wanted else "") for line, wanted in zip(lines[begin:], chunk)):
            return begin + len(chunk)
    return -1


def check_excerpt(source, place, marker, text):
    try:
        lines = (source / marker).read_text(encoding="utf-8").splitlines()
    except OSError as error:
        return f"{place}: {error}"
    position = 0
    for chunk in chunks(text):
        position = find(chunk, lines, position)
        if position < 0:
            return f"{place}: {marker} has no such lines:\n    " + "\n    ".join(chunk)
    return ""


def anchors(text):
    """The names by which links reach the headings of a page."""
    headings = re.findall(r"^#+ (.*)$", re.sub(r"^```.*?^```$", "", text, flags=re.M | re.S), re.M)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


def check_links(source, page):
    for target in re.findall(r"\]\(([^)\s]+)\)", re.sub(r"^```.*?^```$", "", page.text, flags=re.M | re.S)):
        if "://" in target:
            continue
        path, _, anchor = target.partition("#")
        file = (source / page.name).parent / path if path else source / page.name
        if not file.exists():
            yield f"{page.name}: the link {target} leads nowhere"
        elif anchor and anchor not in anchors(file.read_text(encoding="utf-8")):
            yield f"{page.name}: {path or 'this page'} has no heading for #{anchor}"


def check_excerpts(source):
    faults = []
    count = 0
    for page in pages(source):
        faults += check_links(source, page)
        for place, marker, kind, text in page.blocks():
            if is_file(marker):
                count += 1
                faults.append(check_excerpt(source, place, marker, text))
            elif kind in ("cpp", "cmake") and page.name.startswith(ALL_COMPILED):
                faults.append(f"{place}: this block names no file, so nobody compiles it")
    return count, [fault for fault in faults if fault]


def steps(text):
    """Pairs of a command and the lines that it shall print."""
    result = []
    for line in text.splitlines():
        if line.startswith("% "):
            result.append((line[2:], []))
        elif result and result[-1][0].endswith("\\"):
            result[-1] = (result[-1][0] + "\n" + line, [])
        elif result:
            result[-1][1].append(line)
    return result


def pattern(lines):
    parts = []
    for line in lines:
        if line.strip() == "...":
            parts.append(r"(?:.*\n)*?")
        else:
            parts.append(r".*?".join(re.escape(part) for part in line.rstrip().split("...")) + r"[ \t]*\n")
    return re.compile("".join(parts))


def environment(source, prefix, work):
    home = work / "home"
    home.mkdir(parents=True)
    (home / "kdqcore").symlink_to(prefix)
    result = {key: value for key, value in os.environ.items() if not key.startswith(("KDQ", "KALDORAN", "CTEST"))}
    cache = subprocess.run(["ccache", "-k", "cache_dir"], capture_output=True, text=True) if shutil.which("ccache") else None
    if cache and cache.returncode == 0:
        result["CCACHE_DIR"] = cache.stdout.strip()  # not in the home below
    result.update(HOME=str(home), LOCALAPPDATA=str(home), LC_ALL="C.UTF-8", TZ="UTC", USER="jana", LOGNAME="jana",
                  PATH=f"{prefix}/bin:{os.environ['PATH']}", CMAKE_GENERATOR="Ninja", CMAKE_BUILD_TYPE="Debug")
    return result


def run(page, script, folder, variables):
    """What each of the commands printed, and its exit status."""
    lines = []
    for command in script:
        lines.append(f"{command}\n__status=$?; printf '\\n{END} %d\\n' $__status; (exit $__status)")
    done = subprocess.run(["bash", "-c", "exec 2>&1\n" + "\n".join(lines)], cwd=folder, env=variables,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, timeout=500)
    parts = re.split(rf"\n{END} (\d+)\n", done.stdout.decode("utf-8", "replace"))
    if len(parts) != 2 * len(script) + 1:
        sys.exit(f"{page.name}: the shell ended early:\n{parts[-1]}")
    return list(zip(parts[0::2], map(int, parts[1::2])))


def check_page(source, page, work, variables):
    sessions = []
    folder = work / page.name.replace("/", "_")
    shutil.copytree(source / "examples", folder / "examples")
    built = work / BUILT_FIRST.replace("/", "_") / "build"
    if built.exists():
        (folder / "build").mkdir()
        (folder / "build/howto").symlink_to(built / "howto")
    for place, marker, _, text in page.blocks():
        if marker == "run":
            sessions += [(place, command, lines) for command, lines in steps(text)]
        elif is_file(marker) and (source / marker).read_text(encoding="utf-8") == text:
            sessions.append((place, f"cat >{Path(marker).name} <<'{END}'\n{text}{END}", []))
    if not any(lines or not command.startswith("cat >") for _, command, lines in sessions):
        return 0, []
    faults = []
    results = run(page, [command for _, command, _ in sessions], folder, variables)
    for number, ((place, command, wanted), (output, status)) in enumerate(zip(sessions, results)):
        follower = sessions[number + 1][1] if number + 1 < len(sessions) else ""
        if status != 0 and not follower.startswith("echo $?"):
            faults.append(f"{place}: % {command}\nended with status {status}:\n{output}")
        elif not pattern(wanted).fullmatch(output.rstrip("\n") + "\n" if output.strip() else ""):
            faults.append(f"{place}: % {command}\nprinted\n{output}\nnot\n" + "\n".join(wanted))
    return len(results), faults


def check_sessions(source, prefix, work):
    shutil.rmtree(work, ignore_errors=True)
    variables = environment(source, prefix, work)
    count = 0
    faults = []
    for page in pages(source):
        commands, found = check_page(source, page, work, variables)
        count += commands
        faults += found
    return count, faults


def main():
    if sys.argv[1] == "excerpts":
        count, faults = check_excerpts(Path(sys.argv[2]).resolve())
    else:
        count, faults = check_sessions(*(Path(argument).resolve() for argument in sys.argv[2:5]))
    for fault in faults:
        print(fault, end="\n\n")
    print(f"{sys.argv[1]}: {count} looked at, {len(faults)} wrong")
    return 1 if faults or count == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
