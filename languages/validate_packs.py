#!/usr/bin/env python3
"""validate_packs.py FOLDER...: checks the built language packs in folders against the toolbar's built-in texts.

Prints each text that the toolbar could not show as it is meant, and fails when there is one or when there is no pack.
"""

import codecs
import pathlib
import re
import sys

from builtin_texts import read_builtin_texts

ROOT = pathlib.Path(__file__).resolve().parents[1]

LANGUAGE_NAME = 114
LANGUAGE_NAMES = {
    "CHINESE": "简体中文",
    "DUTCH": "Nederlands",
    "ENGLISH": "English (default)",
    "FRENCH": "Français",
    "GERMAN": "Deutsch",
    "ITALIAN": "Italiano",
    "JAPANESE": "日本語",
    "POLISH": "Polski",
    "PORTUGUESE": "Português",
    "RUSSIAN": "Русский",
    "SPANISH": "Español",
    "TCHINESE": "繁體中文",
}

# The toolbar reads lines of up to this many characters, their line end included, without asking for memory.
LONGEST_LINE = 4095

MARKER = re.compile(r"%%\w+%%|%[A-Za-z%]")
LINE_END = re.compile(r"\\r\\n|\\n|\\t")
AMPERSAND = re.compile(r"&&|&")
ADDRESS_OR_FILE = re.compile(r"https?://\S+|\w+\.(jpg|png)")


def read_known_files(language_table):
    """The names of all packs that the toolbar looks for, without extension."""
    return set(re.findall(r'L"Languages\\\\(\w+)\.lang"', language_table))


def lines_of(pack):
    """The lines of a built pack and what is wrong with its form. No lines if the toolbar would misread the whole file."""
    if not pack.startswith(codecs.BOM_UTF16_LE):
        return [], ["has no UTF-16 mark"]
    try:
        text = pack[len(codecs.BOM_UTF16_LE) :].decode("utf-16-le")
    except UnicodeDecodeError as error:
        return [], [f"is no UTF-16: {error.reason} at byte {error.start + 2}"]
    lines = text.split("\r\n")
    problems = [f"line {number} is too long" for number, line in enumerate(lines, 1) if len(line) + 2 > LONGEST_LINE]
    if lines.pop():
        problems.append("does not end with a line end")
    for number, line in enumerate(lines, 1):
        if not all(character.isprintable() or character in "\u3000\xa0" for character in line):
            problems.append(f"line {number} holds a control character")
    return lines, problems


def entries_of(lines):
    """The (number, text) of each entry, and what is wrong with other lines."""
    entries, problems = [], []
    for number, line in enumerate(lines, 1):
        entry = re.fullmatch(r"(\d+):(.*)", line)
        if entry:
            entries.append((int(entry[1]), entry[2]))
        elif line and not line.startswith("#"):
            problems.append(f"line {number} is neither an entry nor a comment")
    return entries, problems


def problems_of_numbers(entries, builtin):
    numbers = [number for number, _ in entries]
    for number in sorted(set(numbers)):
        if number not in builtin:
            yield f"{number} is no text of the toolbar"
        if numbers.count(number) > 1:
            yield f"{number} is there {numbers.count(number)} times"
    for number in sorted(builtin.keys() - set(numbers)):
        yield f"{number} is missing"


def edge_blanks(text):
    return text[: len(text) - len(text.lstrip(" "))], text[len(text.rstrip(" ")) :]


def problems_of_text(text, builtin):
    """What keeps a text from standing in for the built-in one, which is None where only packs have a text."""
    if not text.strip():
        yield "is empty"
    if "\\" in LINE_END.sub("", text):
        yield "has a backslash that starts no line end or tab"
    if builtin is None:
        return
    if MARKER.findall(text) != MARKER.findall(builtin):
        yield f"has not the markers {MARKER.findall(builtin)}"
    if LINE_END.findall(text) != LINE_END.findall(builtin):
        yield f"has not the line ends {LINE_END.findall(builtin)}"
    if AMPERSAND.findall(text) != AMPERSAND.findall(builtin):
        yield f"has not the ampersands {AMPERSAND.findall(builtin)}"
    if edge_blanks(text) != edge_blanks(builtin):
        yield "has not the blanks of the built-in text at its start or end"
    if ADDRESS_OR_FILE.fullmatch(builtin) and text != builtin:
        yield "is another address or file name than the built-in one"


def problems_of_pack(language, pack, builtin, known_files):
    """Everything that is wrong with the bytes of a built pack."""
    lines, problems = lines_of(pack)
    entries, line_problems = entries_of(lines)
    problems += line_problems
    problems += problems_of_numbers(entries, builtin)
    for number, text in entries:
        problems += [f"{number} {problem}" for problem in problems_of_text(text, builtin.get(number))]
        if language == "ENGLISH" and text != (builtin.get(number) or text):
            problems.append(f"{number} differs from the built-in English")
    if language not in known_files:
        problems.append("has a name that the toolbar does not look for")
    if dict(entries).get(LANGUAGE_NAME) != LANGUAGE_NAMES.get(language):
        problems.append(f"{LANGUAGE_NAME} is not the language's own name")
    return problems


def main():
    builtin = read_builtin_texts(ROOT / "resources")
    known_files = read_known_files((ROOT / "settings" / "LanguageTable.cpp").read_text(encoding="utf-8"))
    packs = [path for folder in sys.argv[1:] for path in sorted(pathlib.Path(folder).glob("*.lang"))]
    problems = [
        f"{path.name}: {problem}"
        for path in packs
        for problem in problems_of_pack(path.stem, path.read_bytes(), builtin, known_files)
    ]
    missing = sorted(LANGUAGE_NAMES.keys() - {path.stem for path in packs})
    problems += [f"{language}.lang is not there" for language in missing]
    print(*problems, sep="\n")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
