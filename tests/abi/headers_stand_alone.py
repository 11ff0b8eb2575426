#!/usr/bin/env python3
"""Compiles each header of the library, of platform/ and of kit/ alone: none may rely on what its user includes before it.

The build has done so for a header that some source file includes before all others.
"""

import concurrent.futures
import os
import re
import sys

import compiler


def errors(cxx, header):
    result = compiler.compile_text(cxx, compiler.includes([header]), ["-fsyntax-only", "-Wall", "-Wextra"])
    return result.stderr


def first_include(source):
    found = re.search(r'^#include "(.*)"', source.read_text(encoding="utf-8"), re.MULTILINE)
    return found and found.group(1)


def headers_that_come_first():
    folders = (compiler.SOURCE, compiler.ROOT / "host")
    return {first_include(source) for folder in folders for source in folder.rglob("*.cpp")}


def main():
    cxx = compiler.parse_arguments(__doc__, "compiler").compiler
    built = headers_that_come_first()
    headers = [header for header in compiler.all_headers() if str(header) not in built]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        texts = list(pool.map(lambda header: errors(cxx, header), headers))
    for header, text in zip(headers, texts):
        if text:
            print(f"{header} does not compile alone:\n{text}")
    print(f"{len(headers)} headers compiled")
    return int(any(texts) or not headers)


if __name__ == "__main__":
    sys.exit(main())
