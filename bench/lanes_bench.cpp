// The operations on lanes, each by itself, in ns per vector from and to the first-level cache: one that falls apart
// into single elements shows at once. Compiled for the level of the build.
#include <benchmark/benchmark.h>

#include <array>
#include <string>
#include <tuple>
#include <vector>

#include "lanes/byte_pairs.h"
#include "lanes/interleave.h"
#include "lanes/lanes.h"
#include "lanes/lanes_math.h"
#include "lanes/lanes_sum.h"
#include "lanes/planes.h"
#include "lanes/round.h"
#include "lanes/scan.h"
#include "lanes/simd.h"
#include "lanes/windows.h"

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
  time<V>("storeColours, part/" + type, [n = laneCount<T> / 2 + 1](V v) {
    V to;
    int count = n;
    benchmark::DoNotOptimize(count);
    storeColours<4>(&to, v, count);
    benchmark::DoNotOptimize(to);
    return to;
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

// K vectors narrowed to one; the result is counted once.
template <class To, class From>
void addJoined() {
  using V = Lanes<From, laneCount<From>>;
  if constexpr (constexpr int k = kJoined<To, V>; k > 1)
    time<V>(std::string("saturate, joined/") + kName<From> + kName<To>, [](V v) {
      std::array<V, k> all;
      for (int i = 0; i < k; ++i) all[std::size_t(i)] = v + From(i);
      return saturate<To>(all);
    });
}

// Whole lanes moved about, and looked up.
template <class T>
void addMoves() {
  using V = Lanes<T, laneCount<T>>;
  const std::string type = kName<T>;
  time<V>("alternate/" + type, [](V v) { return alternate<1>(v, V(v + T(1))); });
  time<V>("interleaved/" + type, [](V v) { return interleaved<1>(v, V(v + T(1))); });
  time<V>("oneBefore/" + type, [](V v) { return oneBefore(v, V(v + T(1))); });
  if constexpr (std::is_integral_v<T>) {
    time<V>("runningTotals, of three/" + type, [](V v) { return runningTotals<3>(v); });
    time<V>("roundShift/" + type, [](V v) { return roundShift(v, 3); });
    time<V>("roundShiftFull/" + type, [](V v) { return roundShiftFull(v, 3); });
  }
}

void addTables() {
  static const std::vector<Hux8u> bytes(256, 1);
  static const std::vector<Hux16s> words(32, 1);
  static const std::vector<Hux64f> doubles(16, 1);
  static const std::vector<Hux32f> floats(128, 1);
  using Longs = Lanes<std::uint64_t, laneCount<Hux64s>>;
  using Words = Lanes<Hux16u, laneCount<Hux16u>>;
  using Ints = Lanes<Hux32s, laneCount<Hux32s>>;
  time<Longs>("LaneTable/64f", [table = LaneTable<Hux64f, 16>(doubles.data())](Longs v) { return table(v); });
  time<Words>("LaneTable/16s", [table = LaneTable<Hux16s, 32>(words.data())](Words v) { return table(v); });
  time<Ints>("gatherLanes", [](Ints v) { return gatherLanes<Lanes<Hux32f, lanesIn<Ints>>>(floats.data(), v); });
  time<WindowBytes>("pickBytes", [](WindowBytes v) { return pickBytes(v, v & 15); });
#if defined(__AVX512VBMI__)
  time<WindowBytes>("LaneTable/8u", [table = LaneTable<Hux8u, 256>(bytes.data())](WindowBytes v) { return table(v); });
#elif defined(__AVX2__)
  using Shuffled = ByteShuffles::V;
  time<Shuffled>("ByteShuffles, four", [table = ByteShuffles(bytes.data())](Shuffled v) {
    return table(std::array{v, v, v, v});
  });
#endif
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
  using simd::Quad;
  time<Quad>("toPlanes, three", [](Quad v) {
    Quad all[3] = {v, v + 1, v + 2};
    simd::toPlanes<1>(all);
    return std::to_array(all);
  });
  time<Quad>("fromPlanes, three", [](Quad v) {
    Quad all[3] = {v, v + 1, v + 2};
    simd::fromPlanes<1>(all);
    return std::to_array(all);
  });
  time<Quad>("reversed", [](Quad v) { return simd::reversed<1>(v); });
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
  using Unsigned = Lanes<Hux32u, laneCount<Hux32u>>;
  time<Unsigned>("mulHigh/32u", [](Unsigned v) { return mulHigh(v, splat<Unsigned>(0x10001)); });
  time<Bytes>("bytePairs, pairProducts, gathered", [](Bytes v) {
    const auto pairs = bytePairs(v, Bytes(v + 1));
    const auto products = [&](std::size_t i) { return pairProducts(pairs[i], pairs[i]) >> 7; };
    return gathered(std::array{products(0), products(1), products(2), products(3)});
  });
  time<Longs>("storeWhere", [](Longs v) {
    std::uint64_t to[2 * lanesIn<Longs>];
    const int n = storeWhere(to, bitsAs<Lanes<std::uint64_t, lanesIn<Longs>>>(v), v > 50);
    benchmark::DoNotOptimize(to);
    return n;
  });
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
  addJoined<Hux8u, Hux16s>(), addJoined<Hux8u, Hux16u>(), addJoined<Hux16s, Hux32s>(), addJoined<Hux16u, Hux32s>();
  addJoined<Hux8u, Hux32s>(), addJoined<Hux8s, Hux32s>();
  addMoves<Hux8u>(), addMoves<Hux16u>(), addMoves<Hux32s>(), addMoves<Hux32f>(), addMoves<Hux64f>();
  addFloats<Hux32f>(), addFloats<Hux64f>(), addTables();
  addBytes(), addSums();
}
