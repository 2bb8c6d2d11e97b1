#!/usr/bin/env python3
"""Runs all benchmarks that are built, one after the other.

  all.py FOLDER [--check] [--json FILE]

Each program prints its figures as JSON when it is given --json, and ends with 1 when it is given --check and a
figure exceeds its bar. --check fails when one of them does; --json keeps all figures in a file.
"""
import argparse
import json
import pathlib
import subprocess
import sys

# Programs that print a table of their own, without bars.
TABLES = {"bench-json-memory"}


def figures_of(program, check):
    """What a program has measured, and whether it is content."""
    run = subprocess.run([program, "--json", *(["--check"] if check else [])], stdout=subprocess.PIPE, text=True)
    try:
        figures = json.loads(run.stdout)
        if not figures or not all("name" in figure and "figure" in figure for figure in figures):
            raise ValueError("no figures")
    except (ValueError, TypeError) as error:
        print(f"{program.name} does not report its figures: {error}", file=sys.stderr)
        return [], False
    return figures, run.returncode == 0


def show(name, figures):
    print(f"{name:<62}{'figure':>10}{'bar':>10}")
    for figure in figures:
        verdict = ""
        if "bar" in figure:
            verdict = f"{figure['bar']:>10.2f}  {'ok' if figure['ok'] else 'FAILED'}"
        print(f"  {figure['name']:<60}{figure['figure']:>10.2f}{verdict}")
    print(flush=True)


def main():
    parser = argparse.ArgumentParser(prog="./dev bench", description="Runs all benchmarks that are built.")
    parser.add_argument("folder", type=pathlib.Path, help=argparse.SUPPRESS)
    parser.add_argument("--check", action="store_true", help="fail when a figure exceeds its bar")
    parser.add_argument("--json", type=pathlib.Path, metavar="FILE", help="keep all figures in a file of the checkout")
    options = parser.parse_args()
    programs = sorted(path for path in options.folder.glob("bench-*") if path.is_file())
    if not programs:
        sys.exit("no benchmark is built")

    results = {}
    failed = []
    for program in programs:
        if program.name in TABLES:
            if not (options.check or options.json):
                print(program.name, flush=True)
                subprocess.run([program], check=True)
            continue
        name = program.name.removeprefix("bench-")
        results[name], content = figures_of(program, options.check)
        if not content:
            failed.append(name)
        show(name, results[name])
    if options.json:
        options.json.write_text(json.dumps(results, indent=1, ensure_ascii=False) + "\n")
    if failed:
        sys.exit(f"below a bar, or without figures: {', '.join(failed)}")


main()
