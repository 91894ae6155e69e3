// Page protection and signal handling behind memory.h.
#include "tests/contract/memory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace haldgen::test {
namespace {

constexpr int fault_signals[] = {SIGSEGV, SIGBUS};

}  // namespace

GuardedPages::GuardedPages(std::size_t size) {
  const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  const std::size_t inner = (size + page - 1) / page * page;
  void* start = mmap(nullptr, inner + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (start == MAP_FAILED) throw std::system_error(errno, std::generic_category(), "mmap");
  mapping_ = {static_cast<std::byte*>(start), inner + 2 * page};
  bytes_ = mapping_.subspan(page, inner);
  allow(Access::write);
}

GuardedPages::~GuardedPages() { munmap(mapping_.data(), mapping_.size()); }

void GuardedPages::allow(Access access) const {
  const int protection = access == Access::none   ? PROT_NONE
                         : access == Access::read ? PROT_READ
                                                  : PROT_READ | PROT_WRITE;
  if (mprotect(bytes_.data(), bytes_.size(), protection) != 0) {
    throw std::system_error(errno, std::generic_category(), "mprotect");
  }
}

std::vector<Placement> placements(std::size_t float_size) {
  std::vector<Placement> all;
  for (const bool at_end : {false, true}) {
    for (std::size_t distance = 0; distance < 64; distance += float_size) {
      all.push_back({at_end, distance});
    }
  }
  return all;
}

sigjmp_buf FaultTrap::jump_;
volatile std::sig_atomic_t FaultTrap::armed_ = 0;

FaultTrap::FaultTrap() {
  struct sigaction action = {};
  action.sa_handler = handle;
  // The jump out of the handler must not leave the signal blocked.
  action.sa_flags = SA_NODEFER;
  for (int i = 0; i < 2; ++i) sigaction(fault_signals[i], &action, &previous_[i]);
}

FaultTrap::~FaultTrap() {
  for (int i = 0; i < 2; ++i) sigaction(fault_signals[i], &previous_[i], nullptr);
}

void FaultTrap::handle(int signal) {
  if (armed_ == 0) {
    // A fault of the test itself: let it end the program when the instruction runs again.
    std::signal(signal, SIG_DFL);
    return;
  }
  armed_ = 0;
  siglongjmp(jump_, 1);
}

}  // namespace haldgen::test
