"""Arguments: what numpy.fft takes, what is refused and how, what happens to arrays that overlap."""

import ast
import inspect
import math
import warnings

import haldgen
import numpy as np
import pytest
from c_functions import ONE_AXIS, numbers

X = numbers((3, 5, 16), np.complex128)
SWAPPED = X.astype(X.dtype.newbyteorder())
READ_ONLY = X.copy()
READ_ONLY.flags.writeable = False
EXTREME = np.array([[np.inf, 1, 2, 3], [np.nan, 1, 2, 3], [1e308] * 4])

# The same calls of numpy.fft and of the package: results or errors must be the same.
CALLS = [
    ("fft", ([1, 2, 3, 4],), {}),
    ("fft", ([True, False, True],), {}),
    ("fft", ((1, 2j, 3),), {"norm": "backward"}),
    ("fft", (np.arange(8, dtype=np.int8),), {}),
    ("fft", (np.arange(8, dtype=np.uint64),), {}),
    ("fft", (np.ma.array([[1, 2], [3, 4]]),), {}),
    ("fft", (X, 8), {}),
    ("fft", (X, 20, 1, "ortho"), {}),
    ("fft", (X,), {"n": 3, "axis": 0}),
    ("fft", (X,), {"n": np.int16(2), "axis": np.int64(-3)}),
    ("fft", (X.real,), {"n": 20}),
    ("fft", (SWAPPED,), {}),
    ("fft", (SWAPPED.real,), {"n": 20, "axis": 1}),
    ("fft", (SWAPPED[0],), {"axis": 0}),
    ("fft", (READ_ONLY,), {}),
    ("fft", (X[::-1, ::2, ::-3],), {}),
    ("fft", (X.T,), {}),
    ("fft", (np.broadcast_to(X[0, 0], (4, 16)),), {}),
    ("fft", (np.broadcast_to(X[:, :, :1], X.shape),), {}),
    ("fft", (np.frombuffer(b"x" + X.tobytes(), X.dtype, offset=1).reshape(X.shape),), {}),
    ("fft", (np.empty((0, 16)),), {}),
    ("fft", (np.empty((3, 0, 16)),), {}),
    ("rfft", (X.real,), {}),
    ("rfft", (X.real, 9), {"axis": 0}),
    ("rfft", (np.arange(6),), {"n": 4}),
    ("irfft", (X,), {}),
    ("irfft", (X, 31), {}),
    ("irfft", (X, 8), {"axis": 1}),
    ("irfft", (X, 20), {"axis": 1}),
    ("irfft", ([1, 2, 3],), {}),
    ("fft2", (X,), {}),
    ("fft2", (X, (4, 7)), {}),
    ("ifft2", (X, [9, 2], [2, 0]), {"norm": "forward"}),
    ("ifft2", (np.empty((0, 4, 4)),), {}),
    ("ifft2", (X.real[0].astype("i4"),), {}),
    ("fft", (EXTREME,), {}),
    ("fft", (np.stack([EXTREME] * 2),), {}),
    # Errors.
    ("fft", (3.0,), {}),
    ("fft", ([],), {}),
    ("fft", (X,), {"axis": 3}),
    ("fft", (X,), {"axis": -4}),
    ("fft", (X,), {"n": 0}),
    ("fft", (X,), {"n": -1}),
    ("fft", (X,), {"n": 2.5}),
    ("fft", (X,), {"axis": 1.0}),
    ("fft", (X,), {"norm": "none"}),
    ("fft", (X,), {"more": 1}),
    ("fft", (X,), {"a": X}),
    ("fft", (), {}),
    ("fft", (X, 1, 2, None, None, 3), {}),
    ("irfft", (X[:, :, :1],), {}),
    ("fft2", (X[0, 0],), {}),
    ("fft2", (X,), {"s": (4,), "axes": (1, 2)}),
]


def outcome(function, args, kwargs):
    try:
        with warnings.catch_warnings():
            warnings.simplefilter("error", RuntimeWarning)
            return function(*args, **kwargs)
    except (TypeError, ValueError, IndexError) as error:
        return error


@pytest.mark.filterwarnings("ignore::numpy.ComplexWarning")
@pytest.mark.parametrize("name, args, kwargs", CALLS)
def test_as_numpy(name, args, kwargs):
    expected = outcome(getattr(np.fft, name), args, kwargs)
    result = outcome(getattr(haldgen, name), args, kwargs)
    if isinstance(expected, Exception):
        # Of NumPy's errors for an axis that is not there, AxisError is the one that says it.
        assert isinstance(result, (type(expected), np.AxisError)), (result, expected)
    else:
        assert not isinstance(result, Exception), result
        assert type(result) is np.ndarray and result.dtype == expected.dtype
        np.testing.assert_allclose(result, expected, rtol=1e-13, atol=1e-13)


@pytest.mark.parametrize(
    "given, taken",
    (("f2", "c8"), ("f4", "c8"), (">f4", "c8"), ("c8", "c8"), ("f8", "c16"), ("i2", "c16"), ("?", "c16")),
)
def test_precision(given, taken):
    assert haldgen.fft(np.ones(4, given)).dtype == taken
    assert haldgen.fft2(np.ones((3, 4, 4), given)).dtype == taken


@pytest.mark.parametrize("name", ONE_AXIS + ("fft2",))
@pytest.mark.parametrize("given", (np.longdouble, np.clongdouble, object, "S3", "M8[s]", "m8[s]", [("x", "f4")]))
def test_refused_types(name, given):
    with pytest.raises(TypeError, match=f"haldgen.{name} takes"):
        getattr(haldgen, name)(np.zeros((4, 4), given))


