/* The transforms of the package over libhaldbatch and libhaldgenp8, without Python: what each takes
   and gives, which lengths it has, and how it runs over arrays of any strides. */
#ifndef HALDGEN_PYTHON_TRANSFORMS_H
#define HALDGEN_PYTHON_TRANSFORMS_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

typedef enum Precision { kSingle, kDouble, kPrecisions } Precision;

/* The scales have numpy.fft's names: where the division by the length happens. */
typedef enum Norm { kBackward, kOrtho, kForward, kNorms } Norm;

typedef enum TransformId {
  kFft,
  kIfft,
  kRfft,
  kIrfft,
  kHartley,
  kWht,
  kWhtSequency,
  kDct4,
  kFft2,
  kIfft2,
  kTransforms
} TransformId;

/* The signature of the functions in haldbatch.h, for arrays of any type. The last arguments are the
   length of a transform, their number and the flag of the scale. */
typedef int32_t BatchFunction(const void* src, ptrdiff_t src_step, ptrdiff_t src_dist, void* dst,
                              ptrdiff_t dst_step, ptrdiff_t dst_dist, int32_t length,
                              ptrdiff_t count, int32_t flag);

typedef struct Transform {
  const char* function; /* of the package */
  const char* variant;  /* what sets its universal functions apart from others of that function */
  BatchFunction* batch[kPrecisions];
  bool complex_in;
  bool complex_out;
  bool inverse;
  bool in_two_dimensions;
  bool contiguous; /* batch takes contiguous elements only */
  bool sequency;   /* results are put into the order of sequencies */
} Transform;

extern const Transform transforms[kTransforms];

/* One transform, ready to run. */
typedef struct Task {
  const Transform* transform;
  Precision precision;
  Norm norm;
} Task;

/* An array of sequences: bytes from an element to the next, and from a sequence to the next. */
typedef struct Sequences {
  char* data;
  ptrdiff_t step, dist;
} Sequences;

/* An array of blocks: bytes from a row to the next, a column to the next and a block to the next.
 */
typedef struct Block {
  char* data;
  ptrdiff_t row, column, block;
} Block;

bool has_length(const Transform* transform, Precision precision, ptrdiff_t length);

/* The first length of a transform from `length` up, 0 if there is none. */
ptrdiff_t next_length(const Transform* transform, Precision precision, ptrdiff_t length);

/* Both return a status of haldgen.h: haldStatusSizeError for a length that is not there, or
   haldStatusNullPointer if there is no memory. dst may be src if both have the same strides. */
int32_t run_sequences(const Task* task, Sequences src, Sequences dst, ptrdiff_t length,
                      ptrdiff_t count);
int32_t run_blocks(const Task* task, Block src, Block dst, ptrdiff_t rows, ptrdiff_t columns,
                   ptrdiff_t count);

#endif
