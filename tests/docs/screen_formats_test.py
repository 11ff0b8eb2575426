#!/usr/bin/env python3
"""The parser of the screen's forms reads what is right, and nothing else."""

import pathlib
import unittest

from screen_formats import Form, TextGrammar, Wrong

PAGE = (pathlib.Path(__file__).parents[2] / "docs/screen-formats.md").read_text(encoding="utf-8")
OBJECT = "object:\nname:List\ncaption:A\nsubitem:\nname:Row\nstring0:a\nvolatile:b\nstring2:\nendsubitem:\nend:\n"
RECT = {"left": 0, "top": 0, "right": 9, "bottom": 9}
FORM = {"version": 1, "panel": {"variant": "wp1", "width": 208, "height": 42}, "focus": RECT,
        "rows": [{"text": "a", "selected": True, "lasting": "a"}],
        "texts": [{"text": "a", "rect": RECT, "selected": True, "cut": False, "lacksGlyph": False, "volatile": False,
                   "widget": "list"}]}


class ScreenAsText(unittest.TestCase):
    def test_what_is_right_is_read(self):
        for text in ("", OBJECT, OBJECT * 2, "object:\nname:Not Implemented\nend:\n", "object:\nname:\nstring0:a:b\nend:\n"):
            TextGrammar(PAGE).check(text)

    def test_nothing_else_is(self):
        for text in ("\n", OBJECT[:-1], OBJECT[:-5], "object:\nend:\n", "name:a\n", OBJECT + "x", OBJECT.replace("A", "\u00c4"),
                     OBJECT.replace("caption", "title"), OBJECT.replace("string0", "string1"), OBJECT.replace("string0", "string"),
                     OBJECT.replace("subitem:\n", "subitem:\nobject:\n", 1), OBJECT.replace("a\n", "a\r\n")):
            with self.assertRaises(Wrong, msg=text):
                TextGrammar(PAGE).check(text)


class ScreenAsForm(unittest.TestCase):
    def test_what_is_right_is_read(self):
        for change in ({}, {"focus": None}, {"rows": []}, {"texts": []}):
            Form(PAGE).check(FORM | change)

    def test_nothing_else_is(self):
        for change in ({"version": 2}, {"focus": {}}, {"focus": 1}, {"more": 1}, {"rows": [{}]}, {"rows": {}}, {"panel": None},
                       {"panel": FORM["panel"] | {"variant": "wide"}}, {"panel": FORM["panel"] | {"width": True}},
                       {"texts": [FORM["texts"][0] | {"widget": "lists"}]}):
            with self.assertRaises(Wrong, msg=change):
                Form(PAGE).check(FORM | change)
        with self.assertRaises(Wrong):
            Form(PAGE).check({name: value for name, value in FORM.items() if name != "rows"})


if __name__ == "__main__":
    unittest.main()
