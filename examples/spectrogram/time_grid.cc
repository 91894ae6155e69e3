// Columns hold sums of powers; dividing by the number of frames is left to the reading side.
#include "spectrogram/time_grid.h"

#include <algorithm>

namespace haldgen::demo {

TimeGrid::TimeGrid(int bins, std::size_t capacity)
    : bins_(static_cast<std::size_t>(bins)), capacity_(capacity) {}

void TimeGrid::add(std::span<const double> power) {
  if (frames_ == static_cast<std::int64_t>(capacity_) * stride_) merge_neighbours();
  if (frames_ % stride_ == 0) sums_.resize(sums_.size() + bins_, 0.0);
  double* column = &sums_[sums_.size() - bins_];
  for (std::size_t k = 0; k < bins_; ++k) column[k] += power[k];
  ++frames_;
}

std::vector<double> TimeGrid::slice(int index, int count) const {
  const std::int64_t first = frames_ * index / count / stride_;
  const std::int64_t past = (frames_ * (index + 1) / count + stride_ - 1) / stride_;
  std::vector<double> mean(bins_, 0.0);
  std::int64_t frames = 0;
  for (std::int64_t c = first; c < std::max(past, first + 1); ++c) {
    const auto column = static_cast<std::size_t>(c);
    for (std::size_t k = 0; k < bins_; ++k) mean[k] += sums_[column * bins_ + k];
    frames += frames_in(column);
  }
  for (double& value : mean) value /= static_cast<double>(frames);
  return mean;
}

double TimeGrid::peak() const {
  double peak = 0;
  for (std::size_t i = 0; i < sums_.size(); ++i) {
    peak = std::max(peak, sums_[i] / static_cast<double>(frames_in(i / bins_)));
  }
  return peak;
}

std::int64_t TimeGrid::frames_in(std::size_t column) const {
  return std::min(stride_, frames_ - static_cast<std::int64_t>(column) * stride_);
}

void TimeGrid::merge_neighbours() {
  const std::size_t half = columns() / 2;
  for (std::size_t c = 0; c < half; ++c) {
    for (std::size_t k = 0; k < bins_; ++k) {
      sums_[c * bins_ + k] = sums_[2 * c * bins_ + k] + sums_[(2 * c + 1) * bins_ + k];
    }
  }
  sums_.resize(half * bins_);
  stride_ *= 2;
}

}  // namespace haldgen::demo
