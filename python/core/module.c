/* The functions of the package: arguments as numpy.fft has them, then one call of a batch where one
   is enough, or the universal function. */
#define NPY_NO_DEPRECATED_API NPY_1_22_API_VERSION
#define PY_ARRAY_UNIQUE_SYMBOL haldgen_array_api
#define PY_UFUNC_UNIQUE_SYMBOL haldgen_ufunc_api
#include "gufuncs.h"

#include <haldbatch.h>
#include <numpy/arrayobject.h>
#include <numpy/ufuncobject.h>

#include "docstrings.h"

/* Arguments. */

typedef enum Slot { kArray, kLength, kAxis, kNorm, kOut, kOrder, kSlots } Slot;

typedef struct Parameter {
  Slot slot;
  const char* text;
  PyObject* name; /* interned, as the names of keywords mostly are */
} Parameter;

typedef struct Parameters {
  Py_ssize_t positional, count;
  Parameter list[kSlots];
} Parameters;

static Parameters one_axis = {5,
                              5,
                              {{kArray, "a", NULL},
                               {kLength, "n", NULL},
                               {kAxis, "axis", NULL},
                               {kNorm, "norm", NULL},
                               {kOut, "out", NULL}}};
static Parameters two_axes = {5,
                              5,
                              {{kArray, "a", NULL},
                               {kLength, "s", NULL},
                               {kAxis, "axes", NULL},
                               {kNorm, "norm", NULL},
                               {kOut, "out", NULL}}};
static Parameters without_length = {
    4, 4, {{kArray, "a", NULL}, {kAxis, "axis", NULL}, {kNorm, "norm", NULL}, {kOut, "out", NULL}}};
static Parameters with_order = {4,
                                5,
                                {{kArray, "a", NULL},
                                 {kAxis, "axis", NULL},
                                 {kNorm, "norm", NULL},
                                 {kOut, "out", NULL},
                                 {kOrder, "order", NULL}}};
static Parameters of_lengths = {2, 2, {{kArray, "function", NULL}, {kLength, "dtype", NULL}}};

static bool intern(Parameters* parameters) {
  for (Py_ssize_t i = 0; i < parameters->count; ++i) {
    Parameter* parameter = &parameters->list[i];
    if (!parameter->name) parameter->name = PyUnicode_InternFromString(parameter->text);
    if (!parameter->name) return false;
  }
  return true;
}

/* Puts the arguments of a call into their slots; None is an empty slot. */
static bool parse(const char* function, const Parameters* parameters, PyObject* const* args,
                  Py_ssize_t positional, PyObject* keywords, PyObject** slots) {
  if (positional > parameters->positional) {
    PyErr_Format(PyExc_TypeError, "%s() takes %zd positional arguments at most, %zd were given",
                 function, parameters->positional, positional);
    return false;
  }
  for (Py_ssize_t i = 0; i < positional; ++i) slots[parameters->list[i].slot] = args[i];
  const Py_ssize_t named = keywords ? PyTuple_GET_SIZE(keywords) : 0;
  for (Py_ssize_t k = 0; k < named; ++k) {
    PyObject* name = PyTuple_GET_ITEM(keywords, k);
    Py_ssize_t i = 0;
    while (i < parameters->count && parameters->list[i].name != name) ++i;
    if (i == parameters->count) {
      i = 0;
      while (i < parameters->count && PyUnicode_Compare(parameters->list[i].name, name) != 0) ++i;
    }
    if (i == parameters->count) {
      PyErr_Format(PyExc_TypeError, "%s() got an unexpected keyword argument '%U'", function, name);
      return false;
    }
    if (i < positional) {
      PyErr_Format(PyExc_TypeError, "%s() got multiple values for argument '%U'", function, name);
      return false;
    }
    slots[parameters->list[i].slot] = args[positional + k];
  }
  if (!slots[kArray]) {
    PyErr_Format(PyExc_TypeError, "%s() missing 1 required positional argument: '%s'", function,
                 parameters->list[0].text);
    return false;
  }
  for (int slot = kLength; slot < kSlots; ++slot) {
    if (slots[slot] == Py_None) slots[slot] = NULL;
  }
  return true;
}

static bool is_text(PyObject* value, const char* text) {
  return PyUnicode_Check(value) && PyUnicode_CompareWithASCIIString(value, text) == 0;
}

