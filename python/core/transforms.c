/* The transforms over the libraries; the planned DCT-IV, which has no batches, as a batch. */
#include "transforms.h"

#include <haldbatch.h>
#include <math.h>
#include <stdatomic.h>
#include <stdlib.h>
#include <string.h>

/* The functions of haldbatch.h take typed pointers. */
#define BATCH(name)                                                                               \
  static int32_t batch_##name(const void* src, ptrdiff_t src_step, ptrdiff_t src_dist, void* dst, \
                              ptrdiff_t dst_step, ptrdiff_t dst_dist, int32_t length,             \
                              ptrdiff_t count, int32_t flag) {                                    \
    return haldb##name(src, src_step, src_dist, dst, dst_step, dst_dist, length, count, flag);    \
  }
BATCH(DFTFwd_CToC_32fc)
BATCH(DFTFwd_CToC_64fc)
BATCH(DFTInv_CToC_32fc)
BATCH(DFTInv_CToC_64fc)
BATCH(DFTFwd_RToCCS_32f)
BATCH(DFTFwd_RToCCS_64f)
BATCH(DFTInv_CCSToR_32f)
BATCH(DFTInv_CCSToR_64f)
BATCH(Hartley_32f)
BATCH(Hartley_64f)
#undef BATCH

/* The exponent of a power of two, or -1, which no function has for an order. */
static int32_t exponent_of(int32_t length) {
  if (length < 1 || (length & (length - 1)) != 0) return -1;
  return __builtin_ctz((unsigned)length);
}

/* Those of the Walsh-Hadamard transform take the order for the length. */
#define BATCH(name)                                                                               \
  static int32_t batch_##name(const void* src, ptrdiff_t src_step, ptrdiff_t src_dist, void* dst, \
                              ptrdiff_t dst_step, ptrdiff_t dst_dist, int32_t length,             \
                              ptrdiff_t count, int32_t flag) {                                    \
    return haldb##name(src, src_step, src_dist, dst, dst_step, dst_dist, exponent_of(length),     \
                       count, flag);                                                              \
  }
BATCH(WHT_32f)
BATCH(WHT_64f)
#undef BATCH

static int32_t dct4_32f(const void* src, void* dst, Dct4State* state) {
  return haldgDCT4_32f(src, dst, state);
}
static int32_t dct4_64f(const void* src, void* dst, Dct4State* state) {
  return haldgDCT4_64f(src, dst, state);
}

static void scale_32f(void* values, ptrdiff_t count, double factor) {
  float* x = values;
  const float by = (float)factor;
  for (ptrdiff_t i = 0; i < count; ++i) x[i] *= by;
}
static void scale_64f(void* values, ptrdiff_t count, double factor) {
  double* x = values;
  for (ptrdiff_t i = 0; i < count; ++i) x[i] *= factor;
}

static const struct Dct4 {
  int32_t (*get_size)(int32_t length, int32_t* size);
  int32_t (*set_up)(Dct4State** state, int32_t length);
  int32_t (*release)(Dct4State* state);
  int32_t (*run)(const void* src, void* dst, Dct4State* state);
  void (*scale)(void* values, ptrdiff_t count, double factor);
  ptrdiff_t element;
} dct4[kPrecisions] = {
    {haldgDCT4GetSize_32f, haldgDCT4InitAlloc_32f, haldgDCT4Free_32f, dct4_32f, scale_32f, 4},
    {haldgDCT4GetSize_64f, haldgDCT4InitAlloc_64f, haldgDCT4Free_64f, dct4_64f, scale_64f, 8}};

/* A state serves one call at a time and costs as much as several transforms to set up. So one of
   each length waits here, if it is small; whoever finds none sets up another. */
enum { kLargestKept = 4 << 20, kExponents = 31 };
static _Atomic(Dct4State*) kept_states[kPrecisions][kExponents];

/* Rows of contiguous elements; steps and distances are in elements, as in haldbatch.h. The scale is
   that of the type IV in scipy.fft: twice the sum, whose inverse divides by 2 N. */
