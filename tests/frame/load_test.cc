// A program that brings its own haldcore functions: the load step, and interposition of memory.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <haldcore.h>
#include <link.h>

#include <stdexcept>
#include <vector>

#include "frame/load_step.h"
#include "tests/frame/elf_file.h"

namespace {

std::uint64_t offered_features = 0;
int feature_queries = 0;
alignas(haldMallocAlignment) unsigned char own_memory[256];
std::vector<std::int32_t> own_requests;
std::vector<void*> own_releases;

}  // namespace

extern "C" {

uint64_t haldGetEnabledCpuFeatures(void) {
  ++feature_queries;
  return offered_features;
}

void* haldMalloc(int32_t size) {
  own_requests.push_back(size);
  return own_memory;
}

void haldFree(void* memory) { own_releases.push_back(memory); }

// A shared library linked with haldcore: a round trip of haldMalloc and haldFree.
void* haldcore_client_round_trip(int32_t size);

}  // extern "C"

namespace haldgen::test {
namespace {

constexpr std::uint64_t supported[] = {0x30, 0xFFFFFFFF, 0xFFFFFFFF00000030, 0x7FFFFFFF,
                                       ~std::uint64_t{0}};
constexpr std::uint64_t unsupported[] = {
    0, 0x10, 0x20, 0x0F, 0xFFFFFFCF, 0xFFFFFFDF, 0xFFFFFFEF, 0x3000000000, 0xFFFFFFFF00000010};
#if defined(__x86_64__) || defined(__i386__)
constexpr std::int32_t without_features = 0;
#else
constexpr std::int32_t without_features = 1;  // kernels of other machines ask for none
#endif

TEST(LoadStep, NeedsBothFeaturesOfX86) {
  for (const std::uint64_t mask : supported) EXPECT_EQ(frame::processor_support(mask), 1) << mask;
  for (const std::uint64_t mask : unsupported) {
    EXPECT_EQ(frame::processor_support(mask), without_features) << mask;
  }
}

// Loads the library and returns its processor-support flag.
std::int32_t flag_after_load(std::uint64_t features) {
  offered_features = features;
  feature_queries = 0;
  void* handle = dlopen(HALDGEN_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) throw std::runtime_error(dlerror());
  EXPECT_EQ(feature_queries, 1);

  static const ElfFile file(HALDGEN_LIBRARY);
  const link_map* map = nullptr;
  EXPECT_EQ(dlinfo(handle, RTLD_DI_LINKMAP, &map), 0);
  const Symbol& flag = file.defined().at("haldgen_processor_support");
  const std::int32_t value = *reinterpret_cast<const std::int32_t*>(map->l_addr + flag.address);

  auto* version = reinterpret_cast<const void* (*)()>(dlsym(handle, "haldgenGetLibVersion"));
  EXPECT_NE(version(), nullptr);
  EXPECT_EQ(feature_queries, 1);
  dlclose(handle);
  EXPECT_EQ(feature_queries, 1);
  EXPECT_EQ(dlopen(HALDGEN_LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr) << "still loaded";
  return value;
}

TEST(LoadStep, AsksOnceAtLoadAndNeverFails) {
  for (const std::uint64_t mask : supported) EXPECT_EQ(flag_after_load(mask), 1) << mask;
  for (const std::uint64_t mask : unsupported) {
    EXPECT_EQ(flag_after_load(mask), without_features) << mask;
  }
}

TEST(Haldcore, ApplicationMayBringItsOwnAllocator) {
  EXPECT_EQ(haldcore_client_round_trip(100), own_memory);
  EXPECT_EQ(own_requests, std::vector<std::int32_t>{100});
  EXPECT_EQ(own_releases, std::vector<void*>{own_memory});
}

}  // namespace
}  // namespace haldgen::test
