#!/usr/bin/python3
"""check.py SITE MANIFEST: every page of the catalogue has all its figures, every link and picture of the
site leads somewhere inside of it, and nothing is fetched from elsewhere."""

from __future__ import annotations

import json
import re
import sys
from functools import cache
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit

_CARDS = {"time, hot", "arithmetic", "depth", "error, L2", "code", "stack"}
_SECTIONS = ("The call", "How it is computed", "Speed", "Errors", "Functions")


class Page(HTMLParser):
    def __init__(self, path: Path) -> None:
        super().__init__()
        self.anchors: set[str] = set()
        self.links: list[str] = []
        self.fetched: list[str] = []
        self.text = path.read_text()
        self.feed(self.text)

    def handle_starttag(self, tag: str, attrs: list[tuple[str, str | None]]) -> None:
        values = {name: value or "" for name, value in attrs}
        self.anchors |= {values[name] for name in ("id", "name") if name in values}
        if tag == "a" and "href" in values:
            self.links.append(values["href"])
        elif tag in ("img", "script", "link", "iframe", "source"):
            self.fetched += [values[name] for name in ("src", "href") if name in values]


@cache
def page(path: Path) -> Page:
    return Page(path)


def link_faults(path: Path, site: Path) -> list[str]:
    faults = []
    here = page(path)
    for link in here.fetched:
        if urlsplit(link).scheme or link.startswith("//"):
            faults.append(f"fetches {link}")
    for link in here.links + here.fetched:
        parts = urlsplit(link)
        if parts.scheme or link.startswith("//"):
            continue
        target = (path.parent / unquote(parts.path)).resolve() if parts.path else path
        target = target / "index.html" if target.is_dir() else target
        if not target.is_relative_to(site) or not target.exists():
            faults.append(f"no {link}")
        elif parts.fragment and target.suffix == ".html" and unquote(parts.fragment) not in page(target).anchors:
            faults.append(f"no such place: {link}")
    return faults


def kernel_faults(path: Path, needed: list[str]) -> list[str]:
    """`needed`: names of functions and published sums."""
    if not path.exists():
        return ["is missing"]
    text = page(path).text
    cards = dict(re.findall(r'<div class="hg-card"><span>(.*?)</span><b>(.*?)</b>', text))
    faults = [f"no figure: {name}" for name in _CARDS if not re.search(r"\d|not measured", cards.get(name, ""))]
    faults += [f"no section {name}" for name in _SECTIONS if f">{name}<a" not in text]
    faults += [f"does not name {name}" for name in needed if f"<code>{name}</code>" not in text]
    if len(re.findall(r'class="tabbed-block"', text)) != 4:
        faults.append("not called in four languages")
    if "hg-bars" not in text and "not measured" not in text:
        faults.append("no speed")
    if "hg-flow" not in text:
        faults.append("no graph")
    empty = re.findall(r"<td[^>]*></td>", text)
    if empty or re.search(r"\b(nan|None)\b", re.sub(r"<[^>]*>", " ", text)):
        faults.append("a figure is empty")
    return faults


def main(site: Path, manifest: Path) -> int:
    site = site.resolve()
    faults = []
    kernels = json.loads(manifest.read_text())
    for name, needed in kernels.items():
        path = site / "catalogue" / f"{name}.html"
        faults += [f"{path.relative_to(site)}: {fault}" for fault in kernel_faults(path, needed)]
    paths = sorted(site.rglob("*.html"))
    for path in paths:
        if path.name != "404.html":
            faults += [f"{path.relative_to(site)}: {fault}" for fault in link_faults(path, site)]
    if faults:
        print("\n".join(faults[:50]), file=sys.stderr)
    print(f"{len(paths)} pages, {len(kernels)} of kernels: {len(faults) or 'no'} faults")
    return 1 if faults or not kernels else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]), Path(sys.argv[2])))
