"""A copy of the project's tree, built with the flags and in the folders of the presets, and its tests."""

import concurrent.futures
import contextlib
import filecmp
import itertools
import json
import os
import pathlib
import re
import shutil
import signal
import subprocess
import time

# As in the tree itself, so that ccache knows what is not broken.
PLAIN = ("release", "-DDISPLAYAPI_UNIT_TESTS=ON")
BUILDS = "build"
SANITIZED = {"asan": ("asan",), "tsan": ("tsan", "-DCMAKE_CXX_CLANG_TIDY=")}
SECONDS_FOR_A_CASE = 20
SANITIZERS_SLOW_DOWN = 4
KNOWN_TESTS = "seconds-of-tests.json"


def copy_tree(root, tree):
    """Brings the copy up to date, with what is not committed; after a change nothing is known of its tests."""
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=root, check=True,
                            stdout=subprocess.PIPE, text=True).stdout.splitlines()
    files = {name for name in listed if (root / name).is_file()}
    old = [name for name in files
           if not (tree / name).exists() or not filecmp.cmp(root / name, tree / name, shallow=False)]
    for name in old:
        (tree / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(root / name, tree / name)
    gone = [path for path in tree.rglob("*") if path.is_file() and not path.is_relative_to(tree / BUILDS)
            and str(path.relative_to(tree)) not in files]
    for path in gone:
        path.unlink()
    if old or gone:
        for known in tree.glob(f"{BUILDS}/*/{KNOWN_TESTS}"):
            known.unlink()


def output_of(command, seconds, **options):
    """(status, output) of the command, which is ended with all its children when it takes longer; None then."""
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                               text=True, errors="replace", start_new_session=True, **options)
    try:
        text, _ = process.communicate(timeout=seconds)
        return process.returncode, text
    except subprocess.TimeoutExpired:
        with contextlib.suppress(ProcessLookupError):
            os.killpg(process.pid, signal.SIGKILL)
        return None, process.communicate()[0]


class Test:
    """An entry of CTest."""

    def __init__(self, entry):
        properties = {one["name"]: one["value"] for one in entry.get("properties", [])}
        self.name = entry["name"]
        self.command = entry["command"]
        self.folder = properties["WORKING_DIRECTORY"]
        self.variables = dict(one.split("=", 1) for one in properties.get("ENVIRONMENT", []))
        self.seconds = 0.0

    @property
    def program(self):
        return self.name.split(".")[0]

    def run(self, seconds, command=None, **variables):
        variables = {**os.environ, **self.variables, **variables}
        return output_of(command or self.command, seconds, cwd=self.folder, env=variables)


