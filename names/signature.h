// How exported functions are called. Programs that only call them need no more of this folder.
#pragma once

namespace haldgen::names {

/// Element type of the arrays that a function works on; `none` for functions without arrays.
enum class Element { none, f32, f64, c32, c64 };

/// The arguments of a function, in order. Every signature returns a status, except `version`.
enum class Signature {
  transform,                 ///< src, dst, flag
  sized_transform,           ///< src, dst, length, flag
  buffered_transform,        ///< src, dst, flag, buffer
  sized_buffered_transform,  ///< src, dst, order, flag, buffer
  order_query,               ///< order, pointer to a 32-bit result
  length_query,              ///< length, pointer to a 32-bit result
  plan_init,                 ///< pointer to a state pointer, length, buffer
  plan_init_alloc,           ///< pointer to a state pointer, length
  plan_free,                 ///< state
  planned_transform,         ///< src, dst, state
  version,                   ///< no argument; returns the version record
};

}  // namespace haldgen::names
