#!/usr/bin/env python3
"""Commit subjects name their area and say what to do: commit_subjects.py [MESSAGE_FILE]

Without a file looks at the commits since this check was added, where there is a history of them. scripts/git-hooks
calls it with the message of each new one.
"""

import pathlib
import re
import subprocess
import sys

import project

AREAS = ("Core", "Display", "Lists", "Popups", "Forms", "Telephony", "Commands", "Host", "Widgets", "Languages",
         "Simulator", "Page", "Kit", "Apps", "Clients", "Tests", "Docs", "Build", "Bench")
MOST = 72
SUBJECT = re.compile(rf"({'|'.join(AREAS)}): ([A-Z][\w'-]*)( .*)?(?<![.\s])")
GENERATED = re.compile(r"(Merge|Revert|fixup!|squash!|amend!) ?")
# Words that look like another form of a verb, and are its plain one.
PLAIN = re.compile(r"\w*(ss|us|is)|Need|Feed|Embed|Speed|Seed|Shed|Spread|Bring|Ring|Spring|String|Sing")
OTHER_FORM = re.compile(r"\w+(s|ed|ing)")


def complaint(subject):
    if GENERATED.match(subject):
        return None
    if len(subject) > MOST:
        return f"is longer than {MOST} characters"
    match = SUBJECT.fullmatch(subject)
    if not match:
        return "is not 'Area: What it does', without a full stop"
    verb = match.group(2)
    if OTHER_FORM.fullmatch(verb) and not PLAIN.fullmatch(verb):
        return f"does not tell what to do: '{verb}'"
    return None


def git(*arguments):
    result = subprocess.run(["git", "-C", project.ROOT, *arguments], capture_output=True, text=True)
    return result.stdout.splitlines() if result.returncode == 0 else []


def subjects_since_this_check():
    added = git("log", "--diff-filter=A", "--format=%H", "--", pathlib.Path(__file__).resolve())
    return git("log", "--no-merges", "--format=%s", f"{added[-1]}..HEAD") if added else []


def first_line(file):
    lines = [line for line in pathlib.Path(file).read_text().splitlines() if not line.startswith("#")]
    return next((line for line in lines if line.strip()), "")


def main(*files):
    subjects = [first_line(file) for file in files] if files else subjects_since_this_check()
    offences = [f"'{subject}' {words}" for subject in subjects if (words := complaint(subject))]
    cure = f"A subject is like 'Lists: Let a row draw itself', {MOST} characters at most; areas: {', '.join(AREAS)}."
    return project.report(offences, len(subjects), cure) if subjects else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
