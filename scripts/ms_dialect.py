"""Lets clang read the portable sources in Microsoft's dialect: what it refuses is no portable C++.

usage: ms_dialect.py BUILD_FOLDER   (with compile_commands.json); exit status 1 on a finding
"""
import concurrent.futures
import json
import pathlib
import shlex
import subprocess
import sys

DIALECT = ["-std=c++17", "-fms-compatibility", "-fms-extensions", "-fms-compatibility-version=19.29",
           "-fgnuc-version=4.2.1", "-fsyntax-only", "-fPIC", "-Wno-#warnings", "-Wpedantic", "-Wgnu", "-Wmicrosoft"]


def is_portable(path):
    own = "/src/" in path or "/apps/" in path
    other = ("autogen", "_posix", "_windows", "_libedit", "/build/")
    return own and not any(part in path for part in other)


def paths_and_definitions(command):
    words = iter(shlex.split(command))
    for word in words:
        if word.startswith(("-I", "-D")):
            yield word
        elif word == "-isystem":
            yield word
            yield next(words)


def findings(item):
    path, command = item
    result = subprocess.run(["clang++", *DIALECT, *paths_and_definitions(command), path],
                            capture_output=True, text=True)
    return [line for line in result.stderr.splitlines() if "error:" in line or "warning:" in line]


entries = json.loads((pathlib.Path(sys.argv[1]) / "compile_commands.json").read_text())
sources = {entry["file"]: entry["command"] for entry in entries if is_portable(entry["file"])}
with concurrent.futures.ThreadPoolExecutor(2) as pool:
    found = [line for lines in pool.map(findings, sources.items()) for line in lines]
print("\n".join(found + [f"Microsoft's dialect: {len(found)} findings in {len(sources)} sources"]))
sys.exit(1 if found or not sources else 0)