static bool parse_norm(PyObject* value, Norm* norm) {
  if (!value || is_text(value, "backward")) {
    *norm = kBackward;
  } else if (is_text(value, "ortho")) {
    *norm = kOrtho;
  } else if (is_text(value, "forward")) {
    *norm = kForward;
  } else {
    PyErr_Format(PyExc_ValueError,
                 "Invalid norm value %R; should be \"backward\", \"ortho\" or \"forward\".", value);
    return false;
  }
  return true;
}

static bool parse_integer(PyObject* value, Py_ssize_t* integer) {
  *integer = PyNumber_AsSsize_t(value, PyExc_OverflowError);
  return *integer != -1 || !PyErr_Occurred();
}

/* One integer, or as many as there are axes. Leaves what is there if nothing is given. */
static bool parse_integers(PyObject* value, const char* function, int count, Py_ssize_t* integers) {
  if (!value) return true;
  if (count == 1) return parse_integer(value, integers);
  PyObject* pair = PySequence_Fast(value, "s and axes are pairs of integers");
  if (!pair) return false;
  bool fine = PySequence_Fast_GET_SIZE(pair) == count;
  if (!fine) {
    PyErr_Format(PyExc_ValueError, "haldgen.%s: s and axes are pairs of integers, not %R", function,
                 value);
  }
  for (int i = 0; fine && i < count; ++i) {
    fine = parse_integer(PySequence_Fast_GET_ITEM(pair, i), &integers[i]);
  }
  Py_DECREF(pair);
  return fine;
}

static PyObject* axis_error; /* numpy's */

static bool parse_axes(PyObject* value, const char* function, int count, int dimensions,
                       int* axes) {
  Py_ssize_t given[2] = {count == 1 ? -1 : -2, -1};
  if (!parse_integers(value, function, count, given)) return false;
  for (int i = 0; i < count; ++i) {
    if (given[i] < -dimensions || given[i] >= dimensions) {
      PyObject* error = PyObject_CallFunction(axis_error, "ni", given[i], dimensions);
      if (error) PyErr_SetObject(axis_error, error);
      Py_XDECREF(error);
      return false;
    }
    axes[i] = (int)(given[i] < 0 ? given[i] + dimensions : given[i]);
  }
  if (count == 2 && axes[0] == axes[1]) {
    PyErr_Format(PyExc_ValueError, "haldgen.%s: the axes are the same", function);
    return false;
  }
  return true;
}

/* Arrays. */

/* The precision that numbers of a type are computed in, without loss. */
static bool precision_of(const char* function, PyArray_Descr* type, bool complex_in,
                         Precision* precision) {
  const int number = type->type_num;
  if (number == NPY_HALF || number == NPY_FLOAT || number == NPY_CFLOAT) {
    *precision = kSingle;
  } else if (PyTypeNum_ISINTEGER(number) || number == NPY_BOOL || number == NPY_DOUBLE ||
             number == NPY_CDOUBLE) {
    *precision = kDouble;
  } else {
    PyErr_Format(PyExc_TypeError,
                 "haldgen.%s takes numbers of at most 64 bits, not %S; convert them by astype()",
                 function, type);
    return false;
  }
  if (!complex_in && PyTypeNum_ISCOMPLEX(number)) {
    PyErr_Format(PyExc_TypeError, "haldgen.%s takes real numbers, not %S", function, type);
    return false;
  }
  return true;
}

/* The element type of arrays that a transform reads or writes. */
static int type_of(bool is_complex, Precision precision) {
  if (is_complex) return precision == kSingle ? NPY_CFLOAT : NPY_CDOUBLE;
  return precision == kSingle ? NPY_FLOAT : NPY_DOUBLE;
}

/* A part of an array, from its start. */
static PyArrayObject* part_of(PyArrayObject* x, const npy_intp* dims) {
  PyArray_Descr* descr = PyArray_DESCR(x);
  Py_INCREF(descr);
  PyArrayObject* part = (PyArrayObject*)PyArray_NewFromDescr(
      &PyArray_Type, descr, PyArray_NDIM(x), dims, PyArray_STRIDES(x), PyArray_DATA(x),
      PyArray_FLAGS(x), NULL);
  if (!part) return NULL;
  Py_INCREF(x);
  if (PyArray_SetBaseObject(part, (PyObject*)x) < 0) {
    Py_DECREF(part);
    return NULL;
  }
  PyArray_UpdateFlags(part, NPY_ARRAY_UPDATE_ALL);
  return part;
}