@pytest.mark.parametrize("name", ("rfft", "hartley", "wht", "dct4"))
def test_complex_is_not_real(name):
    with pytest.raises(TypeError, match="takes real numbers, not complex128"):
        getattr(haldgen, name)(X)


@pytest.mark.parametrize(
    "name, shape, has",
    (
        ("fft", (65,), "no length 65; its lengths are 2 to 64"),
        ("rfft", (3, 1), "no length 1; its lengths are 2 to 64"),
        ("irfft", (34,), "no length 66; its lengths are 2 to 64"),
        ("hartley", (0, 100), "no length 100; its lengths are 2 to 64"),
        ("ifft2", (8, 128), "no length 128; its lengths are 2 to 64"),
        ("wht", (12,), "no length 12; its lengths are the powers of two from 2 to 8192"),
        ("wht", (16384,), "no length 16384; its lengths are the powers of two from 2 to 8192"),
        ("dct4", (33,), "no length 33; its lengths are the powers of two from 2 to 33554432"),
    ),
)
def test_lengths_not_there(name, shape, has):
    with pytest.raises(ValueError, match=f"haldgen.{name} has {has}"):
        getattr(haldgen, name)(np.zeros(shape))
    # Universal functions hold to it by themselves.
    if name in ("fft", "wht", "dct4", "ifft2"):
        with pytest.raises(ValueError, match=has):
            gufunc = getattr(haldgen._core, name + "_backward")
            gufunc(np.zeros(shape, complex if "fft" in name else float))


def test_bins_not_there():
    for name, x, out in (("rfft", X.real, X[:, :, :8]), ("irfft", X, X.real.copy())):
        with pytest.raises(ValueError, match="16 real elements belong to 9 bins"):
            getattr(haldgen._core, name + "_backward")(x, out)


def test_huge_lengths_take_no_memory():
    for n in (2**31, 2**40, 2**62):
        with pytest.raises(ValueError, match="no length"):
            haldgen.fft([1, 2], n)


@pytest.mark.parametrize("axis", (0, 1))
def test_wrong_out(axis):
    for x in (X[0], X):
        for shape in (x.shape[1:], x.shape[::-1], (1,) + x.shape):
            with pytest.raises(ValueError, match="out has the shape"):
                haldgen.fft(x, axis=axis, out=np.empty(shape, x.dtype))
        for wrong in (x.tolist(), "out", 0):
            with pytest.raises(TypeError, match="out must be an array"):
                haldgen.fft(x, axis=axis, out=wrong)
        for dtype in (float, int):
            with pytest.raises(TypeError, match="Cannot cast"):
                haldgen.fft(x, axis=axis, out=np.zeros(x.shape, dtype))
        out = np.zeros(x.shape, x.dtype)
        out.flags.writeable = False
        with pytest.raises(ValueError, match="read-only"):
            haldgen.fft(x, axis=axis, out=out)
        assert not out.any()


@pytest.mark.parametrize("dtype", ("c8", "c16", ">c16"))
@pytest.mark.parametrize("name, x", (("fft", X[0]), ("fft", X), ("rfft", X[0].real), ("fft2", X)))
def test_other_out(name, x, dtype):
    """Results are cast to the type of out."""
    expected = getattr(haldgen, name)(x).astype(dtype)
    out = np.zeros(expected.shape, dtype)
    assert getattr(haldgen, name)(x, out=out) is out
    assert out.tobytes() == expected.tobytes()


@pytest.mark.parametrize("name", ("fft", "rfft", "irfft", "hartley", "dct4", "fft2"))
@pytest.mark.parametrize("shape", ((8, 8, 8), (8, 32), (32, 8)))
@pytest.mark.parametrize("axis", (0, 1))
def test_overlap(name, shape, axis):
    """Whatever memory the arrays share, results are those of arrays that share none."""
    kind = {"rfft": float, "hartley": float, "dct4": float}.get(name, complex)
    where = {"axes": (axis, axis - 1)} if name == "fft2" else {"axis": axis}
    size = math.prod(shape) * np.dtype(kind).itemsize
    for shift in (0, 8, 16, 136, 2048, size - 16):
        for back in (False, True):
            memory = numbers(8192, np.float64)
            x = np.frombuffer(memory.data, kind, math.prod(shape), offset=16384).reshape(shape)
            expected = getattr(haldgen, name)(x.copy(), **where)
            start = 16384 + (-shift if back else shift)
            out = np.frombuffer(memory.data, expected.dtype, expected.size, offset=start)
            out = out.reshape(expected.shape)
            getattr(haldgen, name)(x, out=out, **where)
            assert out.tobytes() == expected.tobytes()
    turned = numbers((64, 64), complex)
    expected = haldgen.fft(turned.copy())
    assert haldgen.fft(turned, out=turned.T).tobytes() == expected.tobytes()


def test_stubs():
    """Type stubs have the names, the order and the defaults of the arguments."""
    tree = ast.parse(open(haldgen.__file__ + "i").read())
    stubs = [node for node in tree.body if isinstance(node, ast.FunctionDef)]
    assert {stub.name for stub in stubs} == set(haldgen.__all__)
    for stub in stubs:
        defaults = {
            argument.arg: ast.unparse(value)
            for arguments, values in (
                (stub.args.args[::-1], stub.args.defaults[::-1]),
                (stub.args.kwonlyargs, stub.args.kw_defaults),
            )
            for argument, value in zip(arguments, values)
            if value is not None
        }
        given = [argument.arg for argument in stub.args.args + stub.args.kwonlyargs]
        runtime = inspect.signature(getattr(haldgen, stub.name)).parameters
        assert given == list(runtime), stub.name
        for name, value in defaults.items():
            if not isinstance(runtime[name].default, type):
                assert value == repr(runtime[name].default), (stub.name, name)
