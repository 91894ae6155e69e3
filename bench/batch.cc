// haldgen_batch_bench: batches of transforms against FFTW's planned batches and against a loop over
// single calls, in one process. Writes a line of tab-separated values for each measurement and ends
// with a table of geometric means.
#include <dlfcn.h>
#include <fftw3.h>
#include <haldbatch.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/core/arena.h"
#include "bench/core/duel.h"
#include "bench/core/size_list.h"
#include "bench/core/statistics.h"
#include "lanes/processor.h"

namespace haldgen::bench {
namespace {

enum class Family { complex, forward, inverse, hartley };
/// Blocks: of `length` rows of `length` elements each, transformed in both dimensions.
enum class BatchLayout { rows, columns, blocks };

struct Place {
  const char* name;
  std::size_t bytes;  ///< of both arrays together
};
constexpr Place places[] = {{"L1", std::size_t{24} << 10U},
                            {"L2", std::size_t{256} << 10U},
                            {"memory", std::size_t{128} << 20U}};

template <class Float>
struct Names;
template <>
struct Names<float> {
  using Plan = fftwf_plan;
  using Complex = fftwf_complex;
  static constexpr const char* real = "32f";
  static constexpr const char* complex = "32fc";
  static constexpr auto plan_c2c = fftwf_plan_many_dft;
  static constexpr auto plan_r2c = fftwf_plan_many_dft_r2c;
  static constexpr auto plan_c2r = fftwf_plan_many_dft_c2r;
  static constexpr auto plan_r2r = fftwf_plan_many_r2r;
  static constexpr auto execute = fftwf_execute;
  static constexpr auto destroy = fftwf_destroy_plan;
};
template <>
struct Names<double> {
  using Plan = fftw_plan;
  using Complex = fftw_complex;
  static constexpr const char* real = "64f";
  static constexpr const char* complex = "64fc";
  static constexpr auto plan_c2c = fftw_plan_many_dft;
  static constexpr auto plan_r2c = fftw_plan_many_dft_r2c;
  static constexpr auto plan_c2r = fftw_plan_many_dft_c2r;
  static constexpr auto plan_r2r = fftw_plan_many_r2r;
  static constexpr auto execute = fftw_execute;
  static constexpr auto destroy = fftw_destroy_plan;
};

struct Problem {
  Family family;
  BatchLayout layout;
  int length;
  int count;

