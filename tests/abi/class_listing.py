#!/usr/bin/env python3
"""Compares the binary layout of the library's classes with the checked-in listing, classes.txt.

    class_listing.py check COMPILER     prints the difference and fails where there is one
    class_listing.py update COMPILER    writes the listing anew (build target update_abi_listing)

Applications that were built against an older library rely on the order of virtual operations and on where fields lie.
A difference is a decision, not a formality: new virtual operations belong at the end of a class, fields stay.
"""

import difflib
import pathlib
import subprocess
import sys
import tempfile

import class_dump
import compiler
import debug_info

LISTING = pathlib.Path(__file__).with_name("classes.txt")
OPTIONS = ["-g", "-O0", "-w", "-c", "-fdump-lang-class", "-femit-class-debug-always"]

# The library's own classes whose order is fixed as well, beside those that are exported.
INTERNAL = ["ContentWidget.h", "ContentWidgetFactory.h", "DisplayEventFilter.h", "DisplayPrivate.h", "ImagePrivate.h",
            "PegInitAndCleanUp.h", "TickerPrivate.h", "TimerPrivate.h"]


def headers():
    variants = [header for header in compiler.platform_headers() if header.parts[0] == "variants"]
    return compiler.public_headers() + variants + INTERNAL


def dump(cxx, text, folder):
    """The class dump and the object file of `text`."""
    result = compiler.compile_text(cxx, text, OPTIONS + ["-o", "classes.o"], folder)
    if result.returncode != 0:
        sys.exit(result.stderr)
    return next(pathlib.Path(folder).glob("*.class")).read_text()


def own_classes(layouts):
    """Top-level classes of the library, templates apart."""
    return sorted(name for name in layouts if name.startswith("DisplayAPI::") and name.count("::") == 1 and
                  "<" not in name)


def listing(cxx):
    with tempfile.TemporaryDirectory() as folder:
        text = compiler.includes(headers())
        names = own_classes(class_dump.read_dump(dump(cxx, text, folder)))
        # A class is in the debug information only where something refers to it.
        text += "".join(f"{name}* user{number};\n" for number, name in enumerate(names))
        layouts = class_dump.read_dump(dump(cxx, text, folder))
        classes = debug_info.read_classes(f"{folder}/classes.o")
    blocks = [block(name, layouts, classes) for name in names]
    return demangled("\n".join(blocks))


def block(name, layouts, classes):
    layout = layouts[name]
    info = classes.get(name, debug_info.ClassInfo())
    lines = [f"{name} {layout.size}"]
    lines += [f"    base  {base}" for _, base in layout.bases]
    lines += [f"    field {offset:3} {kind} {field}" for offset, kind, field in info.fields]
    lines += table_lines(layout, [name] + [base for base, _ in layout.bases], classes)
    return "\n".join(lines) + "\n"


def table_lines(layout, lineage, classes):
    """One line per entry of the virtual tables. Numbers before a type's mark are the next table's offsets; before a
    function they are slots that nobody calls."""
    lines, numbers, slot = [], [], 0
    for entry in layout.table:
        if entry.lstrip("-").isdigit():
            numbers.append(as_signed(entry))
        elif entry.startswith("_ZTI"):
            lines.append("    table" + "".join(f" {number}" for number in numbers))
            numbers, slot = [], 0
        else:
            lines += [f"    slot  {unused:3} {unfilled(unused, lineage, classes)}"
                      for unused in range(slot, slot + len(numbers))]
            slot += len(numbers)
            lines.append(f"    slot  {slot:3} {operation(entry, slot, lineage, classes)}")
            numbers, slot = [], slot + 1
    lines += [f"    slot  {unused:3} {unfilled(unused, lineage, classes)}" for unused in range(slot, slot + len(numbers))]
    return lines


def unfilled(slot, lineage, classes):
    """The dump leaves the destructors of abstract classes out, as well as what only another table has."""
    return classes[lineage[0]].slots.get(slot, "-") if lineage[0] in classes else "-"


def as_signed(number):
    value = int(number)
    return value - 2**64 if value >= 2**63 else value


def operation(entry, slot, lineage, classes):
    """The operation with its parameters: the dump names the class and the operation, or nothing where it is pure."""
    owner, _, function = entry.rpartition("::")
    if function.startswith(("_ZTh", "_ZTv", "~")):
        return function if function.startswith("_") else entry
    pure = entry == "__cxa_pure_virtual"
    for name in lineage if pure else [owner]:
        if name in classes and slot in classes[name].slots:
            return classes[name].slots[slot] + (" = 0" if pure else "")
    return entry


def demangled(text):
    result = subprocess.run(["c++filt"], input=text, text=True, capture_output=True, check=True).stdout
    return "".join(debug_info.shortened(line.replace("[abi:cxx11]", "")) for line in result.splitlines(True))


def main():
    arguments = compiler.parse_arguments(__doc__, "mode", "compiler")
    actual = listing(arguments.compiler)
    if arguments.mode == "update":
        LISTING.write_text(actual)
        return 0
    expected = LISTING.read_text()
    sys.stdout.writelines(difflib.unified_diff(expected.splitlines(True), actual.splitlines(True), "classes.txt",
                                               "the classes as they are now", n=8))
    if actual != expected:
        print("The binary layout has changed. If that is meant: ninja update_abi_listing, and commit classes.txt.")
    return int(actual != expected)


if __name__ == "__main__":
    sys.exit(main())