class Failure:
    """What noticed the break."""

    def __init__(self, test, status, output):
        case = re.search(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", output, re.MULTILINE)
        self.hangs = status is None or "TEST HUNG: " in output
        self.name = test.name if case is None else f"{test.program}: {case.group(1)}"


class Build:
    """A build folder of the copy, as a preset makes it."""

    def __init__(self, tree, folder, preset, *definitions, tests, jobs):
        self.tree, self.folder, self.preset, self.definitions = tree, folder, preset, definitions
        self.wanted, self.jobs = re.compile(tests), jobs
        self.unbroken = folder.with_name(folder.name + "-unbroken")
        slow = SANITIZERS_SLOW_DOWN if preset in SANITIZED else 1
        self.variables = {"DISPLAYAPI_TEST_SECONDS": str(SECONDS_FOR_A_CASE * slow)}
        self.tests = []

    def make(self, *targets):
        return output_of(["ninja", "-C", str(self.folder), f"-j{self.jobs}", *targets], 1800)

    def prepare(self):
        """Builds all that is not broken, keeps its programs, and leaves out the tests that fail already."""
        known = self.folder / KNOWN_TESTS
        if not known.exists():
            self.build_unbroken()
            known.write_text(json.dumps({test.name: test.seconds for test in self.listed() if self.passes_now(test)}))
        self.make()  # what was interrupted lists no tests
        seconds = json.loads(known.read_text())
        self.tests = [test for test in self.listed() if test.name in seconds]
        for test in self.tests:
            test.seconds = seconds[test.name]
        self.homes = self.homes_of_test_files()

    def build_unbroken(self):
        configured, said = output_of(["cmake", "--preset", self.preset, "-B", str(self.folder), *self.definitions,
                                      "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON"], 600, cwd=self.tree)
        built, more = self.make() if configured == 0 else (1, "")
        if built != 0:
            raise SystemExit(f"the unbroken tree does not build\n{said}{more}"[-4000:])
        for part in ("bin", "lib"):
            shutil.rmtree(self.unbroken / part, ignore_errors=True)
            shutil.copytree(self.folder / part, self.unbroken / part, symlinks=True)

    def listed(self):
        listing = subprocess.run(["ctest", "--test-dir", str(self.folder), "--show-only=json-v1"], check=True,
                                 stdout=subprocess.PIPE, text=True).stdout
        return [Test(entry) for entry in json.loads(listing)["tests"] if self.wanted.match(entry["name"])]

    def passes_now(self, test):
        began = time.monotonic()
        status, output = test.run(240, **self.variables)
        test.seconds = time.monotonic() - began
        if status != 0:
            name = Failure(test, status, output).name
            print(f"left out, it fails without a break: {name} in {self.folder.name}", flush=True)
        return status == 0

    def homes_of_test_files(self):
        """The program and the fixtures of each file of the tests."""
        homes = {}
        for entry in json.loads((self.folder / "compile_commands.json").read_text()):
            path = pathlib.Path(entry["file"])
            program = re.search(r" -o \S*CMakeFiles/(\w+)\.dir/", entry["command"])
            if program and path.is_relative_to(self.tree / "tests"):
                fixtures = set(re.findall(r"\bTEST(?:_F|_P)?\((\w+),", path.read_text()))
                homes[path.relative_to(self.tree / "tests")] = {f"{program.group(1)}.{name}" for name in fixtures}
        return homes

    def mirrors_of(self, path):
        """The tests of the class in the file."""
        folder, stem = pathlib.Path("unit") / pathlib.Path(path).parent, pathlib.Path(path).stem
        names = [tests for file, tests in self.homes.items() if file.parent == folder and file.name.startswith(stem)]
        return set().union(*names)

    def in_order(self, path):
        """Programs and their tests: those of the class first, then the quick ones."""
        mirrors = self.mirrors_of(path)
        own = [test for test in self.tests if test.name in mirrors]
        others = [test for test in self.tests if test.name not in mirrors]
        cost = {test.program: sum(one.seconds for one in self.tests if one.program == test.program) for test in others}
        near = {test.program for test in own}
        others.sort(key=lambda test: (test.program not in near, cost[test.program], test.program, test.seconds))
        return own + others

    @staticmethod
    def target_of(test):
        """What is built for the test; a script wants all programs."""
        return (test.program,) if pathlib.Path(test.command[0]).name == test.program else ()

    def first_failure(self, path):
        """(compiles, what noticed it or None)"""
        for target, tests in itertools.groupby(self.in_order(path), self.target_of):
            if self.make(*target)[0] != 0:
                return False, None
            failure = self.first_failure_of(tests)
            if failure is not None:
                return True, failure
        return True, None

    def first_failure_of(self, tests):
        """One more at a time than there are compilers, because tests mostly wait."""
        with concurrent.futures.ThreadPoolExecutor(self.jobs + 1) as runners:
            for failure in runners.map(self.failure_of, tests):
                if failure is not None:
                    runners.shutdown(wait=False, cancel_futures=True)
                    return failure
        return None

    def failure_of(self, test):
        """A test notices a break when it fails twice with it and passes without it."""
        for _ in range(2):
            status, output = test.run(10 + 10 * test.seconds, **self.variables)
            if status == 0:
                return None
        if not self.passes_unbroken(test):
            return None
        return Failure(test, status, output)

    def passes_unbroken(self, test):
        command = [part.replace(f"{self.folder}/bin/", f"{self.unbroken}/bin/") for part in test.command]
        libraries = {"LD_LIBRARY_PATH": str(self.unbroken / "lib")}
        return test.run(10 + 10 * test.seconds, command, **self.variables, **libraries)[0] == 0
