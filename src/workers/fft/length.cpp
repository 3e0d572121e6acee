#include "workers/fft/length.h"

#include <algorithm>
#include <cmath>

namespace hux::fft {
namespace {

constexpr int kLanes = kSplitLanes;
using V = SplitLanes;
using Z = Split<V>;
using Number = Split<Hux32f>;

constexpr int kMostFactor = 150;
constexpr Index kLongestBroad = 2000;  // longest block of which each pass goes over all of a sequence

Number narrow(Split<Hux64f> z) { return {Hux32f(z.re), Hux32f(z.im)}; }

Number numberAt(const Hux32fc* p) { return loadSplit<Hux32f>(p); }

// Number k of a spectrum of which half is there.
Number ofHalf(const Hux32f* p, Index n, Index k) {
  const auto* x = elements(p);
  if (k == 0) return {x[0], 0};
  if (k <= n / 2) return {x[2 * k - 1], x[2 * k]};
  return {x[2 * (n - k) - 1], -x[2 * (n - k)]};
}

// --- Transforms of one factor's length, in lanes. z is in the sequence's own order, and so is the result.

template <Way W, class U, class Scale = Unscaled>
HUX_INLINE inline void threePoints(Split<U>* z, Scale scale = {}) {
  constexpr Hux32f sin60 = 0.86602540378443865f;
  const Split<U> a = scale(z[0]), b = scale(z[1] + z[2]), c = scale(z[1] - z[2]) * sin60, d = a - b * 0.5f;
  z[0] = a + b;
  z[1] = addTurned<W>(d, c), z[2] = subTurned<W>(d, c);
}

template <Way W>
HUX_INLINE inline void fivePoints(Z* z) {
  constexpr Hux32f c1 = 0.30901699437494742f, c2 = -0.80901699437494742f;
  constexpr Hux32f s1 = 0.95105651629515357f, s2 = 0.58778525229247313f;
  const Z a = z[0], b = z[1] + z[4], c = z[2] + z[3], d = z[1] - z[4], e = z[2] - z[3];
  const Z p = a + (b * c1 + c * c2), q = a + (b * c2 + c * c1), r = d * s1 + e * s2, s = d * s2 - e * s1;
  z[0] = a + (b + c);
  z[1] = addTurned<W>(p, r), z[4] = subTurned<W>(p, r);
  z[2] = addTurned<W>(q, s), z[3] = subTurned<W>(q, s);
}

// Any odd number: the outputs q and f - q from the sums and differences of inputs that face each other.
template <Way W>
void oddPoints(Z* z, int f, const Hux32f* roots) {
  const int half = f / 2;
  Z sum[kMostFactor / 2 + 1], difference[kMostFactor / 2 + 1];
  const Z first = z[0];
  for (int r = 1; r <= half; ++r) {
    sum[r] = z[r] + z[f - r], difference[r] = z[r] - z[f - r];
    z[0] = z[0] + sum[r];
  }
  for (int q = 1; q <= half; ++q) {
    Z even = first, odd{};
    for (int r = 1, i = q; r <= half; ++r) {
      even = even + sum[r] * roots[2 * i];
      odd = odd + difference[r] * roots[2 * i + 1];
      i += q;
      if (i >= f) i -= f;
    }
    z[q] = addTurned<W>(even, odd), z[f - q] = subTurned<W>(even, odd);
  }
}

template <Way W, int F>
HUX_INLINE inline void points(Z* z) {
  if constexpr (F == 2) {
    const Z a = z[0], b = z[1];
    z[0] = a + b, z[1] = a - b;
  } else if constexpr (F == 3) {
    threePoints<W>(z);
  } else if constexpr (F == 4) {
    radix4<W>(z[0], z[2], z[1], z[3]);
    std::swap(z[1], z[2]);
  } else if constexpr (F == 5) {
    fivePoints<W>(z);
  }
}

// --- Mixed radix.
//
// A pass does one or two steps, and a step combines `factor` transforms into one. The first pass takes its numbers from
// the source, as many groups side by side as there are lanes, and leaves the transform of each group in one piece,
// where the passes behind it find it: they work on blocks of parts one behind the other, from one array to another or
// within one, and lanes are neighbouring numbers of the parts.

// The factors of the steps of a pass, in the order in which they come, the deepest first; 0 is any above 5. The first
// pass has two steps, or a factor of at least 5.
struct Kind {
  int first, second;
  constexpr bool opens() const { return second > 1 || first == 5 || first == 0; }
};
constexpr Kind kKinds[] = {{5, 5}, {5, 3}, {5, 4}, {5, 2}, {3, 3}, {3, 4}, {3, 2},
                           {4, 4}, {4, 2}, {5, 1}, {3, 1}, {4, 1}, {2, 1}, {0, 1}};
constexpr int kKindCount = int(std::size(kKinds));
constexpr int kAnyFactor = kKindCount - 1;

int kindOf(int first, int second) {
  int i = 0;
  while (i < kAnyFactor && (kKinds[i].first != first || kKinds[i].second != second)) ++i;
  return i;
}

struct Pass {
  int all;       // numbers of a butterfly: the product of the factors
  Index length;  // of the parts
  const Hux32f *turns, *roots;
};

Pass passOf(const void* block, const LengthPlan& plan, int i) {
  Pass p{plan.all[i], plan.parts[i], nullptr, nullptr};
  if (plan.turns[i]) p.turns = plan.turns[i].in(block);
  if (plan.roots[i]) p.roots = plan.roots[i].in(block);
  return p;
}

// Vectors of numbers in a part. Where the length is no multiple of the lanes, the last one covers some of the one
// before once more, or more than there is.
constexpr Index vectorsIn(Index length) { return (length + kLanes - 1) / kLanes; }
constexpr Index lastVector(Index length) { return std::max<Index>(length - kLanes, 0); }

// The butterfly of a pass: load(r) gives number r, turn(i, z) turns z by factor i of the table, store(q, z) takes
// result q. The first pass has no factors at its first step.
template <Way W, int F, int S, bool First, class Load, class Turn, class Store>
HUX_INLINE inline void butterfly(const Pass& p, Load load, Turn turn, Store store) {
  if constexpr (F == 0) {
    Z z[kMostFactor];
    for (int r = 0; r < p.all; ++r) z[r] = !First && r > 0 ? turn(r - 1, load(r)) : load(r);
    oddPoints<W>(z, p.all, p.roots);
    for (int q = 0; q < p.all; ++q) store(q, z[q]);
  } else {
    Z z[F * S];
    unrolled<S>([&](auto s) HUX_INLINE {
      Z y[F];
      unrolled<F>([&](auto r) HUX_INLINE {
        y[r] = load(r * S + s);
        if constexpr (!First && r > 0) y[r] = turn(r - 1, y[r]);
      });
      points<W, F>(y);
      unrolled<F>([&](auto q) HUX_INLINE { z[q * S + s] = y[q]; });
    });
    unrolled<F>([&](auto q) HUX_INLINE {
      Z y[S];
      unrolled<S>([&](auto s) HUX_INLINE {
        y[s] = z[q * S + s];
        if constexpr (s > 0 && !(First && q == 0)) y[s] = turn(F - 1 + q * (S - 1) + s - 1, y[s]);
      });
      points<W, S>(y);
      unrolled<S>([&](auto s) HUX_INLINE { store(q + F * s, y[s]); });
    });
  }
}

// The first pass: number r of all groups is at from + r * step, and result q goes to numbers + q * kLanes.
using Opening = void (*)(const Pass&, const Hux32fc* from, Index step, Hux32fc* numbers);
template <Way W, int F, int S>
void opening(const Pass& p, const Hux32fc* from, Index step, Hux32fc* numbers) {
  butterfly<W, F, S, true>(
      p, [&](int r) HUX_INLINE { return loadSplit<V>(from + r * step); },
      [&](int i, Z z) HUX_INLINE {
        return turned<W>(z, Z{splat<V>(p.turns[2 * i]), splat<V>(p.turns[2 * i + 1])});
      },
      [&](int q, Z z) HUX_INLINE { storeSplit(numbers + q * kLanes, z); });
}

// The others: the first `count` numbers of the parts, at least as many as there are lanes; parts lie fromStep apart,
// results toStep. The last vector covers some of the one before once more, so where count is no multiple of the lanes,
// the results go elsewhere.
using Joining = void (*)(const Pass&, const Hux32f* turns, Index count, const Hux32fc* from, Index fromStep,
                         Hux32fc* to, Index toStep);
template <Way W, int F, int S>
void joining(const Pass& p, const Hux32f* turns, Index count, const Hux32fc* from, Index fromStep, Hux32fc* to,
             Index toStep) {
  const Index last = count - kLanes;
  for (Index k = 0;; k = std::min(k + kLanes, last), turns += 2 * kLanes * ((F ? F * S : p.all) - 1)) {
    butterfly<W, F, S, false>(
        p, [&](int r) HUX_INLINE { return loadSplit<V>(from + k + r * fromStep); },
        [&](int i, Z z) HUX_INLINE { return turned<W>(z, loadParted<V>(turns + 2 * kLanes * i)); },
        [&](int q, Z z) HUX_INLINE { storeSplit(to + k + q * toStep, z); });
    if (k == last) break;
  }
}

template <Way W>
constexpr auto kOpenings = []<int... I>(std::integer_sequence<int, I...>) {
  return std::array<Opening, kKindCount>{kKinds[I].opens() ? opening<W, kKinds[I].first, kKinds[I].second>
                                                           : nullptr...};
}
(std::make_integer_sequence<int, kKindCount>{});
template <Way W>
constexpr auto kJoinings = []<int... I>(std::integer_sequence<int, I...>) {
  return std::array<Joining, kKindCount>{joining<W, kKinds[I].first, kKinds[I].second>...};
}
(std::make_integer_sequence<int, kKindCount>{});

// The places of the groups of the first pass, in their order: the digits of a group's number are the parts that it
// belongs to, those of the last pass first.
class Places {
 public:
  explicit Places(const LengthPlan& plan) : plan_(plan) {
    for (int i = 1; i < plan.passes; ++i) digit_[i] = 0;
  }
  Index next() {
    const Index place = place_;
    for (int i = plan_.passes - 1; i > 0; --i) {
      place_ += plan_.parts[i];
      if (++digit_[i] < plan_.all[i]) break;
      place_ -= Index(plan_.parts[i]) * plan_.all[i];
      digit_[i] = 0;
    }
    return place;
  }

