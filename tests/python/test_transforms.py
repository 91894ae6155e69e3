"""Results: the bits of the C functions in every layout, the values of numpy.fft and scipy."""

import sys
import threading

import haldgen
import numpy as np
import pytest
import scipy.fft
import scipy.linalg
from c_functions import NORMS, ONE_AXIS, bins_of, numbers, rows, types_of

BOTH = pytest.mark.parametrize("bits", (32, 64))
ALL = pytest.mark.parametrize("function", ONE_AXIS)


def lengths_of(function, bits):
    """All of them, of the planned transform those up to tiles of a single sequence."""
    return [n for n in haldgen.lengths(function, f"f{bits // 8}") if n <= 1 << 19]


def same_bits(x, y):
    return x.dtype == y.dtype and x.shape == y.shape and x.tobytes() == y.tobytes()


def test_lengths():
    assert haldgen.lengths("fft") == haldgen.lengths(haldgen.irfft) == tuple(range(2, 65))
    assert haldgen.lengths("wht", np.float32) == tuple(2**k for k in range(1, 14))
    assert haldgen.lengths("dct4", np.float32)[-2:] == (2**25, 2**26)
    assert haldgen.lengths("dct4") == tuple(2**k for k in range(1, 26))


@ALL
@BOTH
@pytest.mark.parametrize("norm", NORMS)
def test_bits_of_each_length(function, bits, norm):
    call = getattr(haldgen, function)
    for n in lengths_of(function, bits):
        more = {"n": n} if function == "irfft" else {}
        x = numbers((3 if n < 8192 else 1, bins_of(function, n)[0]), types_of(function, bits)[0], n)
        expected = rows(function, x, n, norm)
        assert same_bits(call(x, norm=norm, **more), expected), n
        assert same_bits(call(x[-1], norm=norm, **more), expected[-1]), n


def elsewhere(shape, dtype, axis, how):
    """An empty array whose elements lie somehow in memory."""
    x = np.empty(shape, dtype)
    if how == "fortran":
        return np.empty(shape, dtype, order="F")
    if how == "gaps":
        return np.empty([2 * n for n in shape], dtype)[tuple(slice(1, None, 2) for _ in shape)]
    if how == "backwards":
        return x[tuple(slice(None, None, -1) for _ in shape)]
    if how == "between":  # strides that are no multiple of an element
        return np.empty(shape, [("other", "f4"), ("it", dtype), ("last", "i1")])["it"]
    if how == "packed":  # aligned strides that are no multiple of a complex element
        return np.empty(shape, [("other", f"f{x.real.itemsize}"), ("it", dtype)])["it"]
    if how == "upright":
        return np.moveaxis(np.empty(np.moveaxis(x, axis, 0).shape, dtype), 0, axis)
    return x


@ALL
@BOTH
@pytest.mark.parametrize(
    "how", ("rows", "upright", "fortran", "gaps", "backwards", "between", "packed")
)
def test_bits_in_each_layout(function, bits, how):
    """One to four dimensions and each axis, into a new array, one of the same layout and in place."""
    call = getattr(haldgen, function)
    src, dst = types_of(function, bits)
    n = 16
    more = {"n": n} if function == "irfft" else {}
    for others in ((), (5,), (70,), (4, 9), (2, 3, 5)):
        for axis in range(len(others) + 1):
            shapes = [others[:axis] + (bins,) + others[axis:] for bins in bins_of(function, n)]
            x = elsewhere(shapes[0], src, axis, how)
            x[...] = numbers(shapes[0], src, axis)
            expected = np.moveaxis(rows(function, np.moveaxis(x, axis, -1), n), -1, axis)
            result = call(x, axis=axis, **more)
            assert same_bits(result, expected)
            assert how != "fortran" or result.flags.f_contiguous
            assert same_bits(call(x, axis=axis - len(shapes[0]), **more), expected)
            out = elsewhere(shapes[1], dst, axis, how)
            assert call(x, axis=axis, out=out, **more) is out
            assert same_bits(out, expected)
            if src == dst and shapes[0] == shapes[1]:
                assert same_bits(call(x, axis=axis, out=x), expected)


