// haldgen_batch_bench: batches of transforms against FFTW's planned batches and against a loop over
// single calls, in one process. Writes the table of haldgen_bench, nanoseconds per transform; the
// mode of a row is the layout of its arrays and the memory that they fill.
#include <haldbatch.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstring>
#include <iostream>
#include <set>
#include <stdexcept>

#include "bench/core/arena.h"
#include "bench/core/duel.h"
#include "bench/core/results.h"
#include "bench/core/size_list.h"
#include "bench/kernels.h"
#include "bench/peers/peers.h"

namespace haldgen::bench {
namespace {

/// Blocks: of `length` rows of `length` elements each, transformed in both dimensions.
enum class Layout { rows, columns, blocks };
constexpr const char* layout_names[] = {"rows", "columns", "blocks"};

struct Room {
  const char* name;
  std::size_t bytes;  ///< of both arrays together
};
constexpr Room rooms[] = {{"L1", std::size_t{24} << 10U},
                          {"L2", std::size_t{256} << 10U},
                          {"memory", std::size_t{128} << 20U}};

struct Batch {
  Problem problem;
  Layout layout;
  int count = 0;

  std::size_t rows() const {  ///< of a transform
    return layout == Layout::blocks ? static_cast<std::size_t>(problem.length) : 1;
  }
  std::size_t src_bytes() const { return rows() * problem.source_bytes(); }
  std::size_t dst_bytes() const { return rows() * problem.result_bytes(); }
  Places places() const {
    if (layout == Layout::columns) return {count, count, 1, 1, 1};
    return {count, 1, static_cast<int>(rows() * problem.source_floats()) / problem.source_parts(),
            static_cast<int>(rows() * problem.result_floats()) / problem.result_parts(),
            layout == Layout::blocks ? 2 : 1};
  }
};

using BatchFunction = std::int32_t (*)(const void*, std::ptrdiff_t, std::ptrdiff_t, void*,
                                       std::ptrdiff_t, std::ptrdiff_t, std::int32_t, std::ptrdiff_t,
                                       std::int32_t);
using Build = std::pair<std::string, void*>;

/// Those that the processor can run, by their names, the widest first.
std::vector<Build> builds() {
  const std::string file = "libhaldbatch.so.8";
  std::vector<Build> found = {{"128_bits", open_library(HALDGEN_FOLDER "/" + file)}};
  for (const auto& [flavour, path] : flavours(HALDGEN_FOLDER, file)) {
    found.emplace(found.begin(), std::to_string(flavour.vector_bits) + "_bits", open_library(path));
  }
  return found;
}

Contestant batch_of(const Build& build, const Batch& b, Role role) {
  const auto call = reinterpret_cast<BatchFunction>(
      required(build.second, "haldb" + b.problem.word() + "_" + b.problem.type()));
  const Places at = b.places();
  const std::ptrdiff_t n = b.problem.length;
  if (b.layout != Layout::blocks) {
    return contestant_of(build.first, role, [=](const std::byte* src, std::byte* dst) {
      call(src, at.step, at.src_dist, dst, at.step, at.dst_dist, static_cast<int>(n), at.count,
           haldScaleNone);
    });
  }
  return contestant_of(build.first, role, [=](const std::byte* src, std::byte* dst) {
    // All rows at once, then the columns of each block where they are.
    call(src, 1, n, dst, 1, n, static_cast<int>(n), n * at.count, haldScaleNone);
    for (int i = 0; i < at.count; ++i, dst += b.dst_bytes()) {
      call(dst, n, 1, dst, n, 1, static_cast<int>(n), n, haldScaleNone);
    }
  });
}

/// A call for each transform, which columns are gathered for and scattered from.
Contestant singles(void* library, const Batch& b) {
  const Problem& p = b.problem;
  const auto call = reinterpret_cast<std::int32_t (*)(const void*, void*, std::int32_t)>(
      required(library, "haldg" + p.word() + "_" + std::to_string(p.length) + "_" + p.type()));
  const std::size_t src_bytes = p.source_bytes();
  const std::size_t dst_bytes = p.result_bytes();
  const auto count = static_cast<std::size_t>(b.count);
  if (b.layout == Layout::rows) {
    return contestant_of("singles", Role::baseline, [=](const std::byte* src, std::byte* dst) {
      for (std::size_t t = 0; t < count; ++t, src += src_bytes, dst += dst_bytes)
        call(src, dst, haldScaleNone);
    });
  }
  const std::size_t src_width = p.float_bytes() * static_cast<std::size_t>(p.source_parts());
  const std::size_t dst_width = p.float_bytes() * static_cast<std::size_t>(p.result_parts());
  return contestant_of("singles", Role::baseline, [=](const std::byte* src, std::byte* dst) {
    alignas(16) std::byte in[130 * sizeof(double)];
    alignas(16) std::byte out[sizeof in];
    for (std::size_t t = 0; t < count; ++t) {
      for (std::size_t at = 0; at < src_bytes; at += src_width) {
        std::memcpy(in + at, src + at * count + t * src_width, src_width);
      }
      call(in, out, haldScaleNone);
      for (std::size_t at = 0; at < dst_bytes; at += dst_width) {
        std::memcpy(dst + at * count + t * dst_width, out + at, dst_width);
      }
    }
  });
}

struct BatchOptions {
  std::set<int> lengths;
  int rounds = 60;
  FftwEffort effort = FftwEffort::patient;
  std::size_t last_room = 1;
};

Measurement measured(const BatchOptions& options, const std::vector<Build>& builds,
                     void* single_library, const Room& room, Batch b) {
  const auto count = std::max<std::size_t>(room.bytes / (b.src_bytes() + b.dst_bytes()) / 4 * 4,
                                           b.layout == Layout::blocks ? 1 : 8);
  b.count = static_cast<int>(count);
  Arena arena(Mode::hot, count * b.src_bytes(), count * b.dst_bytes());
  std::vector<Contestant> contestants;
  for (const Build& build : builds) {
    contestants.push_back(batch_of(build, b, contestants.empty() ? Role::subject : Role::variant));
  }
  contestants.push_back(
      planned_by_fftw(b.problem, b.places(), arena.walk(), FftwWidth::full, options.effort)
          .contestant);
  if (b.layout != Layout::blocks) contestants.push_back(singles(single_library, b));
  for (Contestant& contestant : contestants) contestant.per_call = b.count;
  arena.fill_sources(random_source(b.problem, count * b.rows()));
  Duel duel(std::move(contestants), arena.walk(), 20000);
  for (int round = 0; round < options.rounds; ++round) duel.round();
  const std::string mode =
      std::string(layout_names[static_cast<std::size_t>(b.layout)]) + "/" + room.name;
  return {mode, b.problem.word(), b.problem.type(), b.problem.length, duel.contestants()};
}

void run(const BatchOptions& options) {
  Head head = describe_machine();
  head.emplace_back("versions", peer_versions());
  head.emplace_back("rounds", std::to_string(options.rounds) + ", slices of 20 us");
  const std::vector<Build> libraries = builds();
  void* const singles_library = open_library(HALDGEN_FOLDER "/libhaldgenp8.so.8");
  std::vector<Measurement> measurements;
  for (const Room& room : std::span(rooms).first(options.last_room + 1)) {
    for (const int length : options.lengths) {
      for (const Transform transform :
           {Transform::dft, Transform::real, Transform::inverse_real, Transform::hartley}) {
        for (const Layout layout : {Layout::rows, Layout::columns, Layout::blocks}) {
          if (layout == Layout::blocks && transform != Transform::dft) continue;
          for (const names::Element element :
               transform == Transform::dft ? names::kComplex : names::kReal) {
            measurements.push_back(measured(options, libraries, singles_library, room,
                                            {{transform, element, length}, layout}));
          }
        }
      }
    }
  }
  write_results(std::cout, head, measurements);
}

}  // namespace
}  // namespace haldgen::bench

int main(int argc, char** argv) {
  namespace bench = haldgen::bench;
  CLI::App app("Batches against FFTW's and against loops over single calls.",
               "haldgen_batch_bench");
  std::string lengths = "2-8,12,13,15,16,20,24,30,32,36,48,53,60,64";
  bool quick = false;
  bool memory = false;
  app.add_option("--lengths", lengths, "such as 8,16,20-24");
  auto* const is_quick = app.add_flag("--quick", quick, "less effort, first-level cache only");
  app.add_flag("--memory", memory, "also arrays that no cache holds")->excludes(is_quick);
  CLI11_PARSE(app, argc, argv)
  try {
    bench::BatchOptions options{bench::parse_size_list(lengths)};
    if (quick) options = {options.lengths, 15, bench::FftwEffort::measure, 0};
    if (memory) options.last_room = 2;
    bench::run(options);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "haldgen_batch_bench: " << error.what() << '\n';
    return 1;
  }
}
