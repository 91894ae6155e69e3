// States for tests, in memory of their own.
#pragma once

#include <cstddef>
#include <vector>

#include "dct4/plan.h"
#include "dct4/size.h"

namespace haldgen::dct4::test {

/// A state in a buffer that begins `misalignment` bytes past a multiple of 32 and has the size of
/// the length's state. The length may be one that is refused, if it has a radix all the same.
template <class Float>
class OwnState {
 public:
  explicit OwnState(std::int32_t length, std::size_t misalignment = 0)
      : bytes_(static_cast<std::size_t>(exact_state_size(length, sizeof(Float))) + 64) {
    const auto beyond = reinterpret_cast<std::uintptr_t>(bytes_.data()) % 32;
    start_ = bytes_.data() + (32 - beyond) % 32 + misalignment;
    state_ = build_state<Float>(length, arena());
  }
  OwnState(const OwnState&) = delete;
  OwnState& operator=(const OwnState&) = delete;

  Arena* arena() { return reinterpret_cast<Arena*>(start_); }
  std::ptrdiff_t position() { return arena_position(arena()) - start_; }
  Dct4State* operator->() { return state_; }
  Dct4State* get() { return state_; }

  SecondStage* second_stage() { return item<SecondStage>(state_->secondStage.get()); }
  FirstStage* first_stage() { return item<FirstStage>(state_->firstStage.get()); }
  RecombineNode* recombination() { return item<RecombineNode>(second_stage()->stageList.get()); }
  FoldNode* folds() { return item<FoldNode>(first_stage()->stageList.get()); }
  Float* scratch() { return reinterpret_cast<Float*>(state_->scratch.get()); }

  template <class Node>
  static Node* item(const NodeList* list, std::int32_t index = 0) {
    return static_cast<Node*>(list_at(list, index));
  }

 private:
  std::vector<std::byte> bytes_;
  std::byte* start_;
  Dct4State* state_;
};

}  // namespace haldgen::dct4::test