static int32_t run_dct4(Precision precision, const char* src, ptrdiff_t src_dist, char* dst,
                        ptrdiff_t dst_dist, int32_t length, ptrdiff_t count, int32_t flag) {
  const struct Dct4* functions = &dct4[precision];
  const int32_t exponent = exponent_of(length);
  int32_t size;
  /* States that would hold more than 2^31 bytes are refused, but their sizes may wrap around to
     small numbers. */
  if (exponent < 0 || length > INT32_MAX / functions->element ||
      functions->get_size(length, &size) != haldStatusOk) {
    return haldStatusSizeError;
  }
  if (!src || !dst) return haldStatusNullPointer;
  if (count == 0) return haldStatusOk;

  _Atomic(Dct4State*)* kept = &kept_states[precision][exponent];
  Dct4State* state = atomic_exchange(kept, NULL);
  if (!state) {
    const int32_t status = functions->set_up(&state, length);
    if (status != haldStatusOk) return status;
  }
  const double factor = flag == haldScaleNone      ? 2.0
                        : flag == haldScaleBySqrtN ? sqrt(2.0 / length)
                                                   : 1.0 / length;
  for (ptrdiff_t t = 0; t < count; ++t) {
    char* row = dst + t * dst_dist * functions->element;
    functions->run(src + t * src_dist * functions->element, row, state);
    functions->scale(row, length, factor);
  }
  Dct4State* none = NULL;
  if (size > kLargestKept || !atomic_compare_exchange_strong(kept, &none, state)) {
    functions->release(state);
  }
  return haldStatusOk;
}

#define BATCH(name, precision)                                                                    \
  static int32_t batch_##name(const void* src, ptrdiff_t src_step, ptrdiff_t src_dist, void* dst, \
                              ptrdiff_t dst_step, ptrdiff_t dst_dist, int32_t length,             \
                              ptrdiff_t count, int32_t flag) {                                    \
    (void)src_step;                                                                               \
    (void)dst_step;                                                                               \
    return run_dct4(precision, src, src_dist, dst, dst_dist, length, count, flag);                \
  }
BATCH(DCT4_32f, kSingle)
BATCH(DCT4_64f, kDouble)
#undef BATCH

const Transform transforms[kTransforms] = {
    [kFft] = {.function = "fft",
              .variant = "",
              .batch = {batch_DFTFwd_CToC_32fc, batch_DFTFwd_CToC_64fc},
              .complex_in = true,
              .complex_out = true},
    [kIfft] = {.function = "ifft",
               .variant = "",
               .batch = {batch_DFTInv_CToC_32fc, batch_DFTInv_CToC_64fc},
               .complex_in = true,
               .complex_out = true,
               .inverse = true},
    [kRfft] = {.function = "rfft",
               .variant = "",
               .batch = {batch_DFTFwd_RToCCS_32f, batch_DFTFwd_RToCCS_64f},
               .complex_out = true},
    [kIrfft] = {.function = "irfft",
                .variant = "",
                .batch = {batch_DFTInv_CCSToR_32f, batch_DFTInv_CCSToR_64f},
                .complex_in = true,
                .inverse = true},
    [kHartley] = {.function = "hartley",
                  .variant = "",
                  .batch = {batch_Hartley_32f, batch_Hartley_64f}},
    [kWht] = {.function = "wht", .variant = "", .batch = {batch_WHT_32f, batch_WHT_64f}},
    [kWhtSequency] = {.function = "wht",
                      .variant = "_sequency",
                      .batch = {batch_WHT_32f, batch_WHT_64f},
                      .sequency = true},
    [kDct4] = {.function = "dct4",
               .variant = "",
               .batch = {batch_DCT4_32f, batch_DCT4_64f},
               .contiguous = true},
    [kFft2] = {.function = "fft2",
               .variant = "",
               .batch = {batch_DFTFwd_CToC_32fc, batch_DFTFwd_CToC_64fc},
               .complex_in = true,
               .complex_out = true,
               .in_two_dimensions = true},
    [kIfft2] = {.function = "ifft2",
                .variant = "",
                .batch = {batch_DFTInv_CToC_32fc, batch_DFTInv_CToC_64fc},
                .complex_in = true,
                .complex_out = true,
                .inverse = true,
                .in_two_dimensions = true},
};

bool has_length(const Transform* transform, Precision precision, ptrdiff_t length) {
  /* The length is looked at before the pointers. */
  return length > 0 && length <= INT32_MAX &&
         transform->batch[precision](NULL, 0, 0, NULL, 0, 0, (int32_t)length, 0, haldScaleNone) !=
             haldStatusSizeError;
}