@BOTH
@pytest.mark.parametrize("n", (2, 64, 4096))
def test_sequencies(bits, n):
    natural = scipy.linalg.hadamard(n)
    places = np.argsort((np.diff(natural, axis=1) != 0).sum(axis=1))
    for count in (1, 40):
        x = numbers((count, n), types_of("wht", bits)[0])
        expected = rows("wht", x, n, "ortho")[:, places]
        assert same_bits(haldgen.wht(x, norm="ortho", order="sequency"), expected)
        upright = np.asfortranarray(x).T
        assert haldgen.wht(upright, axis=0, norm="ortho", order="sequency", out=upright) is upright
        assert same_bits(upright.T, expected)


@BOTH
def test_two_dimensions(bits):
    """Blocks are the rows' transforms, then the columns', whatever else there is."""
    dtype = types_of("fft", bits)[0]
    for shape, axes in (
        ((8, 8), (-2, -1)),
        ((64, 61), (0, 1)),
        ((100, 8, 4), (-2, -1)),
        ((5, 16, 3, 9), (1, 3)),
        ((3, 64, 64), (2, 1)),
        ((16, 3, 70), (0, 1)),
    ):
        for name in ("fft", "ifft"):
            x = numbers(shape, dtype)
            for norm in NORMS:
                y = x
                for axis in reversed(axes):
                    y = np.moveaxis(y, axis, -1)
                    y = np.moveaxis(rows(name, y, y.shape[-1], norm), -1, axis)
                result = getattr(haldgen, name + "2")(x, axes=axes, norm=norm)
                assert same_bits(result, y)
            getattr(haldgen, name + "2")(x, axes=axes, norm=norm, out=x)
            assert same_bits(x, y)


REFERENCES = {
    "fft": np.fft.fft,
    "ifft": np.fft.ifft,
    "rfft": np.fft.rfft,
    "irfft": np.fft.irfft,
    "hartley": lambda x, norm: (1 + 1j) * np.fft.fft(x, norm=norm),
    "wht": lambda x, norm: x
    @ scipy.linalg.hadamard(x.shape[-1])
    * x.shape[-1] ** {None: 0, "ortho": -0.5, "forward": -1.0}[norm],
    "dct4": lambda x, norm: scipy.fft.dct(x, type=4, norm=norm),
}


@ALL
@BOTH
@pytest.mark.parametrize("norm", NORMS)
def test_values(function, bits, norm):
    """The relative error of a sequence is below two roundings for each factor of two in its length."""
    epsilon = np.finfo(f"f{bits // 8}").eps
    for n in [n for n in lengths_of(function, bits) if n <= 4096]:
        x = numbers((2, bins_of(function, n)[0]), types_of(function, bits)[0], n)
        wide = x.astype(x.dtype.kind + ("16" if x.dtype.kind == "c" else "8"))
        more = {"n": n} if function == "irfft" else {}
        expected = REFERENCES[function](wide, norm=norm, **more)
        result = getattr(haldgen, function)(x, norm=norm, **more)
        assert result.dtype == types_of(function, bits)[1]
        if result.dtype.kind != "c":
            expected = expected.real
        error = np.linalg.norm(result - expected)
        assert error <= 2 * epsilon * np.log2(2 * n) * np.linalg.norm(expected), n


def test_threads():
    """Calls at once, of the transform whose states are shared, too."""
    x = numbers((50, 256), np.float64)
    expected = {name: getattr(haldgen, name)(x[:, :64]) for name in ONE_AXIS if name != "irfft"}
    expected["dct4"] = haldgen.dct4(x)
    wrong = []

    def work():
        for _ in range(30):
            for name, result in expected.items():
                y = x if name == "dct4" else x[:, :64]
                if not same_bits(getattr(haldgen, name)(y), result):
                    wrong.append(name)

    threads = [threading.Thread(target=work) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not wrong


@pytest.mark.parametrize("shape", ((20000, 64), (200, 100, 64)))
def test_others_run_meanwhile(shape):
    """A thread that waits for the interpreter gets it during a transform: nothing else gives it away."""
    x = numbers(shape, np.complex128)
    out = np.empty_like(x)
    state = ["before"]
    seen = set()

    def watch():
        while state[0] != "after":
            seen.add(state[0])
            threading.Event().wait(1e-4)

    interval = sys.getswitchinterval()
    sys.setswitchinterval(1000)
    try:
        for _ in range(50):
            state[0] = "before"
            thread = threading.Thread(target=watch)
            thread.start()
            state[0] = "during"
            haldgen.fft(x, out=out)
            state[0] = "after"
            thread.join()
            if "during" in seen:
                return
    finally:
        sys.setswitchinterval(interval)
    assert "during" in seen
