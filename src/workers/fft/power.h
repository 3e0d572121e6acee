// Transforms of 2^m complex numbers, and of real numbers by way of them: plans, tables and the passes along a row.
//
// The passes, by the complex order m:
//
//   0 to 3      a kernel without tables, scaled at its first sums
//   to 10       radix 4 without factors, radix 2 where m is odd, then radix 4 up to the length; then the scaling
//   11, 12      so each block of 1024, and its scaling; then the blocks are merged by radix 2
//   13 and up   as a matrix of S = 2^s rows: each row by the rules for its own order m - s, its scaling included; then
//               the columns, multiplied by the factors between rows and columns, by the passes up to 10
//
// The input is taken in bit-reversed order. How numbers travel between passes is nobody's business but theirs: the
// permutation happens within the first pass, which for long transforms also gathers the rows of the matrix, and in
// between the parts of the numbers lie apart, as vectors want them.
#pragma once

#include "core/context.h"
#include "workers/fft/butterfly.h"

namespace hux::fft {

inline constexpr int kMostOrder = 30;
inline constexpr int kBlockOrder = 10;  // longest run of radix-4 passes
inline constexpr int kMergeOrder = 12;  // longest transform that is merged from blocks
inline constexpr int kMostLevels = 3;

// The rows split off at each level, as a power of two, by the complex order; 0 where none are.
constexpr int rowsOrder(int order) {
  if (order <= kMergeOrder) return 0;
  if (order <= 16) return order - 8;
  return order <= 18 ? 8 : order <= 22 ? 10 : order <= 24 ? 8 : 10;
}

// What the flag of creation decides, for transforms of `length` numbers.
struct Scaling {
  Hux32u forward = 0, inverse = 0;
  Hux32f factor = 1;

  template <Way W>
  bool on() const {
    return W == Way::forward ? forward != 0 : inverse != 0;
  }
};
HuxStatus scalingOf(Hux32s flag, Index length, Scaling& scaling);

// exp(-2 pi i k / n) for k of 0 and above, to within 2^-52 and exactly symmetric: only angles of the first eighth of
// the circle are computed.
Split<Hux64f> rootOf(Index k, Index n);

// exp(-2 pi i k / n) for all k and n = 2^order, n at least 8, from a table of one quarter of the sine in single
// precision: the one source of all factors of a plan.
class Waves {
 public:
  static Index entries(int order) { return (Index(1) << order) / 4 + 1; }
  // The table is written to `memory`, which holds entries(order) numbers.
  Waves(int order, Hux32f* memory);
  Waves() = default;

  int order() const { return order_; }
  Split<Hux32f> turn(Index k) const;             // the k-th of n
  Split<Hux32f> turn(Index k, int order) const;  // the k-th of 2^order, not above n

 private:
  Hux32f sine(Index k) const;
  int order_ = 0;
  const Hux32f* quarter_ = nullptr;
};

// The plan of a complex transform. Its tables lie in the block of the record that holds it, and every routine takes
// that block's address.
struct PowerPlan {
  Hux32s order = 0;
  Scaling scaling;
  At<Hux32f> passes;  // of the innermost runs of radix 4
  At<Hux32f> merges;
  At<Hux32f> columnPasses[kMostLevels];  // by level, outermost first
  At<Hux32f> crossings[kMostLevels];

  void take(Arena& arena);  // places the tables; order is set
  void fill(void* block, const Waves& waves) const;
};

// What a transform of an order needs and reports. In 64 bits: reports beyond a signed 32-bit number are refused.
std::int64_t tablesBytes(int order);
std::int64_t scratchBytes(int order);
std::int64_t workBytes(int order);

// src may be dst. `work` holds workBytes.
template <Way W>
void transform(const void* block, const PowerPlan& plan, const Hux32fc* src, Hux32fc* dst, std::byte* work);

// The plan of a real transform of 2^order numbers: order is the public one, `half` that of half as many complex
// numbers.
struct RealPlan {
  Hux32s order = 0;
  PowerPlan half;
  At<Hux32f> recombineForward, recombineInverse;

  void take(Arena& arena);
  void fill(void* block, const Waves& waves) const;
};

// How a real spectrum of N numbers lies in N floats: R(0), R(N/2), R(1), I(1), ..., or with R(N/2) at the end.
enum class Order { perm, pack };

template <Order O>
void transformReal(const void* block, const RealPlan& plan, const Hux32f* src, Hux32f* dst, std::byte* work);
template <Order O>
void transformToReal(const void* block, const RealPlan& plan, const Hux32f* src, Hux32f* dst, std::byte* work);

// The tables of recombination of a real sequence of n numbers with its half, from factor(k) = exp(-2 pi i k / n), for
// any even n: floats in them, as many whatever the lanes, since sizes of contexts are reported, and their contents.
constexpr Index recombinationFloats(Index n) { return (n / 4 + 7) / 8 * 8 * 2; }
template <class Factor>
void fillRecombination(Hux32f* forward, Hux32f* inverse, Index n, Factor factor) {
  const Index units = recombinationFloats(n) / (2 * kSplitLanes);
  for (Index u = 0; u < units; ++u)
    for (int l = 0; l < kSplitLanes; ++l) {
      const Index k = 1 + u * kSplitLanes + heldBy<SplitLanes>(l);
      const Split<Hux32f> w = k <= n / 4 ? factor(k) : Split<Hux32f>{0, 0};
      Hux32f *f = forward + u * 2 * kSplitLanes + l, *i = inverse + u * 2 * kSplitLanes + l;
      f[0] = Hux32f(0.5 * w.re), f[kSplitLanes] = Hux32f(0.5 + 0.5 * w.im);
      i[0] = w.re, i[kSplitLanes] = w.im;
    }
}

// The spectrum of n real numbers, n even, from the transform of half as many complex ones, and back: src may be dst.
// Whichever order the spectrum has, the half has its own.
template <Order O>
void cRealRecombine(const Hux32f* src, Hux32f* dst, Index n, const Hux32f* table);
template <Order O>
void cCcsRecombine(const Hux32f* src, Hux32f* dst, Index n, const Hux32f* table);

// --- Tables of passes, which the transforms across columns read as well.

// Floats of the factors of the radix-4 passes behind the kernels, up to 2^order.
Index passesFloats(int order);
// Elements of the groups that the kernel of an order makes.
constexpr int kernelOrder(int order) { return order % 2 ? 3 : 4; }

}  // namespace hux::fft
