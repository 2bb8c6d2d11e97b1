#!/usr/bin/env python3
"""Plants faults into the sources of a folder, one at a time, and tells which of them no test notices.

  mutate.py [--seed N] [--count N] [--tests COMMAND]... FOLDER...

Works in a copy of the tree, below build/mutate. The same seed chooses the same faults as long as the sources
are the same. A fault that does not compile (warnings are errors) does not count, and neither do those in
equivalent.txt, which change nothing that could be noticed.
"""
import argparse
import os
import pathlib
import random
import resource
import shlex
import shutil
import signal
import subprocess
import sys
import time

from faults import faults_of

HERE = pathlib.Path(__file__).resolve().parent
TREE = pathlib.Path("build/mutate/tree").resolve()
BUILD = TREE / "build/release"

# The test programs that cover a folder, with what they need; where nothing is said, the program of its name.
SORTING = "test-sort-ordering --gtest_filter=SortOrdering.*:SortOrderingIcu.*:"
COVERING = {
    "src/bindings": ["test-bindings", "test-functional", "test-bindings-allocation", "test-first-skill"],
    "src/i18n": ["test-i18n", f"LC_ALL=C.UTF-8 {SORTING}SortOrderingOutsideTurkish.*",
                 f"LC_ALL=tr_TR.UTF-8 {SORTING}SortOrderingInTurkish.*"],
    "src/model": ["test-model", "test-references"],
    "src/process": ["test-process", "test-references"],
    "src/skill": ["test-skill", "test-no-skill"],
    "host": ["test-host", "test-boundary", "test-library-names", "test-skillbench"],
    "kit": ["test-kit"],
    "testing": ["test-testing"],
    "platform": ["test-utils"],
    "tools/skillbench": ["test-skillbench", "test-first-skill"],
}


def tests_covering(folder):
    for name, tests in COVERING.items():
        if folder == name or folder.startswith(name + "/"):
            return tests
    return ["test-" + pathlib.Path(folder).name]


class TestProgram:
    def __init__(self, command):
        words = shlex.split(command)
        self.environment = dict(word.split("=", 1) for word in words if "=" in word and not word.startswith("-"))
        self.target, *self.arguments = [word for word in words if word.startswith("-") or "=" not in word]
        self.seconds = 0.0

    def passes(self, limit):
        """Whether all tests of the program pass within a time limit in seconds."""
        started = time.monotonic()
        process = subprocess.Popen(
            [BUILD / "bin" / self.target, *self.arguments, "--gtest_brief=1", "--gtest_fail_fast"], cwd=BUILD,
            env={**os.environ, **self.environment}, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            start_new_session=True, preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30)))
        try:
            process.wait(limit)
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
        self.seconds = time.monotonic() - started
        return process.returncode == 0


def files_below(folder):
    """The files of a tree, by their names in it, without what was built."""
    names = set()
    for place, folders, files in os.walk(folder):
        folders[:] = [name for name in folders if name not in (".git", "build")]
        names.update(os.path.relpath(os.path.join(place, name), folder) for name in files)
    return names


def copy_tree():
    """Brings the copy up to date; what is the same keeps its time, so that it is not built again."""
    names = files_below(".")
    for name in files_below(TREE) - names:
        (TREE / name).unlink()
    for name in names:
        to = TREE / name
        if not to.exists() or to.read_bytes() != pathlib.Path(name).read_bytes():
            to.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(name, to)


def build(targets):
    environment = {**os.environ, "CCACHE_BASEDIR": str(TREE), "CCACHE_NOHASHDIR": "1"}
    if not (BUILD / "build.ninja").exists():
        subprocess.run(["cmake", "--preset", "release"], cwd=TREE, env=environment, check=True, capture_output=True)
    return subprocess.run(["cmake", "--build", BUILD, "--target", *targets], env=environment, capture_output=True,
                          text=True)


def read_equivalents():
    """The faults that change nothing: FILE | LINE BEFORE | LINE AFTER, with a reason above."""
    known = set()
    for line in (HERE / "equivalent.txt").read_text().splitlines():
        if line and not line.startswith("#"):
            known.add(tuple(part.strip() for part in line.split(" | ")))
    return known


def choose(folder, seed, count):
    files = sorted(path for kind in ("*.cpp", "*.hpp") for path in pathlib.Path(folder).rglob(kind))
    equivalents = read_equivalents()
    faults = [fault for file in files if "Windows" not in file.name for fault in faults_of(str(file), file.read_text())
              if (fault.file, fault.before.strip(), fault.after.strip()) not in equivalents]
    if not faults:
        sys.exit(f"mutate: {folder} has no source into which a fault could be planted")
    order = random.Random(seed).sample(range(len(faults)), len(faults))
    return [faults[index] for index in order], count


def noticed(fault, targets, programs):
    """Whether a test notices the fault; None when it does not compile."""
    source = TREE / fault.file
    text = source.read_text()
    lines = text.split("\n")
    lines[fault.line - 1] = fault.after
    source.write_text("\n".join(lines))
    try:
        if build(targets).returncode != 0:
            return None
        return not all(program.passes(limit) for program, limit in programs)
    finally:
        source.write_text(text)


def mutate(folder, options):
    faults, wanted = choose(folder, options.seed, options.count)
    programs = [TestProgram(command) for command in options.tests or tests_covering(folder)]
    targets = sorted({program.target for program in programs})
    result = build(targets)
    if result.returncode != 0:
        sys.exit(result.stdout[-4000:] + result.stderr)
    for program in programs:
        if not program.passes(600):
            sys.exit(f"mutate: {program.target} fails without a fault")
    limits = [(program, 10 + 10 * program.seconds) for program in programs]
    survivors = []
    tried = uncompiled = 0
    for fault in faults:
        if tried == wanted:
            break
        seen = noticed(fault, targets, limits)
        if seen is None:
            uncompiled += 1
            continue
        tried += 1
        if not seen:
            survivors.append(fault)
            print(f"not noticed: {fault}", flush=True)
    share = 100 * (tried - len(survivors)) / max(tried, 1)
    print(f"{folder}: {tried - len(survivors)} of {tried} faults noticed ({share:.0f} %); "
          f"{uncompiled} more did not compile (seed {options.seed})", flush=True)


def main():
    parser = argparse.ArgumentParser(prog="./dev mutate", description="Tells which faults no test notices.")
    parser.add_argument("folders", nargs="*", metavar="FOLDER", help="folders of sources; all of src/ and host")
    parser.add_argument("--seed", type=int, default=1, help="which faults are chosen")
    parser.add_argument("--count", type=int, default=40, help="how many for each folder")
    parser.add_argument("--tests", action="append", metavar="COMMAND", help="the test programs that are to notice")
    options = parser.parse_args()
    copy_tree()
    folders = options.folders or [*sorted(str(path) for path in pathlib.Path("src").iterdir() if any(path.glob("*.cpp"))), "host"]
    for folder in folders:
        mutate(folder.rstrip("/"), options)


main()
