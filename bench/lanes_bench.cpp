// The operations on lanes, each by itself, in ns per vector from and to the first-level cache: one that falls apart
// into single elements shows at once. Compiled for the level of the build.
#include <benchmark/benchmark.h>

#include <string>
#include <tuple>

#include "lanes/lanes.h"
#include "lanes/lanes_math.h"
#include "lanes/lanes_sum.h"
#include "lanes/round.h"
#include "lanes/simd.h"

namespace {

using namespace hux;

constexpr int kVectors = 64;

// Registers the timing of op on vectors of the types of V; they hold small numbers.
template <class... V, class Op>
void time(std::string name, Op op) {
  benchmark::RegisterBenchmark(name.c_str(), [op](benchmark::State& state) {
    using Result = decltype(op(V{}...));
    static std::tuple<V[kVectors]...> in;
    static Result out[kVectors];
    const auto fill = [](auto& vectors) {
      for (auto& v : vectors)
        for (int i = 0; i < int(sizeof v / sizeof v[0]); ++i)
          v[i] = std::remove_reference_t<decltype(v[i])>(i % 100 + 1);
    };
    std::apply([&](auto&... vectors) { (fill(vectors), ...); }, in);
    for (auto _ : state) {
      for (int i = 0; i < kVectors; ++i) out[i] = op(std::get<V[kVectors]>(in)[i]...);
      benchmark::DoNotOptimize(out);
      benchmark::ClobberMemory();
    }
    state.counters["per vector"] =
        benchmark::Counter(kVectors, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
  });
}

template <class T>
constexpr const char* kName = "";
#define NAME(t) \
  template <>   \
  constexpr const char* kName<Hux##t> = #t
NAME(8u);
NAME(8s);
NAME(16u);
NAME(16s);
NAME(32u);
NAME(32s);
NAME(64s);
NAME(32f);
NAME(64f);
#undef NAME

template <class To, class From>
void addConversion() {
  using V = Lanes<From, std::min(laneCount<To>, laneCount<From>)>;
  const std::string pair = std::string(kName<From>) + kName<To>;
  time<V>("convert/" + pair, [](V v) { return convert<To>(v); });
  if constexpr (std::is_integral_v<From> && sizeof(To) < sizeof(From))
    time<V>("saturate/" + pair, [](V v) { return saturate<To>(v); });
}
template <class From, class... To>
void addConversions() {
  (addConversion<To, From>(), ...);
}

template <class T>
void addSelections() {
  using V = Lanes<T, laneCount<T>>;
  const std::string type = kName<T>;
  time<V>("lesser/" + type, [](V v) { return lesser(v, splat<V>(7)); });
  time<V>("select/" + type, [](V v) { return v > splat<V>(7) ? v : splat<V>(3); });
  time<V>("loadLanes, part/" + type, [n = laneCount<T> / 2 + 1](const V& v) {
    int count = n;
    benchmark::DoNotOptimize(count);
    return loadLanes<V>(&v, count, T(0));
  });
  if constexpr (lanesIn<V> % 4 == 0)
    time<V>("storeColours, three/" + type, [](V v) {
      V to;
      storeColours<3>(&to, v);
      benchmark::DoNotOptimize(to);
      return to;
    });
  if constexpr (std::is_integral_v<T> && sizeof(T) <= 2) {
    time<V>("addSaturated/" + type, [](V v) { return addSaturated(v, splat<V>(100)); });
    time<V>("subSaturated/" + type, [](V v) { return subSaturated(v, splat<V>(100)); });
    if constexpr (sizeof(T) == 2) time<V>("mulHigh/" + type, [](V v) { return mulHigh(v, splat<V>(321)); });
  }
}

template <class F>
void addFloats() {
  using V = Lanes<F, laneCount<F>>;
  const std::string type = kName<F>;
  time<V>("nearestInteger/" + type, [](V v) { return nearestInteger(v); });
  time<V>("truncated/" + type, [](V v) { return truncated(v); });
  time<V>("squareRoot/" + type, [](V v) { return squareRoot(v); });
  time<V>("mulAdd/" + type, [](V v) { return mulAdd(v, v, v); });
}

// Three bytes of which each comes from another third of the vectors.
struct Merge {
  static constexpr int source(int j) { return j % 3 * simd::kBytes + j / 3; }
};

void addBytes() {
  using simd::Vec;
  time<Vec>("permute, three to one", [](Vec v) {
    const Vec in[3] = {v, v + 1, v + 2};
    return simd::permute<Merge, 3>(in);
  });
  time<Vec>("PermuteBy", [by = simd::PermuteBy(Vec{1, 0, 3, 2, 17, 16})](Vec v) { return by(v, v + 1); });
  time<Vec>("permuteBy", [](Vec v) { return simd::permuteBy(v, v + 1, v & 15); });
  time<Vec>("zip", [](Vec v) { return simd::zip<2, true>(v, v + 1); });
  time<Vec>("load, part", [](const Vec& v) { return simd::load(&v, simd::Mask(0x3ff)); });
  time<Vec>("nonZero", [](Vec v) { return simd::nonZero(v); });
  static std::uint8_t bytes[64] = {1, 0, 1};
  time<Vec>("nonZeroBytes", [](Vec) { return simd::nonZeroBytes(bytes); });
}

void addSums() {
  using Bytes = Lanes<Hux8u, laneCount<Hux8u>>;
  using Words = Lanes<Hux16s, laneCount<Hux16s>>;
  using Longs = Lanes<Hux64s, laneCount<Hux64s>>;
  time<Bytes>("sumsOfEight", [](Bytes v) { return sumsOfEight(v); });
  time<Words>("pairProducts", [](Words v) { return pairProducts(v, v); });
  time<Words>("magnitude/16s", [](Words v) { return magnitude(v); });
  time<Words>("any", [](Words v) { return any(v > 100); });
  time<Longs>("mulLow", [](Longs v) { return mulLow(v, v); });
  time<Longs>("highToDouble", [](Longs v) { return highToDouble(bitsAs<Lanes<std::uint64_t, laneCount<Hux64s>>>(v)); });
}

}  // namespace

void addCases() {
  addConversions<Hux8u, Hux16u, Hux16s, Hux32s, Hux32f>(), addConversions<Hux8s, Hux16s, Hux32s, Hux32f>();
  addConversions<Hux16u, Hux8u, Hux32u, Hux32s, Hux32f>(), addConversions<Hux16s, Hux8u, Hux8s, Hux32s, Hux32f>();
  addConversions<Hux32u, Hux8u, Hux16u>(), addConversions<Hux32s, Hux8u, Hux8s, Hux16u, Hux16s, Hux64s, Hux64f>();
  addConversions<Hux64s, Hux32s>(), addConversions<Hux32f, Hux64f>(), addConversions<Hux64f, Hux32f>();
  addSelections<Hux8u>(), addSelections<Hux16u>(), addSelections<Hux16s>(), addSelections<Hux32u>();
  addSelections<Hux32s>(), addSelections<Hux64s>(), addSelections<Hux32f>(), addSelections<Hux64f>();
  addFloats<Hux32f>(), addFloats<Hux64f>();
  addBytes(), addSums();
}
