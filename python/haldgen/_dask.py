"""Arrays of Dask: each block is transformed when the array is computed, on whichever worker it is."""

import functools
import inspect
import sys

import numpy


def transform(function, *args, **kwargs):
    """function(*args, **kwargs) for an array of Dask, as one."""
    call = inspect.signature(function).bind(*args, **kwargs)
    call.apply_defaults()
    given = call.arguments
    a = given.pop("a")
    # Other collections have arrays inside, maybe where there is no Dask.
    dask_array = sys.modules.get("dask.array")
    if dask_array is None or not isinstance(a, dask_array.Array):
        return function(numpy.asarray(a), **given)
    if given.pop("out") is not None:
        raise TypeError(f"haldgen.{function.__name__}: arrays of Dask cannot be written to; leave out")
    axes = given.pop("axes") if "axes" in given else (given.pop("axis"),)
    blockwise = functools.partial(function, **given)

    # Wrong axes, lengths, types and arguments are seen now rather than on a worker.
    sizes = [a.shape[axis] for axis in axes]
    sample = blockwise(numpy.zeros(sizes, a.dtype))
    names = ("m", "n")[-len(axes) :]
    made = ("k", "l")[-len(axes) :]
    return dask_array.apply_gufunc(
        blockwise,
        f"({','.join(names)})->({','.join(made)})",
        a,
        axes=[tuple(axes), tuple(axes)],
        output_dtypes=sample.dtype,
        output_sizes=dict(zip(made, sample.shape)),
    )
