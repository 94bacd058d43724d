"""Checks that a shared library exports the classes, namespaces and operators of its public headers, and no more, and
that it still exports the functions and variables that its major version has promised.

usage: check_exports.py [--list FILE | --update FILE] LIBRARY TOOL CXXFILT HEADER...

TOOL is nm for an ELF library and objdump for a DLL. FILE names what is promised, a line for each; --update writes it.
"""
import argparse
import pathlib
import re
import subprocess
import sys

# Functions outside namespaces that the headers declare for their types.
FREE_FUNCTIONS = re.compile(r"^(qHash|operator(<<|>>|==|!=|<|<=|>|>=|\+|-))\(")
# What the compiler makes for a class, and what it instantiates of the standard library in passing.
PREFIX = re.compile(r"^(vtable|VTT|typeinfo name|typeinfo|non-virtual thunk to|virtual thunk to|guard variable) ?(for|to)? ")


def elf_symbols(library, tool):
    output = subprocess.run([tool, "-D", "--defined-only", library], capture_output=True, text=True, check=True).stdout
    return {name.split("@")[0]: kind for kind, name in (line.split()[-2:] for line in output.splitlines())}


def dll_symbols(library, tool):
    """A DLL tells no kinds."""
    output = subprocess.run([tool, "-p", library], capture_output=True, text=True, check=True).stdout
    table = output.split("[Ordinal/Name Pointer] Table")[1].split("\n\n")[0]
    return dict.fromkeys(re.findall(r"^\s*\[ *\d+\] .*?(\S+)$", table, re.MULTILINE), "T")


def readable(names, cxxfilt):
    done = subprocess.run([cxxfilt], input="\n".join(names), capture_output=True, text=True, check=True)
    return done.stdout.splitlines()


def declared_names(headers):
    """The classes and namespaces of the headers, and their variables and functions outside classes."""
    names = set()
    for header in headers:
        text = pathlib.Path(header).read_text(encoding="utf-8")
        names.update(re.findall(r"^\s*(?:class|struct|namespace|enum|enum class)\s+(?:KDQCORE_EXPORT\s+)?(\w+)", text,
                                re.MULTILINE))
        names.update(re.findall(r"\bKDQCORE_EXPORT[^;{(]*?(\w+)\s*[;({=\[]", text))
    return names


def owner(symbol):
    """The outermost name that a symbol belongs to."""
    plain = re.sub(r"::operator .*", "::operator", PREFIX.sub("", symbol))
    head = re.split(r"[(<\[]", plain, maxsplit=1)[0]
    return head.split()[-1].split("::")[0]


def promised_names(symbols, cxxfilt):
    """What sources define; inline functions and what the compiler makes for a class depend on the compiler."""
    defined = [name for name, kind in symbols.items() if kind in "TBDR"]
    return {name for name in readable(defined, cxxfilt) if not PREFIX.match(name)}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--list", type=pathlib.Path)
    parser.add_argument("--update", type=pathlib.Path)
    parser.add_argument("library")
    parser.add_argument("tool")
    parser.add_argument("cxxfilt")
    parser.add_argument("headers", nargs="+")
    given = parser.parse_args()

    ours = declared_names(given.headers)
    symbols = (elf_symbols if ".so" in given.library else dll_symbols)(given.library, given.tool)
    assert len(symbols) > 500, f"only {len(symbols)} exported names found"
    foreign = [name for name in readable(symbols, given.cxxfilt)
               if owner(name) not in ours and not FREE_FUNCTIONS.match(name)]
    for name in foreign:
        print(f"exported, but no part of the interface: {name}")
    removed = set()
    current = promised_names(symbols, given.cxxfilt)
    if given.update:
        given.update.write_text("\n".join(sorted(current)) + "\n", encoding="utf-8")
    elif given.list:
        promised = set(given.list.read_text(encoding="utf-8").splitlines())
        removed = promised - current
        for name in sorted(removed):
            print(f"removed: {name}")
        for name in sorted(current - promised):
            print(f"added: {name}")
        if removed or current - promised:
            print(f"The target update_symbols brings {given.list.name} up to date; what may change says CONTRIBUTING.md.")
    print(f"{len(symbols)} names, {len(current)} of them promised")
    sys.exit(1 if foreign or removed else 0)


main()
