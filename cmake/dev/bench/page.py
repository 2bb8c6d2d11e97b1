#!/usr/bin/env python3
"""Writes the tables and plots of a page from the figures that `./dev bench --json FILE` has kept.

  page.py FILE PAGE

Replaces what stands in the page between the two comments, and the plots in a folder of the page's name.
"""
import html
import json
import pathlib
import re
import sys

BEGIN, END = "<!-- figures -->", "<!-- end of figures -->"
TITLES = {
    "json": "Reading and writing JSON", "kit": "The skill kit", "memory": "Memory of a loaded configuration",
    "notification": "Calling subscribers", "references": "References and the reference workbench",
    "sorting": "Sorting names", "text": "Converting texts", "skillbench": "skillbench",
}
ROW, LABELS, WIDTH, BAR_AT = 20, 400, 860, 240


def plot(figures):
    """Each figure as its part of its bar: what ends left of the line holds."""
    height = ROW * len(figures) + 30
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{height}" '
             'font-family="sans-serif" font-size="12">',
             '<rect width="100%" height="100%" fill="white"/>']
    for number, figure in enumerate(figures):
        top = ROW * number + 4
        share = figure["figure"] / figure["bar"]
        width = min(share, (WIDTH - LABELS - 60) / BAR_AT) * BAR_AT
        colour = "#4477aa" if figure["ok"] else "#cc3311"
        parts += [
            f'<text x="{LABELS - 8}" y="{top + 12}" text-anchor="end">{html.escape(figure["name"])}</text>',
            f'<rect x="{LABELS}" y="{top}" width="{width:.1f}" height="{ROW - 6}" fill="{colour}"/>',
            f'<text x="{LABELS + width + 4:.1f}" y="{top + 12}">{figure["figure"]:.2f}</text>',
        ]
    line = LABELS + BAR_AT
    parts += [f'<line x1="{line}" y1="0" x2="{line}" y2="{height - 24}" stroke="black"/>',
              f'<text x="{line}" y="{height - 8}" text-anchor="middle">the bar</text>', "</svg>"]
    return "\n".join(parts) + "\n"


def table(figures):
    lines = ["| what | figure | bar |", "|---|--:|--:|"]
    for figure in figures:
        bar = f"{figure['bar']:.2f}" if "bar" in figure else ""
        lines.append(f"| {figure['name'].replace('|', chr(92) + '|')} | {figure['figure']:.2f} | {bar} |")
    return "\n".join(lines)


def main():
    results = json.loads(pathlib.Path(sys.argv[1]).read_text())
    page = pathlib.Path(sys.argv[2])
    plots = page.with_suffix("")
    plots.mkdir(exist_ok=True)
    for old in plots.glob("*.svg"):
        old.unlink()
    sections = []
    for name, figures in results.items():
        title = TITLES.get(name, name.replace("-", " ").capitalize())
        section = f"## {title}\n\n`./dev bench {name}`\n\n{table(figures)}\n"
        barred = [figure for figure in figures if "bar" in figure]
        if barred:
            (plots / f"{name}.svg").write_text(plot(barred))
            section += f"\n![{title}: each figure beside its bar]({plots.name}/{name}.svg)\n"
        sections.append(section)
    text = page.read_text()
    if text.count(BEGIN) != 1 or text.count(END) != 1:
        sys.exit(f"{page} must say once where its figures begin and end")
    filled = f"{BEGIN}\n\n" + "\n".join(sections) + f"\n{END}"
    page.write_text(re.sub(f"{BEGIN}.*{END}", lambda _: filled, text, flags=re.DOTALL))


main()
