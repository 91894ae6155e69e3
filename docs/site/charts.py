#!/usr/bin/python3
"""Pictures of speed, from the published results, and of the packed formats. Run as a program, it writes
those that the documents show outside of the site, docs/results/*.svg."""

from __future__ import annotations

import math
from pathlib import Path
from statistics import geometric_mean

import matplotlib

matplotlib.use("svg")
import matplotlib.pyplot as plt  # noqa: E402

from facts import BATCHES, PEERS, ROOT, Results, Run, Speed, read_results, speeds as published_speeds  # noqa: E402

# Ink, lines, small print.
THEMES = {"light": ("#1f2937", "#d7dbe0", "#6b7280"), "dark": ("#e2e8f0", "#3b4252", "#9aa4b2")}
_FASTER, _SLOWER, _OURS = "#2f9e77", "#d9683c", "#3b82f6"
_MARKS = {"fftw": ("o", "#94a3b8"), "fftw128": ("_", "#94a3b8"), "kissfft": ("^", "#d6a25e"), "av_tx": ("s", "#b48ad0"),
          "plain": ("^", "#d6a25e"), "plain_fixed": ("s", "#b48ad0")}
TITLES = {
    "DFTFwd_CToC": "Complex DFT, forward", "DFTInv_CToC": "Complex DFT, inverse",
    "DFTFwd_RToCCS": "Real DFT, forward", "DFTInv_CCSToR": "Real DFT, inverse",
    "Hartley": "Hartley transform", "WHT": "Walsh-Hadamard transform", "DCT4": "DCT-IV",
}
Speeds = dict[tuple[str, str, int], Speed]


def _figure(theme: str, rows: int, title: str, captions: list[str]) -> tuple[plt.Figure, list[plt.Axes], str, str]:
    ink, line, faint = THEMES[theme]
    plt.rcParams.update({
        "font.size": 10, "text.color": ink, "axes.labelcolor": ink, "xtick.color": ink, "ytick.color": ink,
        "axes.edgecolor": faint, "axes.spines.top": False, "axes.spines.right": False, "svg.fonttype": "none",
        "svg.hashsalt": title, "font.family": ["sans-serif"], "legend.frameon": False})
    figure, axes = plt.subplots(rows, 1, figsize=(10, 2.75 * rows + 0.9), sharex=True, squeeze=False)
    figure.suptitle(title, x=0.01, y=0.985, ha="left", fontsize=14, fontweight="bold")
    figure.text(0.01, 0.012, "\n".join(captions), ha="left", va="bottom", fontsize=8, color=faint)
    return figure, list(axes[:, 0]), line, faint


def _save(figure: plt.Figure, path: Path, captions: list[str], transparent: bool) -> None:
    figure.tight_layout(rect=(0, 0.02 + 0.03 * len(captions) * 4 / figure.get_figheight() / 2, 1, 0.97))
    figure.savefig(path, transparent=transparent, metadata={"Date": None, "Creator": None})
    plt.close(figure)


def _types(speeds: Speeds, word: str) -> list[str]:
    return sorted({type_ for w, type_, _ in speeds if w == word})


def _lengths(speeds: Speeds, word: str, type_: str) -> list[int]:
    return sorted(length for w, t, length in speeds if (w, t) == (word, type_))


def _captions(speeds: Speeds, word: str, first: str) -> list[str]:
    runs = {s.run.caption for (w, _, _), s in speeds.items() if w == word}
    return [first, *sorted(runs)]


def _positions(lengths: list[int]) -> tuple[list[float], list[float], list[str]]:
    """Where bars stand, and ticks: lengths that are powers of two throughout by their logarithm."""
    if all(n & (n - 1) == 0 for n in lengths):
        places = [math.log2(n) for n in lengths]
        return places, places, [str(n) for n in lengths]
    ticks = [n for n in lengths if n % 4 == 0]
    return [float(n) for n in lengths], [float(n) for n in ticks], [str(n) for n in ticks]


def _factors(low: int, high: int) -> list[str]:
    """What powers of two from `low` to `high` mean."""
    return ["equal" if e == 0 else f"{2**abs(e)}x {'slower' if e > 0 else 'faster'}" for e in range(low, high + 1)]