/* Cuts the axes to lengths, or fills them up with zeros. Takes over the reference to x. */
static PyArrayObject* cut_or_fill(PyArrayObject* x, int count, const int* axes,
                                  const npy_intp* lengths, int type) {
  npy_intp least[NPY_MAXDIMS], dims[NPY_MAXDIMS];
  const int dimensions = PyArray_NDIM(x);
  bool cuts = false, fills = false;
  for (int i = 0; i < dimensions; ++i) least[i] = dims[i] = PyArray_DIM(x, i);
  for (int i = 0; i < count; ++i) {
    const npy_intp has = dims[axes[i]];
    cuts = cuts || lengths[i] < has;
    fills = fills || lengths[i] > has;
    dims[axes[i]] = lengths[i];
    least[axes[i]] = lengths[i] < has ? lengths[i] : has;
  }
  if (cuts) {
    PyArrayObject* part = part_of(x, least);
    Py_DECREF(x);
    x = part;
  }
  if (!x || !fills) return x;
  PyArrayObject* filled = (PyArrayObject*)PyArray_ZEROS(dimensions, dims, type, 0);
  PyArrayObject* part = filled ? part_of(filled, least) : NULL;
  if (!part || PyArray_CopyInto(part, x) < 0) Py_CLEAR(filled);
  Py_XDECREF(part);
  Py_DECREF(x);
  return filled;
}

/* Takes over the reference to x. No copy if x is of the type already. */
static PyArrayObject* converted(PyArrayObject* x, int type) {
  if (PyArray_TYPE(x) == type && PyArray_ISALIGNED(x) && PyArray_ISNOTSWAPPED(x)) return x;
  PyObject* made = PyArray_FromArray(x, PyArray_DescrFromType(type), NPY_ARRAY_ALIGNED);
  Py_DECREF(x);
  return (PyArrayObject*)made;
}

static npy_intp magnitude(npy_intp stride) { return stride < 0 ? -stride : stride; }

/* A new array whose axes follow one another in memory as those of x do. */
static PyArrayObject* new_like(PyArrayObject* x, const npy_intp* dims, int type) {
  const int dimensions = PyArray_NDIM(x);
  if (dimensions == 1) return (PyArrayObject*)PyArray_EMPTY(1, (npy_intp*)dims, type, 0);
  int order[NPY_MAXDIMS]; /* from the widest stride to the narrowest */
  for (int i = 0; i < dimensions; ++i) {
    int place = i;
    const npy_intp stride = magnitude(PyArray_STRIDE(x, i));
    while (place > 0 && magnitude(PyArray_STRIDE(x, order[place - 1])) < stride) {
      order[place] = order[place - 1];
      --place;
    }
    order[place] = i;
  }
  PyArray_Descr* descr = PyArray_DescrFromType(type);
  npy_intp strides[NPY_MAXDIMS], stride = descr->elsize;
  for (int i = dimensions - 1; i >= 0; --i) {
    strides[order[i]] = stride;
    if (dims[order[i]] > 0) stride *= dims[order[i]];
  }
  return (PyArrayObject*)PyArray_NewFromDescr(&PyArray_Type, descr, dimensions, dims, strides, NULL,
                                              0, NULL);
}

static bool check_shape(const char* function, PyArrayObject* out, int dimensions,
                        const npy_intp* dims) {
  if (PyArray_NDIM(out) == dimensions &&
      PyArray_CompareLists(PyArray_DIMS(out), dims, dimensions)) {
    return true;
  }
  PyObject* has = PyArray_IntTupleFromIntp(PyArray_NDIM(out), PyArray_DIMS(out));
  PyObject* needs = PyArray_IntTupleFromIntp(dimensions, dims);
  if (has && needs) {
    PyErr_Format(PyExc_ValueError, "haldgen.%s: out has the shape %R, the result has %R", function,
                 has, needs);
  }
  Py_XDECREF(has);
  Py_XDECREF(needs);
  return false;
}

/* The first byte of an array and the one behind its last. */
static void bounds_of(PyArrayObject* x, char** first, char** end) {
  *first = *end = PyArray_BYTES(x);
  for (int i = 0; i < PyArray_NDIM(x); ++i) {
    const npy_intp way = (PyArray_DIM(x, i) - 1) * PyArray_STRIDE(x, i);
    if (way < 0) {
      *first += way;
    } else {
      *end += way;
    }
  }
  *end += PyArray_ITEMSIZE(x);
}

/* Whether results can be written to out while x is read: it lies elsewhere, or in the same places.
 */
