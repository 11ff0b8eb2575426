"""A parser of the screen's two forms, made from the grammars of docs/screen-formats.md."""

import collections
import json
import pathlib
import re
import sys


class Wrong(Exception):
    pass


def block(page, kind):
    return re.search(r"```%s\n(.*?)```" % kind, page, re.DOTALL).group(1)


class TextGrammar:
    """Makes one regular expression of the EBNF: nothing in it refers to itself."""

    TERMINALS = {"LF": "\n", "DIGIT": "[0-9]", "CHARACTER": "[ -~]"}
    WORD = re.compile(r'\s*("[^"]*"|[A-Za-z]+|[{}()|])')

    def __init__(self, page):
        self.rules = dict(re.findall(r"(\w+)\s*=\s*(.*?);\n", block(page, "ebnf"), re.DOTALL))
        self.pattern = re.compile(self.of("screen"))

    def of(self, name):
        if name in self.TERMINALS:
            return self.TERMINALS[name]
        words = self.WORD.findall(self.rules[name])
        return "(?:%s)" % "".join(self.word(word) for word in words)

    def word(self, word):
        if word.startswith('"'):
            return re.escape(word[1:-1])
        return {"{": "(?:", "}": ")*+", "(": "(?:", ")": ")", "|": "|"}.get(word) or self.of(word)

    def check(self, text):
        if not self.pattern.fullmatch(text):
            raise Wrong("no screen as text")
        self.check_numbers(text)

    @staticmethod
    def check_numbers(text):
        """Those of each object and each sub-item, in which a volatile text takes the place of one that is numbered."""
        stack = []
        for line in text.splitlines():
            if line in ("object:", "subitem:"):
                stack.append([0, 0])
            elif line in ("end:", "endsubitem:"):
                stack.pop()
            elif line.startswith("volatile:"):
                stack[-1][1] += 1
            elif found := re.match(r"string([0-9]+):", line):
                number, (following, volatile) = int(found[1]), stack[-1]
                if not following <= number <= following + volatile:
                    raise Wrong(f"string{number} where string{following} is due")
                stack[-1] = [number + 1, 0]


class Form:
    """Checks values against the rules of the block `form`."""

    TYPES = {"string": str, "number": int, "boolean": bool, "null": type(None)}

    def __init__(self, page):
        self.rules = dict(line.split("=", 1) for line in block(page, "form").splitlines())
        self.rules = {name.strip(): rule.strip() for name, rule in self.rules.items()}

    def check(self, value, rule="screen", where="screen"):
        rule = rule.strip()
        if rule.startswith("{"):
            self.check_members(value, rule, where)
        elif " | " in rule:
            if not any(self.fits(value, one, where) for one in rule.split(" | ")):
                raise Wrong(f"{where} is {value!r}, which is none of {rule}")
        elif rule.startswith("["):
            self.check_all(value, rule[1:-1], where)
        elif rule in self.rules:
            self.check(value, self.rules[rule], where)
        elif rule in self.TYPES:
            if type(value) is not self.TYPES[rule]:
                raise Wrong(f"{where} is {value!r}, which is no {rule}")
        elif value != json.loads(rule):
            raise Wrong(f"{where} is {value!r}, not {rule}")

    def fits(self, value, rule, where):
        try:
            self.check(value, rule, where)
        except Wrong:
            return False
        return True

    def check_all(self, value, rule, where):
        if type(value) is not list:
            raise Wrong(f"{where} is no array")
        for number, each in enumerate(value):
            self.check(each, rule, f"{where}[{number}]")

    def check_members(self, value, rule, where):
        members = dict(member.split(":", 1) for member in rule[1:-1].split(","))
        if type(value) is not dict or {name.strip() for name in members} != set(value):
            raise Wrong(f"{where} has not the members of {rule}")
        for name, kind in members.items():
            self.check(value[name.strip()], kind, f"{where}.{name.strip()}")


def dumps_below(folder):
    """What lies there and looks like a dump."""
    for path in sorted(pathlib.Path(folder).rglob("*")):
        if path.suffix in (".json", ".txt"):
            yield path


def check(grammar, form, path):
    content = path.read_text(encoding="utf-8")
    if path.suffix == ".json":
        form.check(json.loads(content))
    else:
        grammar.check(content)


def main(page, *folders):
    page = pathlib.Path(page).read_text(encoding="utf-8")
    grammar, form = TextGrammar(page), Form(page)
    read = collections.Counter()
    wrong = 0
    for path in (path for folder in folders for path in dumps_below(folder)):
        read[path.suffix] += 1
        try:
            check(grammar, form, path)
        except (Wrong, ValueError) as error:
            print(f"{path}: {error}")
            wrong += 1
    print(f"{read['.txt']} texts and {read['.json']} forms read, {wrong} wrong")
    return 1 if wrong or not read else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
