// What the public header says of the Walsh-Hadamard transform.
#pragma once

#include "names/names.h"

namespace haldgen::wht {

inline const names::Text kFixedText{
    "Walsh-Hadamard transform, fixed order",
    R"(    Y[k] = s * sum over n of (-1)^popcount(k & n) * x[n],   k, n = 0..N-1

N is two to the power of the order, which is the number in the name. Outputs are in the natural
(Hadamard) order of k. The transform is its own inverse: two calls with haldScaleBySqrtN give the
input back, and so do one with haldScaleNone and one with a flag that divides by N.

The results are those of sums and differences taken in place, first of neighbours x[n], x[n+1],
then of elements 2, 4, .. N/2 apart, each rounded to the element type, and of one multiplication
by s at the end.

@param src     N elements x[0..N-1]; only read. Need not even be aligned to an element.
@param dst     N elements Y[0..N-1]; likewise.)",
    R"(@param buffer  work area of as many bytes as haldgWHTGetBufferSize tells for the order and the
        element type, at a multiple of 16 bytes, apart from src and dst. It needs no contents,
        and nothing is kept in it. Orders 1 to 7 pass over this argument.
        If it is null, orders 8 to 13 take the area from haldMalloc and give it back to haldFree
        before they return. There is no status for a haldMalloc that fails: the call crashes.
@return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
        the four values; else haldStatusOk. Only if haldStatusOk is returned is dst written or
        memory taken.)"};

inline const names::Text kGeneralText{
    "Walsh-Hadamard transform, general",
    R"(    Y[k] = s * sum over n of (-1)^popcount(k & n) * x[n],   k, n = 0..N-1,   N = 2^order

@param src     N elements x[0..N-1]; only read. Need not even be aligned to an element.
@param dst     N elements Y[0..N-1]; likewise.
@param order   1 to 13, for orders known at run time only.)",
    R"(@param buffer  as for the function of this order.
@return haldStatusSizeError if no function has this order, whatever the other arguments are; else
        what the function of this order returns.)"};

inline const names::Text kQueryText{
    "Walsh-Hadamard transform, size of the work buffer",
    R"(Bytes that the buffer of a Walsh-Hadamard transform needs: 0 for orders 1 to 7.

@param order   1 to 13.
@param size    where to store the number of bytes.)",
    R"(@return haldStatusNullPointer if size is null; else haldStatusSizeError if no function has this
        order, and nothing is stored; else haldStatusOk.)"};

}  // namespace haldgen::wht
