// Transforms of any length: plans by the kind of the length, complex and real.
//
//   3 and the powers of two   their own kernels and passes
//   products of factors that are all below 151: mixed radix
//   otherwise, longer than 150 (180 for real odd lengths): a chirp, which makes a convolution of the transform
//   otherwise the sum as it stands
//
// Real sequences of an even length go by way of half as many complex numbers.
#pragma once

#include "workers/fft/power.h"

namespace hux::fft {

enum class Method : Hux32s { three, power, factors, chirp, direct };

// The longest length, but for real odd ones, whose transform is the sum as it stands where it has no factors.
inline constexpr Index kLongestDirect = 150;

inline constexpr int kMostFactors = 20;  // 3^20 is beyond all lengths

struct LengthPlan {
  Hux32s length = 0;
  Method method{};
  Scaling scaling;
  PowerPlan power;  // the whole, or the convolution of the chirp

  // Mixed radix, the deepest pass first: what steps a pass has, the product of their factors, and the length of the
  // parts that it joins.
  Hux32s passes = 0;
  Hux32s kind[kMostFactors] = {}, all[kMostFactors] = {}, parts[kMostFactors + 1] = {};
  At<Hux32f> turns[kMostFactors];  // in the order in which a pass takes them
  At<Hux32f> roots[kMostFactors];  // of the circle, for factors above 5

  At<Hux32f> matrix;  // direct: cosines and sines, by rows
  At<Hux32fc> chirp, chirpSpectrum;

  std::int64_t work = 0;  // bytes; may be beyond what can be reported

  // Chooses the method and places the tables; length is set. Kernels are left out where a real sequence has them in its
  // own way. fill needs memory of its own for the longest chirps.
  void take(Arena& arena, bool kernels, Index longestDirect);
  HuxStatus fill(void* block) const;
};

// src may be dst; `work` holds plan.work bytes.
template <Way W>
void transform(const void* block, const LengthPlan& plan, const Hux32fc* src, Hux32fc* dst, std::byte* work);

struct RealLengthPlan {
  Hux32s length = 0;
  RealPlan power;
  LengthPlan inner;  // of half the length where that is even, else of the whole
  Scaling scaling;
  At<Hux32f> recombineForward, recombineInverse;
  std::int64_t work = 0;

  bool byPower() const { return (length & (length - 1)) == 0; }
  void take(Arena& arena);
  HuxStatus fill(void* block) const;
};

// A spectrum in the order pack; of an odd length it ends with a pair.
void transformReal(const void* block, const RealLengthPlan& plan, const Hux32f* src, Hux32f* dst, std::byte* work);
void transformToReal(const void* block, const RealLengthPlan& plan, const Hux32f* src, Hux32f* dst, std::byte* work);

}  // namespace hux::fft
