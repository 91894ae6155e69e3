// The kernels' own templates run on values that write down what is done to them: operations, their
// number, and every access to memory in its order.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "wht/kernel.h"

namespace haldgen::wht::test {
namespace {

struct Move {
  bool store;
  bool aligned;
  const void* address;
};

struct Log {
  int additions = 0;
  int subtractions = 0;
  int multiplications = 0;
  int transposed = 0;  ///< values that went through a transposition
  std::vector<Move> accesses;
};
Log log_of_run;

template <class Access>
inline constexpr bool kIsAligned = std::is_same_v<Access, lanes::Aligned>;

/// Lanes that compute like the kernels' own and write down what they do.
template <class Real>
struct Traced {
  using Float = typename Real::Float;
  static constexpr std::size_t kLanes = Real::kLanes;

  struct Value {
    std::array<Float, kLanes> lane{};

    template <class Operation>
    friend Value lane_by_lane(const Value& a, const Value& b, Operation operation) {
      Value result;
      for (std::size_t l = 0; l < kLanes; ++l) result.lane[l] = operation(a.lane[l], b.lane[l]);
      return result;
    }
    friend Value operator+(const Value& a, const Value& b) {
      ++log_of_run.additions;
      return lane_by_lane(a, b, [](Float x, Float y) { return x + y; });
    }
    friend Value operator-(const Value& a, const Value& b) {
      ++log_of_run.subtractions;
      return lane_by_lane(a, b, [](Float x, Float y) { return x - y; });
    }
    friend Value operator*(const Value& a, const Value& b) {
      ++log_of_run.multiplications;
      return lane_by_lane(a, b, [](Float x, Float y) { return x * y; });
    }
  };

  static Value broadcast(Float scale) {
    Value value;
    value.lane.fill(scale);
    return value;
  }
  template <class... Values>
  static void transpose(Values&... values) {
    static_assert(sizeof...(values) == kLanes);
    log_of_run.transposed += static_cast<int>(kLanes);
    const std::array<Value*, kLanes> row = {&values...};
    for (std::size_t i = 0; i < kLanes; ++i) {
      for (std::size_t j = 0; j < i; ++j) std::swap(row[i]->lane[j], row[j]->lane[i]);
    }
  }
  template <class Access>
  static Value load(const Float* from) {
    log_of_run.accesses.push_back({false, kIsAligned<Access>, from});
    Value value;
    std::copy_n(from, kLanes, value.lane.begin());
    return value;
  }
  template <class Access>
  static void store(Float* to, const Value& value) {
    log_of_run.accesses.push_back({true, kIsAligned<Access>, to});
    std::copy_n(value.lane.begin(), kLanes, to);
  }
};

template <class FloatType, int kOrder>
struct TracedKernel : Kernel<FloatType, kOrder> {
  using Lanes = Traced<typename Kernel<FloatType, kOrder>::Lanes>;
  using Value = typename Lanes::Value;
};

/// One access as the design states it: which array, and which of its elements comes first.
struct Place {
  bool store;
  char array;  ///< s, d, or b for the work buffer
  std::size_t element;