ptrdiff_t next_length(const Transform* transform, Precision precision, ptrdiff_t length) {
  /* Kernels of single lengths end far below; beyond there are powers of two. */
  const ptrdiff_t single = 1 << 13, last = 1 << 30;
  while (length <= last) {
    if (has_length(transform, precision, length)) return length;
    ++length;
    while (length > single && (length & (length - 1)) != 0) length += length & -length;
  }
  return 0;
}

static int32_t flag_of(const Task* task) {
  const Norm divided = task->transform->inverse ? kBackward : kForward;
  if (task->norm == kOrtho) return haldScaleBySqrtN;
  if (task->norm != divided) return haldScaleNone;
  return task->transform->inverse ? haldScaleInvByN : haldScaleFwdByN;
}

/* Whether sequences lie side by side rather than one behind the other. */
static bool in_columns(Sequences x) { return labs(x.dist) < labs(x.step); }

/* Copies count sequences of elements; element k of a sequence comes from position from[k], or k.
   The inner loop goes along sequences, or across them. */
static inline __attribute__((always_inline)) void copy_elements(Sequences dst, Sequences src,
                                                                size_t element, ptrdiff_t length,
                                                                ptrdiff_t count,
                                                                const uint32_t* from, bool across) {
  if (across) {
    for (ptrdiff_t k = 0; k < length; ++k) {
      const char* s = src.data + (from ? (ptrdiff_t)from[k] : k) * src.step;
      char* d = dst.data + k * dst.step;
      for (ptrdiff_t t = 0; t < count; ++t) memcpy(d + t * dst.dist, s + t * src.dist, element);
    }
    return;
  }
  for (ptrdiff_t t = 0; t < count; ++t) {
    const char* s = src.data + t * src.dist;
    char* d = dst.data + t * dst.dist;
    for (ptrdiff_t k = 0; k < length; ++k) {
      memcpy(d + k * dst.step, s + (from ? (ptrdiff_t)from[k] : k) * src.step, element);
    }
  }
}

typedef uint32_t Lanes __attribute__((vector_size(16)));

/* Turns a square of 4 x 4 elements of 4 bytes. Pitches are bytes from line to line. */
static inline void turn_square(char* dst, ptrdiff_t dst_pitch, const char* src,
                               ptrdiff_t src_pitch) {
  Lanes line[4];
  for (ptrdiff_t i = 0; i < 4; ++i) memcpy(&line[i], src + i * src_pitch, sizeof line[i]);
  const Lanes ab = __builtin_shufflevector(line[0], line[1], 0, 4, 1, 5);
  const Lanes ab_high = __builtin_shufflevector(line[0], line[1], 2, 6, 3, 7);
  const Lanes cd = __builtin_shufflevector(line[2], line[3], 0, 4, 1, 5);
  const Lanes cd_high = __builtin_shufflevector(line[2], line[3], 2, 6, 3, 7);
  line[0] = __builtin_shufflevector(ab, cd, 0, 1, 4, 5);
  line[1] = __builtin_shufflevector(ab, cd, 2, 3, 6, 7);
  line[2] = __builtin_shufflevector(ab_high, cd_high, 0, 1, 4, 5);
  line[3] = __builtin_shufflevector(ab_high, cd_high, 2, 3, 6, 7);
  for (ptrdiff_t i = 0; i < 4; ++i) memcpy(dst + i * dst_pitch, &line[i], sizeof line[i]);
}

/* Copies contiguous columns to contiguous rows or back by squares, as far as they go: says how many
   sequences. Elements of 8 bytes would gain next to nothing. */
static ptrdiff_t turn_squares(Sequences dst, Sequences src, ptrdiff_t length, ptrdiff_t count) {
  const bool gathers = src.dist == 4 && dst.step == 4;
  const bool scatters = dst.dist == 4 && src.step == 4;
  if (length % 4 != 0 || !(gathers || scatters)) return 0;
  const ptrdiff_t dst_pitch = gathers ? dst.dist : dst.step;
  const ptrdiff_t src_pitch = gathers ? src.step : src.dist;
  const ptrdiff_t whole = count / 4 * 4;
  for (ptrdiff_t k = 0; k < length; k += 4) {
    for (ptrdiff_t t = 0; t < whole; t += 4) {
      turn_square(dst.data + k * dst.step + t * dst.dist, dst_pitch,
                  src.data + k * src.step + t * src.dist, src_pitch);
    }
  }
  return whole;
}

