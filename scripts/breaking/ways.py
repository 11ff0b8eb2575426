"""The ways in which one line of C++ can be broken."""

import re

LITERAL = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])\'', re.DOTALL)
NOT_CODE = re.compile(r"\s*#|.*\b(?:\w*[lL]og|log[A-Z]\w*|static_assert|assert)\b")
SENTENCE_END = re.compile(r"[;{}]\s*$")

# Formatted code has blanks around binary operators, and none around the signs of templates, pointers and references.
OPERATORS = {
    " == ": [" != "], " != ": [" == "], " < ": [" >= ", " <= "], " > ": [" <= ", " >= "], " <= ": [" > ", " < "],
    " >= ": [" < ", " > "], " && ": [" || "], " || ": [" && "], " + ": [" - "], " - ": [" + "], " += ": [" -= "],
    " -= ": [" += "], " | ": [" & "], " & ": [" | "], "++": ["--"], "--": ["++"],
    "std::min": ["std::max"], "std::max": ["std::min"],
}
OPERATOR = re.compile("|".join(re.escape(sign) for sign in sorted(OPERATORS, key=len, reverse=True)))
FLAG = re.compile(r"\b(?:true|false)\b")
NUMBER = re.compile(r"(?<![\w.'])\d+(?![\w.'])")
NOT = re.compile(r"!(?=[\w(])")
CONDITION = re.compile(r"\bif \(([^=;]|[=!<>]=)+\)(?=$| \{$)")
RETURN = re.compile(r"\breturn (?!true;|false;|\d+;|nullptr;|\{\};|\"\";|std::nullopt;)([^;{}]+);")
WHOLE = re.compile(r"(?:^\s*|\{ )(?P<statement>[^{};]+(?:\{[^{};]*\})?;)(?: \})?$")
LOCK = re.compile(r"(?:const )?(?:std::)?\w*(?:[lL]ock|guard|Guard)(?:<.*>)? \w+[({].*[)}];$")
CALL = re.compile(r"(?!return\b|sizeof|static_cast<void>\()[\w:.\->\[\]()<>*]+\(.*\);$")
ASSIGNMENT = re.compile(r"[\w:.\->\[\]()*]+ (?:[-+*/|&]?=) (?!default;|delete;).*;$")
SMALL = re.compile(r"(?:delete (?:\[\] )?.*|(?:\+\+|--).*|.*(?:\+\+|--)|return|break|continue);$")


def without_texts(source):
    """The source with its comments blank and its texts made of underscores, each character where it was."""

    def blank(found):
        text = found.group()
        if text.startswith("/"):
            return re.sub(r"[^\n]", " ", text)
        return text[0] + "_" * (len(text) - 2) + text[-1]

    return LITERAL.sub(blank, source).split("\n")


def code_lines(source):
    """(index, line) of the lines that do something, and do not only log or assert it."""
    skipping = False
    begins = True
    for index, line in enumerate(without_texts(source)):
        line = line.rstrip()
        skipping = (skipping and not begins) or NOT_CODE.match(line) is not None
        if line and not skipping:
            yield index, line, begins
        if line:
            begins = SENTENCE_END.search(line) is not None or line.endswith((")", ":", "else"))


def balanced(text):
    return text.count("(") == text.count(")") and text.count("{") == text.count("}")


def replacements(code):
    """(way, from, to, instead) of what can be replaced in the line."""
    for found in OPERATOR.finditer(code):
        for other in OPERATORS[found.group()]:
            yield "operator turned", *found.span(), other
    for found in FLAG.finditer(code):
        yield "flag changed", *found.span(), "false" if found.group() == "true" else "true"
    for found in NUMBER.finditer(code):
        yield "number changed", *found.span(), str(int(found.group()) + 1)
    for found in NOT.finditer(code):
        yield "negation dropped", *found.span(), ""
    for found in RETURN.finditer(code):
        if balanced(found.group()):
            yield "answer changed", *found.span(), "return {};"


def ways(line, code, begins):
    """(way, broken line) for each way to break the line, of which `code` has no texts."""
    found = [(way, line[:start] + instead + line[end:]) for way, start, end, instead in replacements(code)]
    condition = CONDITION.search(code)
    if condition and balanced(condition.group()):
        start, end = condition.start() + len("if ("), condition.end() - 1
        found.append(("condition negated", f"{line[:start]}!({line[start:end]}){line[end:]}"))
    whole = WHOLE.search(code)
    if whole and begins and balanced(whole.group("statement")):
        statement = whole.group("statement")
        for way, pattern in (("lock left out", LOCK), ("call left out", CALL), ("assignment left out", ASSIGNMENT),
                             ("statement left out", SMALL)):
            if pattern.match(statement):
                start, end = whole.span("statement")
                found.append((way, line[:start] + "{}" + line[end:]))
                break
    return found


def breaks(path, source):
    """(path, line number, [(way, line, broken line)]) for each line that can be broken."""
    lines = source.split("\n")
    for index, code, begins in code_lines(source):
        found = ways(lines[index], code, begins)
        if found:
            yield path, index + 1, [(way, lines[index], broken) for way, broken in found]
