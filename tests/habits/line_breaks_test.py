#!/usr/bin/env python3
"""scripts/break-lines finds what can be broken in a line, and leaves alone what does nothing."""

import sys
import unittest

import project

sys.path.insert(0, str(project.ROOT / "scripts/breaking"))
import ways  # noqa: E402


def broken(source):
    """What becomes of the source's lines, without their indentation."""
    return [instead.strip() for _, _, found in ways.breaks("a.cpp", source) for _, _, instead in found]


class Ways(unittest.TestCase):
    def test_a_comparison_is_turned_and_loses_its_edge(self):
        self.assertEqual(broken("    while (a < b)"), ["while (a >= b)", "while (a <= b)"])

    def test_signs_of_templates_and_references_stay(self):
        for line in ("std::vector<int> a;", "void f(int&& a);", "int* b;", "a << b;", "a->b"):
            self.assertEqual(broken(line), [], line)

    def test_flags_numbers_and_negations_change(self):
        self.assertEqual(broken("    const bool a = !f(true, 12);"),
                         ["const bool a = !f(false, 12);", "const bool a = !f(true, 13);",
                          "const bool a = f(true, 12);"])

    def test_a_condition_is_negated(self):
        self.assertEqual(broken("    if (isOpen()) {"), ["if (!(isOpen())) {"])

    def test_an_answer_becomes_an_empty_one(self):
        self.assertEqual(broken("    return mText;"), ["return {};"])
        self.assertEqual(broken("    return nullptr;"), [])

    def test_statements_are_left_out(self):
        for line in ("mBox->show(a, b());", "mDone = a;", "delete mBox;", "return;", "std::lock_guard l(mutex);"):
            self.assertEqual(broken(f"    {line}"), ["{}"], line)
        self.assertEqual(broken("    ~Lock() { mMutex.unlock(); }"), ["~Lock() { {} }"])

    def test_declarations_and_continued_statements_stay(self):
        for source in ("Box box(mArea);", "Box(const Box&) = delete;", "call(a,\n     b(c));",
                       "static_cast<void>(a());"):
            self.assertEqual(broken(source), [], source)

    def test_comments_texts_logs_and_assertions_stay(self):
        for source in ("// a == b", "/* if (a)\n   f(true); */", "#if A == 1",
                       'gLog(TRACE, 12,\n     "a == b", f(true));',
                       "static_assert(A == 1);", 'const char* a = "x == 1";'):
            self.assertEqual(broken(source), [], source)

    def test_what_follows_a_log_line_is_broken_again(self):
        self.assertEqual(broken("gLog(TRACE, 12, a);\nreturn;"), ["{}"])


if __name__ == "__main__":
    unittest.main()
