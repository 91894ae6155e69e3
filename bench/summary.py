#!/usr/bin/python3
"""Sums up a table of haldgen_bench or haldgen_batch_bench on one screen: geometric means of our time over that of others.

    bench/summary.py build/release/bench/results/results.tsv --counts build/release/bench/counts.tsv
"""

from __future__ import annotations

import argparse
import csv
from dataclasses import dataclass
from math import prod
from pathlib import Path

BUSY = 0.3  # load by others
_LANES = {"32fc": 4, "64fc": 2, "32f": 4, "64f": 2}
_COUNTED = {"DFTFwd_CToC": "complex", "DFTInv_CToC": "complex", "DFTFwd_RToCCS": "real-forward",
            "DFTInv_CCSToR": "real-inverse", "Hartley": "hartley", "DCT4": "dct4"}
Counts = dict[tuple[str, str, int], tuple[float, float]]


@dataclass(frozen=True)
class Row:
    mode: str
    statistic: str
    family: str
    type: str
    length: int
    times: dict[str, float]  # by contestant


@dataclass(frozen=True)
class Results:
    head: dict[str, str]
    rows: list[Row]

    def named(self, role: str) -> list[str]:
        return self.head.get(role, "").split()

    @property
    def busy(self) -> bool:
        """At the end the benchmark itself is a load of 1."""
        return max(float(self.head["load at start"]), float(self.head["load at end"]) - 1) > BUSY

    @property
    def state(self) -> str:
        start, end = self.head["load at start"], self.head["load at end"]
        return f"{'BUSY' if self.busy else 'idle'} machine, load {start} to {end}"

    def best(self, row: Row) -> str | None:
        """The fastest library at its full width, or else the fastest plain loop."""
        for role in ("peer", "baseline"):
            there = [name for name in self.named(role) if name in row.times]
            if there:
                return min(there, key=row.times.__getitem__)
        return None


def table(path: Path) -> tuple[dict[str, str], list[dict[str, str]]]:
    """The lines `# key: value` of a file, and its rows by the names of the columns."""
    lines = path.read_text().splitlines()
    head = dict(line[2:].split(": ", 1) for line in lines if line.startswith("# ") and ": " in line)
    return head, list(csv.DictReader((line for line in lines if not line.startswith("#")), delimiter="\t"))


def read(path: Path) -> Results:
    head, rows = table(path)
    try:
        return Results(head, [Row(c.pop("mode"), c.pop("statistic"), c.pop("family"), c.pop("type"), int(c.pop("length")),
                                  {name: float(time) for name, time in c.items() if time != "-"}) for c in rows])
    except (KeyError, TypeError) as error:
        raise ValueError(f"{path} is no table of results") from error


def read_counts(path: Path) -> Counts:
    """Additions and conversions by family, type and length, as haldgen-generate counts prints them."""
    return {(t["family"], t["type"], int(t["length"])): (float(t["add"]), float(t.get("convert", 0)))
            for t in table(path)[1]}


def bound(row: Row, counts: Counts) -> float | None:
    """Time of a call and of the kernel's own additions and conversions at the full rate of the machine."""
    if row.family == "WHT":
        work = row.length * (row.length.bit_length() - 1), 0.0
    else:
        work = counts.get((_COUNTED.get(row.family, ""), row.type, row.length))
    if work is None or "vector_add" not in row.times:
        return None
    # Kernels of real samples are scalar, and so are those of the five smallest lengths of the DCT-IV.
    scalar = row.family in ("DFTFwd_RToCCS", "DFTInv_CCSToR", "Hartley") or (row.family == "DCT4" and row.length <= 32)
    additions = work[0] / (1 if scalar else _LANES[row.type])
    return (row.times["null_call"] + additions * row.times["vector_add"]
            + (work[1] * row.times["convert"] if work[1] else 0))


def mean(ratios: list[float]) -> str:
    return f"{prod(ratio ** (1 / len(ratios)) for ratio in ratios):.3f}" if ratios else "-"


def screen(results: Results, counts: Counts, lengths: set[int], statistic: str, mode: str | None) -> list[str]:
    """Of `mode`, the first if None, with the means of all others beside them."""
    rows = [r for r in results.rows if r.statistic == statistic and (not lengths or r.length in lengths)]
    modes = list(dict.fromkeys(r.mode for r in rows))
    mode = mode or (modes[0] if modes else "")
    ours, others = results.head["subject"], [*results.named("narrow_peer"), *results.named("variant")]

    def ratios(chosen: list[Row], other: str | None = None) -> list[float]:
        names = [(r, other or results.best(r)) for r in chosen]
        return [r.times[ours] / r.times[name] for r, name in names if name in r.times]

    heading = ["family", "type", "lengths", f"{mode}: /best", "faster", "worst",
               *(f"/{name}" for name in others), "/bound", *(m for m in modes if m != mode)]
    table = []
    for family, type_ in dict.fromkeys((r.family, r.type) for r in rows if r.mode == mode):
        by_mode = {m: [r for r in rows if (r.mode, r.family, r.type) == (m, family, type_)] for m in modes}
        here = by_mode[mode]
        met = [(r.times[ours] / r.times[best], r.length, best) for r in here if (best := results.best(r))]
        worst = max(met, default=None)
        bounds = [(r, limit) for r in here if (limit := bound(r, counts)) is not None]
        table.append([
            family, type_, f"{min(r.length for r in here)}..{max(r.length for r in here)}", mean(ratios(here)),
            f"{sum(ratio < 1 for ratio, *_ in met)} of {len(met)}",
            f"{worst[0]:.2f} at {worst[1]} ({worst[2]})" if worst else "-",
            *(mean(ratios(here, name)) for name in others), mean([r.times[ours] / limit for r, limit in bounds]),
            *(mean(ratios(by_mode[m])) for m in modes if m != mode)])
    keep = [i for i in range(len(heading)) if any(line[i] != "-" for line in table)]
    lines = [[line[i] for i in keep] for line in [heading, *table]]
    widths = [max(map(len, column)) for column in zip(*lines)]
    head = results.head
    return [f"{ours} over the best other, geometric means of the {statistic} times: below 1 we are faster",
            f"{head['processor']}, {head['cores']} cores, {head['date']}, {results.state}"
            + ("; rough figures" if results.busy else ""), "",
            *("  ".join(cell.ljust(w) if i < 2 else cell.rjust(w) for i, (cell, w) in enumerate(zip(line, widths)))
              for line in lines)]


def lengths_of(text: str) -> set[int]:
    ends = [item.split("-") for item in text.split(",")]
    return {n for end in ends for n in range(int(end[0]), int(end[-1]) + 1)}


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("results", type=Path)
    parser.add_argument("--counts", type=Path, help="of haldgen-generate, for the bound")
    parser.add_argument("--lengths", type=lengths_of, default=set(), help="such as 8,16,20-24; default: all")
    parser.add_argument("--mode", help="default: the first in the table")
    parser.add_argument("--statistic", choices=["median", "minimum"], default="median")
    given = parser.parse_args()
    counts = read_counts(given.counts) if given.counts else {}
    print("\n".join(screen(read(given.results), counts, given.lengths, given.statistic, given.mode)))


if __name__ == "__main__":
    main()
