// Page protection and signal handling behind memory.h.
#include "tests/contract/memory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace haldgen::test {
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

namespace fault_trap {
namespace {

constexpr int signals[] = {SIGSEGV, SIGBUS};
struct sigaction previous[2];

void handle(int /*signal*/) {
  if (armed == 0) {
    // A fault of the test itself: whoever handled it before does so when the instruction runs
    // again.
    for (int i = 0; i < 2; ++i) sigaction(signals[i], &previous[i], nullptr);
    return;
  }
  armed = 0;
  siglongjmp(jump, 1);
}

bool install() {
  struct sigaction action = {};
  action.sa_handler = handle;
  // The jump out of the handler must not leave the signal blocked.
  action.sa_flags = SA_NODEFER;
  for (int i = 0; i < 2; ++i) sigaction(signals[i], &action, &previous[i]);
  return true;
}

}  // namespace

sigjmp_buf jump;
volatile std::sig_atomic_t armed = 0;

void install_once() { [[maybe_unused]] static const bool installed = install(); }

}  // namespace fault_trap
}  // namespace haldgen::test
