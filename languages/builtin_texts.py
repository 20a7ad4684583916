"""Reads the toolbar's built-in texts out of its resource scripts, in the form in which a language pack writes them."""

import re

STRING_LITERAL = re.compile(r'"((?:[^"]|"")*)"|(\w+)')


def read_numbers(resource_header):
    """The resource numbers by name."""
    return {name: int(number) for name, number in re.findall(r"^#define (\w+) (\d+)$", resource_header, re.MULTILINE)}


def read_macros(script):
    """The texts that a resource script defines for its own use, each made of literals and of earlier ones."""
    macros = {}
    for name, value in re.findall(r"^#define (\w+) (.*)$", script, re.MULTILINE):
        macros[name] = join_literals(value, macros)
    return macros


def join_literals(expression, macros):
    return "".join(
        macros[macro] if macro else literal.replace('""', '"') for literal, macro in STRING_LITERAL.findall(expression)
    )


def read_strings(script, numbers):
    """The string table of a resource script, by number."""
    macros = read_macros(script)
    entries = re.findall(r"^\s+(IDS_\w+) (.+)$", script, re.MULTILINE)
    return {numbers[name]: join_literals(expression, macros) for name, expression in entries}


def read_commands(script, numbers):
    """The texts of all menu commands of a resource script, by number."""
    entries = re.findall(r'^\s+MENUITEM ("(?:[^"]|"")*"), (\w+)$', script, re.MULTILINE)
    return {numbers[name]: join_literals(literal, {}) for literal, name in entries}


def read_builtin_texts(folder):
    """Every text that a pack translates, by number. None stands for a text that the resources leave to the packs."""
    numbers = read_numbers((folder / "resource.h").read_text(encoding="utf-8"))
    texts = {number: None for name, number in numbers.items() if name.startswith("IDS_")}
    texts |= read_strings((folder / "strings.rc").read_text(encoding="utf-8"), numbers)
    texts |= read_commands((folder / "menus.rc").read_text(encoding="utf-8"), numbers)
    return texts
