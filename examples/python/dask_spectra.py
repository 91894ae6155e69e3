#!/usr/bin/python3
"""Spectra of a recording that is larger than the memory of the processes that transform it.

Writes a recording of float32 samples, cut into blocks of 64, then has two worker processes of Dask
transform it piece by piece into a file of spectra, with a progress bar, and checks the file.

    dask_spectra.py [--megabytes 1024] [--memory 256MiB] [--folder FOLDER]
"""

import argparse
import pathlib
import sys
import tempfile

import dask.array
import dask.utils
import distributed
import haldgen
import numpy as np

BLOCK = 64
TONE = 7  # bin of a sine in the noise


class FileArray:
    """An array in a .npy file. Workers open the file; what travels between processes is its name."""

    def __init__(self, path, shape=None, dtype=None):
        mode = "r" if shape is None else "w+"
        array = np.lib.format.open_memmap(path, mode, dtype, shape)
        self.path, self.shape, self.dtype, self.ndim = path, array.shape, array.dtype, array.ndim

    def __getitem__(self, where):
        return np.array(np.load(self.path, mmap_mode="r")[where])

    def __setitem__(self, where, values):
        np.load(self.path, mmap_mode="r+")[where] = values


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--megabytes", type=int, default=1024, help="size of the recording")
    parser.add_argument("--memory", default="256MiB", help="that each of two workers may take")
    parser.add_argument("--folder", help="for the files, which stay there; a temporary one by default")
    options = parser.parse_args()

    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(options.folder or scratch)
        blocks = (options.megabytes << 20) // (4 * BLOCK)
        at_once = min(blocks // 4, 1 << 15)  # 8 megabytes
        recording = FileArray(folder / "recording.npy", (blocks, BLOCK), np.float32)
        target = FileArray(folder / "spectra.npy", (blocks, BLOCK // 2 + 1), np.complex64)

        workers = {"n_workers": 2, "threads_per_worker": 1, "memory_limit": options.memory}
        with distributed.Client(**workers, dashboard_address=None, local_directory=scratch) as client:
            noise = dask.array.random.RandomState(1).normal(size=recording.shape, chunks=(at_once, BLOCK))
            sine = np.sin(2 * np.pi * TONE * np.arange(BLOCK) / BLOCK)
            (noise + sine).astype(np.float32).store(recording, lock=False)

            x = dask.array.from_array(recording, chunks=(at_once, BLOCK))
            spectra = haldgen.rfft(x)  # nothing is computed yet
            power = (abs(spectra) ** 2).mean(axis=0)
            stored = spectra.store(target, lock=False, compute=False)
            power, stored = client.compute([power, stored])
            distributed.progress([power, stored])
            power, _ = power.result(), stored.result()

        size = [dask.utils.format_bytes(array.nbytes) for array in (x, spectra)]
        print(f"\n{blocks:,} spectra: {size[0]} became {size[1]} in two workers of {options.memory}")
        print(f"strongest bin: {power.argmax()}")
        some = np.random.default_rng(2).integers(blocks, size=1000)
        expected = np.fft.rfft(recording[some].astype(np.float64))
        if not np.linalg.norm(target[some] - expected) < 1e-6 * np.linalg.norm(expected):
            sys.exit("the spectra are not those of numpy.fft")


if __name__ == "__main__":
    main()
