"""Checks that a shared library exports the classes, namespaces and operators of its public headers, and no more.

usage: check_exports.py LIBRARY TOOL CXXFILT HEADER...

TOOL is nm for an ELF library and objdump for a DLL.
"""
import pathlib
import re
import subprocess
import sys

# Functions outside namespaces that the headers declare for their types.
FREE_FUNCTIONS = re.compile(r"^(qHash|operator(<<|>>|==|!=|<|<=|>|>=|\+|-))\(")
# What the compiler makes for a class, and what it instantiates of the standard library in passing.
PREFIX = re.compile(r"^(vtable|VTT|typeinfo name|typeinfo|non-virtual thunk to|virtual thunk to|guard variable) ?(for|to)? ")


def elf_symbols(library, tool):
    """Strong and weak names."""
    output = subprocess.run([tool, "-D", "--defined-only", library], capture_output=True, text=True, check=True).stdout
    names = {True: [], False: []}
    for line in output.splitlines():
        kind, name = line.split()[-2:]
        names[kind in "WVu"].append(name.split("@")[0])
    return names[False], names[True]


def dll_symbols(library, tool):
    """All names: a DLL has no weak ones."""
    output = subprocess.run([tool, "-p", library], capture_output=True, text=True, check=True).stdout
    table = output.split("[Ordinal/Name Pointer] Table")[1].split("\n\n")[0]
    return re.findall(r"^\s*\[ *\d+\] .*?(\S+)$", table, re.MULTILINE), []


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


def main():
    library, tool, cxxfilt = sys.argv[1:4]
    ours = declared_names(sys.argv[4:])
    strong, weak = (elf_symbols if ".so" in library else dll_symbols)(library, tool)
    assert len(strong) > 500, f"only {len(strong)} exported names found"
    foreign = [symbol for symbol in readable(strong, cxxfilt)
               if owner(symbol) not in ours and not FREE_FUNCTIONS.match(symbol)]
    # Instances of templates and inline functions of the standard library; never those of a library that we hide.
    foreign += [symbol for symbol in readable(weak, cxxfilt)
                if owner(symbol) not in ours and not re.search(r"\bstd::", symbol)]
    for symbol in foreign:
        print(f"exported, but no part of the interface: {symbol}")
    print(f"{len(strong)} names and {len(weak)} weak ones")
    sys.exit(1 if foreign else 0)


main()
