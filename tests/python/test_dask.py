"""Arrays of Dask: the functions take them, apply_gufunc takes the functions, and the example runs."""

import pathlib
import subprocess
import sys

import dask.array as da
import haldgen
import numpy as np
import pytest
from c_functions import numbers

ROOT = pathlib.Path(__file__).resolve().parents[2]


@pytest.mark.parametrize(
    "name, kwargs",
    (
        ("fft", {}),
        ("fft", {"axis": 0, "norm": "ortho", "n": 7}),
        ("rfft", {"axis": 0}),
        ("irfft", {"n": 9, "axis": -2}),
        ("ifft2", {"axes": (2, 0), "s": (4, 5)}),
        ("wht", {"order": "sequency"}),
        ("dct4", {"axis": 2, "norm": "forward"}),
    ),
)
def test_functions(name, kwargs):
    x = numbers((8, 6, 16), np.float32)
    function = getattr(haldgen, name)
    # One chunk along the axes of the transform, several along the others.
    axes = kwargs.get("axes", (kwargs.get("axis", -1),))
    chunks = [x.shape[i] if i in axes or i - 3 in axes else 3 for i in range(3)]
    result = function(da.from_array(x, chunks), **kwargs)
    assert isinstance(result, da.Array)
    expected = function(x, **kwargs)
    assert (result.shape, result.dtype) == (expected.shape, expected.dtype)
    assert result.compute(scheduler="threads").tobytes() == expected.tobytes()


def test_apply_gufunc():
    x = numbers((100, 20), np.float64)
    blocks = da.from_array(x, (30, 20))
    result = da.apply_gufunc(haldgen.rfft, "(n)->(k)", blocks, output_dtypes=complex, output_sizes={"k": 11})
    assert result.compute().tobytes() == haldgen.rfft(x).tobytes()


def test_other_collections():
    class Collection:
        def __dask_graph__(self):
            return None

        def __array__(self, dtype=None):
            return np.arange(8)

    assert haldgen.fft(Collection(), norm="ortho").tobytes() == haldgen.fft(range(8), norm="ortho").tobytes()


def test_errors_come_at_once():
    blocks = da.zeros((100, 65), chunks=(30, 65))
    with pytest.raises(ValueError, match="no length 65; its lengths are 2 to 64"):
        haldgen.fft(blocks)
    with pytest.raises(ValueError, match="multiple chunks"):
        haldgen.fft(da.zeros((100, 64), chunks=(100, 16)))
    with pytest.raises(TypeError, match="leave out"):
        haldgen.fft(blocks, 64, out=np.empty((100, 64), complex))


def test_example(tmp_path):
    example = ROOT / "examples/python/dask_spectra.py"
    command = [sys.executable, example, "--megabytes", "4", "--folder", tmp_path]
    printed = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    assert "16,384 spectra: 4.00 MiB became 4.12 MiB" in printed
    assert "100% Completed" in printed and "strongest bin: 7" in printed
    recording, spectra = (np.load(tmp_path / f"{name}.npy") for name in ("recording", "spectra"))
    assert spectra.tobytes() == haldgen.rfft(recording).tobytes()
