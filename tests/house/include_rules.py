#!/usr/bin/env python3
"""Checks who includes whom: prints each #include that breaks a rule of the house, and fails when there is one."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
TOOLBAR = ["band", "capture", "controls", "dialogs", "languages", "resources", "settings", "spy", "tools"]
COMPANIONS = ["bench", "broker", "infobar", "textcontrol"]
FOLDERS = ["framework", *TOOLBAR, *COMPANIONS, "tests"]
ITEMS = ("capture/", "dialogs/", "spy/", "tools/")

# Headers that the build makes, and of which each stands for a contract that all may know. A header that it makes from
# a ".h.in" is its folder's own like any other.
GENERATED = ("resources/Trelvix.h", "broker/SettingsBroker.h", "version.h", "notimpl/")
CONTRACTS = ("resources/resource.h", *GENERATED)

# What a folder may include beside its own files and the contracts.
KNOWN_TO = {
    "framework": (),
    "controls": ("framework/",),
    "settings": ("framework/",),
    **{companion: ("framework/",) for companion in COMPANIONS},
}

# band/ knows its items by the button table alone, but for what the window itself opens or asks.
ITEMS_KNOWN_TO = {
    "band/ButtonTable.cpp": ITEMS,
    "band/TrelvixWindow.cpp": ("dialogs/",),
}

# What an item knows of band/.
HUB = ("band/ButtonIndex.h", "band/ButtonSection.h", "band/TrelvixButton.h", "band/TrelvixWindow.h")


def sources():
    for folder in FOLDERS:
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix in (".cpp", ".h", ".rc"):
                yield path.relative_to(ROOT).as_posix()


def includes_of(source):
    text = (ROOT / source).read_text(encoding="utf-8")
    return re.findall(r'^\s*#\s*include\s+"([^"]+)"', text, re.MULTILINE)


def broken_rule(source, included):
    """The rule that an #include breaks, or None."""
    folder = source.split("/")[0]
    is_file = (ROOT / included).is_file() or (ROOT / f"{included}.in").is_file()
    if not is_file and not included.startswith(GENERATED):
        return "is no file of the repository, seen from its root"
    if folder in KNOWN_TO and not included.startswith((folder + "/", *KNOWN_TO[folder], *CONTRACTS)):
        return f"is none of {folder}/'s concern"
    if folder in TOOLBAR and included.startswith(tuple(companion + "/" for companion in COMPANIONS)):
        if not included.startswith(CONTRACTS):
            return "is a companion's own"
    if folder != "tests" and included.startswith("tests/"):
        return "is a test's own"
    if folder == "band" and included.startswith(ITEMS):
        if not included.startswith(ITEMS_KNOWN_TO.get(source, ("\0",))):
            return "is an item's, which only band/ButtonTable.cpp knows"
    if source.startswith(ITEMS) and included.startswith("band/") and included not in HUB:
        return "is not what an item knows of band/"
    return None


def find_cycle(graph):
    """A list of files each of which includes the next, the last the first; empty when there is none."""
    done = set()

    def walk(node, path):
        if node in path:
            return path[path.index(node) :] + [node]
        if node in done:
            return []
        for included in graph.get(node, []):
            if cycle := walk(included, path + [node]):
                return cycle
        done.add(node)
        return []

    for node in graph:
        if cycle := walk(node, []):
            return cycle
    return []


def main():
    graph = {source: includes_of(source) for source in sources()}
    broken = [
        f'{source}: "{included}" {rule}'
        for source, all_included in graph.items()
        for included in all_included
        if (rule := broken_rule(source, included))
    ]
    if cycle := find_cycle(graph):
        broken.append("cycle: " + " -> ".join(cycle))
    print("\n".join(broken) or f"{len(graph)} files keep to the rules")
    return 1 if broken else 0


if __name__ == "__main__":
    sys.exit(main())