static bool can_write(PyArrayObject* out, PyArrayObject* x, int type) {
  if (PyArray_TYPE(out) != type || !PyArray_ISBEHAVED(out)) return false;
  char *first, *end, *out_first, *out_end;
  bounds_of(x, &first, &end);
  bounds_of(out, &out_first, &out_end);
  if (end <= out_first || out_end <= first) return true;
  bool same = PyArray_TYPE(x) == type && PyArray_DATA(x) == PyArray_DATA(out);
  for (int i = 0; same && i < PyArray_NDIM(x); ++i) {
    same = PyArray_STRIDE(x, i) == PyArray_STRIDE(out, i);
  }
  return same;
}

/* Calls. */

/* Two axes, or a sequence of sequences: the whole array in one call of the library. */
static bool run_directly(const Task* task, PyArrayObject* x, PyArrayObject* out, const int* axes,
                         const npy_intp* lengths) {
  int32_t status;
  NPY_BEGIN_THREADS_DEF;
  NPY_BEGIN_THREADS_THRESHOLDED(PyArray_SIZE(x));
  if (task->transform->in_two_dimensions) {
    status = run_blocks(
        task, (Block){PyArray_BYTES(x), PyArray_STRIDE(x, axes[0]), PyArray_STRIDE(x, axes[1]), 0},
        (Block){PyArray_BYTES(out), PyArray_STRIDE(out, axes[0]), PyArray_STRIDE(out, axes[1]), 0},
        lengths[0], lengths[1], 1);
  } else {
    const int axis = axes[0], other = 1 - axis;
    const bool many = PyArray_NDIM(x) == 2;
    status = run_sequences(
        task,
        (Sequences){PyArray_BYTES(x), PyArray_STRIDE(x, axis), many ? PyArray_STRIDE(x, other) : 0},
        (Sequences){PyArray_BYTES(out), PyArray_STRIDE(out, axis),
                    many ? PyArray_STRIDE(out, other) : 0},
        lengths[0], many ? PyArray_DIM(x, other) : 1);
  }
  NPY_END_THREADS;
  if (status == 0) return true;
  raise_status(task, lengths[0], status);
  return false;
}

static PyObject* axes_keyword; /* ("axes",) */

static bool run_gufunc(PyObject* gufunc, PyArrayObject* x, PyArrayObject* out, int count,
                       const int* axes) {
  PyObject* arguments[3] = {(PyObject*)x, (PyObject*)out, NULL};
  arguments[2] = count == 1 ? Py_BuildValue("[ii]", axes[0], axes[0])
                            : Py_BuildValue("[(ii)(ii)]", axes[0], axes[1], axes[0], axes[1]);
  if (!arguments[2]) return false;
  PyObject* result = PyObject_Vectorcall(gufunc, arguments, 2, axes_keyword);
  Py_DECREF(arguments[2]);
  Py_XDECREF(result);
  return result != NULL;
}

/* Takes over the reference to x. */
static PyObject* transform_array(TransformId id, Norm norm, PyArrayObject* x,
                                 PyObject* const* slots) {
  const Transform* transform = &transforms[id];
  const char* function = transform->function;
  const int count = transform->in_two_dimensions ? 2 : 1;
  PyArrayObject* out = NULL;
  PyObject* result = NULL;
  Precision precision;
  if (!precision_of(function, PyArray_DESCR(x), transform->complex_in, &precision)) goto done;
  const Task* task = task_of(id, norm, precision);
  const int src_type = type_of(transform->complex_in, precision);
  const int dst_type = type_of(transform->complex_out, precision);

  int axes[2];
  if (!parse_axes(slots[kAxis], function, count, PyArray_NDIM(x), axes)) goto done;
  const bool halves_in = transform->complex_in && !transform->complex_out;
  const bool halves_out = transform->complex_out && !transform->complex_in;
  Py_ssize_t lengths[2];
  for (int i = 0; i < count; ++i) {
    lengths[i] = PyArray_DIM(x, axes[i]);
    if (halves_in) lengths[i] = 2 * (lengths[i] - 1);
  }
  if (!parse_integers(slots[kLength], function, count, lengths)) goto done;
  npy_intp bins[2];
  for (int i = 0; i < count; ++i) {
    if (!has_length(transform, precision, lengths[i])) {
      raise_status(task, lengths[i], haldStatusSizeError);
      goto done;
    }
    bins[i] = halves_in ? lengths[i] / 2 + 1 : lengths[i];
  }
  x = cut_or_fill(x, count, axes, bins, src_type);
  if (x) x = converted(x, src_type);
  if (!x) goto done;

  const int dimensions = PyArray_NDIM(x);
  npy_intp dims[NPY_MAXDIMS];
  for (int i = 0; i < dimensions; ++i) dims[i] = PyArray_DIM(x, i);
  for (int i = 0; i < count; ++i) dims[axes[i]] = halves_out ? lengths[i] / 2 + 1 : lengths[i];
  bool direct = dimensions <= 2;
  if (!slots[kOut]) {
    out = new_like(x, dims, dst_type);
    if (!out) goto done;
  } else if (!PyArray_Check(slots[kOut])) {
    PyErr_Format(PyExc_TypeError, "haldgen.%s: out must be an array, not %s", function,
                 Py_TYPE(slots[kOut])->tp_name);
    goto done;
  } else {
    out = (PyArrayObject*)slots[kOut];
    Py_INCREF(out);
    if (!check_shape(function, out, dimensions, dims)) goto done;
    direct = direct && can_write(out, x, dst_type);
  }
  if (direct ? run_directly(task, x, out, axes, lengths)
             : run_gufunc(gufunc_of(id, norm), x, out, count, axes)) {
    result = (PyObject*)out;
    Py_INCREF(result);
  }
done:
  Py_XDECREF(x);
  Py_XDECREF(out);
  return result;
}

