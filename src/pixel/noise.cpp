// AddRandUniform_Direct and AddRandGauss_Direct: noise of a fixed generator, added to an image in place.
#include <algorithm>
#include <cmath>

#include "core/stamp.h"
#include "huxi_pixel.h"
#include "lanes/elementwise.h"
#include "lanes/lanes_math.h"
#include "workers/logarithm.h"
#include "workers/move.h"
#include "workers/nearest.h"
#include "workers/portable.h"

namespace hux {
namespace {

constexpr Hux32u congruential(Hux32u x, int steps = 1) {
  for (; steps > 0; --steps) x = x * 69069 + 1013904243;
  return x;
}

// The sum of two sequences of 32-bit words, modulo 2^32: the differences of the words two and three steps back with a
// carry, and a linear congruential one, which starts alike in each call. A block of steps is made at a time, ahead of
// their use: first the differences, each of which waits for the one before it, then the sums, which do not.
class Generator {
 public:
  static constexpr int kSteps = 256;

  explicit Generator(Hux32u seed) : x0_(seed), x1_(congruential(x0_)), gap_(x1_ - congruential(x1_)) {
    Hux32u value = 1131199209;
    for (int i = 0; i < lanes; ++i) values_[i] = value = congruential(value);
  }

  // (Not inlined, so that the state has registers.)
  [[gnu::noinline]] void refill() {
    // The gap between the older words is known a step before the carry.
    Hux32u x0 = x0_, x1 = x1_, gap = gap_, carry = carry_;
    for (Hux32u& word : words_) {
      const Hux32u difference = gap + carry;
      carry = -(difference >> 31);
      gap = x0 - x1, x1 = x0;
      word = x0 = difference - (18 & carry);
    }
    x0_ = x0, x1_ = x1, gap_ = gap, carry_ = carry;
    V values = values_;
    for (int i = 0; i < kSteps; i += lanes) {
      storeLanes(outputs_ + i, loadLanes<V>(words_ + i) + values);
      values = values * kFactor + kTerm;
    }
    values_ = values;
  }

  const Hux32u* outputs() const { return outputs_; }
  // The seed that goes on behind this step of the block.
  Hux32u seedAfter(int step) const { return words_[step]; }

 private:
  static constexpr int lanes = laneCount<Hux32u>;
  using V = Lanes<Hux32u, lanes>;
  // As many steps at once: the difference of two values is multiplied, what 0 becomes is added.
  static constexpr Hux32u kTerm = congruential(0, lanes), kFactor = congruential(1, lanes) - kTerm;

  Hux32u x0_, x1_, gap_, carry_ = -1u;
  V values_;
  Hux32u words_[kSteps], outputs_[kSteps];
};

constexpr int kLanes = laneCount<Hux64f>;
using Doubles = Lanes<Hux64f, kLanes>;
using Ints = Lanes<Hux32s, kLanes>;

// What noise comes to: the sum with a float, or an integer that is added to integers. Uniform noise lies between its
// limits and normal noise within ten deviations of its mean, so that 32 bits hold it and its sum with any element.
template <class T>
auto settled(Lanes<T, kLanes> e, Doubles noise) {
  if constexpr (std::is_floating_point_v<T>)
    return convert<T>(convert<Hux64f>(e) + noise);
  else
    return convert<Hux32s>(noise);
}
template <class T, class V>
Lanes<T, kLanes> added(Lanes<T, kLanes> e, V settled) {
  if constexpr (std::is_floating_point_v<T>)
    return settled;
  else
    return saturate<T>(convert<Hux32s>(e) + settled);
}

// A kind of noise adds itself to one row of elements after the other.
template <class T>
class UniformNoise {
 public:
  UniformNoise(Hux32u seed, Hux64f low, Hux64f high)
      : generator_(seed), rule_{(high - low) * 2.3283064365387e-10, (low + high) * 0.5} {}

  void add(Element<T>* row, Index n) {
    while (n > 0) {
      if (used_ == Generator::kSteps) generator_.refill(), used_ = 0;
      const Index count = std::min<Index>(n, Generator::kSteps - used_);
      const auto* r = elementsAs<Hux32s>(generator_.outputs() + used_);
      zipRow<C1>(row, r, row, count, rule_);
      row += count, n -= count, used_ += int(count);
    }
  }
  Hux32u seed() const { return generator_.seedAfter(used_ - 1); }

