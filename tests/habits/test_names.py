#!/usr/bin/env python3
"""Tests are named with CamelCase facts, and what helps them stands in the namespace of its folder."""

import re
import sys

import project

TEST = re.compile(r"^(?:TYPED_)?TEST(?:_F|_P)?\(\s*([^,\s]+)\s*,\s*([^)\s]+)\s*\)", re.MULTILINE)
CAMEL_CASE = re.compile(r"[A-Z][A-Za-z0-9]*")
NAMESPACE = re.compile(r"^(?:inline )?namespace ([\w:]+) \{", re.MULTILINE)
# What the tests say more of, and what they stand in for.
PRODUCT = {"DisplayAPI", "DisplayAPIUtils", "host", "simulator", "testing", "std"}
OF_FOLDER = {"doubles": "doubles", "audit": "audit"}


def line_of(text, match):
    return text.count("\n", 0, match.start()) + 1


def bad_names(text):
    for match in TEST.finditer(text):
        if not all(CAMEL_CASE.fullmatch(name) for name in match.groups()):
            yield line_of(text, match), f"{match.group(0)} is not in CamelCase"


def bad_namespaces(folder, text):
    expected = OF_FOLDER.get(folder, "test")
    for match in NAMESPACE.finditer(text):
        if match.group(1).split("::")[0] not in PRODUCT | {expected}:
            yield line_of(text, match), f"namespace {match.group(1)} should be {expected}"


def offences(path):
    text = path.read_text()
    folder = path.relative_to(project.ROOT / "tests").parts[0]
    for number, words in (*bad_names(text), *bad_namespaces(folder, text)):
        yield f"{path.relative_to(project.ROOT)}:{number}: {words}"


def main():
    files = project.sources("tests")
    found = [offence for path in files for offence in offences(path)]
    return project.report(found, len(files), "TEST_F(ListTest, ClearDropsQueuedAppends) says a fact; helpers are in "
                          "namespace test, recording classes in doubles.")


if __name__ == "__main__":
    sys.exit(main())