 private:
  const LengthPlan& plan_;
  Index place_ = 0;
  int digit_[kMostFactors];
};

// bring(i, to) copies as many numbers of the sequence as there are lanes, from number i on; those behind the end are
// any.
template <Way W, class Bring>
void firstPass(const void* block, const LengthPlan& plan, const Bring& bring, Hux32fc* dst) {
  const Pass p = passOf(block, plan, 0);
  const Opening run = kOpenings<W>[std::size_t(plan.kind[0])];
  const Index groups = plan.length / p.all;
  Places places(plan);
  Hux32fc numbers[kMostFactor * kLanes], unused[kMostFactor];
  for (Index g = 0; g < groups; g += kLanes) {
    const Index count = std::min<Index>(groups - g, kLanes);
    if (bring.complexes() && count == kLanes) {
      run(p, bring.complexes() + g, groups, numbers);
    } else {
      for (int r = 0; r < p.all; ++r) bring(r * groups + g, numbers + r * kLanes);
      run(p, numbers, kLanes, numbers);
    }
    Hux32fc* to[8];
    for (int l = 0; l < 8; ++l) to[l] = l < count ? dst + places.next() : unused;
    if (kLanes < 8 || count < 4) {
      for (Index l = 0; l < count; ++l)
        for (int q = 0; q < p.all; ++q) std::memcpy(to[l] + q, numbers + q * kLanes + l, sizeof(Hux32fc));
      continue;
    }
    // The last square covers some of the one before once more.
    for (int q = 0; q < p.all; q += 4) {
      const int first = std::min(q, p.all - 4);
      const Hux32fc* from = numbers + first * kLanes;
      Hux32fc* columns[8];
      for (int l = 0; l < 8; ++l) columns[l] = to[l] + first;
      turnColumns({from, from + kLanes, from + 2 * kLanes, from + 3 * kLanes}, columns);
    }
  }
}

// A block of parts, whose results may take their place.
void pass(const Pass& p, Joining run, const Hux32fc* from, Hux32fc* to) {
  const Index length = p.length, whole = length / kLanes;
  if (length >= kLanes && (from != to || length % kLanes == 0))
    return run(p, p.turns, length, from, length, to, length);
  Hux32fc aside[kMostFactor * kLanes];
  const Index last = lastVector(length);
  if (whole > 0) {
    // The last vector comes first and is written last, for the one before changes what it reads.
    run(p, p.turns + 2 * kLanes * (p.all - 1) * whole, kLanes, from + last, length, aside, kLanes);
    run(p, p.turns, whole * kLanes, from, length, to, length);
    for (int q = 0; q < p.all; ++q) std::memcpy(to + last + q * length, aside + q * kLanes, kLanes * sizeof(Hux32fc));
  } else {
    for (int r = 0; r < p.all; ++r) storeSplit(aside + r * kLanes, loadSplit<V>(from + r * length, length));
    run(p, p.turns, kLanes, aside, kLanes, aside, kLanes);
    for (int q = 0; q < p.all; ++q) storeSplit(to + q * length, loadSplit<V>(aside + q * kLanes), length);
  }
}

// The passes from the second to number i, which goes from the one array to the other, the one before it back, and so
// on; on n numbers. Long blocks are finished one by one, so that they stay in the cache.
template <Way W>
void furtherPasses(const void* block, const LengthPlan& plan, int i, Hux32fc* from, Hux32fc* to, Index n) {
  if (i == 0) return;
  const Pass p = passOf(block, plan, i);
  const Joining run = kJoinings<W>[std::size_t(plan.kind[i])];
  const Index own = p.length * p.all;
  const bool broad = own <= kLongestBroad;
  if (broad) furtherPasses<W>(block, plan, i - 1, to, from, n);
  for (Index at = 0; at < n; at += own) {
    if (!broad) furtherPasses<W>(block, plan, i - 1, to + at, from + at, own);
    pass(p, run, from + at, to + at);
  }
}

// The result is in dst; `other` is as long, or the same. The sequence lies in neither, or in the one that the first
// pass does not write: in `other` where the number of passes is odd, else in dst.
template <Way W, class Bring>
void primeFact(const void* block, const LengthPlan& plan, const Bring& bring, Hux32fc* dst, Hux32fc* other) {
  firstPass<W>(block, plan, bring, plan.passes % 2 ? dst : other);
  furtherPasses<W>(block, plan, plan.passes - 1, other, dst, plan.length);
}

// Where a first pass takes its numbers: complex ones, real ones, or those of which half are there.
struct ComplexNumbers {
  const Hux32fc* src;
  Index n;
  const Hux32fc* complexes() const { return src; }  // as they lie
  HUX_INLINE void operator()(Index i, Hux32fc* to) const {
    if (i + kLanes <= n)
      std::memcpy(to, src + i, kLanes * sizeof(Hux32fc));
    else
      storeSplit(to, loadSplit<V>(src + i, n - i));
  }
};
struct RealNumbers {
  const Hux32f* src;
  Index n;
  static constexpr const Hux32fc* complexes() { return nullptr; }
  HUX_INLINE void operator()(Index i, Hux32fc* to) const {
    Hux32f some[kLanes] = {};
    const bool whole = i + kLanes <= n;
    if (!whole) std::memcpy(some, src + i, sizeof(Hux32f) * std::size_t(n - i));
    storeSplit(to, Z{loadReals<V>(whole ? src + i : some), V{}});
  }
};
struct HalfSpectrum {
  const Hux32f* src;
  Index n;
  static constexpr const Hux32fc* complexes() { return nullptr; }
  HUX_INLINE void operator()(Index i, Hux32fc* to) const {
    if (i > 0 && i + kLanes <= n / 2 + 1) {
      std::memcpy(to, src + 2 * i - 1, kLanes * sizeof(Hux32fc));
    } else if (i > n / 2 && i + kLanes <= n) {
      const Z z = mirrored(loadSplit<V>(src + 2 * (n - i - kLanes + 1) - 1));
      storeSplit(to, Z{z.re, -z.im});
    } else {
      for (Index l = 0; l < kLanes; ++l) storeSplit(to + l, i + l < n ? ofHalf(src, n, i + l) : Number{});
    }
  }
};

template <Way W>
void cDft_PrimeFact(const void* block, const LengthPlan& plan, const Hux32fc* src, Hux32fc* dst, Hux32fc* work) {
  if (src == dst && plan.passes % 2) {
    std::memcpy(work, src, sizeof(Hux32fc) * std::size_t(plan.length));
    src = work;
  }
  primeFact<W>(block, plan, ComplexNumbers{src, plan.length}, dst, work);
}

// --- The sum as it stands, of an odd number n. A lane is an output.

constexpr Index paddedHalf(Index n) { return (n / 2 + kLanes - 1) / kLanes * kLanes; }

// Sums over k of x[k] * cos(jk), y[k] * sin(jk) for a vector of outputs, of as many sequences as there are.
template <int Cosines, int Sines>
void sums(const Hux32f* matrix, Index n, const Hux32f* (&x)[Cosines + Sines], Index outputs,
          V (&sum)[Cosines + Sines]) {
  const Index half = n / 2, row = paddedHalf(n);
  for (V& v : sum) v = V{};
  const Hux32f* at = matrix + outputs;
  for (Index k = 0; k < half; ++k, at += 2 * row) {
    const V c = loadLanes<V>(at), s = loadLanes<V>(at + row);
    for (int i = 0; i < Cosines; ++i) sum[i] += c * x[i][k];
    for (int i = Cosines; i < Cosines + Sines; ++i) sum[i] += s * x[i][k];
  }
}

template <Way W>
void cDft_Dir(const Hux32f* matrix, Index n, const Hux32fc* src, Hux32fc* dst, Hux32f* work) {
  const Index half = n / 2;
  Hux32f* part[4];
  for (int i = 0; i < 4; ++i) part[i] = work + i * half;
  const Number first = numberAt(src);
  Number all = first;
  for (Index k = 0; k < half; ++k) {
    const Number a = numberAt(src + k + 1), b = numberAt(src + n - 1 - k), s = a + b, d = a - b;
    part[0][k] = s.re, part[1][k] = s.im, part[2][k] = d.re, part[3][k] = d.im;
    all = all + s;
  }
  const Hux32f* x[4] = {part[0], part[1], part[2], part[3]};
  for (Index j = 0; j < half; j += kLanes) {
    V sum[4];
    sums<2, 2>(matrix, n, x, j, sum);
    const Z even{sum[0] + first.re, sum[1] + first.im}, odd{sum[2], sum[3]};
    const Z low = addTurned<W>(even, odd), high = subTurned<W>(even, odd);
    for (Index i = 0; i < kLanes && j + i < half; ++i) {
      storeSplit(dst + 1 + j + i, Number{low.re[i], low.im[i]});
      storeSplit(dst + n - 1 - j - i, Number{high.re[i], high.im[i]});
    }
  }
  storeSplit(dst, all);
}

void rDftFwd_Dir(const Hux32f* matrix, Index n, const Hux32f* src, Hux32f* dst, Hux32f* work) {
  const Index half = n / 2;
  const auto* x = elements(src);
  const Hux32f first = x[0];
  Hux32f all = first;
  for (Index k = 0; k < half; ++k) {
    const Hux32f a = x[k + 1], b = x[n - 1 - k];
    work[k] = a + b, work[half + k] = a - b;
    all += work[k];
  }
  const Hux32f* y[2] = {work, work + half};
  auto* d = elements(dst);
  for (Index j = 0; j < half; j += kLanes) {
    V sum[2];
    sums<1, 1>(matrix, n, y, j, sum);
    for (Index i = 0; i < kLanes && j + i < half; ++i)
      d[1 + 2 * (j + i)] = first + sum[0][i], d[2 + 2 * (j + i)] = -sum[1][i];
  }
  d[0] = all;
}

void rDftInv_Dir(const Hux32f* matrix, Index n, const Hux32f* src, Hux32f* dst, Hux32f* work) {
  const Index half = n / 2;
  const auto* x = elements(src);
  const Hux32f first = x[0];
  Hux32f all = first;
  for (Index k = 0; k < half; ++k) {
    work[k] = x[1 + 2 * k] + x[1 + 2 * k], work[half + k] = x[2 + 2 * k] + x[2 + 2 * k];
    all += work[k];
  }
  const Hux32f* y[2] = {work, work + half};
  auto* d = elements(dst);
  for (Index j = 0; j < half; j += kLanes) {
    V sum[2];
    sums<1, 1>(matrix, n, y, j, sum);
    const V even = sum[0] + first, low = even - sum[1], high = even + sum[1];
    for (Index i = 0; i < kLanes && j + i < half; ++i) d[1 + j + i] = low[i], d[n - 1 - j - i] = high[i];
  }
  d[0] = all;
}

// --- The chirp: the transform as a convolution. chirp[k] is exp(-pi i k^2 / n).

// c = a * b, number by number; c may be either.
void multiply(const Hux32fc* a, const Hux32fc* b, Hux32fc* c, Index n) {
  for (Index i = 0; i < n; i += kLanes) {
    const Index count = n - i;
    if (count >= kLanes)
      storeSplit(c + i, turned<Way::forward>(loadSplit<V>(a + i), loadSplit<V>(b + i)));
    else
      storeSplit(c + i, turned<Way::forward>(loadSplit<V>(a + i, count), loadSplit<V>(b + i, count)), count);
  }
}

// The sequence is in `buffer`, times the chirp, of as many numbers as the convolution has; so is the result, which is
// still to be multiplied by the chirp. Behind it lies the work memory of the power of two.
void convolve(const void* block, const LengthPlan& plan, Hux32fc* buffer) {
  const Index n = Index(1) << plan.power.order;
  std::fill(buffer + plan.length, buffer + n, Hux32fc{});
  std::byte* work = roundedUp(buffer + n);
  transform<Way::forward>(block, plan.power, buffer, buffer, work);
  multiply(buffer, plan.chirpSpectrum.in(block), buffer, n);
  transform<Way::inverse>(block, plan.power, buffer, buffer, work);
}

// The inverse is the forward transform with the results but the first in the opposite order.
template <Way W>
void cDft_Conv(const void* block, const LengthPlan& plan, const Hux32fc* src, Hux32fc* dst, Hux32fc* buffer) {
  const Index n = plan.length;
  const Hux32fc* chirp = plan.chirp.in(block);
  multiply(src, chirp, buffer, n);
  convolve(block, plan, buffer);
  multiply(buffer, chirp, dst, n);
  if constexpr (W == Way::inverse)
    for (Index i = 1; i < n - i; ++i) {
      const Number a = numberAt(dst + i), b = numberAt(dst + n - i);
      storeSplit(dst + i, b), storeSplit(dst + n - i, a);
    }
}

void scaleAll(Hux32f* p, Index n, Hux32f factor) {
  auto* x = elements(p);
  for (Index i = 0; i < n; ++i) x[i] = x[i] * factor;
}

// --- Plans.

// The factors of a length whose transform is of mixed radix: fours, then a two ahead of them, then odd ones from the
// least up. None where a factor would be above 150, or the length is prime.
int testDftPrimeFact(Index n, Hux32s (&factor)[kMostFactors]) {
  int count = 0;
  Index rest = n;
  for (; rest % 4 == 0; rest /= 4) factor[count++] = 4;
  if (rest % 2 == 0) {
    if (count > 0) factor[count] = factor[0];
    factor[0] = 2;
    ++count;
    rest /= 2;
  }
  for (Index d = 3; rest >= 9 && d * d <= rest;) {
    if (d > kMostFactor) return 0;
    if (rest % d == 0)
      factor[count++] = Hux32s(d), rest /= d;
    else
      d += 2;
  }
  if (count == 0 || rest > kMostFactor) return 0;
  factor[count++] = Hux32s(rest);
  return count;
}

}  // namespace

void LengthPlan::take(Arena& arena, bool kernels, Index longestDirect) {
  const Index n = length;
  const bool isPower = (n & (n - 1)) == 0;
  work = 0;
  if (kernels && n == 3) {
    method = Method::three;
  } else if (kernels && isPower) {
    method = Method::power;
    power.order = __builtin_ctzll(std::uint64_t(n));
    power.scaling = scaling;
    power.take(arena);
    work = workBytes(power.order);
  } else if (Hux32s list[kMostFactors]; const int count = testDftPrimeFact(n, list)) {
    method = Method::factors;
    for (int i = count - 1; i >= 0; ++passes) {
      const int f = list[i--];
      // Few groups would leave most lanes of a first pass of two steps empty.
      const bool two = f <= 5 && i >= 0 && (passes > 0 || f < 5 || n > 2 * f * list[i]);
      const int s = two ? list[i--] : 1;
      kind[passes] = kindOf(f, s), all[passes] = f * s;
    }
    parts[0] = 1;
    int largest = 0;
    for (int i = 0; i < passes; ++i) {
      const Index floats = 2 * (all[i] - 1);
      if (i > 0)
        turns[i] = arena.take<Hux32f>(floats * kLanes * vectorsIn(parts[i]));
      else if (kind[i] != kAnyFactor)
        turns[i] = arena.take<Hux32f>(floats);
      if (kind[i] == kAnyFactor) roots[i] = arena.take<Hux32f>(2 * all[i]), largest = std::max(largest, all[i]);
      parts[i + 1] = parts[i] * all[i];
    }
    work = 8 * (std::int64_t(n) + largest) + 16;
  } else if (n > longestDirect) {
    method = Method::chirp;
    while (Index(1) << power.order < 2 * n - 1) ++power.order;
    power.scaling = {};
    power.take(arena);
    const Index longer = Index(1) << power.order;
    chirp = arena.take<Hux32fc>(n);
    chirpSpectrum = arena.take<Hux32fc>(longer);
    const std::int64_t inner = workBytes(power.order);
    work = (inner ? inner + 16 : 0) + 8 * std::int64_t(longer) + 16;
  } else {
    method = Method::direct;
    matrix = arena.take<Hux32f>(n / 2 * 2 * paddedHalf(n));
    work = 8 * std::int64_t(n) + 16;
  }
}

HuxStatus LengthPlan::fill(void* block) const {
  const Index n = length;
  if (method == Method::power || method == Method::chirp) {
    if (power.order > 3) {
      const Scratch<Hux32f> quarter(Waves::entries(power.order));
      if (!quarter) return huxStsNoMem;
      power.fill(block, Waves(power.order, quarter.get()));
    }
  }
  if (method == Method::factors) {
    for (int i = 0; i < passes; ++i) {
      const Pass p = passOf(block, *this, i);
      const int s = kKinds[kind[i]].second, f = all[i] / s;
      Hux32f* to = turns[i] ? turns[i].in(block) : nullptr;
      // Of numbers k in lanes from `first` on, as many as there are lanes; the first pass has one, which is 0.
      const int lanes = i ? kLanes : 1;
      const auto vector = [&](Index first, Index times, Index of) {
        for (int l = 0; l < lanes; ++l) {
          const Number w = narrow(rootOf((first + heldBy<V>(l)) * times, of));
          to[l] = w.re, to[l + lanes] = w.im;
        }
        to += 2 * lanes;
      };
      const auto unit = [&](Index first) {
        for (int r = 1; r < f; ++r) vector(first, r, p.length * f);
        for (int q = 0; q < f; ++q)
          for (int r = 1; r < s; ++r) vector(first + q * p.length, r, p.length * p.all);
      };
      if (i > 0) {
        for (Index k = 0; k < p.length; k += kLanes) unit(std::min(k, lastVector(p.length)));
      } else if (to) {
        unit(0);
      }
      if (roots[i])
        for (int k = 0; k < f; ++k) {
          const Number w = narrow(rootOf(k, f));
          roots[i].in(block)[2 * k] = w.re, roots[i].in(block)[2 * k + 1] = -w.im;
        }
    }
  } else if (method == Method::direct) {
    Hux32f* to = matrix.in(block);
    for (Index k = 1; k <= n / 2; ++k, to += 2 * paddedHalf(n))
      for (Index j = 1; j <= paddedHalf(n); ++j) {
        const Number w = narrow(rootOf(k * j, n));
        to[j - 1] = w.re, to[paddedHalf(n) + j - 1] = -w.im;
      }
  } else if (method == Method::chirp) {
    const Index longer = Index(1) << power.order;
    const Scratch<Hux8u> work(std::max<std::int64_t>(workBytes(power.order), 1));
    if (!work) return huxStsNoMem;
    Hux32fc *c = chirp.in(block), *h = chirpSpectrum.in(block);
    std::fill(h, h + longer, Hux32fc{});
    for (Index k = 0; k < n; ++k) {
      const Number w = narrow(rootOf(Index(std::uint64_t(k) * std::uint64_t(k) % std::uint64_t(2 * n)), 2 * n));
      c[k] = {w.re, w.im};
      h[k] = {w.re, -w.im};
      if (k) h[longer - k] = h[k];
    }
    transform<Way::forward>(block, power, h, h, reinterpret_cast<std::byte*>(work.get()));
    scaleAll(&h->re, 2 * longer, 1.0f / Hux32f(longer));
  }
  return huxStsOk;
}

template <Way W>
void transform(const void* block, const LengthPlan& plan, const Hux32fc* src, Hux32fc* dst, std::byte* work) {
  const Index n = plan.length;
  auto* numbers = reinterpret_cast<Hux32fc*>(work);
  switch (plan.method) {
    case Method::power:
      return transform<W>(block, plan.power, src, dst, work);
    case Method::three: {
      Number z[3] = {numberAt(src), numberAt(src + 1), numberAt(src + 2)};
      if (plan.scaling.on<W>())
        threePoints<W>(z, Scaled{plan.scaling.factor});
      else
        threePoints<W>(z);
      for (int i = 0; i < 3; ++i) storeSplit(dst + i, z[i]);
      return;
    }
    case Method::factors:
      cDft_PrimeFact<W>(block, plan, src, dst, numbers);
      break;
    case Method::chirp:
      cDft_Conv<W>(block, plan, src, dst, numbers);
      break;
    case Method::direct:
      cDft_Dir<W>(plan.matrix.in(block), n, src, dst, reinterpret_cast<Hux32f*>(work));
      break;
  }
  if (plan.scaling.on<W>()) scaleAll(reinterpret_cast<Hux32f*>(dst), 2 * n, plan.scaling.factor);
}
template void transform<Way::forward>(const void*, const LengthPlan&, const Hux32fc*, Hux32fc*, std::byte*);
template void transform<Way::inverse>(const void*, const LengthPlan&, const Hux32fc*, Hux32fc*, std::byte*);

void RealLengthPlan::take(Arena& arena) {
  if (byPower()) {
    power.order = __builtin_ctzll(std::uint64_t(length));
    power.half.scaling = scaling;
    power.take(arena);
    work = workBytes(power.half.order);
    return;
  }
  const bool even = length % 2 == 0;
  inner.length = even ? length / 2 : length;
  // The forward half is scaled behind the recombination.
  inner.scaling = even ? Scaling{0, scaling.inverse, scaling.factor} : Scaling{};
  inner.take(arena, !even, even ? kLongestDirect : 180);
  work = inner.work;
  if (even) {
    recombineForward = arena.take<Hux32f>(recombinationFloats(length));
    recombineInverse = arena.take<Hux32f>(recombinationFloats(length));
  } else if (inner.method == Method::direct) {
    work = 4 * std::int64_t(length) + 16;
  }
}

HuxStatus RealLengthPlan::fill(void* block) const {
  if (byPower()) {
    if (power.order <= 3) return huxStsOk;
    const Scratch<Hux32f> quarter(Waves::entries(power.order));
    if (!quarter) return huxStsNoMem;
    power.fill(block, Waves(power.order, quarter.get()));
    return huxStsOk;
  }
  if (recombineForward)
    fillRecombination(recombineForward.in(block), recombineInverse.in(block), length,
                      [&](Index k) { return narrow(rootOf(k, length)); });
  return inner.fill(block);
}

namespace {

// Half of a spectrum, of an odd number of real ones.
void packHalf(const Hux32fc* src, Hux32f* dst, Index n) {
  elements(dst)[0] = src[0].re;
  std::memcpy(dst + 1, src + 1, sizeof(Hux32fc) * std::size_t(n / 2));
}
}  // namespace

void transformReal(const void* block, const RealLengthPlan& plan, const Hux32f* src, Hux32f* dst, std::byte* work) {
  if (plan.byPower()) return transformReal<Order::pack>(block, plan.power, src, dst, work);
  const Index n = plan.length;
  const LengthPlan& inner = plan.inner;
  auto* numbers = reinterpret_cast<Hux32fc*>(work);
  const auto* x = elements(src);
  const bool scaled = plan.scaling.on<Way::forward>();
  if (n % 2 == 0) {
    transform<Way::forward>(block, inner, reinterpret_cast<const Hux32fc*>(src), reinterpret_cast<Hux32fc*>(dst), work);
    cRealRecombine<Order::pack>(dst, dst, n, plan.recombineForward.in(block));
  } else if (inner.method == Method::three) {
    Number z[3] = {{x[0], 0}, {x[1], 0}, {x[2], 0}};
    if (scaled)
      threePoints<Way::forward>(z, Scaled{plan.scaling.factor});
    else
      threePoints<Way::forward>(z);
    auto* d = elements(dst);
    d[0] = z[0].re, d[1] = z[1].re, d[2] = z[1].im;
    return;
  } else if (inner.method == Method::factors) {
    primeFact<Way::forward>(block, inner, RealNumbers{src, n}, numbers, numbers);
    packHalf(numbers, dst, n);
  } else if (inner.method == Method::chirp) {
    const Hux32fc* chirp = inner.chirp.in(block);
    for (Index i = 0; i < n; ++i) numbers[i] = {x[i] * chirp[i].re, x[i] * chirp[i].im};
    convolve(block, inner, numbers);
    multiply(numbers, chirp, numbers, n / 2 + 1);
    packHalf(numbers, dst, n);
  } else {
    rDftFwd_Dir(inner.matrix.in(block), n, src, dst, reinterpret_cast<Hux32f*>(work));
  }
  if (scaled) scaleAll(dst, n, plan.scaling.factor);
}

void transformToReal(const void* block, const RealLengthPlan& plan, const Hux32f* src, Hux32f* dst, std::byte* work) {
  if (plan.byPower()) return transformToReal<Order::pack>(block, plan.power, src, dst, work);
  const Index n = plan.length;
  const LengthPlan& inner = plan.inner;
  auto* numbers = reinterpret_cast<Hux32fc*>(work);
  auto* d = elements(dst);
  const bool scaled = plan.scaling.on<Way::inverse>();
  if (n % 2 == 0) {
    cCcsRecombine<Order::pack>(src, dst, n, plan.recombineInverse.in(block));
    auto* half = reinterpret_cast<Hux32fc*>(dst);
    return transform<Way::inverse>(block, inner, half, half, work);
  } else if (inner.method == Method::three) {
    Number z[3] = {ofHalf(src, 3, 0), ofHalf(src, 3, 1), ofHalf(src, 3, 2)};
    if (scaled)
      threePoints<Way::inverse>(z, Scaled{plan.scaling.factor});
    else
      threePoints<Way::inverse>(z);
    for (int i = 0; i < 3; ++i) d[i] = z[i].re;
    return;
  } else if (inner.method == Method::factors) {
    primeFact<Way::inverse>(block, inner, HalfSpectrum{src, n}, numbers, numbers);
    for (Index i = 0; i < n; ++i) d[i] = numbers[i].re;
  } else if (inner.method == Method::chirp) {
    const Hux32fc* chirp = inner.chirp.in(block);
    for (Index i = 0; i < n; ++i) storeSplit(numbers + i, turned<Way::forward>(ofHalf(src, n, i), numberAt(chirp + i)));
    convolve(block, inner, numbers);
    for (Index i = 0; i < n; ++i) d[i ? n - i : 0] = numbers[i].re * chirp[i].re - numbers[i].im * chirp[i].im;
  } else {
    rDftInv_Dir(inner.matrix.in(block), n, src, dst, reinterpret_cast<Hux32f*>(work));
  }
  if (scaled) scaleAll(dst, n, plan.scaling.factor);
}

}  // namespace hux::fft
