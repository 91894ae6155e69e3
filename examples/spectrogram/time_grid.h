// A picture in the making: power over time and frequency in bounded memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace haldgen::demo {

/// Keeps at most `capacity` columns whatever the number of frames: when they are full,
/// neighbouring columns are merged and each stands for twice as many frames from then on. So the
/// length of a stream need not be known beforehand.
class TimeGrid {
 public:
  static constexpr std::size_t kDefaultCapacity = 4096;

  /// `bins` >= 1 powers per frame; `capacity` even, >= 2.
  explicit TimeGrid(int bins, std::size_t capacity = kDefaultCapacity);

  /// Adds the next frame: `bins` powers.
  void add(std::span<const double> power);

  int bins() const { return static_cast<int>(bins_); }
  std::int64_t frames() const { return frames_; }
  std::size_t columns() const { return sums_.size() / bins_; }

  /// The mean powers of slice `index` when the whole time is cut into `count` equal slices,
  /// as finely as the columns allow. At least one frame must have been added.
  std::vector<double> slice(int index, int count) const;

  /// The largest power of any column.
  double peak() const;

 private:
  std::int64_t frames_in(std::size_t column) const;
  void merge_neighbours();

  std::size_t bins_;
  std::size_t capacity_;
  std::vector<double> sums_;
  std::int64_t frames_ = 0;
  std::int64_t stride_ = 1;
};

}  // namespace haldgen::demo