/* Between an array and a tile, in the order of the array. */
static void copy(Sequences dst, Sequences src, ptrdiff_t element, ptrdiff_t length, ptrdiff_t count,
                 const uint32_t* from, Sequences array) {
  const bool across = in_columns(array);
  if (across && element == 4 && !from) {
    const ptrdiff_t turned = turn_squares(dst, src, length, count);
    dst.data += turned * dst.dist;
    src.data += turned * src.dist;
    count -= turned;
  }
  switch (element) {
    case 4:
      copy_elements(dst, src, 4, length, count, from, across);
      break;
    case 8:
      copy_elements(dst, src, 8, length, count, from, across);
      break;
    default:
      copy_elements(dst, src, 16, length, count, from, across);
  }
}

/* The place in natural order of each sequency: its Gray code, whose neighbours differ in one bit,
   with the bits reversed. */
static void sequency_order(uint32_t* from, ptrdiff_t length) {
  from[0] = 0;
  for (ptrdiff_t s = 1; s < length; ++s) {
    from[s] = from[s - 1] ^ (uint32_t)(length >> (1 + __builtin_ctzl((unsigned long)s)));
  }
}

/* Whether the library can work in the array itself. */
static bool fits(const Transform* transform, Sequences x, ptrdiff_t element) {
  return transform->contiguous ? x.step == element && x.dist % element == 0
                               : x.step % element == 0 && x.dist % element == 0;
}

/* One side of a tile: in columns where the array is so and the library can do it, else in rows. */
static Sequences tile_for(const Transform* transform, Sequences x, char* data, ptrdiff_t element,
                          ptrdiff_t row, ptrdiff_t count) {
  if (!transform->contiguous && in_columns(x)) {
    return (Sequences){data, count * element, element};
  }
  return (Sequences){data, element, row};
}

/* How many sequences a tile holds: few enough for the cache, but whole lines of columns and whole
   vectors of sequences, unless these are very long. */
static ptrdiff_t group_of(ptrdiff_t bytes, ptrdiff_t count) {
  const ptrdiff_t cache = 1 << 16, memory = 1 << 22, lanes = 16;
  ptrdiff_t group = cache / bytes / lanes * lanes;
  if (group == 0) group = memory / bytes < lanes ? memory / bytes : lanes;
  if (group > count) group = count;
  return group < 1 ? 1 : group;
}

int32_t run_sequences(const Task* task, Sequences src, Sequences dst, ptrdiff_t length,
                      ptrdiff_t count) {
  const Transform* transform = task->transform;
  BatchFunction* batch = transform->batch[task->precision];
  const int32_t flag = flag_of(task);
  const ptrdiff_t part = task->precision == kSingle ? 4 : 8;
  const ptrdiff_t src_element = part << transform->complex_in;
  const ptrdiff_t dst_element = part << transform->complex_out;
  if (!has_length(transform, task->precision, length)) return haldStatusSizeError;
  /* The strides of a dimension of one element mean nothing. */
  if (count <= 1) src.dist = dst.dist = 0;

  const bool src_fits = fits(transform, src, src_element);
  const bool dst_fits = fits(transform, dst, dst_element) && !transform->sequency;
  if (src_fits && dst_fits) {
    return batch(src.data, src.step / src_element, src.dist / src_element, dst.data,
                 dst.step / dst_element, dst.dist / dst_element, (int32_t)length, count, flag);
  }

  /* A side that does not fit is copied, a tile of some sequences at a time. Contiguous rows that
     columns are copied to lie a line of the cache further apart than they need: lengths are powers
     of two. */
  const ptrdiff_t line = transform->contiguous ? 64 : 0;
  const ptrdiff_t src_row = src_fits ? 0 : length * src_element + line;
  const ptrdiff_t dst_row = dst_fits ? 0 : length * dst_element + line;
  const ptrdiff_t group = group_of(src_row + dst_row, count);
  const ptrdiff_t order_bytes = transform->sequency ? length * (ptrdiff_t)sizeof(uint32_t) : 0;
  char* memory = malloc((size_t)(order_bytes + group * (src_row + dst_row)));
  if (!memory) return haldStatusNullPointer;
  uint32_t* from = NULL;
  if (transform->sequency) sequency_order(from = (uint32_t*)(void*)memory, length);
  char* src_tile = memory + order_bytes;
  char* dst_tile = src_tile + group * src_row;
  const ptrdiff_t src_bins =
      !transform->complex_out && transform->complex_in ? length / 2 + 1 : length;
  const ptrdiff_t dst_bins =
      !transform->complex_in && transform->complex_out ? length / 2 + 1 : length;
  int32_t status = haldStatusOk;
  for (ptrdiff_t t = 0; t < count && status == haldStatusOk; t += group) {
    const ptrdiff_t some = group < count - t ? group : count - t;
    Sequences x = {src.data + t * src.dist, src.step, src.dist};
    const Sequences end = {dst.data + t * dst.dist, dst.step, dst.dist};
    Sequences y = end;
    if (!src_fits) {
      const Sequences gathered = tile_for(transform, x, src_tile, src_element, src_row, some);
      copy(gathered, x, src_element, src_bins, some, NULL, x);
      x = gathered;
    }
    if (!dst_fits) y = tile_for(transform, end, dst_tile, dst_element, dst_row, some);
    status = batch(x.data, x.step / src_element, x.dist / src_element, y.data, y.step / dst_element,
                   y.dist / dst_element, (int32_t)length, some, flag);
    if (!dst_fits && status == haldStatusOk) copy(end, y, dst_element, dst_bins, some, from, end);
  }
  free(memory);
  return status;
}