def ratio(speeds: Speeds, word: str, theme: str, path: Path, transparent: bool = True) -> None:
    """Bars below the line are faster than the best peer, those above slower."""
    types = _types(speeds, word)
    captions = _captions(speeds, word, "bars: one call, hot cache, against the fastest peer at its full vector width; "
                         "the peer is named where it wins clearly")
    figure, axes, line, _ = _figure(theme, len(types), f"{TITLES[word]}: time beside the fastest " + ("plain loop" if word == "WHT" else "peer"), captions)
    for ax, type_ in zip(axes, types):
        lengths = _lengths(speeds, word, type_)
        rows = [speeds[word, type_, n] for n in lengths]
        places, ticks, labels = _positions(lengths)
        ratios = [r.ratio(r.best_peer or "haldgen") for r in rows]
        heights = [math.log2(q) for q in ratios]
        ax.bar(places, heights, width=0.7, color=[_FASTER if q <= 1 else _SLOWER for q in ratios])
        for place, height, row in zip(places, heights, rows):
            if height > 0.25:
                ax.annotate(PEERS[row.best_peer or ""].split(",")[0], (place, height), ha="center", va="bottom",
                            fontsize=7, color=_SLOWER, xytext=(0, 1), textcoords="offset points")
        low, high = math.floor(min(heights)), max(1, math.ceil(max(heights) + 0.2))
        ax.set_yticks(range(low, high + 1), _factors(low, high))
        ax.set_ylim(low, high)
        ax.set_xlim(places[0] - 0.8, places[-1] + 0.8)
        ax.axhline(0, color=_OURS, linewidth=1)
        ax.grid(axis="y", color=line, linewidth=0.7)
        ax.set_axisbelow(True)
        ax.set_xticks(ticks, labels)
        ax.tick_params(length=0, labelbottom=True)
        faster = sum(q <= 1 for q in ratios)
        ax.set_title(f"{type_}: faster at {faster} of {len(ratios)} lengths, "
                     f"{1 / geometric_mean(ratios):.2f} times as fast in the geometric mean",
                     loc="left", fontsize=10, fontweight="bold")
    axes[-1].set_xlabel("length")
    _save(figure, path, captions, transparent)


def nanoseconds(speeds: Speeds, word: str, theme: str, path: Path, transparent: bool = True) -> None:
    types = _types(speeds, word)
    captions = _captions(speeds, word, "nanoseconds of one call, hot cache, median")
    figure, axes, line, _ = _figure(theme, len(types), f"{TITLES[word]}: nanoseconds per call", captions)
    for ax, type_ in zip(axes, types):
        lengths = _lengths(speeds, word, type_)
        places, ticks, labels = _positions(lengths)
        rows = [speeds[word, type_, n].nanoseconds for n in lengths]
        for peer in (p for p in PEERS if any(p in row for row in rows)):
            mark, colour = _MARKS[peer]
            points = [(x, row[peer]) for x, row in zip(places, rows) if peer in row]
            ax.scatter(*zip(*points), s=22 if mark != "_" else 60, marker=mark, color=colour, label=PEERS[peer], alpha=0.9)
        ax.scatter(places, [row["haldgen"] for row in rows], s=26, color=_OURS, label="haldgen", zorder=3)
        ax.set_yscale("log")
        ax.yaxis.set_major_formatter(matplotlib.ticker.FuncFormatter(lambda y, _: f"{y:,.0f}"))
        ax.grid(axis="y", color=line, linewidth=0.7)
        ax.set_axisbelow(True)
        ax.set_xticks(ticks, labels)
        ax.tick_params(which="both", length=0, labelbottom=True)
        ax.set_xlim(places[0] - 0.8, places[-1] + 0.8)
        ax.set_title(type_, loc="left", fontsize=10, fontweight="bold")
        ax.legend(ncols=5, fontsize=8, loc="lower right", handletextpad=0.1, columnspacing=1)
    axes[-1].set_xlabel("length")
    _save(figure, path, captions, transparent)


KINDS = {"ratio": ratio, "ns": nanoseconds}


