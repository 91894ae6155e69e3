// Running a state. The kernels are those of passes.h, chosen by the classes in the nodes.
#pragma once

#include "dct4/passes.h"
#include "dct4/plan.h"

namespace haldgen::dct4 {

/// Folds all r sequences of the source into the m/2 blocks of the destination, the real parts of a
/// block before its imaginary parts. The bad-argument status is for a class that no plan has.
template <class Float>
int32_t fold_pass(const FoldNode& node, Float* destination, const Float* source);

/// Rotates and recombines those blocks. Where rows of the output are so long that a kernel of folds
/// cannot make them, it needs room for a tile.
template <class Float>
int32_t recombine_pass(const RecombineNode& node, Float* destination, const Float* source,
                       Float* tile);

/// Folds longer than the kernels', of as many sequences as a line has elements (passes.h).
template <class Float>
int32_t inner_run(const InnerPlan& plan, const Spectrum<Float>& destination,
                  const Sequences<Float>& source);

/// The transform; the bad-argument status if the state's class is none.
template <class Float>
int32_t run_state(const Float* src, Float* dst, const Dct4State& state);

}  // namespace haldgen::dct4
