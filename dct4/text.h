// What the public header says of the DCT-IV.
#pragma once

#include "names/names.h"

namespace haldgen::dct4 {

inline const names::Text kSizeText{
    "DCT-IV, size of the state",
    R"(Lengths are the powers of two from 2 to 2^26 (_32f) or 2^25 (_64f). Accepted as well, but no
DCT-IV, are numbers 2^k + 1 from 33 (_32f) or 9 (_64f) to one more than those limits: their
transform writes 2^k outputs. Beyond, set-up refuses every length; sizes are then sums that wrap
around in 32 bits, and are refused only where they come out negative.

@param length  N.
@param size    receives the number of bytes of a state of this length.)",
    R"(@return haldStatusNullPointer if size is null, whatever the length is; else haldStatusSizeError
        if there is no such length; else haldStatusOk. size is written only if haldStatusOk is
        returned.)"};

inline const names::Text kInitText{
    "DCT-IV, set-up in a buffer of the caller",
    R"(Builds a state for this element type, with all its tables. The state lies in the buffer,
generally not at its start, and lasts until the buffer is dropped; there is nothing to release
besides.

@param state   receives the state.
@param length  N.
@param buffer  at least as many bytes as the size query says for this length and element type,
               at any alignment.)",
    R"(@return haldStatusNullPointer if state or buffer is null; else haldStatusSizeError if there is no
        such length; else haldStatusOk. Nothing is written unless haldStatusOk is returned.)"};

inline const names::Text kInitAllocText{
    "DCT-IV, set-up with allocation",
    R"(The same in memory from haldMalloc; the state must be released.

@param state   receives the state.
@param length  N.)",
    R"(@return haldStatusNullPointer if state is null; else haldStatusSizeError if there is no such
        length; else haldStatusNullPointer if there is no memory; else haldStatusOk. state is
        written only if haldStatusOk is returned.)"};

inline const names::Text kFreeText{
    "DCT-IV, release",
    R"(Releases a state that was set up with allocation. Not for states in a buffer of the caller.

@param state   the state.)",
    R"(@return haldStatusNullPointer if state is null; else haldStatusOk.)"};

inline const names::Text kTransformText{
    "DCT-IV, transform",
    R"(    y[k] = sum over n of x[n] * cos(pi/N * (n + 1/2) * (k + 1/2)),   k, n = 0..N-1

There is no scale: applied twice, the transform multiplies by N/2. FFTW's REDFT11 is twice this
transform. From length 64 up a state holds scratch memory and can serve one call at a time;
different states are independent.

States of both element types have one C type, and a state of the other one is not detected: the
results are wrong, or the call crashes. (haldgen.hpp has a type for each.)

@param src     N elements x[0..N-1]; only read.
@param dst     N elements y[0..N-1].
@param state   a state of length N for this element type.)",
    R"(@return haldStatusNullPointer if state, src or dst is null; else haldStatusBadArgument if state
        is not a state; else haldStatusOk. dst is written only if haldStatusOk is returned.)"};

}  // namespace haldgen::dct4
