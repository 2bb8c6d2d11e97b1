#!/usr/bin/env python3
"""Runs clang-tidy over sources of a build, and not again over one that was clean and has not changed.

  tidy.py BUILD_FOLDER CACHE_FOLDER [FOLDER_OR_FILE...]

A source counts as unchanged while the checks, the program, its command and the contents of all files that
it includes are the same.
"""
import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

HEADERS = ("include", "src", "host", "kit", "testing", "platform", "tools")


@functools.cache
def digest(path):
    return hashlib.sha256(pathlib.Path(path).read_bytes()).hexdigest()


def included_files(entry):
    """The files that a source consists of, as the compiler's front end lists them."""
    command = shlex.split(entry["command"])
    command = [word for word in command if not os.path.basename(word).startswith("ccache")]
    del command[command.index("-o"):command.index("-o") + 2]
    rule = subprocess.run(["clang++", *command[1:], "-w", "-M", "-MG"], cwd=entry["directory"],
                          capture_output=True, text=True, check=True).stdout
    names = rule.replace("\\\n", " ").split(":", 1)[1].split()
    return sorted({os.path.normpath(os.path.join(entry["directory"], name)) for name in names})


class Tidy:
    def __init__(self, build, cache):
        self.checkout = pathlib.Path.cwd()
        self.build = build
        self.cache = pathlib.Path(cache)
        self.cache.mkdir(parents=True, exist_ok=True)
        version = subprocess.run(["clang-tidy", "--version"], capture_output=True, text=True, check=True).stdout
        self.base = version + digest(".clang-tidy") + digest(__file__)

    def key(self, entry, files):
        state = [self.base, entry["command"]]
        state += [f"{os.path.relpath(name, self.checkout)} {digest(name)}" for name in files]
        text = "\n".join(state).replace(str(self.checkout), "")
        return hashlib.sha256(text.encode()).hexdigest()

    def check(self, entry):
        """The findings in one source; None when it is known to be clean."""
        name = os.path.relpath(entry["file"], self.checkout)
        listed = self.cache / (hashlib.sha256(name.encode()).hexdigest() + ".files")
        if listed.exists():
            files = listed.read_text().splitlines()
            if all(map(os.path.exists, files)) and (self.cache / self.key(entry, files)).exists():
                return None
        files = included_files(entry)
        listed.write_text("\n".join(files))
        clean = self.cache / self.key(entry, files)
        if clean.exists():
            return None
        run = subprocess.run(
            ["clang-tidy", "-p", self.build, "--quiet",
             f"--header-filter=^{re.escape(str(self.checkout))}/({'|'.join(HEADERS)})/", entry["file"]],
            capture_output=True, text=True)
        if run.returncode == 0:
            clean.touch()
        return run.returncode, run.stdout or run.stderr


def main():
    build, cache, *wanted = sys.argv[1:]
    tidy = Tidy(build, cache)
    prefixes = tuple(str(tidy.checkout / name) for name in wanted or HEADERS)
    entries = json.loads(pathlib.Path(build, "compile_commands.json").read_text())
    entries = [entry for entry in entries if entry["file"].startswith(prefixes)]
    if not entries:
        sys.exit("tidy: no sources found")
    findings = {}
    failed = checked = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for result in pool.map(tidy.check, entries):
            if result is None:
                continue
            checked += 1
            failed += result[0] != 0
            for finding in re.split(r"\n(?=/\S+:\d+:\d+: (?:warning|error):)", result[1]):
                if result[0]:
                    findings.setdefault(finding.split("\n")[0], finding)
    print("\n".join(findings.values()))
    print(f"{len(entries)} sources, {checked} of them new or changed, {len(findings)} findings")
    sys.exit(failed != 0)


main()
