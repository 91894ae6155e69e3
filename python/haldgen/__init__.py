"""Small numeric transforms on NumPy arrays, with the bits of haldgen's C functions.

    fft, ifft, rfft, irfft, fft2, ifft2    Fourier transforms, as in numpy.fft
    hartley                                Hartley transform
    wht                                    Walsh-Hadamard transform
    dct4                                   cosine transform of type IV
    lengths                                the lengths that a function has
    vector_bits                            which build of the library is at work

Arrays of Dask give arrays of Dask. Any number of threads may call; the interpreter's lock is released.
"""

import numpy as _numpy

from . import _core
from ._core import (
    __version__,
    dct4,
    fft,
    fft2,
    hartley,
    ifft,
    ifft2,
    irfft,
    rfft,
    vector_bits,
    wht,
)

__all__ = [
    "dct4",
    "fft",
    "fft2",
    "hartley",
    "ifft",
    "ifft2",
    "irfft",
    "lengths",
    "rfft",
    "vector_bits",
    "wht",
]


def lengths(function="fft", dtype=_numpy.float64):
    """The lengths that a function has, ascending, for arrays of a type.

    >>> import haldgen
    >>> 64 in haldgen.lengths("fft")
    True
    >>> haldgen.lengths("wht")[:4]
    (2, 4, 8, 16)
    """
    return _core.lengths(getattr(function, "__name__", function), dtype)