static int32_t run_block(const Task* task, Block src, Block dst, ptrdiff_t rows,
                         ptrdiff_t columns) {
  const int32_t status = run_sequences(task, (Sequences){src.data, src.column, src.row},
                                       (Sequences){dst.data, dst.column, dst.row}, columns, rows);
  if (status != haldStatusOk) return status;
  const Sequences upright = {dst.data, dst.row, dst.column};
  return run_sequences(task, upright, upright, rows, columns);
}

/* Small blocks have too few columns to fill vectors. So the rows of some blocks go side by side
   into a tile, whose columns are those of all. */
static int32_t run_side_by_side(const Task* task, Block src, Block dst, ptrdiff_t rows,
                                ptrdiff_t columns, ptrdiff_t group, ptrdiff_t count) {
  const ptrdiff_t element = task->precision == kSingle ? 8 : 16;
  char* tile = malloc((size_t)(rows * group * columns * element));
  if (!tile) return haldStatusNullPointer;
  int32_t status = haldStatusOk;
  for (ptrdiff_t t = 0; t < count && status == haldStatusOk; t += group) {
    const ptrdiff_t some = group < count - t ? group : count - t;
    const ptrdiff_t pitch = some * columns * element;
    for (ptrdiff_t i = 0; i < rows && status == haldStatusOk; ++i) {
      status = run_sequences(
          task, (Sequences){src.data + t * src.block + i * src.row, src.column, src.block},
          (Sequences){tile + i * pitch, element, columns * element}, columns, some);
    }
    const Sequences upright = {tile, pitch, element};
    if (status == haldStatusOk) {
      status = run_sequences(task, upright, upright, rows, some * columns);
    }
    for (ptrdiff_t b = 0; b < some && status == haldStatusOk; ++b) {
      const Sequences lying = {dst.data + (t + b) * dst.block, dst.column, dst.row};
      copy(lying, (Sequences){tile + b * columns * element, element, pitch}, element, columns, rows,
           NULL, lying);
    }
  }
  free(tile);
  return status;
}

int32_t run_blocks(const Task* task, Block src, Block dst, ptrdiff_t rows, ptrdiff_t columns,
                   ptrdiff_t count) {
  /* Of both lengths before anything is written. */
  if (!has_length(task->transform, task->precision, rows) ||
      !has_length(task->transform, task->precision, columns)) {
    return haldStatusSizeError;
  }
  const ptrdiff_t cache = 1 << 15;
  ptrdiff_t group = cache / (rows * columns * (task->precision == kSingle ? 8 : 16));
  if (group > count) group = count;
  if (group > 1) return run_side_by_side(task, src, dst, rows, columns, group, count);
  int32_t status = haldStatusOk;
  for (ptrdiff_t t = 0; t < count && status == haldStatusOk; ++t) {
    status = run_block(task, src, dst, rows, columns);
    src.data += src.block;
    dst.data += dst.block;
  }
  return status;
}
