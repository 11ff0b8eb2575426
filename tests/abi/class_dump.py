"""Reads the compiler's own dump of classes (g++ -fdump-lang-class): sizes, bases and virtual tables."""

import re

TABLE_ENTRY = re.compile(r"\d+\s+(?:\(int \(\*\)\(\.\.\.\)\))?(?:\(& (.*)\)|(.*))$")
BASE = re.compile(r"\s*(\S+) \(0x\w+\) (\d+)( virtual)?")


class ClassLayout:
    """`table` holds the raw entries of the virtual table: numbers, "_ZTI..." and functions."""

    def __init__(self):
        self.size = ""
        self.bases = []
        self.table = []


def read_dump(text):
    layouts = {}
    for block in text.split("\n\n"):
        title, *lines = block.strip().splitlines() or [""]
        kind, _, name = title.partition(" ")
        if title.startswith("Vtable for "):
            layouts.setdefault(name[len("for "):], ClassLayout()).table = [table_entry(line) for line in lines[1:]]
        elif kind == "Class":
            layout = layouts.setdefault(name, ClassLayout())
            layout.size = lines[0].strip()
            layout.bases = [base for base in map(read_base, lines[3:]) if base is not None]
    return layouts


def table_entry(line):
    found = TABLE_ENTRY.match(line)
    return found.group(1) or found.group(2)


def read_base(line):
    """(name, how it lies) from a line that names a base; None from those that tell more of it."""
    found = BASE.match(line)
    return found and (found.group(1), f"{found.group(1)} at {found.group(2)}{found.group(3) or ''}")
