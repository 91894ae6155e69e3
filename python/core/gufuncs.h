/* NumPy's generalised universal functions over the transforms, one for each transform and scale,
   such as fft_ortho. They bring what one call of a transform cannot: any number of dimensions,
   casts of out, copies where arrays overlap. */
#ifndef HALDGEN_PYTHON_GUFUNCS_H
#define HALDGEN_PYTHON_GUFUNCS_H

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include "transforms.h"

/* Makes them and adds them to the module. Returns false with an error set. */
bool add_gufuncs(PyObject* module);

/* Borrowed. */
PyObject* gufunc_of(TransformId transform, Norm norm);

const Task* task_of(TransformId transform, Norm norm, Precision precision);

/* Sets the error for a status other than haldStatusOk. */
void raise_status(const Task* task, ptrdiff_t length, int32_t status);

#endif
