#!/usr/bin/python3
"""build.py BUILD_DIR DESTINATION: brings the pages of the site together, those of docs/ and the generated
ones, for mkdocs."""

from __future__ import annotations

import os
import re
import shutil
import sys
from pathlib import Path

import charts
import pages
from facts import BATCHES, ROOT, read_results

DOCS = ROOT / "docs"


def staged(text: str, page: Path, destination: Path) -> str:
    """A page of docs/ in the site: files of the repository that it links to come along as text, pictures of
    speed are those for both palettes."""

    def link(match: re.Match[str]) -> str:
        words, target = match.groups()
        path = Path(os.path.normpath(DOCS / page.parent / target.partition("#")[0]))
        if path.is_relative_to(DOCS) or not path.exists():
            return match[0]
        relative = path.relative_to(ROOT)
        if path.is_dir():
            return words
        copy = destination / "source" / f"{relative}.txt"
        copy.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(path, copy)
        return f"[{words}]({os.path.relpath(copy, (destination / page).parent)})"

    # Tables of mkdocs know that a bar in code is no border.
    text = re.sub(r"`[^`\n]*\\\|[^`\n]*`", lambda code: code[0].replace("\\|", "|"), text)
    text = re.sub(r"\[([^]]*)\]\((?!https?:|#)([^)\s]+)\)", link, text)
    return re.sub(r"!\[([^]]*)\]\(([./]*)results/(\w+)\.svg\)", picture, text)


def picture(match: re.Match[str]) -> str:
    return "\n".join(f"![{match[1]}]({match[2]}results/{match[3]}-ratio-{theme}.svg#only-{theme})" for theme in charts.THEMES)


def write_charts(known: pages.Facts, results: Path) -> None:
    for word in charts.TITLES:
        for theme in charts.THEMES:
            for kind, draw in charts.KINDS.items():
                draw(known.speeds, word, theme, results / f"{word}-{kind}-{theme}.svg")
    measured = read_results(BATCHES)
    for theme in charts.THEMES:
        charts.batches(measured, theme, results / f"batches-ratio-{theme}.svg")


def speed_page() -> str:
    lines = ["# Pictures of speed", "", "From the published runs of [the benchmark](../benchmarks.md), one call at a time. "
             "Machines, dates and loads stand below each picture; runs of a busy machine are marked, and are rough.", ""]
    for word, title in charts.TITLES.items():
        lines += [f"## {title}", ""]
        lines += [f"![{title}, {kind}](../results/{word}-{kind}-{theme}.svg#only-{theme})"
                  for kind in charts.KINDS for theme in charts.THEMES]
        lines.append("")
    lines += ["## Batches", "", "By width of vectors; [how they are measured](../batch.md#measuring).", ""]
    lines += [f"![batches](../results/batches-ratio-{theme}.svg#only-{theme})" for theme in charts.THEMES]
    return "\n".join([*lines, ""])


def main(build: Path, destination: Path) -> None:
    shutil.rmtree(destination, ignore_errors=True)
    for page in [*DOCS.glob("*.md"), *DOCS.glob("guide/*.md")]:
        path = page.relative_to(DOCS)
        (destination / path).parent.mkdir(parents=True, exist_ok=True)
        (destination / path).write_text(staged(page.read_text(), path, destination))
    shutil.copytree(DOCS / "images", destination / "images")
    shutil.copytree(DOCS / "site/assets", destination / "assets")
    (destination / "results").mkdir()
    for report in DOCS.glob("results/*.tsv"):
        shutil.copy(report, destination / "results")
    for length in (8, 7):
        charts.packed(length, destination / f"images/packed-{length}.svg")

    known = pages.Facts(build)
    write_charts(known, destination / "results")
    catalogue = destination / "catalogue"
    catalogue.mkdir()
    for kernel in pages.kernels():
        (catalogue / f"{kernel.page}.md").write_text(pages.kernel_page(kernel, known))
        for name, text in pages.pictures(kernel, known):
            (catalogue / name).write_text(text)
    (catalogue / "index.md").write_text(pages.overview(known))
    (catalogue / "speed.md").write_text(speed_page())
    for language in ("c", "cpp", "py", "mjs"):
        (destination.parent / f"catalogue_calls.{language}").write_text(pages.calls(language))
    (destination.parent / "catalogue.json").write_text(pages.manifest(known))


if __name__ == "__main__":
    main(Path(sys.argv[1]), Path(sys.argv[2]))
