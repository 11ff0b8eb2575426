#!/usr/bin/env python3
"""Compiles each header of the library and of platform/ alone: none may rely on what its user includes before it."""

import concurrent.futures
import os
import sys

import compiler


def errors(cxx, header):
    result = compiler.compile_text(cxx, compiler.includes([header]), ["-fsyntax-only", "-Wall", "-Wextra"])
    return result.stderr


def main():
    cxx = compiler.parse_arguments(__doc__, "compiler").compiler
    headers = compiler.all_headers()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        texts = list(pool.map(lambda header: errors(cxx, header), headers))
    for header, text in zip(headers, texts):
        if text:
            print(f"{header} does not compile alone:\n{text}")
    print(f"{len(headers)} headers compiled")
    return int(any(texts) or not headers)


if __name__ == "__main__":
    sys.exit(main())
