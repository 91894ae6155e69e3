/* The universal functions: one inner loop of NumPy is one call of a batch. */
#define NPY_NO_DEPRECATED_API NPY_1_22_API_VERSION
#define PY_ARRAY_UNIQUE_SYMBOL haldgen_array_api
#define PY_UFUNC_UNIQUE_SYMBOL haldgen_ufunc_api
#define NO_IMPORT_ARRAY
#define NO_IMPORT_UFUNC
#include "gufuncs.h"

#include <fenv.h>
#include <haldgen.h>
#include <numpy/arrayobject.h>
#include <numpy/ufuncobject.h>

static Task tasks[kTransforms][kNorms][kPrecisions];
static void* task_pointers[kTransforms][kNorms][kPrecisions];
static char types[kTransforms][2 * kPrecisions];
static PyObject* gufuncs[kTransforms][kNorms];

static const char* const norm_names[kNorms] = {"backward", "ortho", "forward"};

PyObject* gufunc_of(TransformId transform, Norm norm) { return gufuncs[transform][norm]; }

const Task* task_of(TransformId transform, Norm norm, Precision precision) {
  return &tasks[transform][norm][precision];
}

/* "2 to 64", "2, 4, 8", "the powers of two from 2 to 67108864": runs of lengths. */
static void write_lengths(const Task* task, char* text, size_t room) {
  const Transform* transform = task->transform;
  ptrdiff_t first = next_length(transform, task->precision, 1), last = 0, count = 0;
  bool powers = true;
  for (ptrdiff_t n = first; n; n = next_length(transform, task->precision, n + 1)) {
    powers = powers && (n & (n - 1)) == 0 && n == first << count;
    last = n;
    ++count;
  }
  if (powers && count > 2) {
    snprintf(text, room, "the powers of two from %zd to %zd", first, last);
    return;
  }
  size_t used = 0;
  text[0] = 0;
  while (first && used < room) {
    last = first;
    while (has_length(transform, task->precision, last + 1)) ++last;
    const char* comma = used ? ", " : "";
    const int wrote = last == first
                          ? snprintf(text + used, room - used, "%s%zd", comma, first)
                          : snprintf(text + used, room - used, "%s%zd to %zd", comma, first, last);
    used += (size_t)wrote;
    first = next_length(transform, task->precision, last + 1);
  }
}

void raise_status(const Task* task, ptrdiff_t length, int32_t status) {
  if (status == haldStatusSizeError) {
    char text[512];
    write_lengths(task, text, sizeof text);
    PyErr_Format(PyExc_ValueError, "haldgen.%s has no length %zd; its lengths are %s",
                 task->transform->function, length, text);
  } else {
    PyErr_NoMemory();
  }
}

/* At the end of an inner loop: none of them holds the interpreter's lock. */
static void finish(const Task* task, ptrdiff_t length, int32_t status) {
  /* NumPy would warn of what infinities do. Neither numpy.fft nor the single functions say
   * anything. */
  const int raised = FE_DIVBYZERO | FE_OVERFLOW | FE_UNDERFLOW | FE_INVALID;
  if (fetestexcept(raised)) feclearexcept(raised);
  if (status == haldStatusOk) return;
  NPY_ALLOW_C_API_DEF
  NPY_ALLOW_C_API;
  raise_status(task, length, status);
  NPY_DISABLE_C_API;
}

/* (n)->(n), (n)->(m) where m bins come of n real elements, (m)->(n) back. */
static void sequences_loop(char** args, npy_intp const* dimensions, npy_intp const* steps,
                           void* data) {
  const Task* task = data;
  const bool forward = task->transform->complex_out && !task->transform->complex_in;
  const bool back = task->transform->complex_in && !task->transform->complex_out;
  const npy_intp length = dimensions[back ? 2 : 1];
  if ((forward || back) && dimensions[forward ? 2 : 1] != length / 2 + 1) {
    NPY_ALLOW_C_API_DEF
    NPY_ALLOW_C_API;
    PyErr_Format(PyExc_ValueError, "haldgen.%s: %zd real elements belong to %zd bins, not to %zd",
                 task->transform->function, length, length / 2 + 1, dimensions[forward ? 2 : 1]);
    NPY_DISABLE_C_API;
    return;
  }
  finish(task, length,
         run_sequences(task, (Sequences){args[0], steps[2], steps[0]},
                       (Sequences){args[1], steps[3], steps[1]}, length, dimensions[0]));
}

/* (m,n)->(m,n) */
static void blocks_loop(char** args, npy_intp const* dimensions, npy_intp const* steps,
                        void* data) {
  const Task* task = data;
  const npy_intp rows = dimensions[1], columns = dimensions[2];
  const int32_t status =
      run_blocks(task, (Block){args[0], steps[2], steps[3], steps[0]},
                 (Block){args[1], steps[4], steps[5], steps[1]}, rows, columns, dimensions[0]);
  finish(task, has_length(task->transform, task->precision, rows) ? columns : rows, status);
}

static PyUFuncGenericFunction sequences_loops[kPrecisions] = {sequences_loop, sequences_loop};
static PyUFuncGenericFunction blocks_loops[kPrecisions] = {blocks_loop, blocks_loop};

bool add_gufuncs(PyObject* module) {
  static char names[kTransforms][kNorms][32];
  for (int id = 0; id < kTransforms; ++id) {
    const Transform* transform = &transforms[id];
    const char* signature = transform->in_two_dimensions                       ? "(m,n)->(m,n)"
                            : transform->complex_in && !transform->complex_out ? "(m)->(n)"
                            : transform->complex_out && !transform->complex_in ? "(n)->(m)"
                                                                               : "(n)->(n)";
    for (int precision = 0; precision < kPrecisions; ++precision) {
      const bool single = precision == kSingle;
      const char real = single ? NPY_FLOAT : NPY_DOUBLE;
      const char complex_type = single ? NPY_CFLOAT : NPY_CDOUBLE;
      types[id][2 * precision] = transform->complex_in ? complex_type : real;
      types[id][2 * precision + 1] = transform->complex_out ? complex_type : real;
    }
    for (int norm = 0; norm < kNorms; ++norm) {
      for (int precision = 0; precision < kPrecisions; ++precision) {
        Task* task = &tasks[id][norm][precision];
        *task = (Task){transform, (Precision)precision, (Norm)norm};
        task_pointers[id][norm][precision] = task;
      }
      char* name = names[id][norm];
      snprintf(name, sizeof names[id][norm], "%s%s_%s", transform->function, transform->variant,
               norm_names[norm]);
      PyObject* gufunc = PyUFunc_FromFuncAndDataAndSignature(
          transform->in_two_dimensions ? blocks_loops : sequences_loops, task_pointers[id][norm],
          types[id], kPrecisions, 1, 1, PyUFunc_None, name, NULL, 0, signature);
      if (!gufunc) return false;
      gufuncs[id][norm] = gufunc;
      if (PyModule_AddObjectRef(module, name, gufunc) < 0) return false;
    }
  }
  return true;
}
