// What approximations of more precision than a float has are made of, on lanes of single precision: values as sums of
// two floats, tables in registers, rough reciprocals. The approximations of this tree have known errors and never show
// (see workers/nearest.h), so the units of the machine that these lean on may differ in their last bits.
#pragma once

#include "lanes/held.h"
#include "lanes/lanes_math.h"

namespace hux {

// Whether mulAdd rounds once on whole vectors. Then mulAdd(a, b, -(a * b)) is what the product has lost, exactly.
#if defined(__FMA__) || defined(__AVX512F__) || defined(__aarch64__)
inline constexpr bool kFuses = true;
#else
inline constexpr bool kFuses = false;
#endif
// Whether functions that are narrowed to floats are computed by pairs. Where tables stand in registers, double
// precision is as fast.
inline constexpr bool kByPairs = kFuses && !kTablesInRegisters;

// Constants of a loop, held in registers.
template <class V>
V constant(Hux64f value) {
  return held(splat<V>(LaneType<V>(value)));
}

// 1 / v and 1 / sqrt(v) to within a relative 2^-11.
template <class V>
V roughReciprocal(V v) {
  return splat<V>(1) / v;
}
template <class V>
V roughInverseRoot(V v) {
  return splat<V>(1) / squareRoot(v);
}
#if defined(__AVX2__)
inline Lanes<Hux32f, 8> roughReciprocal(Lanes<Hux32f, 8> v) { return _mm256_rcp_ps(v); }
inline Lanes<Hux32f, 8> roughInverseRoot(Lanes<Hux32f, 8> v) { return _mm256_rsqrt_ps(v); }
#elif defined(__SSE2__)
inline Lanes<Hux32f, 4> roughReciprocal(Lanes<Hux32f, 4> v) { return _mm_rcp_ps(v); }
inline Lanes<Hux32f, 4> roughInverseRoot(Lanes<Hux32f, 4> v) { return _mm_rsqrt_ps(v); }
#endif

// A table of eight floats, held in a register where one of eight lanes is the machine's.
#if defined(__AVX2__) && !defined(__AVX512BW__)
template <>
struct LaneTable<Hux32f, 8> {
  Lanes<Hux32f, 8> all;
  explicit LaneTable(const Hux32f* entries) : all(loadLanes<Lanes<Hux32f, 8>>(entries)) {}
  Lanes<Hux32f, 8> operator()(Lanes<Hux32u, 8> index) const { return _mm256_permutevar8x32_ps(all, __m256i(index)); }
};
#endif

}  // namespace hux