  friend auto operator<=>(const Place&, const Place&) = default;
};

std::string text(const Place& place) {
  return (place.store ? "store " : "load ") + std::string(1, place.array) + "[" +
         std::to_string(place.element) + "]";
}

template <class Float>
struct Run {
  std::size_t lanes;
  Log log;
  std::vector<Place> places;
  std::set<bool> caller_aligned;  ///< what occurs on src and dst
  std::set<bool> buffer_aligned;
  bool right;  ///< the result is that of the plain network
};

template <class Float>
std::vector<Float> plain(std::vector<Float> x, Float scale) {
  for (std::size_t bit = 1; bit < x.size(); bit *= 2) {
    for (std::size_t i = 0; i < x.size(); ++i) {
      if ((i & bit) == 0) x[i] = std::exchange(x[i | bit], x[i] - x[i | bit]) + x[i];
    }
  }
  for (Float& value : x) value *= scale;
  return x;
}

template <class Float, int kOrder, class Access = lanes::Anywhere>
Run<Float> traced_run() {
  using K = TracedKernel<Float, kOrder>;
  using Path = Phases<K, Access>;
  constexpr std::size_t n = std::size_t{1} << kOrder;
  std::mt19937 random(1);
  std::uniform_real_distribution<Float> uniform(-1, 1);
  std::vector<Float> src(n);
  for (Float& value : src) value = uniform(random);
  std::vector<Float> dst(n);
  std::vector<Float> buffer(2 * n);

  log_of_run = {};
  const auto scale = K::Lanes::broadcast(Float(0.3));
  if constexpr (K::kBlocking.in_registers()) {
    Path::in_registers(src.data(), dst.data(), scale);
  } else {
    Path::in_buffer(src.data(), dst.data(), scale, buffer.data());
  }

  Run<Float> run{K::Lanes::kLanes, log_of_run, {}, {}, {}, dst == plain(src, Float(0.3))};
  const std::map<char, const std::vector<Float>*> arrays = {
      {'s', &src}, {'d', &dst}, {'b', &buffer}};
  for (const Move& access : log_of_run.accesses) {
    const auto* const address = static_cast<const Float*>(access.address);
    for (const auto& [name, array] : arrays) {
      if (address < array->data() || address >= array->data() + array->size()) continue;
      run.places.push_back({access.store, name, static_cast<std::size_t>(address - array->data())});
      (name == 'b' ? run.buffer_aligned : run.caller_aligned).insert(access.aligned);
    }
  }
  return run;
}

using Places = std::vector<Place>;

/// Vectors of `count` elements from `first` on, `stride` elements apart.
Places vectors(bool store, char array, std::size_t first, std::size_t count, std::size_t stride) {
  Places places;
  for (std::size_t i = 0; i < count; ++i) places.push_back({store, array, first + i * stride});
  return places;
}

/// A step in order: what it loads, then what it stores; each is a set.
struct Step {
  Places loads;
  Places stores;
};

template <class Float>
void expect_steps(const Run<Float>& run, const std::vector<Step>& steps) {
  EXPECT_TRUE(run.right);
  auto at = run.places.begin();
  const auto next = [&](const Places& expected) {
    const auto left = static_cast<std::size_t>(run.places.end() - at);
    const auto count = static_cast<std::ptrdiff_t>(std::min(left, expected.size()));
    Places found(at, at + count);
    at += count;
    std::sort(found.begin(), found.end());
    return found;
  };
  for (const Step& step : steps) {
    for (const Places& expected : {step.loads, step.stores}) {
      const Places found = next(expected);
      ASSERT_EQ(found, expected) << "expected " << expected.size() << " accesses from "
                                 << text(expected.front());
    }
  }
  EXPECT_EQ(at, run.places.end());
}

template <class Float>
void expect_counts(const Run<Float>& run, int order) {
  const int n = 1 << order;
  const int lanes = static_cast<int>(run.lanes);
  EXPECT_EQ(run.log.additions, n * order / 2 / lanes);
  EXPECT_EQ(run.log.subtractions, n * order / 2 / lanes);
  EXPECT_EQ(run.log.multiplications, n / lanes);
  EXPECT_EQ(run.log.transposed, lanes == 1 ? 0 : 2 * n / lanes);
}

/// Visits the orders kFirst..kLast as compile-time constants.
template <int kFirst, int kLast, class Visitor>
void for_orders(Visitor&& visit) {
  [&]<int... k>(std::integer_sequence<int, k...>) {
    (visit(std::integral_constant<int, kFirst + k>()), ...);
  }
  (std::make_integer_sequence<int, kLast - kFirst + 1>());
}

template <class Float>
void check_small(std::size_t full_lanes, int first_vector_order) {
  for_orders<1, 7>([&](auto order) {
    SCOPED_TRACE(order);
    const Run<Float> run = traced_run<Float, order>();
    EXPECT_EQ(run.lanes, order < first_vector_order ? 1 : full_lanes);
    const std::size_t count = (std::size_t{1} << order) / run.lanes;
    expect_steps(
        run, {{vectors(false, 's', 0, count, run.lanes), vectors(true, 'd', 0, count, run.lanes)}});
    expect_counts(run, order);
  });
}

TEST(Network, SmallOrdersReadAllThenWriteAllAndWasteNoLane) {
  check_small<float>(4, 4);
  check_small<double>(2, 3);
}

/// The design's blocking of an order: elements of a chunk, rows of a block, blocks.
struct Design {
  std::size_t chunk;
  std::size_t rows;
  std::size_t blocks;
};
constexpr std::array<Design, 6> kSingleDesigns = {
    {{32, 8, 1}, {64, 8, 1}, {64, 16, 1}, {64, 32, 1}, {64, 8, 8}, {64, 8, 16}}};
constexpr std::array<Design, 6> kDoubleDesigns = {
    {{32, 8, 1}, {32, 16, 1}, {128, 8, 1}, {32, 8, 8}, {32, 8, 16}, {128, 8, 8}}};

std::vector<Step> designed_steps(const Design& design, std::size_t lanes) {
  const auto& [chunk, rows, blocks] = design;
  const std::size_t block = chunk * rows;
  const std::size_t tile = block * blocks;  // where the tile begins, if there is one
  std::vector<Step> steps;
  for (std::size_t b = 0; b < blocks; ++b) {
    const std::size_t kept = blocks == 1 ? 0 : tile;
    for (std::size_t at = 0; at < block; at += chunk) {
      steps.push_back({vectors(false, 's', b * block + at, chunk / lanes, lanes),
                       vectors(true, 'b', kept + at, chunk / lanes, lanes)});
    }
    for (std::size_t at = 0; blocks > 1 && at < chunk; at += lanes) {
      steps.push_back({vectors(false, 'b', tile + at, rows, chunk),
                       vectors(true, 'b', b * block + at, rows, chunk)});
    }
  }
  const std::size_t last_rows = blocks == 1 ? rows : blocks;
  const std::size_t last_row = blocks == 1 ? chunk : block;
  for (std::size_t at = 0; at < last_row; at += lanes) {
    steps.push_back({vectors(false, 'b', at, last_rows, last_row),
                     vectors(true, 'd', at, last_rows, last_row)});
  }
  return steps;
}

template <class Float>
void check_large(const std::array<Design, 6>& designs, std::size_t lanes) {
  for_orders<8, 13>([&](auto order) {
    SCOPED_TRACE(order);
    const Run<Float> run = traced_run<Float, order>();
    EXPECT_EQ(run.lanes, lanes);
    expect_steps(run, designed_steps(designs[order - 8], lanes));
    expect_counts(run, order);
  });
}

TEST(Network, LargeOrdersWalkThroughTheBufferAsDesigned) {
  check_large<float>(kSingleDesigns, 4);
  check_large<double>(kDoubleDesigns, 2);
}

template <class Float, class Access>
void check_alignments() {
  for_orders<8, 13>([&](auto order) {
    const Run<Float> run = traced_run<Float, order, Access>();
    EXPECT_TRUE(run.right) << order;
    EXPECT_EQ(run.caller_aligned, std::set{kIsAligned<Access>}) << order;
    EXPECT_EQ(run.buffer_aligned, std::set{true}) << order;
  });
}

TEST(Network, OnlyTheCallersArraysAreAccessedByPath) {
  check_alignments<float, lanes::Aligned>();
  check_alignments<float, lanes::Anywhere>();
  check_alignments<double, lanes::Aligned>();
  check_alignments<double, lanes::Anywhere>();
}

}  // namespace
}  // namespace haldgen::wht::test
