// Memory whose every byte is accounted for: arrays between inaccessible pages, faults as results.
#pragma once

#include <csetjmp>
#include <csignal>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace haldgen::test {

/// Whole pages with an inaccessible page on either side.
class GuardedPages {
 public:
  enum class Access { none, read, write };

  /// At least `size` bytes, writable.
  explicit GuardedPages(std::size_t size);
  ~GuardedPages();
  GuardedPages(const GuardedPages&) = delete;
  GuardedPages& operator=(const GuardedPages&) = delete;

  std::span<std::byte> bytes() const { return bytes_; }
  void allow(Access access) const;

 private:
  std::span<std::byte> mapping_;  ///< with both guards
  std::span<std::byte> bytes_;
};

/// Where an array lies in its pages: this many bytes from their first or last byte.
struct Placement {
  bool at_end;
  std::size_t distance;

  std::size_t offset(std::size_t array_size, std::size_t pages_size) const {
    return at_end ? pages_size - array_size - distance : distance;
  }
  std::string text() const {
    return std::to_string(distance) + " bytes from the " + (at_end ? "end" : "start") +
           " of its pages";
  }
};

/// Both ends of the pages, and from each all distances below 64 bytes that keep the alignment of a
/// float of this size.
std::vector<Placement> placements(std::size_t float_size);

/// While it lives, faults() turns memory faults of a call into a result. One at a time, one thread.
class FaultTrap {
 public:
  FaultTrap();
  ~FaultTrap();
  FaultTrap(const FaultTrap&) = delete;
  FaultTrap& operator=(const FaultTrap&) = delete;

  /// Runs a call that owns no resources; whether it touched memory that it may not touch, or
  /// touched memory in a way that needs more alignment than there is.
  template <class Call>
  bool faults(Call&& call) const {
    if (sigsetjmp(jump_, 0) != 0) return true;
    armed_ = 1;
    call();
    armed_ = 0;
    return false;
  }

 private:
  static void handle(int signal);

  static sigjmp_buf jump_;
  static volatile std::sig_atomic_t armed_;
  struct sigaction previous_[2];
};

}  // namespace haldgen::test
