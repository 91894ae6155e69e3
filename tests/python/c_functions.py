"""The transforms of the package by calls of the C functions in libhaldgenp8, one sequence a call."""

import ctypes
import math
import os

import numpy as np

library = ctypes.CDLL(os.path.join(os.environ["HALDGEN_BUILD"], "libhaldgenp8.so.8"))

NORMS = (None, "ortho", "forward")
ONE_AXIS = ("fft", "ifft", "rfft", "irfft", "hartley", "wht", "dct4")
# By function: name in C, whether the elements read and those written are complex.
_NAMES = {
    "fft": ("DFTFwd_CToC", True, True),
    "ifft": ("DFTInv_CToC", True, True),
    "rfft": ("DFTFwd_RToCCS", False, True),
    "irfft": ("DFTInv_CCSToR", True, False),
    "hartley": ("Hartley", False, False),
    "wht": ("WHT", False, False),
    "dct4": ("DCT4", False, False),
}


def types_of(function, bits):
    """Types of the elements read and of those written."""
    real, cplx = np.dtype(f"f{bits // 8}"), np.dtype(f"c{bits // 4}")
    _, complex_in, complex_out = _NAMES[function]
    return cplx if complex_in else real, cplx if complex_out else real


def bins_of(function, length):
    """How many elements are read, and written."""
    half = length // 2 + 1
    return {"rfft": (length, half), "irfft": (half, length)}.get(function, (length, length))


def _flag(function, norm):
    none, by_n = 8, 2 if function in ("ifft", "irfft") else 1
    if norm == "ortho":
        return 4
    return by_n if (norm == "forward") == (by_n == 1) else none


def _call(name, *arguments):
    status = getattr(library, name)(*arguments)
    assert status == 0, (name, status)


def row(function, x, length, norm):
    """One transform of a contiguous array."""
    name, complex_in, _ = _NAMES[function]
    bits = 32 if x.dtype in (np.float32, np.complex64) else 64
    out = np.empty(bins_of(function, length)[1], types_of(function, bits)[1])
    name = f"haldg{name}_{bits}f" + ("c" if function in ("fft", "ifft") else "")
    arrays = ctypes.c_void_p(x.ctypes.data), ctypes.c_void_p(out.ctypes.data)
    if function == "wht":
        _call(name, *arrays, length.bit_length() - 1, _flag(function, norm), None)
    elif function == "dct4":
        state = ctypes.c_void_p()
        _call(f"haldgDCT4InitAlloc_{bits}f", ctypes.byref(state), length)
        _call(name, *arrays, state)
        _call(f"haldgDCT4Free_{bits}f", state)
        out *= out.dtype.type({None: 2, "ortho": math.sqrt(2 / length), "forward": 1 / length}[norm])
    else:
        _call(name, *arrays, length, _flag(function, norm))
    return out


def rows(function, x, length, norm=None):
    """All transforms along the last axis of an array."""
    x = np.ascontiguousarray(x)
    results = [row(function, each, length, norm) for each in x.reshape(-1, x.shape[-1])]
    return np.array(results).reshape(x.shape[:-1] + results[0].shape)


def numbers(shape, dtype, seed=1):
    """Random numbers."""
    random = np.random.default_rng(seed)
    x = random.uniform(-1, 1, shape)
    return (x + 1j * random.uniform(-1, 1, shape) if np.dtype(dtype).kind == "c" else x).astype(dtype)
