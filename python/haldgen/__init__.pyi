from collections.abc import Callable, Sequence
from typing import Any, Literal, SupportsIndex, TypeVar, overload

import numpy as np
from numpy.typing import ArrayLike, DTypeLike, NDArray

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
__version__: str

_Norm = Literal["backward", "ortho", "forward"] | None
_Order = Literal["natural", "sequency"] | None
_Int = SupportsIndex
_Pair = Sequence[SupportsIndex]
_Out = TypeVar("_Out", bound=NDArray[Any])

# Arrays whose numbers are computed in 32 and in 64 bits. Of lists and the like that is not known here.
_Real32 = NDArray[np.float16 | np.float32]
_Real64 = NDArray[np.bool_ | np.integer[Any] | np.float64]
_Complex32 = NDArray[np.float16 | np.float32 | np.complex64]
_Complex64 = NDArray[np.bool_ | np.integer[Any] | np.float64 | np.complex128]
_Float = np.floating[Any]
_Complex = np.complexfloating[Any, Any]

@overload  # type: ignore[misc]
def fft(
    a: _Complex32, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[np.complex64]: ...
@overload
def fft(
    a: _Complex64, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[np.complex128]: ...
@overload
def fft(
    a: ArrayLike, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[_Complex]: ...
@overload
def fft(
    a: ArrayLike, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, *, out: _Out
) -> _Out: ...
@overload  # type: ignore[misc]
def ifft(
    a: _Complex32, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[np.complex64]: ...
@overload
def ifft(
    a: _Complex64, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[np.complex128]: ...
@overload
def ifft(
    a: ArrayLike, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[_Complex]: ...
@overload
def ifft(
    a: ArrayLike, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, *, out: _Out
) -> _Out: ...
@overload  # type: ignore[misc]
def rfft(
    a: _Real32, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[np.complex64]: ...
@overload
def rfft(
    a: _Real64, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[np.complex128]: ...
@overload
def rfft(
    a: ArrayLike, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[_Complex]: ...
@overload
def rfft(
    a: ArrayLike, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, *, out: _Out
) -> _Out: ...
@overload  # type: ignore[misc]
def irfft(
    a: _Complex32, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[np.float32]: ...
@overload
def irfft(
    a: _Complex64, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[np.float64]: ...
@overload
def irfft(
    a: ArrayLike, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[_Float]: ...
@overload
def irfft(
    a: ArrayLike, n: _Int | None = None, axis: _Int = -1, norm: _Norm = None, *, out: _Out
) -> _Out: ...
@overload  # type: ignore[misc]
def fft2(
    a: _Complex32, s: _Pair | None = None, axes: _Pair = (-2, -1), norm: _Norm = None, out: None = None
) -> NDArray[np.complex64]: ...
@overload
def fft2(
    a: _Complex64, s: _Pair | None = None, axes: _Pair = (-2, -1), norm: _Norm = None, out: None = None
) -> NDArray[np.complex128]: ...
@overload
def fft2(
    a: ArrayLike, s: _Pair | None = None, axes: _Pair = (-2, -1), norm: _Norm = None, out: None = None
) -> NDArray[_Complex]: ...
@overload
def fft2(
    a: ArrayLike, s: _Pair | None = None, axes: _Pair = (-2, -1), norm: _Norm = None, *, out: _Out
) -> _Out: ...
@overload  # type: ignore[misc]
def ifft2(
    a: _Complex32, s: _Pair | None = None, axes: _Pair = (-2, -1), norm: _Norm = None, out: None = None
) -> NDArray[np.complex64]: ...
@overload
def ifft2(
    a: _Complex64, s: _Pair | None = None, axes: _Pair = (-2, -1), norm: _Norm = None, out: None = None
) -> NDArray[np.complex128]: ...
@overload
def ifft2(
    a: ArrayLike, s: _Pair | None = None, axes: _Pair = (-2, -1), norm: _Norm = None, out: None = None
) -> NDArray[_Complex]: ...
@overload
def ifft2(
    a: ArrayLike, s: _Pair | None = None, axes: _Pair = (-2, -1), norm: _Norm = None, *, out: _Out
) -> _Out: ...
@overload  # type: ignore[misc]
def hartley(
    a: _Real32, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[np.float32]: ...
@overload
def hartley(
    a: _Real64, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[np.float64]: ...
@overload
def hartley(
    a: ArrayLike, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[_Float]: ...
@overload
def hartley(
    a: ArrayLike, axis: _Int = -1, norm: _Norm = None, *, out: _Out
) -> _Out: ...
@overload  # type: ignore[misc]
def wht(
    a: _Real32, axis: _Int = -1, norm: _Norm = None, out: None = None, *, order: _Order = "natural"
) -> NDArray[np.float32]: ...
@overload
def wht(
    a: _Real64, axis: _Int = -1, norm: _Norm = None, out: None = None, *, order: _Order = "natural"
) -> NDArray[np.float64]: ...
@overload
def wht(
    a: ArrayLike, axis: _Int = -1, norm: _Norm = None, out: None = None, *, order: _Order = "natural"
) -> NDArray[_Float]: ...
@overload
def wht(
    a: ArrayLike, axis: _Int = -1, norm: _Norm = None, *, out: _Out, order: _Order = "natural"
) -> _Out: ...
@overload  # type: ignore[misc]
def dct4(
    a: _Real32, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[np.float32]: ...
@overload
def dct4(
    a: _Real64, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[np.float64]: ...
@overload
def dct4(
    a: ArrayLike, axis: _Int = -1, norm: _Norm = None, out: None = None
) -> NDArray[_Float]: ...
@overload
def dct4(
    a: ArrayLike, axis: _Int = -1, norm: _Norm = None, *, out: _Out
) -> _Out: ...
def lengths(
    function: str | Callable[..., Any] = "fft", dtype: DTypeLike = np.float64
) -> tuple[int, ...]: ...
def vector_bits() -> int: ...
