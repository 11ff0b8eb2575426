#!/usr/bin/env python3
"""The checks of this folder find what they look for, and nothing else."""

import subprocess
import tempfile
import unittest

import commit_subjects
import project
import test_names


class CommitSubjects(unittest.TestCase):
    def test_an_area_and_an_order_pass(self):
        for subject in ("Lists: Let a row draw itself", "Core: Pass the member, read it there", "Host: Focus on 10 rows",
                        "Build: Need no network", "Tests: " + "A" * 65, "Merge branch 'tests'", 'Revert "Core: Do it"'):
            self.assertIsNone(commit_subjects.complaint(subject), subject)

    def test_other_subjects_are_refused(self):
        for subject in ("Let a row draw itself", "Row: Let it draw", "Lists: let a row draw itself", "Lists: Let it be.",
                        "Lists: Adds a row", "Lists: Added a row", "Lists: Adding a row", "Tests: " + "A" * 66, "", "Core:",
                        "Core: "):
            self.assertIsNotNone(commit_subjects.complaint(subject), subject)

    def test_a_message_begins_after_its_comments(self):
        with tempfile.NamedTemporaryFile("w", suffix=".txt") as file:
            file.write("# A comment\n\nCore: Do it\n\nbecause\n")
            file.flush()
            self.assertEqual(commit_subjects.first_line(file.name), "Core: Do it")


class TestNames(unittest.TestCase):
    def test_camel_case_passes(self):
        self.assertEqual(list(test_names.bad_names("TEST_F(ListTest, ClearDropsAll)\n{\n")), [])
        self.assertEqual(list(test_names.bad_names("TEST(\n    ListTest,\n    ClearDropsAll)\n{\n")), [])

    def test_other_names_are_found_with_their_line(self):
        for test in ("TEST(ListTest, clearDropsAll)", "TEST_F(ListTest, Clear_Drops)", "TYPED_TEST(listTest, Clears)",
                     "TEST_P(ListTest, 2Rows)"):
            self.assertEqual([line for line, _ in test_names.bad_names("\n" + test)], [2], test)

    def test_each_folder_has_its_namespace(self):
        for folder, name, offences in (("unit", "test", 0), ("unit", "doubles", 1), ("doubles", "doubles", 0),
                                       ("unit", "helpers", 1), ("unit", "DisplayAPI", 0), ("audit", "test", 1)):
            found = list(test_names.bad_namespaces(folder, f"namespace {name} {{\n"))
            self.assertEqual(len(found), offences, (folder, name))


class Formatting(unittest.TestCase):
    def test_an_unformatted_line_is_found(self):
        result = subprocess.run([project.tool("clang-format-14"), "--dry-run", "--style=file",
                                 f"--assume-filename={project.ROOT}/src/Some.cpp"],
                                input="int  main(){return 0;}\n", stderr=subprocess.PIPE, text=True)
        self.assertIn("warning:", result.stderr)

    def test_all_folders_with_sources_are_looked_at(self):
        folders = {path.relative_to(project.ROOT).parts[0] for path in project.sources()}
        self.assertGreaterEqual(folders, {"apps", "bench", "docs", "host", "include", "platform", "simulator", "src", "tests"})


if __name__ == "__main__":
    unittest.main()
