#!/usr/bin/env python3
"""All sources are formatted as .clang-format says; with --apply, formats them."""

import subprocess
import sys

import project


def main(apply):
    files = project.sources()
    mode = ["-i"] if apply else ["--dry-run"]
    result = subprocess.run([project.tool("clang-format-14"), *mode, *files], stderr=subprocess.PIPE, text=True)
    offences = [line for line in result.stderr.splitlines() if " warning: " in line or " error: " in line]
    offences = [line.replace(f"{project.ROOT}/", "") for line in offences]
    return project.report(offences, len(files), "scripts/format formats all sources.")


if __name__ == "__main__":
    sys.exit(main("--apply" in sys.argv[1:]))
