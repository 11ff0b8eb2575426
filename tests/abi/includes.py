#!/usr/bin/env python3
"""The library depends on the standard library, POSIX threads and platform/ alone: looks at each #include of src/ and
include/DisplayAPI, of platform/, which may not know the host either, and of kit/, which knows what is public."""

import re
import sys

import compiler

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
SYSTEM = {"pthread.h", "unistd.h"}
STANDARD = set("""
    algorithm any array atomic barrier bit bitset cassert cctype cerrno cfloat charconv chrono cinttypes climits cmath
    codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib
    cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream functional
    future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
    memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator
    semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view
    syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray
    variant vector version""".split())


def is_allowed(path, quoted, name):
    if not quoted:
        return name in STANDARD or name in SYSTEM
    if compiler.KIT in path.parents:
        return name.startswith("kit/") or any((folder / name).is_file() for folder in (compiler.PUBLIC, compiler.PLATFORM))
    return any((folder / name).is_file() for folder in (compiler.PUBLIC, compiler.SOURCE, compiler.PLATFORM))


def offences(path):
    for number, line in enumerate(path.read_text().splitlines(), 1):
        if (found := INCLUDE.match(line)) and not is_allowed(path, found.group(1) == '"', found.group(2)):
            yield f"{path.relative_to(compiler.ROOT)}:{number}: {line.strip()}"


def main():
    folders = (compiler.PUBLIC, compiler.SOURCE, compiler.PLATFORM, compiler.KIT)
    paths = sorted(path for folder in folders for path in folder.rglob("*") if path.suffix in (".h", ".cpp"))
    lines = [line for path in paths for line in offences(path)]
    print("\n".join(lines + [f"{len(paths)} files looked at"]))
    return int(bool(lines) or not paths)


if __name__ == "__main__":
    sys.exit(main())
