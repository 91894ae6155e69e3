// What batches promise beside their bits: statuses in their order, counts that may be split,
// nothing fused, the names and no others.
#include <gtest/gtest.h>
#include <haldbatch.h>

#include <array>
#include <set>
#include <thread>

#include "tests/batch/library.h"
#include "tests/built/disassembly.h"
#include "tests/frame/elf_file.h"

namespace haldgen::test {
namespace {

template <class Float>
void expect_statuses_in_their_order() {
  std::set<BatchFunction> seen;
  for (const Batch<Float>& batch : batches<Float>()) {
    if (!seen.insert(batch.function).second) continue;
    std::array<Float, 512> src{};
    std::array<Float, 512> dst{};
    dst.fill(Float{3});
    const auto untouched = dst;
    const auto call = [&](const void* from, void* to, std::int32_t size, std::ptrdiff_t count,
                          std::int32_t flag) {
      return batch.function(from, 1, 64, to, 1, 64, size, count, flag);
    };
    const std::int32_t good = batch.single->size;
    for (const std::int32_t bad : {INT32_MIN, -1, 0, batch.single->word->sizes.first() - 1,
                                   batch.single->word->sizes.last() + 1, INT32_MAX}) {
      EXPECT_EQ(call(nullptr, nullptr, bad, -1, 0), haldStatusSizeError) << batch.name << bad;
      EXPECT_EQ(call(src.data(), dst.data(), bad, 1, haldScaleNone), haldStatusSizeError);
    }
    EXPECT_EQ(call(nullptr, nullptr, good, -1, 0), haldStatusBadArgument) << batch.name;
    EXPECT_EQ(call(src.data(), dst.data(), good, PTRDIFF_MIN, 8), haldStatusBadArgument);
    for (const std::ptrdiff_t count : {0, 1}) {
      EXPECT_EQ(call(nullptr, dst.data(), good, count, 0), haldStatusNullPointer) << batch.name;
      EXPECT_EQ(call(src.data(), nullptr, good, count, 0), haldStatusNullPointer) << batch.name;
      for (const std::int32_t flag : {0, 3, 5, 6, 12, 15, 16, -1, INT32_MIN}) {
        EXPECT_EQ(call(src.data(), dst.data(), good, count, flag), haldStatusFlagError)
            << batch.name << " " << flag;
      }
    }
    for (const std::int32_t flag : flags) {
      EXPECT_EQ(call(src.data(), dst.data(), good, 0, flag), haldStatusOk) << batch.name;
    }
    EXPECT_EQ(dst, untouched) << batch.name << " writes";
  }
}

TEST(BatchContract, StatusesComeInTheirOrder) {
  expect_statuses_in_their_order<float>();
  expect_statuses_in_their_order<double>();
}

TEST(BatchContract, ACountOfNothingReadsNothing) {
  // No address near these is mapped.
  for (const Batch<float>& batch : batches<float>()) {
    EXPECT_EQ(batch.function(reinterpret_cast<void*>(64), 1, 64, reinterpret_cast<void*>(64), 1, 64,
                             batch.single->size, 0, haldScaleNone),
              haldStatusOk);
  }
}

template <class Float>
void expect_counts_to_split() {
  constexpr std::size_t kThreads = 8;
  constexpr std::size_t kCount = 61;
  for (const Batch<Float>& batch : batches<Float>()) {
    if (batch.single->src_floats > 130) continue;
    const auto source = random_floats<Float>(batch.single->src_floats * kCount, 5);
    const auto src_dist = static_cast<std::ptrdiff_t>(batch.src_elements());
    const auto dst_dist = static_cast<std::ptrdiff_t>(batch.dst_elements());
    const auto part = [&](std::vector<Float>& dst, std::size_t first, std::size_t last) {
      return batch.function(source.data() + first * batch.single->src_floats, 1, src_dist,
                            dst.data() + first * batch.single->dst_floats, 1, dst_dist,
                            batch.single->size, static_cast<std::ptrdiff_t>(last - first),
                            haldScaleBySqrtN);
    };
    std::vector<Float> whole(batch.single->dst_floats * kCount);
    std::vector<Float> split(whole.size());
    ASSERT_EQ(part(whole, 0, kCount), haldStatusOk);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < kThreads; ++i) {
      threads.emplace_back(
          [&, i] { part(split, kCount * i / kThreads, kCount * (i + 1) / kThreads); });
    }
    for (std::thread& thread : threads) thread.join();
    ASSERT_TRUE(identical(whole, split)) << batch.name;
  }
}

TEST(BatchContract, EightThreadsGiveTheBitsOfOne) {
  expect_counts_to_split<float>();
  expect_counts_to_split<double>();
}

TEST(BatchContract, SaysItsWidth) {
  const auto bits = reinterpret_cast<std::int32_t (*)()>(batch_function("haldbGetVectorBits"))();
  const std::string path = batch_path;
  const int expected = path.find("x86-64-v4") != std::string::npos   ? 512
                       : path.find("x86-64-v3") != std::string::npos ? 256
                                                                     : 128;
  EXPECT_EQ(bits, expected);
}

TEST(Code, NothingIsFusedThatRounds) {
  int instructions = 0;
  for (const auto& [symbol, mnemonics] : disassembly(batch_path)) {
    instructions += mnemonics.all();
    EXPECT_EQ(mnemonics.fused_that_round(), 0) << symbol;
  }
  EXPECT_GT(instructions, 10000);
}

TEST(Code, ExportsTheNamesOfTheHeaderAlone) {
  std::set<std::string> expected{"haldbGetVectorBits"};
  for (const registry::Export& e : registry::exports()) {
    if (size_in_name(*e.word)) {
      expected.insert("haldb" + e.word->word + "_" + std::string(names::suffix(e.element)));
    }
  }
  std::set<std::string> exported;
  const ElfFile library(batch_path);
  for (const auto& [name, symbol] : library.exported()) exported.insert(name);
  EXPECT_EQ(exported, expected);
}

}  // namespace
}  // namespace haldgen::test
