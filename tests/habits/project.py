"""What the checks of this folder have in common: the project's files, and how they tell what they have found."""

import pathlib
import shutil
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]


def sources(*folders, endings=(".h", ".cpp")):
    """The project's own sources below the folders, or all of them."""
    tops = [ROOT / folder for folder in folders] or [
        top for top in ROOT.iterdir() if top.is_dir() and top.name != "build" and not top.name.startswith(".")]
    found = [path for top in tops for path in top.rglob("*") if path.suffix in endings]
    return sorted(path for path in found if "node_modules" not in path.parts)


def tool(name):
    """The tool, or the end with a sentence: another version of it finds other things."""
    return shutil.which(name) or sys.exit(f"{name} is missing: scripts/install-packages test")


def report(offences, looked_at, cure):
    """Prints what was found with its cure; the status to end with."""
    for offence in offences:
        print(offence)
    if offences:
        print(cure)
    print(f"{looked_at} looked at")
    return int(bool(offences) or looked_at == 0)
