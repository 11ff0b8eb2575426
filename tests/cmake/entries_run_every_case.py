#!/usr/bin/env python3
"""CTest's entries together run each case of the test programs once, and an entry that matches none fails.

usage: entries_run_every_case.py CTEST BUILD_FOLDER PROGRAM...
"""

import collections
import fnmatch
import json
import subprocess
import sys


def output_of(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def cases(program):
    fixture = ""
    for line in output_of(program, "--gtest_list_tests").splitlines():
        name = line.split("#")[0].rstrip()
        if name.startswith(" "):
            yield fixture + name.strip()
        else:
            fixture = name


def run_by(command, listed):
    """The cases that match the filter. A process for each entry, only to be asked, is what sanitizers make slow."""
    wanted = [argument.partition("=")[2] for argument in command if argument.startswith("--gtest_filter=")] or ["*"]
    return [case for case in listed if any(fnmatch.fnmatchcase(case, pattern) for pattern in wanted[-1].split(":"))]


def entries(ctest, folder):
    for test in json.loads(output_of(ctest, "--show-only=json-v1", "--test-dir", folder))["tests"]:
        yield test.get("command", [""])


def differences(program, commands):
    listed = collections.Counter(cases(program))
    run = collections.Counter(case for command in commands for case in run_by(command, listed))
    for case in (run | listed).keys():
        if run[case] != listed[case]:
            yield f"{program}: {case} is listed {listed[case]} times and run {run[case]} times"
    if not listed:
        yield f"{program}: lists no case"
    if subprocess.run([program, "--gtest_filter=NoSuchFixture.*"], stdout=subprocess.DEVNULL,
                      stderr=subprocess.DEVNULL).returncode == 0:
        yield f"{program}: a filter that matches nothing succeeds"


def main(ctest, folder, *programs):
    commands = collections.defaultdict(list)
    for command in entries(ctest, folder):
        commands[command[0]].append(command)
    lines = [line for program in programs for line in differences(program, commands[program])]
    print("\n".join(lines + [f"{len(programs)} programs looked at"]))
    return int(bool(lines) or not programs)


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
