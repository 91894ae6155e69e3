#!/usr/bin/python3
"""Speed beside numpy.fft and scipy.fft, in one process and in short turns.

    PYTHONPATH=build/release/python bench/python.py

For each case: least times and their ratio, and the median of the ratios of neighbouring turns with the
quartiles. The machine is idle where these agree.
"""

import functools
import platform
import statistics
import timeit

import haldgen
import numpy as np
import scipy
import scipy.fft

TURNS = 101
TURN = 2e-3  # seconds


def compare(ours, theirs):
    """Least times of both, and the quartiles of their ratios."""
    timers = (timeit.Timer(ours), timeit.Timer(theirs))
    repeats = [max(1, round(TURN / min(timer.repeat(5, 1)))) for timer in timers]
    turns = [[timer.timeit(n) / n for timer, n in zip(timers, repeats)] for _ in range(TURNS)]
    ratios = statistics.quantiles((our / their for our, their in turns), n=4)
    return [min(times) for times in zip(*turns)], ratios


def numbers(shape, dtype):
    random = np.random.default_rng(1)
    x = random.uniform(-1, 1, shape)
    return (x + 1j * random.uniform(-1, 1, shape) if np.dtype(dtype).kind == "c" else x).astype(dtype)


def cases():
    """Name, our function, theirs, the arguments of both."""
    for dtype in ("complex64", "complex128"):
        rows = numbers((10_000, 16), dtype)
        columns = np.ascontiguousarray(rows.T)
        yield f"fft, 10,000 x 16, last axis, {dtype}", haldgen.fft, scipy.fft.fft, (rows,), {}
        yield f"fft, 16 x 10,000, first axis, {dtype}", haldgen.fft, scipy.fft.fft, (columns,), {"axis": 0}
        into = functools.partial(haldgen.fft, out=np.empty_like(rows))
        yield f"fft, 10,000 x 16, out=, {dtype}", into, scipy.fft.fft, (rows,), {}
        x = numbers((100, 16, 100), dtype)
        yield f"fft, 100 x 16 x 100, middle axis, {dtype}", haldgen.fft, scipy.fft.fft, (x,), {"axis": 1}
        x = numbers((2500, 8, 8), dtype)
        yield f"fft2, 2,500 x 8 x 8, {dtype}", haldgen.fft2, scipy.fft.fft2, (x,), {}
        yield f"fft, 16 points, {dtype}", haldgen.fft, np.fft.fft, (numbers(16, dtype),), {}
        yield f"fft, 16 points, {dtype}", haldgen.fft, scipy.fft.fft, (numbers(16, dtype),), {}
    for dtype in ("float32", "float64"):
        rows = numbers((10_000, 16), dtype)
        bins = haldgen.rfft(rows)
        yield f"rfft, 10,000 x 16, {dtype}", haldgen.rfft, scipy.fft.rfft, (rows,), {}
        yield f"irfft, 10,000 x 16, {dtype}", haldgen.irfft, scipy.fft.irfft, (bins,), {}
        x = numbers((1000, 256), dtype)
        for axis, name in ((-1, "1,000 x 256, last axis"), (0, "256 x 1,000, first axis")):
            y = x if axis else np.ascontiguousarray(x.T)
            theirs = functools.partial(scipy.fft.dct, type=4)
            yield f"dct4, {name}, {dtype}", haldgen.dct4, theirs, (y,), {"axis": axis}


def main():
    print(f"NumPy {np.__version__}, SciPy {scipy.__version__}, Python {platform.python_version()}", end="")
    print(f", vectors of {haldgen.vector_bits()} bits\n")
    print("| case | haldgen, µs | other, µs | | ratio | of turns | quartiles |\n|---|--:|--:|---|--:|--:|---|")
    for name, ours, theirs, args, kwargs in cases():
        (our, their), (low, middle, high) = compare(lambda: ours(*args, **kwargs), lambda: theirs(*args, **kwargs))
        other = "numpy" if theirs is np.fft.fft else "scipy"
        times = f"{our * 1e6:.2f} | {their * 1e6:.2f} | {other} | {our / their:.2f}"
        print(f"| {name} | {times} | {middle:.2f} | {low:.2f} to {high:.2f} |", flush=True)


if __name__ == "__main__":
    main()