  bool src_is_complex() const { return family == Family::complex || family == Family::inverse; }
  bool dst_is_complex() const { return family == Family::complex || family == Family::forward; }
  int elements(bool complex) const {
    return complex && family != Family::complex ? length / 2 + 1 : length;
  }
  int step() const { return layout == BatchLayout::columns ? count : 1; }
  int dist(bool complex) const { return layout == BatchLayout::columns ? 1 : elements(complex); }
  /// Elements of a transform.
  int size(bool complex) const {
    return elements(complex) * (layout == BatchLayout::blocks ? length : 1);
  }
  const char* layout_name() const {
    return layout == BatchLayout::rows      ? "rows"
           : layout == BatchLayout::columns ? "columns"
                                            : "blocks";
  }
  const char* word() const {
    switch (family) {
      case Family::complex:
        return "DFTFwd_CToC";
      case Family::forward:
        return "DFTFwd_RToCCS";
      case Family::inverse:
        return "DFTInv_CCSToR";
      default:
        return "Hartley";
    }
  }
};

std::size_t floats_of(const Problem& p, bool complex) {
  return static_cast<std::size_t>(p.size(complex)) * (complex ? 2U : 1U);
}

template <class Float>
const char* type_name(const Problem& p) {
  return p.family == Family::complex ? Names<Float>::complex : Names<Float>::real;
}

using BatchFunction = std::int32_t (*)(const void*, std::ptrdiff_t, std::ptrdiff_t, void*,
                                       std::ptrdiff_t, std::ptrdiff_t, std::int32_t, std::ptrdiff_t,
                                       std::int32_t);
using SingleFunction = std::int32_t (*)(const void*, void*, std::int32_t);

template <class Function>
Function function(void* library, const std::string& name) {
  void* const address = dlsym(library, name.c_str());
  if (address == nullptr) throw std::runtime_error("no " + name);
  return reinterpret_cast<Function>(address);
}

template <class Float>
Contestant batch(const std::string& name, void* library, const Problem& p) {
  const auto call =
      function<BatchFunction>(library, std::string("haldb") + p.word() + "_" + type_name<Float>(p));
  return {name, Role::subject, [call, p](const Walk& walk, std::int64_t calls) {
            walk_calls(walk, calls, [&](const std::byte* src, std::byte* dst) {
              if (p.layout == BatchLayout::blocks) {
                // All rows at once, then the columns of each block where they are.
                const int n = p.length;
                call(src, 1, n, dst, 1, n, n, std::ptrdiff_t{n} * p.count, haldScaleNone);
                const std::size_t bytes = floats_of(p, true) * sizeof(Float);
                for (std::byte* block = dst;
                     block != dst + bytes * static_cast<std::size_t>(p.count); block += bytes) {
                  call(block, n, 1, block, n, 1, n, n, haldScaleNone);
                }
                return;
              }
              call(src, p.step(), p.dist(p.src_is_complex()), dst, p.step(),
                   p.dist(p.dst_is_complex()), p.length, p.count, haldScaleNone);
            });
          }};
}

/// A call for each transform, which columns are gathered for and scattered from.
template <class Float>
Contestant singles(void* library, const Problem& p) {
  const auto call =
      function<SingleFunction>(library, std::string("haldg") + p.word() + "_" +
                                            std::to_string(p.length) + "_" + type_name<Float>(p));
  const std::size_t src_floats = floats_of(p, p.src_is_complex());
  const std::size_t dst_floats = floats_of(p, p.dst_is_complex());
  const std::size_t src_width = p.src_is_complex() ? 2 : 1;
  const std::size_t dst_width = p.dst_is_complex() ? 2 : 1;
  return {"singles", Role::peer, [=](const Walk& walk, std::int64_t calls) {
            const auto count = static_cast<std::size_t>(p.count);
            walk_calls(walk, calls, [&](const std::byte* from, std::byte* to) {
              const auto* src = reinterpret_cast<const Float*>(from);
              auto* dst = reinterpret_cast<Float*>(to);
              for (std::size_t t = 0; t < count; ++t) {
                if (p.layout == BatchLayout::rows) {
                  call(src + t * src_floats, dst + t * dst_floats, haldScaleNone);
                  continue;
                }
                Float in[130];
                Float out[130];
                for (std::size_t n = 0; n < src_floats; n += src_width) {
                  std::memcpy(in + n, src + n * count + t * src_width, src_width * sizeof(Float));
                }
                call(in, out, haldScaleNone);
                for (std::size_t k = 0; k < dst_floats; k += dst_width) {
                  std::memcpy(dst + k * count + t * dst_width, out + k, dst_width * sizeof(Float));
                }
              }
            });
          }};
}

template <class Float>
Contestant planned(typename Names<Float>::Plan plan) {
  using N = Names<Float>;
  if (plan == nullptr) throw std::runtime_error("FFTW found no plan");
  const std::shared_ptr<std::remove_pointer_t<typename N::Plan>> owner(plan, N::destroy);
  return {"FFTW", Role::peer, [owner](const Walk& over, std::int64_t calls) {
            walk_calls(over, calls, [&](const std::byte*, std::byte*) { N::execute(owner.get()); });
          }};
}

/// FFTW's plan for the batch, made for the arrays that it is measured on.
template <class Float>
Contestant fftw(const Problem& p, const Walk& walk, unsigned effort) {
  using N = Names<Float>;
  using Complex = typename N::Complex;
  auto* const src = const_cast<std::byte*>(walk.src);
  const int src_dist = p.dist(p.src_is_complex());
  const int dst_dist = p.dist(p.dst_is_complex());
  const unsigned flags = effort | FFTW_PRESERVE_INPUT;
  typename N::Plan plan = nullptr;
  if (p.layout == BatchLayout::blocks) {
    const int sides[] = {p.length, p.length};
    const int dist = p.size(true);
    plan = N::plan_c2c(2, sides, p.count, reinterpret_cast<Complex*>(src), nullptr, 1, dist,
                       reinterpret_cast<Complex*>(walk.dst), nullptr, 1, dist, FFTW_FORWARD, flags);
    return planned<Float>(plan);
  }
  switch (p.family) {
    case Family::complex:
      plan = N::plan_c2c(1, &p.length, p.count, reinterpret_cast<Complex*>(src), nullptr, p.step(),
                         src_dist, reinterpret_cast<Complex*>(walk.dst), nullptr, p.step(),
                         dst_dist, FFTW_FORWARD, flags);
      break;
    case Family::forward:
      plan = N::plan_r2c(1, &p.length, p.count, reinterpret_cast<Float*>(src), nullptr, p.step(),
                         src_dist, reinterpret_cast<Complex*>(walk.dst), nullptr, p.step(),
                         dst_dist, flags);
      break;
    case Family::inverse:
      plan = N::plan_c2r(1, &p.length, p.count, reinterpret_cast<Complex*>(src), nullptr, p.step(),
                         src_dist, reinterpret_cast<Float*>(walk.dst), nullptr, p.step(), dst_dist,
                         flags);
      break;
    case Family::hartley: {
      const fftw_r2r_kind kind = FFTW_DHT;
      plan = N::plan_r2r(1, &p.length, p.count, reinterpret_cast<Float*>(src), nullptr, p.step(),
                         src_dist, reinterpret_cast<Float*>(walk.dst), nullptr, p.step(), dst_dist,
                         &kind, flags);
    }
  }
  return planned<Float>(plan);
}

struct Options {
  std::string lengths = "2-8,12,13,15,16,20,24,30,32,36,48,53,60,64";
  int rounds = 60;
  unsigned effort = FFTW_PATIENT;
  std::size_t last_place = 1;
};

/// Ratios of the first contestants' times to the others', for the table of means.
using Ratios = std::map<std::string, std::vector<double>>;

struct Build {
  std::string name;
  void* library;
};

template <class Float>
void measure(const Options& options, const std::vector<Build>& builds, void* single_library,
             const Place& place, Problem p, Ratios& ratios) {
  const std::size_t bytes =
      (floats_of(p, p.src_is_complex()) + floats_of(p, p.dst_is_complex())) * sizeof(Float);
  const std::size_t least = p.layout == BatchLayout::blocks ? 1 : 8;
  p.count = static_cast<int>(std::max(place.bytes / bytes / 4 * 4, least));
  const auto count = static_cast<std::size_t>(p.count);
  const std::size_t src_bytes = count * floats_of(p, p.src_is_complex()) * sizeof(Float);
  Arena arena(Mode::hot, src_bytes, count * floats_of(p, p.dst_is_complex()) * sizeof(Float));

  std::vector<Contestant> contestants;
  for (const Build& build : builds)
    contestants.push_back(batch<Float>(build.name, build.library, p));
  contestants.push_back(fftw<Float>(p, arena.walk(), options.effort));
  if (p.layout != BatchLayout::blocks) {
    contestants.push_back(singles<Float>(single_library, p));
  }
  std::vector<Float> data(src_bytes / sizeof(Float));
  for (std::size_t i = 0; i < data.size(); ++i) data[i] = static_cast<Float>(i * 37 % 101) / 64;
  arena.fill_sources(std::as_bytes(std::span(data)));

  Duel duel(contestants, arena.walk(), 20000);
  for (int round = 0; round < options.rounds; ++round) duel.round();
  std::vector<double> times;
  for (const auto& samples : duel.samples()) times.push_back(evaluate(Statistic::median, samples));
  const std::string what = std::string(p.word()) + "\t" + type_name<Float>(p) + "\t" +
                           p.layout_name() + "\t" + place.name;
  for (std::size_t i = 0; i < times.size(); ++i) {
    std::printf("%s\t%d\t%d\t%s\t%.2f\n", what.c_str(), p.length, p.count,
                contestants[i].name.c_str(), times[i] / p.count);
  }
  std::fflush(stdout);
  if (p.length < 8) return;
  for (std::size_t i = 0; i < builds.size(); ++i) {
    for (std::size_t peer = builds.size(); peer < times.size(); ++peer) {
      ratios[what + "\t" + builds[i].name + "\t" + contestants[peer].name].push_back(times[i] /
                                                                                     times[peer]);
    }
  }
}

void* opened(const std::string& path) {
  void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw std::runtime_error(dlerror());
  return library;
}

int run(const Options& options) {
  std::vector<Build> builds;
  const std::string folder = HALDGEN_FOLDER;
  for (const std::string flavour : {"glibc-hwcaps/x86-64-v4", "glibc-hwcaps/x86-64-v3", "."}) {
    const std::string path = folder + "/" + flavour + "/libhaldbatch.so.8";
    if (!std::filesystem::exists(path)) continue;
    void* const library = opened(path);
    const int bits = function<std::int32_t (*)()>(library, "haldbGetVectorBits")();
    if (lanes::processor_has(bits)) builds.push_back({std::to_string(bits) + " bits", library});
  }
  void* const singles = opened(folder + "/libhaldgenp8.so.8");

  Ratios ratios;
  std::puts("word\ttype\tlayout\tplace\tlength\tcount\tcontestant\tns per transform");
  for (std::size_t place = 0; place <= options.last_place; ++place) {
    for (const int length : parse_size_list(options.lengths)) {
      for (const Family family :
           {Family::complex, Family::forward, Family::inverse, Family::hartley}) {
        for (const BatchLayout layout :
             {BatchLayout::rows, BatchLayout::columns, BatchLayout::blocks}) {
          if (layout == BatchLayout::blocks && family != Family::complex) continue;
          const Problem p{family, layout, length, 0};
          measure<float>(options, builds, singles, places[place], p, ratios);
          measure<double>(options, builds, singles, places[place], p, ratios);
        }
      }
    }
  }
  std::puts("\nword\ttype\tlayout\tplace\tbuild\tagainst\tmean ratio\tlargest");
  for (const auto& [what, values] : ratios) {
    std::printf("%s\t%.3f\t%.3f\n", what.c_str(), geometric_mean(values),
                *std::max_element(values.begin(), values.end()));
  }
  return 0;
}

}  // namespace
}  // namespace haldgen::bench

int main(int argc, char** argv) {
  haldgen::bench::Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument == "--quick") {
      options.rounds = 15;
      options.effort = FFTW_MEASURE;
      options.last_place = 0;
    } else if (argument == "--memory") {
      options.last_place = 2;
    } else if (argument == "--lengths" && i + 1 < argc) {
      options.lengths = argv[++i];
    } else {
      std::fputs("usage: haldgen_batch_bench [--quick | --memory] [--lengths LIST]\n", stderr);
      return 2;
    }
  }
  try {
    return haldgen::bench::run(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "haldgen_batch_bench: %s\n", error.what());
    return 1;
  }
}