def batches(results: Results, theme: str, path: Path, transparent: bool = True) -> None:
    """Time over that of FFTW's planned batches, by width of vectors; bars below the line are faster."""
    kinds = [("DFTFwd_CToC", "32fc"), ("DFTFwd_CToC", "64fc"), ("DFTFwd_RToCCS", "32f"), ("DFTFwd_RToCCS", "64f"),
             ("Hartley", "32f"), ("Hartley", "64f")]
    captions = ["bars: a transform in a batch of arrays of 24 kilobytes together, against FFTW's planned batch of the same "
                "layout", Run(results, "").where]
    panels = [(word, type_, layout) for word, type_ in kinds for layout in ("rows", "columns")]
    figure, axes, line, _ = _figure(theme, len(panels), "Batches: time beside FFTW's planned ones", captions)
    widths = sorted(results.named("subject") + results.named("variant"), key=lambda name: int(name.split("_")[0]))
    for ax, (word, type_, layout) in zip(axes, panels):
        rows = {row.length: row.times for row in results.rows
                if (row.mode, row.statistic, row.family, row.type) == (f"{layout}/L1", "median", word, type_)}
        depths = []
        for i, (width, colour) in enumerate(zip(widths, ("#94a3b8", "#2f9e77", _OURS))):
            heights = [math.log2(times[width] / times["fftw"]) for times in rows.values()]
            depths += heights
            ax.bar([n + 0.27 * (i - 1) for n in rows], heights, width=0.27, color=colour, label=width.replace("_", " "))
        low, high = math.floor(min(depths)), max(1, math.ceil(max(depths)))
        ax.set_yticks(range(low, high + 1), _factors(low, high))
        ax.axhline(0, color=_OURS, linewidth=1)
        ax.grid(axis="y", color=line, linewidth=0.7)
        ax.set_axisbelow(True)
        ax.set_xticks([n for n in rows if n % 4 == 0])
        ax.set_xlim(min(rows) - 0.8, max(rows) + 0.8)
        ax.tick_params(length=0, labelbottom=True)
        best = geometric_mean([times[widths[-1]] / times["fftw"] for n, times in rows.items() if n >= 8])
        ax.set_title(f"{TITLES[word]}, {type_}, {layout}: {1 / best:.1f} times as fast from 8 points up at "
                     f"{widths[-1].replace('_', ' ')}", loc="left", fontsize=10, fontweight="bold")
    axes[0].legend(ncols=3, fontsize=8, loc="upper right")
    axes[-1].set_xlabel("length")
    _save(figure, path, captions, transparent)


def packed(length: int, path: Path) -> None:
    """The three formats of a half spectrum, position by position; on a card that suits both themes."""
    last = (length - 1) // 2
    middle = [part for k in range(1, last + 1) for part in (f"R{k}", f"I{k}")]
    nyquist = [f"R{length // 2}"] if length % 2 == 0 else []
    formats = {"CCS": ["R0", "0", *middle, *nyquist, *["0"] * len(nyquist)], "Pack": ["R0", *middle, *nyquist],
               "Perm": ["R0", *nyquist, *middle]}
    if not nyquist:
        formats = {"CCS": formats["CCS"], "Pack, Perm": formats["Pack"]}
    colours = {"R": ("#1d4ed8", "#dbeafe"), "I": ("#a16207", "#fef3c7"), "0": ("#334155", "#94a3b8")}
    text = [f"<rect width='760' height='{62 + 74 * len(formats)}' rx='12' fill='#0f172a'/>",
            f"<text x='22' y='34' fill='#e2e8f0' font-size='16' font-weight='bold'>{length} samples: bins 0 to {length // 2}; "
            + ("0 and the last are real" if nyquist else "only bin 0 is real") + "</text>"]
    for row, (name, cells) in enumerate(formats.items()):
        y = 56 + 74 * row
        text.append(f"<text x='22' y='{y + 29}' fill='#e2e8f0' font-size='15'>{name}</text>")
        for i, cell in enumerate(cells):
            fill, ink = colours[cell[0]]
            if cell == "R0" or cell in nyquist:
                fill = "#0f766e"
            x = 122 + 62 * i
            text.append(f"<rect x='{x}' y='{y}' width='58' height='44' rx='6' fill='{fill}'/>"
                        f"<text x='{x + 29}' y='{y + 28}' fill='{ink}' font-size='17' text-anchor='middle'>{cell[0]}"
                        f"<tspan dy='4' font-size='12'>{cell[1:]}</tspan></text>"
                        f"<text x='{x + 29}' y='{y + 59}' fill='#94a3b8' font-size='11' text-anchor='middle'>{i}</text>")
    path.write_text(f"<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 760 {62 + 74 * len(formats)}' "
                    "font-family='Roboto,DejaVu Sans,Helvetica,Arial,sans-serif'>" + "\n".join(text) + "</svg>\n")


if __name__ == "__main__":
    for measured in TITLES:
        ratio(published_speeds(), measured, "light", ROOT / f"docs/results/{measured}.svg", transparent=False)
    batches(read_results(BATCHES), "light", ROOT / "docs/results/batches.svg", transparent=False)
