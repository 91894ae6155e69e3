#!/usr/bin/python3
"""Draws what haldgen_batch_bench printed: time over FFTW's by length, for each kind of transform.

    build/release/bench/haldgen_batch_bench > batches.tsv
    bench/plot_batches.py batches.tsv docs/images/batches.png --caption "processor, date, load"
"""
import argparse
import collections
from pathlib import Path

import matplotlib

matplotlib.use("Agg")
import matplotlib.pyplot as plt
import summary

KINDS = [
    ("DFTFwd_CToC", "32fc"),
    ("DFTFwd_CToC", "64fc"),
    ("DFTFwd_RToCCS", "32f"),
    ("DFTFwd_RToCCS", "64f"),
]
LAYOUTS = ["rows", "columns"]


def times(path, place):
    """Nanoseconds by (word, type, layout, contestant), then by length."""
    found = collections.defaultdict(dict)
    for row in summary.read(Path(path)).rows:
        layout, _, room = row.mode.partition("/")
        if room == place and row.statistic == "median":
            for name, time in row.times.items():
                found[row.family, row.type, layout, name][row.length] = time
    return found


def draw(measured, caption, picture):
    builds = sorted({key[3] for key in measured if key[3].endswith("_bits")})
    figure, axes = plt.subplots(len(KINDS), len(LAYOUTS), figsize=(11, 11), sharey=True)
    for line, (word, element) in zip(axes, KINDS):
        for axis, layout in zip(line, LAYOUTS):
            fftw = measured[word, element, layout, "fftw"]
            lengths = sorted(fftw)
            for i, build in enumerate(builds):
                ours = measured[word, element, layout, build]
                width = 0.8 / len(builds)
                # Bars from 1 on, so that as much faster is as long as as much slower.
                axis.bar(
                    [x + (i - (len(builds) - 1) / 2) * width for x in range(len(lengths))],
                    [ours[n] / fftw[n] - 1 for n in lengths],
                    width,
                    bottom=1,
                    label=build.replace("_", " "),
                )
            axis.axhline(1, color="0.2", linewidth=0.8)
            axis.set_yscale("log", base=2)
            axis.set_yticks([0.125, 0.25, 0.5, 1, 2], ["1/8", "1/4", "1/2", "equal", "2"])
            axis.set_xticks(range(len(lengths)), lengths, fontsize=8)
            axis.set_title(f"{word} {element}, {layout}", fontsize=10)
            axis.grid(axis="y", linewidth=0.3)
    for axis in axes[:, 0]:
        axis.set_ylabel("time over FFTW's")
    for axis in axes[-1]:
        axis.set_xlabel("length")
    axes[0, 0].legend(fontsize=8)
    figure.suptitle("Batches beside FFTW's planned ones, arrays in the first-level cache")
    figure.text(0.01, 0.005, caption, fontsize=8)
    figure.tight_layout(rect=(0, 0.015, 1, 1))
    figure.savefig(picture, dpi=110)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("measurements")
    parser.add_argument("picture")
    parser.add_argument("--caption", default="")
    arguments = parser.parse_args()
    draw(times(arguments.measurements, "L1"), arguments.caption, arguments.picture)


if __name__ == "__main__":
    main()
