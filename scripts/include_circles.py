"""Fails where headers and sources of a folder include each other in a circle. usage: include_circles.py DIR

Folders cannot form circles (the build gives each layer only the headers below it); files inside one could.
"""
import pathlib
import re
import sys


def edges(root):
    """File name -> names of the project headers that it includes."""
    files = {path.name: path for path in root.rglob("*") if path.suffix in (".h", ".cpp")}
    graph = {}
    for name, path in files.items():
        included = re.findall(r'^#include\s+(?:"([^"]+)"|<kdQCore/(\w+)>)', path.read_text(encoding="utf-8"), re.M)
        wanted = {own or public.lower() + ".h" for own, public in included}
        graph[name] = sorted(wanted & files.keys() - {name})
    return graph


def circle(graph):
    """One circle as a list of names, or None."""
    done, path = set(), []

    def visit(name):
        if name in path:
            return path[path.index(name):] + [name]
        if name in done:
            return None
        path.append(name)
        for other in graph[name]:
            found = visit(other)
            if found:
                return found
        path.pop()
        done.add(name)
        return None

    for name in graph:
        found = visit(name)
        if found:
            return found
    return None


found = circle(edges(pathlib.Path(sys.argv[1])))
if found:
    sys.exit("include circle: " + " -> ".join(found))
