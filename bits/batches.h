// Sums of single transforms taken from batches: the published ones hold for these as well.
#pragma once

#include "bits/sums.h"

namespace haldgen::bits {

/// By names of the single functions with a size and a flag. Each is called on all its inputs as
/// batches, in rows, columns and spread arrays, a few and many at a time. Faults: a missing
/// function, a status, results that hang on layout or count.
Findings take_batch_sums(const Find& find_batch);

/// Bits of the vectors of the library; 128 if it does not say.
int batch_vector_bits(const Find& find_batch);

}  // namespace haldgen::bits
