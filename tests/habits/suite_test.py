"""./test says with its exit code what has become of its parts: tried with a build and with tests that only end as told."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from project import ROOT


class SuiteTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = Path(folder.name)
        shutil.copy(ROOT / "test", self.tree)
        self.write("scripts/install-packages", "exit 0")

    def write(self, name, line):
        file = self.tree / name
        file.parent.mkdir(exist_ok=True)
        file.write_text(f"#!/bin/sh\n{line}\n", encoding="utf-8")
        file.chmod(0o755)

    def run_suite(self, *parts, cmake="exit 0", ctest="echo '100% tests passed'"):
        self.write("bin/cmake", cmake)
        self.write("bin/ctest", ctest)
        path = f"{self.tree / 'bin'}:{os.environ['PATH']}"
        done = subprocess.run([self.tree / "test", *parts], env={**os.environ, "PATH": path}, capture_output=True,
                              text=True, timeout=60, check=False)
        return done.returncode, done.stdout

    def test_parts_that_all_pass_are_a_success(self):
        code, output = self.run_suite("release", "asan", "tsan")
        self.assertEqual(code, 0, output)
        self.assertEqual(output.splitlines()[-1], "3 passed, 0 failed")

    def test_a_part_that_fails_is_named(self):
        code, output = self.run_suite("release", "asan", ctest='[ "$2" = release ] || { echo broken; exit 8; }')
        self.assertEqual(code, 1, output)
        self.assertEqual(output.splitlines()[-2:], ["failed: asan", "1 passed, 1 failed"])
        self.assertIn("broken", output)

    def test_what_cannot_be_built_fails(self):
        code, output = self.run_suite("release", "asan", cmake="exit 1")
        self.assertEqual(code, 1, output)
        self.assertEqual(output.splitlines()[-2:], ["failed: release", "0 passed, 1 failed"])

    def test_a_part_that_does_not_exist_is_refused(self):
        code, _ = self.run_suite("everything")
        self.assertEqual(code, 2)


if __name__ == "__main__":
    unittest.main()