/* Arrays of Dask are transformed block by block, when they are computed. */
static PyObject* transform_later(PyObject* module, const char* function, PyObject* const* args,
                                 Py_ssize_t positional, PyObject* keywords) {
  PyObject* result = NULL;
  PyObject* dask = PyImport_ImportModule("haldgen._dask");
  PyObject* transform = dask ? PyObject_GetAttrString(dask, "transform") : NULL;
  PyObject* given = transform ? PyTuple_New(positional + 1) : NULL;
  PyObject* named = given ? PyDict_New() : NULL;
  PyObject* self = named ? PyObject_GetAttrString(module, function) : NULL;
  if (self) {
    PyTuple_SET_ITEM(given, 0, self);
    for (Py_ssize_t i = 0; i < positional; ++i) {
      Py_INCREF(args[i]);
      PyTuple_SET_ITEM(given, i + 1, args[i]);
    }
    const Py_ssize_t names = keywords ? PyTuple_GET_SIZE(keywords) : 0;
    bool fine = true;
    for (Py_ssize_t i = 0; fine && i < names; ++i) {
      fine = PyDict_SetItem(named, PyTuple_GET_ITEM(keywords, i), args[positional + i]) == 0;
    }
    if (fine) result = PyObject_Call(transform, given, named);
  }
  Py_XDECREF(named);
  Py_XDECREF(given);
  Py_XDECREF(transform);
  Py_XDECREF(dask);
  return result;
}

static PyObject* transform(TransformId id, const Parameters* parameters, PyObject* module,
                           PyObject* const* args, Py_ssize_t positional, PyObject* keywords) {
  PyObject* slots[kSlots] = {NULL};
  Norm norm;
  if (!parse(transforms[id].function, parameters, args, positional, keywords, slots) ||
      !parse_norm(slots[kNorm], &norm)) {
    return NULL;
  }
  if (slots[kOrder] && is_text(slots[kOrder], "sequency")) {
    id = kWhtSequency;
  } else if (slots[kOrder] && !is_text(slots[kOrder], "natural")) {
    PyErr_Format(PyExc_ValueError, "Invalid order %R; should be \"natural\" or \"sequency\".",
                 slots[kOrder]);
    return NULL;
  }
  PyObject* a = slots[kArray];
  if (PyArray_CheckExact(a)) {
    Py_INCREF(a);
  } else if (PyObject_HasAttrString(a, "__dask_graph__")) {
    return transform_later(module, transforms[id].function, args, positional, keywords);
  } else {
    a = PyArray_FromAny(a, NULL, 0, 0, NPY_ARRAY_ENSUREARRAY, NULL);
    if (!a) return NULL;
  }
  return transform_array(id, norm, (PyArrayObject*)a, slots);
}

#define FUNCTION(name, id, parameters)                                                  \
  static PyObject* name(PyObject* module, PyObject* const* args, Py_ssize_t positional, \
                        PyObject* keywords) {                                           \
    return transform(id, &(parameters), module, args, positional, keywords);            \
  }
