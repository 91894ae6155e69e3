// Sums of the DCT-IV, of its set-up and release, and of size queries.
#pragma once

#include "bits/library.h"

namespace haldgen::bits {

/// Of a function with one of the signatures length_query, order_query, plan_init, plan_init_alloc,
/// plan_free.
Finding take_service(const Find& find, const LinkedFunction& service);

/// A planned transform, by length.
void take_planned(const Find& find, const LinkedFunction& transform, Findings& findings);

}  // namespace haldgen::bits
