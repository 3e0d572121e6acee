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

Number narrow(Split<Hux64f> z) { return {Hux32f(z.re), Hux32f(z.im)}; }

Number numberAt(const Hux32fc* p) { return loadSplit<Hux32f>(p); }

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
HUX_INLINE inline void points(Z* z, int f, const Hux32f* roots) {
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
  } else {
    oddPoints<W>(z, f, roots);
  }
}

// --- Mixed radix.
//
// A step combines `factor` transforms of `length` numbers into one, for all `groups` that there are; those are of the
// numbers that lie `groups` apart in the end. There are two ways for the results to lie, between which the sequence is
// turned once, so that lanes have long runs throughout: first by frequency, with the groups side by side, and then by
// group, with the frequencies side by side.

struct Step {
  int factor;
  Index outer, inner;           // runs, and numbers of each
  Index part, fromRun;          // from one part to the next, and from run to run, at the source
  Index result, toRun;          // the same of the results
  bool perRun;                  // whether the turns change with the run, or with the number
  const Hux32f *turns, *roots;  // turns null: there are none
};

// body(i) for the parts from `first` on; F is their number, or 0 where it is only known now.
template <int F, class Body>
HUX_INLINE inline void forParts(int first, int f, Body body) {
  if constexpr (F > 0)
    unrolled<F>([&](auto i) HUX_INLINE {
      if (i >= first) body(int(i));
    });
  else
    for (int i = first; i < f; ++i) body(i);
}

// Number i and those behind it of run o, as many as there are lanes, or `count` of them.
template <Way W, int F, bool Whole>
HUX_INLINE inline void stepAt(const Step& s, const Hux32fc* src, Hux32fc* dst, Index o, Index i, Index count) {
  const int f = F ? F : s.factor;
  const auto load = [count](const void* p) { return Whole ? loadSplit<V>(p) : loadSplit<V>(p, count); };
  const Hux32fc* from = src + o * s.fromRun + i;
  Z z[F ? F : kMostFactor];
  forParts<F>(0, f, [&](int r) HUX_INLINE { z[r] = load(from + r * s.part); });
  if (s.turns && s.perRun) {
    const Hux32f* t = s.turns + 2 * o * (f - 1);
    forParts<F>(1, f, [&](int r) HUX_INLINE {
      z[r] = turned<W>(z[r], Z{splat<V>(t[2 * r - 2]), splat<V>(t[2 * r - 1])});
    });
  } else if (s.turns) {
    const auto* t = reinterpret_cast<const Hux32fc*>(s.turns) + i;
    forParts<F>(1, f, [&](int r) HUX_INLINE { z[r] = turned<W>(z[r], load(t + (r - 1) * s.inner)); });
  }
  points<W, F>(z, f, s.roots);
  Hux32fc* to = dst + o * s.toRun + i;
  forParts<F>(0, f, [&](int q) HUX_INLINE {
    if constexpr (Whole)
      storeSplit(to + q * s.result, z[q]);
    else
      storeSplit(to + q * s.result, z[q], count);
  });
}

template <Way W, int F>
void step(const Step& s, const Hux32fc* src, Hux32fc* dst) {
  for (Index o = 0; o < s.outer; ++o) {
    Index i = 0;
    for (; i + kLanes <= s.inner; i += kLanes) stepAt<W, F, true>(s, src, dst, o, i, kLanes);
    if (i == s.inner) continue;
    // The last vector of a run covers some of the one before once more, where that does not spoil the source.
    if (src != dst && s.inner >= kLanes)
      stepAt<W, F, true>(s, src, dst, o, s.inner - kLanes, kLanes);
    else
      stepAt<W, F, false>(s, src, dst, o, i, s.inner - i);
  }
}
template <Way W>
void anyStep(const Step& s, const Hux32fc* src, Hux32fc* dst) {
  switch (s.factor) {
    case 2:
      return step<W, 2>(s, src, dst);
    case 3:
      return step<W, 3>(s, src, dst);
    case 4:
      return step<W, 4>(s, src, dst);
    case 5:
      return step<W, 5>(s, src, dst);
    default:
      return step<W, 0>(s, src, dst);
  }
}

// The index of the first step whose frequencies lie side by side.
int turnAt(const LengthPlan& plan) {
  if (plan.within) return plan.count - 1;
  Index length = 1;
  int i = plan.count - 1;
  for (; i > 0; --i) {
    const Index groups = plan.length / (length * plan.factor[i]);
    if (groups < length) break;
    length *= plan.factor[i];
  }
  return i;
}

// rows by columns to columns by rows. The last square of a row or column covers some of the one before once more.
void turnOver(const Hux32fc* src, Hux32fc* dst, Index rows, Index columns) {
  if (rows < 4 || columns < 8) {
    for (Index r = 0; r < rows; ++r)
      for (Index c = 0; c < columns; ++c) storeSplit(dst + c * rows + r, numberAt(src + r * columns + c));
    return;
  }
  for (Index i = 0; i < rows; i += 4)
    for (Index j = 0; j < columns; j += 8) {
      const Index r = std::min(i, rows - 4), c = std::min(j, columns - 8);
      const Hux32fc* from = src + r * columns + c;
      Hux32fc* to[8];
      for (int k = 0; k < 8; ++k) to[k] = dst + (c + k) * rows + r;
      turnColumns({from, from + columns, from + 2 * columns, from + 3 * columns}, to);
    }
}