FUNCTION(call_fft, kFft, one_axis)
FUNCTION(call_ifft, kIfft, one_axis)
FUNCTION(call_rfft, kRfft, one_axis)
FUNCTION(call_irfft, kIrfft, one_axis)
FUNCTION(call_fft2, kFft2, two_axes)
FUNCTION(call_ifft2, kIfft2, two_axes)
FUNCTION(call_hartley, kHartley, without_length)
FUNCTION(call_wht, kWht, with_order)
FUNCTION(call_dct4, kDct4, without_length)
#undef FUNCTION

static PyObject* call_lengths(PyObject* module, PyObject* const* args, Py_ssize_t positional,
                              PyObject* keywords) {
  (void)module;
  PyObject* slots[kSlots] = {NULL};
  if (!parse("lengths", &of_lengths, args, positional, keywords, slots)) return NULL;
  int id = 0;
  while (id < kTransforms && !is_text(slots[kArray], transforms[id].function)) ++id;
  if (id == kTransforms) {
    PyErr_Format(PyExc_ValueError, "haldgen has no function %R", slots[kArray]);
    return NULL;
  }
  PyArray_Descr* type = NULL;
  Precision precision;
  if (!PyArray_DescrConverter(slots[kLength] ? slots[kLength] : Py_None, &type)) return NULL;
  const bool known = precision_of(transforms[id].function, type, true, &precision);
  Py_DECREF(type);
  PyObject* list = known ? PyList_New(0) : NULL;
  for (ptrdiff_t n = list ? next_length(&transforms[id], precision, 1) : 0; n;
       n = next_length(&transforms[id], precision, n + 1)) {
    PyObject* length = PyLong_FromSsize_t(n);
    const bool fine = length && PyList_Append(list, length) == 0;
    Py_XDECREF(length);
    if (!fine) {
      Py_DECREF(list);
      return NULL;
    }
  }
  PyObject* all = list ? PyList_AsTuple(list) : NULL;
  Py_XDECREF(list);
  return all;
}

static PyObject* call_vector_bits(PyObject* module, PyObject* none) {
  (void)module;
  (void)none;
  return PyLong_FromLong(haldbGetVectorBits());
}

#define METHOD(name, doc) \
  { #name, (PyCFunction)(void (*)(void))call_##name, METH_FASTCALL | METH_KEYWORDS, doc }
static PyMethodDef methods[] = {METHOD(fft, FFT_DOC),
                                METHOD(ifft, IFFT_DOC),
                                METHOD(rfft, RFFT_DOC),
                                METHOD(irfft, IRFFT_DOC),
                                METHOD(fft2, FFT2_DOC),
                                METHOD(ifft2, IFFT2_DOC),
                                METHOD(hartley, HARTLEY_DOC),
                                METHOD(wht, WHT_DOC),
                                METHOD(dct4, DCT4_DOC),
                                METHOD(lengths, LENGTHS_DOC),
                                {"vector_bits", call_vector_bits, METH_NOARGS, VECTOR_BITS_DOC},
                                {NULL, NULL, 0, NULL}};
#undef METHOD

static struct PyModuleDef definition = {
    PyModuleDef_HEAD_INIT, "haldgen._core", NULL, -1, methods, NULL, NULL, NULL, NULL};

/* Where NumPy keeps AxisError depends on its version. */
static PyObject* find_axis_error(void) {
  PyObject* module = PyImport_ImportModule("numpy.exceptions");
  if (!module) {
    PyErr_Clear();
    module = PyImport_ImportModule("numpy");
  }
  PyObject* error = module ? PyObject_GetAttrString(module, "AxisError") : NULL;
  Py_XDECREF(module);
  return error;
}

PyMODINIT_FUNC PyInit__core(void) {
  import_array();
  import_umath();
  axis_error = find_axis_error();
  axes_keyword = Py_BuildValue("(s)", "axes");
  if (!axis_error || !axes_keyword || !intern(&one_axis) || !intern(&two_axes) ||
      !intern(&without_length) || !intern(&with_order) || !intern(&of_lengths)) {
    return NULL;
  }
  PyObject* module = PyModule_Create(&definition);
  if (!module) return NULL;
  if (!add_gufuncs(module) ||
      PyModule_AddStringConstant(module, "__version__", HALDGEN_PYTHON_VERSION) < 0) {
    Py_DECREF(module);
    return NULL;
  }
  return module;
}