 private:
  struct Rule {
    static constexpr int lanes = kLanes;
    Hux64f scale, middle;
    Lanes<T, lanes> operator()(Lanes<T, lanes> e, Ints r) const {
      return added<T>(e, settled<T>(e, convert<Hux64f>(r) * scale + middle));
    }
  };
  Generator generator_;
  Rule rule_;
  int used_ = Generator::kSteps;  // of the block
};

// The polar method: a pair of numbers (u, v) inside the unit circle makes two elements. A row starts with a new pair.
// A pair lies as its 32-bit numbers in one word.
using Pairs = Lanes<std::uint64_t, kLanes>;
template <class D>
D unit(D r) {
  return r * 4.656612873077e-10;
}
template <class D>
D squaredNorm(D u, D v) {
  return v * v + u * u;
}
template <class D>
auto inside(D w) {
  return (w < 1.0) & (w != 0);
}
Doubles squaredNorms(Pairs p) {
  using Longs = Lanes<Hux64s, kLanes>;
  const auto number = [](Pairs r) { return unit(convert<Hux64f>(convert<Hux32s>(Longs(r)))); };
  return squaredNorm(number(p), number(p >> std::uint64_t(32)));
}
struct Pair {
  Hux64f u, v, w;
  explicit Pair(std::uint64_t p)
      : u(unit(Hux64f(Hux32s(Hux32u(p))))), v(unit(Hux64f(Hux32s(Hux32u(p >> 32))))), w(squaredNorm(u, v)) {}
};

// The operand of the rule: the numbers of pairs, and the factors that make them deviates, to within a relative
// kFactorError.
constexpr Hux64f kFactorError = 0x1p-36;
template <class Log>
Doubles factorsOf(Doubles w, const Log& logarithm, Hux64f stdDev) {
  return stdDev * squareRoot(logarithm(w) * -2.0 / w);
}
struct Deviates {
  static constexpr int period = 1;
  const std::uint64_t* pairs;
  const Hux64f* factors;

  struct Numbers {
    Doubles units, factors;
    const std::uint64_t* pairs;
    int count;
  };
  Numbers load(Index i, int phase) const { return load(i, phase, kLanes); }
  // (There is room for whole vectors behind both.)
  Numbers load(Index i, int, int count) const {
    const auto each = loadLanes<Lanes<Hux64f, kLanes / 2>>(factors + i / 2);
    const Doubles both = [&]<int... I>(std::integer_sequence<int, I...>) {
      return __builtin_shufflevector(each, each, (I / 2)...);
    }
    (std::make_integer_sequence<int, kLanes>{});
    return {unit(convert<Hux64f>(loadLanes<Ints>(pairs + i / 2))), both, pairs + i / 2, count};
  }
};

template <class T>
class GaussNoise {
 public:
  GaussNoise(Hux32u seed, Hux64f mean, Hux64f stdDev) : generator_(seed), rule_{mean, stdDev} {}

  void add(Element<T>* row, Index n) {
    while (n > 0) {
      while (used_ == count_) refill();
      const Index count = std::min<Index>(n, 2 * (count_ - used_));
      applyRule<C1>(row, count, rule_, FromRow<T, kLanes>{row}, Deviates{pairs_ + used_, factors_ + used_});
      row += count, n -= count, used_ += int(count + 1) / 2;
    }
  }
  // That behind the last pair that was used, which is sought among all of the block.
  Hux32u seed() const {
    int step = -1;
    for (int pairs = 0; pairs < used_; pairs += inside(Pair(loadPair(step - 1)).w)) step += 2;
    return generator_.seedAfter(step);
  }

 private:
  static constexpr int kPairs = Generator::kSteps / 2;

  std::uint64_t loadPair(int step) const {
    std::uint64_t pair;
    std::memcpy(&pair, generator_.outputs() + step, sizeof pair);
    return pair;
  }

  // The approximate logarithm in the factors never shows: where the interval that the noise lies in does not settle,
  // which is rare, a better one decides, and if need be the accurate function.
  struct Rule {
    static constexpr int lanes = kLanes;
    Hux64f mean, stdDev;
    using Elements = Lanes<T, lanes>;
    Elements operator()(Elements e, Deviates::Numbers d) const {
      return added<T>(e, within(kFactorError, e, d.units, d.factors, [&] { return careful(e, d); }));
    }

