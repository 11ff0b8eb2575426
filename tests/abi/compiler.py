"""What the scripts of this folder have in common: the project's folders and a call of the compiler."""

import argparse
import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
PUBLIC = ROOT / "include"
PLATFORM = ROOT / "platform"
SOURCE = ROOT / "src"
KIT = ROOT / "kit"

INCLUDE_OPTIONS = [f"-I{folder}" for folder in (PUBLIC, PLATFORM, SOURCE, ROOT)]


def public_headers():
    return [path.relative_to(PUBLIC) for path in sorted(PUBLIC.rglob("*.h"))]


def platform_headers():
    return [path.relative_to(PLATFORM) for path in sorted(PLATFORM.rglob("*.h"))]


def source_headers():
    return [path.relative_to(SOURCE) for path in sorted(SOURCE.glob("*.h"))]


def kit_headers():
    return [path.relative_to(ROOT) for path in sorted(KIT.glob("*.h"))]


def all_headers():
    return public_headers() + platform_headers() + source_headers() + kit_headers()


def compile_text(compiler, text, options, folder=None):
    """Compiles `text` as C++ and returns the finished process, whose stderr says what is wrong."""
    command = [compiler, "-std=c++20", *INCLUDE_OPTIONS, *options, "-x", "c++", "-"]
    return subprocess.run(command, input=text, text=True, capture_output=True, cwd=folder)


def includes(headers):
    return "".join(f'#include "{header}"\n' for header in headers)


def parse_arguments(description, *names):
    parser = argparse.ArgumentParser(description=description)
    for name in names:
        parser.add_argument(name)
    return parser.parse_args()
