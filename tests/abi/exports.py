#!/usr/bin/env python3
"""Looks at what the library's shared object shows: the exported classes and nothing else. The constructors of the
variant classes have to be undefined in it, so that whoever links it supplies them."""

import re
import subprocess
import sys

import compiler

VARIANTS = compiler.PLATFORM / "variants"
CLASS = re.compile(r"^(?:template .*\n)?class DISPLAYAPI_EXPORT (\w+)", re.MULTILINE)
FUNCTION = re.compile(r"^DISPLAYAPI_EXPORT [\w:*& ]*?(\w+)\(", re.MULTILINE)
OF_CLASS = r"(?:(?:vtable|typeinfo|typeinfo name|VTT|construction vtable) for |(?:non-)?virtual thunk to |void )?"


def declared(pattern, folder):
    return {name for path in folder.rglob("*.h") for name in pattern.findall(path.read_text())}


def symbols(library, option):
    lines = subprocess.run(["nm", "-D", "-C", option, library], capture_output=True, text=True, check=True).stdout
    return {re.sub(r"^\S*\s*\w ", "", line.strip()) for line in lines.splitlines()}


def foreign(library):
    exported = declared(CLASS, compiler.PUBLIC) | declared(FUNCTION, compiler.PUBLIC)
    # A cast to a variant class brings its type information along.
    cast = r"typeinfo (?:name )?for DisplayAPI::(?:" + "|".join(declared(CLASS, VARIANTS)) + ")$"
    known = re.compile(OF_CLASS + r"DisplayAPI::(?:" + "|".join(exported) + r")\b|" + cast)
    return [f"shown but not exported: {name}" for name in sorted(symbols(library, "--defined-only"))
            if not known.match(name)]


def missing(library):
    shown = symbols(library, "--defined-only")
    return [f"exported but not shown: {name}" for name in sorted(declared(CLASS, compiler.PUBLIC))
            if has_source(name) and not any(symbol.startswith(f"DisplayAPI::{name}::") for symbol in shown)]


def has_source(name):
    return (compiler.SOURCE / f"{name}.cpp").is_file()


def not_left_open(library):
    undefined = symbols(library, "--undefined-only")
    # What the classes of the panels have in common is not made itself.
    made = [name for name in sorted(declared(CLASS, VARIANTS)) if not name.endswith("Side")]
    return [f"not left to the platform: the constructor of {name}" for name in made
            if not any(symbol.startswith(f"DisplayAPI::{name}::{name}(") for symbol in undefined)]


def main():
    library = compiler.parse_arguments(__doc__, "library").library
    lines = foreign(library) + missing(library) + not_left_open(library)
    print("\n".join(lines))
    return int(bool(lines))


if __name__ == "__main__":
    sys.exit(main())