template <Way W>
void cDft_PrimeFact(const void* block, const LengthPlan& plan, const Hux32fc* src, Hux32fc* dst, Hux32fc* work) {
  // One pass for each step and one to turn over, the last of which ends at dst.
  int left = plan.count + 1;
  const auto next = [&] { return --left % 2 ? work : dst; };
  if (src == dst && plan.count % 2 == 0) {
    std::memcpy(work, src, sizeof(Hux32fc) * std::size_t(plan.length));
    src = work;
  }
  const int turn = turnAt(plan);
  Index length = 1;
  for (int i = plan.count - 1; i >= 0; --i) {
    const int f = plan.factor[i];
    const Index groups = plan.length / (length * f);
    if (i == turn) {
      Hux32fc* to = next();
      turnOver(src, to, length, plan.length / length);
      src = to;
    }
    Step s{f, length, groups, groups, f * groups, length * groups, groups, true, nullptr, nullptr};
    if (i <= turn) s = {f, groups, length, groups * length, length, length, f * length, false, nullptr, nullptr};
    if (plan.turns[i]) s.turns = plan.turns[i].in(block);
    if (plan.roots[i]) s.roots = plan.roots[i].in(block);
    Hux32fc* to = next();
    anyStep<W>(s, src, to);
    src = to;
    length *= f;
  }
}

// The same within one array. gather(n) gives number n of the sequence.
template <Way W, class Gather>
void rDft_PrimeFact(const void* block, const LengthPlan& plan, Hux32fc* d, Gather gather) {
  const Index n = plan.length;
  // The deepest parts are those of numbers that lie n / factor apart; their order is that of the digits of the place.
  const int last = plan.count - 1, f = plan.factor[last];
  int digit[kMostFactors] = {};
  Index start = 0;
  for (Index place = 0; place < n; place += f) {
    for (int t = 0; t < f; ++t) {
      const Number z = gather(start + t * (n / f));
      storeSplit(d + place + t, z);
    }
    Index weight = n / f;
    for (int i = last - 1; i >= 0; --i) {
      weight /= plan.factor[i];
      start += weight;
      if (++digit[i] < plan.factor[i]) break;
      start -= weight * plan.factor[i];
      digit[i] = 0;
    }
  }
  Index length = 1;
  for (int i = last; i >= 0; --i) {
    const int factor = plan.factor[i];
    Step s{factor, n / (length * factor), length, length,  length * factor,
           length, length * factor,       false,  nullptr, nullptr};
    if (plan.turns[i]) s.turns = plan.turns[i].in(block);
    if (plan.roots[i]) s.roots = plan.roots[i].in(block);
    anyStep<W>(s, d, d);
    length *= factor;
  }
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
  } else if ((count = testDftPrimeFact(n, factor)) != 0) {
    method = Method::factors;
    Index before = 1;
    int largest = 0;
    for (int i = count - 1; i >= 0; --i) {
      if (i < count - 1) turns[i] = arena.take<Hux32f>(2 * before * (factor[i] - 1));
      if (factor[i] > 5) roots[i] = arena.take<Hux32f>(2 * factor[i]), largest = std::max(largest, factor[i]);
      before *= factor[i];
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
    const int turn = turnAt(*this);
    Index before = 1;
    for (int i = count - 1; i >= 0; --i) {
      const int f = factor[i];
      const Index whole = before * f;
      if (turns[i]) {
        Hux32f* to = turns[i].in(block);
        for (Index k = 0; k < before; ++k)
          for (int r = 1; r < f; ++r) {
            // By run for those whose groups lie side by side, else by part.
            const Number w = narrow(rootOf(k * r, whole));
            Hux32f* at = to + 2 * (i > turn ? k * (f - 1) + r - 1 : (r - 1) * before + k);
            at[0] = w.re, at[1] = w.im;
          }
      }
      if (roots[i])
        for (int k = 0; k < f; ++k) {
          const Number w = narrow(rootOf(k, f));
          roots[i].in(block)[2 * k] = w.re, roots[i].in(block)[2 * k + 1] = -w.im;
        }
      before = whole;
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
  inner.within = !even;
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
// Number k of a spectrum of which half is there.
Number ofHalf(const Hux32f* p, Index n, Index k) {
  const auto* x = elements(p);
  if (k == 0) return {x[0], 0};
  if (k <= n / 2) return {x[2 * k - 1], x[2 * k]};
  return {x[2 * (n - k) - 1], -x[2 * (n - k)]};
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
    rDft_PrimeFact<Way::forward>(block, inner, numbers, [=](Index i) { return Number{x[i], 0}; });
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
    rDft_PrimeFact<Way::inverse>(block, inner, numbers, [=](Index k) { return ofHalf(src, n, k); });
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