   private:
    template <class All>
    auto within(Hux64f error, Elements e, Doubles units, Doubles factors, All all) const {
      const auto sum = [&](Doubles f) { return settled<T>(e, units * f + mean); };
      return decided(sum(factors * (1 - error)), sum(factors * (1 + error)), all);
    }
    [[gnu::noinline]] auto careful(Elements e, Deviates::Numbers d) const {
      Doubles w = splat<Doubles>(0.5);
      for (int i = 0; i < d.count; ++i) w[i] = Pair(d.pairs[i / 2]).w;
      return within(0x1p-46, e, d.units, factorsOf(w, LongLogarithm(), stdDev),
                    [&] { return settled<T>(e, accurate(d.pairs, d.count)); });
    }
    Doubles accurate(const std::uint64_t* pairs, int count) const {
      Doubles noise = {};
      for (int i = 0; i < count; ++i) {
        const Pair p(pairs[i / 2]);
        const Hux64f f = stdDev * std::sqrt(portable::log(p.w) * -2.0 / p.w);
        noise[i] = (i % 2 ? p.v : p.u) * f + mean;
      }
      return noise;
    }
  };

  // Replaces the pairs by those that are inside in the generator's next block.
  void refill() {
    generator_.refill();
    int count = 0;
    for (int i = 0; i < Generator::kSteps; i += 2 * kLanes) {
      const auto pairs = loadLanes<Pairs>(generator_.outputs() + i);
      count += storeWhere(pairs_ + count, pairs, inside(squaredNorms(pairs)));
    }
    const Logarithm logarithm;
    for (int i = 0; i < count; i += kLanes) {
      const Doubles w = squaredNorms(loadLanes<Pairs>(pairs_ + i));
      storeLanes(factors_ + i, factorsOf(w, logarithm, rule_.stdDev));
    }
    count_ = count, used_ = 0;
  }

  Generator generator_;
  Rule rule_;
  int count_ = 0, used_ = 0;
  // With room for the vector that a last pair begins.
  std::uint64_t pairs_[kPairs + kLanes] = {};
  Hux64f factors_[kPairs + kLanes];
};

template <class L, class Noise, class T>
HuxStatus addNoise(T* pSrcDst, int step, HuxiSize roi, T first, T second, Hux32u* pSeed) {
  if (HuxStatus s = check(pointers(pSrcDst, pSeed), size(roi), steps(step))) return s;
  auto& seed = *elements(pSeed);
  Noise noise(seed, first, second);
  const auto image = rows<L>(pSrcDst, step);
  for (Index y = 0; y < roi.height; ++y) {
    Element<T>* row = image.row(y);
    if constexpr (L::channels == L::processed) {
      noise.add(row, Index(roi.width) * L::channels);
    } else {
      // The colours are moved together, in blocks of even length, behind which a row goes on as if there were none.
      constexpr Index block = 256;
      Element<T> colours[block * L::processed];
      auto *const packed = elementsAs<Word<T>>(colours), *const image = elementsAs<Word<T>>(row);
      using Packed = Interleaved<L::processed>;
      using Pixels = Interleaved<L::channels>;
      forPieces(roi.width, block, [&](Index x, Index n) {
        auto* pixels = image + x * L::channels;
        moveRow<Word<T>, Pixels, Packed, L::processed>(pixels, packed, n);
        noise.add(colours, n * L::processed);
        moveRow<Word<T>, Packed, Pixels, L::processed>(packed, pixels, n);
      });
    }
  }
  seed = noise.seed();
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                               \
  HuxStatus huxiAddRandUniform_Direct_##t##_##l##IR(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux##t low, \
                                                    Hux##t high, Hux32u* pSeed) {                                  \
    return hux::addNoise<hux::l, hux::UniformNoise<Hux##t>>(pSrcDst, srcDstStep, roiSize, low, high, pSeed);       \
  }                                                                                                                \
  HuxStatus huxiAddRandGauss_Direct_##t##_##l##IR(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux##t mean,  \
                                                  Hux##t stdDev, Hux32u* pSeed) {                                  \
    return hux::addNoise<hux::l, hux::GaussNoise<Hux##t>>(pSrcDst, srcDstStep, roiSize, mean, stdDev, pSeed);      \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, C4, AC4))
