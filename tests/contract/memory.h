// Memory whose every byte is accounted for: arrays between inaccessible pages, faults as results.
#pragma once

#include <csetjmp>
#include <csignal>
#include <cstddef>
#include <span>
#include <string>

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

/// What faults() and its signal handler share.
namespace fault_trap {
extern sigjmp_buf jump;
extern volatile std::sig_atomic_t armed;
void install_once();
}  // namespace fault_trap

/// Runs a call that owns no resources; whether it touched memory that it may not touch, or touched
/// memory in a way that needs more alignment than there is. For one thread at a time, not nested.
template <class Call>
bool faults(Call&& call) {
  fault_trap::install_once();
  if (sigsetjmp(fault_trap::jump, 0) != 0) return true;
  fault_trap::armed = 1;
  call();
  fault_trap::armed = 0;
  return false;
}

}  // namespace haldgen::test
