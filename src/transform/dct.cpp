// The cosine transform of vectors of any length: contexts, and four methods by the length.
//
//   1, 2, 4, 8            kernels of their own
//   powers of two         split into halves down to eights; accurate ones from 1024 on by a Fourier transform
//   others, up to 100     the sum as it stands
//   others                a Fourier transform of that length by a chirp, which makes a convolution of it
//
// Forward and inverse are each other's transpose, and so are their steps.
#include <cmath>
#include <limits>
#include <numbers>

#include "core/stamp.h"
#include "lanes/interleave.h"
#include "transform/eight.h"
#include "transform/vector.h"

namespace hux {
namespace {

enum class Method : Hux32s { small, halves, fourier, chirp, direct };

}  // namespace
}  // namespace hux

struct HuxsDCTRecord {
  Hux32s tag, length;
  HuxAccuracyHint hint;
  Hux32s workSize;
  Hux32u owned;
  Hux32f scale0, scaleK;
  hux::Method method;
  hux::At<Hux32f> table;      // halves: factors by level; direct: cosines of even outputs; else turns of the outputs
  hux::At<Hux32f> odd;        // direct: cosines of odd outputs
  hux::fft::RealPlan whole;   // fourier
  hux::fft::PowerPlan power;  // chirp: the convolution
  hux::At<Hux32fc> chirp, chirpSpectrum;
  hux::At<Hux32f> recombineForward, recombineInverse;
};

namespace hux {
namespace {

using fft::Order, fft::PowerPlan, fft::RealPlan, fft::Way, fft::Waves;
using Record = HuxsDCTRecord;

constexpr Hux32s kForward = 21, kInverse = 22;
constexpr int kLongestDirect = 100, kLongestHalved = 512;  // the latter where accuracy is asked for
constexpr int kLanes = 8;
using V = Lanes<Hux32f, kLanes>;

// Of pi k / n.
Hux64f cosine(Index k, Index n) { return fft::rootOf(k, 2 * n).re; }
Hux64f sine(Index k, Index n) { return -fft::rootOf(k, 2 * n).im; }

V load(const Hux32f* p) { return loadLanes<V>(p); }
void store(Hux32f* p, V v) { storeLanes(p, v); }

// --- The shortest.

template <bool Forward>
void small(const Hux32f* src, Hux32f* dst, int n) {
  const auto* x = elements(src);
  auto* y = elements(dst);
  if (n == 1) {
    y[0] = x[0];
  } else if (n == 2) {
    const Hux32f a = x[0] * 0.70710677f, b = x[1] * 0.70710677f;
    y[0] = a + b, y[1] = a - b;
  } else if (n == 4) {
    constexpr Hux32f c1 = 0.6532815f, c3 = 0.27059805f;
    const Hux32f x0 = x[0], x1 = x[1], x2 = x[2], x3 = x[3];
    if constexpr (Forward) {
      const Hux32f a = x0 + x3, b = x1 + x2, c = x0 - x3, d = x1 - x2;
      y[0] = (a + b) * 0.5f, y[2] = (a - b) * 0.5f;
      y[1] = c * c1 + d * c3, y[3] = c * c3 - d * c1;
    } else {
      const Hux32f a = (x0 + x2) * 0.5f, b = (x0 - x2) * 0.5f, c = x1 * c1 + x3 * c3, d = x1 * c3 - x3 * c1;
      y[0] = a + c, y[3] = a - c, y[1] = b + d, y[2] = b - d;
    }
  } else {
    Hux32f eight[8];
    std::memcpy(eight, src, sizeof eight);
    if constexpr (Forward)
      eightForward<true>(eight);
    else
      eightInverse<true>(eight);
    std::memcpy(dst, eight, sizeof eight);
  }
}

// --- By halves. A block of n becomes two of half its length: of the sums of numbers that face each other, which give
// the even outputs, and of their differences times 1 / (2 cos), whose neighbouring outputs add up to the odd ones.

void takeApart(const Hux32f* x, Hux32f* halves, Index n, const Hux32f* factors) {
  for (Index i = 0; i < n / 2; i += kLanes) {
    const V low = load(x + i), high = mirrored(load(x + n - kLanes - i));
    store(halves + i, low + high);
    store(halves + n / 2 + i, (low - high) * load(factors + i));
  }
}
void putTogether(const Hux32f* halves, Hux32f* x, Index n, const Hux32f* factors) {
  for (Index i = 0; i < n / 2; i += kLanes) {
    const V a = load(halves + i), b = load(halves + n / 2 + i) * load(factors + i);
    store(x + i, a + b);
    store(x + n - kLanes - i, mirrored(a - b));
  }
}

// The outputs of a block from those of its halves, and back. The outermost block is scaled on that way.
template <class Scale>
void interleave(const Hux32f* halves, Hux32f* y, Index n, Scale scale) {
  const Index half = n / 2;
  for (Index k = 0; k < half; k += kLanes) {
    const Hux32f* b = halves + half + k;
    const V next = k + kLanes < half ? load(b + 1) : oneBehind(load(b));
    const V even = scale(load(halves + k)), odd = scale(load(b) + next);
    store(y + 2 * k, interleaved<0>(even, odd));
    store(y + 2 * k + kLanes, interleaved<1>(even, odd));
  }
}
template <class Scale>
void partOdds(const Hux32f* y, Hux32f* halves, Index n, Scale scale) {
  V before{};
  for (Index k = 0; k < n / 2; k += kLanes) {
    const V a = scale(load(y + 2 * k)), b = scale(load(y + 2 * k + kLanes)), odd = alternate<1>(a, b);
    store(halves + k, alternate<0>(a, b));
    store(halves + n / 2 + k, odd + oneBefore(before, odd));
    before = odd;
  }
}

// Blocks of eight in place, a lane to each.
template <bool Forward>
void eights(Hux32f* d, Index blocks) {
  for (Index i = 0; i < blocks; i += kLanes) {
    const int count = int(std::min<Index>(kLanes, blocks - i));
    V x[8] = {};
    for (int l = 0; l < count; ++l) x[l] = load(d + 8 * (i + l));
    transposeSquare(x);
    if constexpr (Forward)
      eightForward<false>(x);
    else
      eightInverse<false>(x);
    transposeSquare(x);
    for (int l = 0; l < count; ++l) store(d + 8 * (i + l), x[l]);
  }
}

// One step down and one up. The factors of blocks of a length lie as many ahead of `end`, the end of their table.
template <bool Forward>
void apart(const Hux32f* from, Hux32f* to, Index length, const Hux32f* end) {
  if constexpr (Forward)
    takeApart(from, to, length, end - length);
  else
    partOdds(from, to, length, fft::Unscaled{});
}
template <bool Forward>
void together(const Hux32f* from, Hux32f* to, Index length, const Hux32f* end) {
  if constexpr (Forward)
    interleave(from, to, length, fft::Unscaled{});
  else
    putTogether(from, to, length, end - length);
}

// Transforms all blocks of a length among the n numbers at d, in place; `aside` is as long.
template <bool Forward>
void blocksByHalves(Hux32f* d, Hux32f* aside, Index n, Index longest, const Hux32f* end) {
  // As many steps up as down, so that the result is in its place.
  const auto blocks = [&](Index length, auto step) {
    for (Index i = 0; i < n; i += length) step(d + i, aside + i, length, end);
    std::swap(d, aside);
  };
  for (Index length = longest; length > 8; length /= 2) blocks(length, apart<Forward>);
  eights<Forward>(d, n / 8);
  for (Index length = 16; length <= longest; length *= 2) blocks(length, together<Forward>);
}
template <bool Forward>
void byHalves(Hux32f* d, Hux32f* aside, Index n, const Hux32f* end) {
  if (n <= 64) return blocksByHalves<Forward>(d, aside, n, n, end);
  apart<Forward>(d, aside, n, end);
  byHalves<Forward>(aside, d, n / 2, end);
  byHalves<Forward>(aside + n / 2, d + n / 2, n / 2, end);
  together<Forward>(aside, d, n, end);
}

template <bool Forward>
void halves(const Record* c, const Hux32f* src, Hux32f* dst, Hux32f* work) {
  const Index n = c->length;
  const Hux32f *factors = c->table.in(c), *end = factors + n;
  const Hux32f first = elements(src)[0];
  const auto scale = [k = c->scaleK](V v) { return v * k; };
  if constexpr (Forward)
    takeApart(src, work, n, factors);
  else
    partOdds(src, work, n, scale), work[0] = first * c->scale0;
  if (n <= 64) {
    blocksByHalves<Forward>(work, dst, n, n / 2, end);
  } else {
    byHalves<Forward>(work, dst, n / 2, end);
    byHalves<Forward>(work + n / 2, dst + n / 2, n / 2, end);
  }
  if constexpr (Forward) {
    const Hux32f sum = work[0];
    interleave(work, dst, n, scale);
    elements(dst)[0] = sum * c->scale0;
  } else {
    putTogether(work, dst, n, factors);
  }
}

void fillHalves(Hux32f* to, Index n) {
  for (Index length = n; length >= 16; length /= 2)
    for (Index i = 0; i < length / 2; ++i) *to++ = Hux32f(0.5 / cosine(2 * i + 1, 2 * length));
}

// --- The sum as it stands. Of the forward transform a lane is an output, of the inverse a sample: rows of the matrices
// are what is added up.

constexpr Index padded(Index n) { return Index(roundedUp(std::size_t(n), kLanes)); }

// Sums over rows of x[row] times the row, of K vectors of lanes at a time, for each addition waits for the one before.
template <int K>
Index directSums(const Hux32f* matrix, const Hux32f* x, Index rows, Index first, Index lanes, V* sums) {
  for (; first + K * kLanes <= lanes; first += K * kLanes) {
    V sum[K] = {};
    const Hux32f* m = matrix + first;
    for (Index r = 0; r < rows; ++r, m += lanes) {
      const V factor = splat<V>(x[r]);
      for (int k = 0; k < K; ++k) sum[k] += load(m + k * kLanes) * factor;
    }
    for (int k = 0; k < K; ++k) sums[first / kLanes + k] = sum[k];
  }
  return first;
}
// The matrix is a square of `count` numbers, padded to vectors.
void directSums(const Hux32f* matrix, const Hux32f* x, Index count, V* sums) {
  const Index lanes = padded(count);
  Index done = directSums<4>(matrix, x, count, 0, lanes, sums);
  done = directSums<2>(matrix, x, count, done, lanes, sums);
  directSums<1>(matrix, x, count, done, lanes, sums);
}

template <bool Forward>
void direct(const Record* c, const Hux32f* src, Hux32f* dst, Hux32f* work) {
  const Index n = c->length, evens = (n + 1) / 2, odds = n / 2;
  const auto* x = elements(src);
  auto* y = elements(dst);
  Hux32f *even = work, *odd = work + evens;
  if constexpr (Forward) {
    for (Index i = 0; i < odds; ++i) even[i] = x[i] + x[n - 1 - i], odd[i] = x[i] - x[n - 1 - i];
    if (n % 2) even[odds] = x[odds];
  } else {
    for (Index j = 0; j < evens; ++j) even[j] = x[2 * j] * (j ? c->scaleK : c->scale0);
    for (Index j = 0; j < odds; ++j) odd[j] = x[2 * j + 1] * c->scaleK;
  }
  V evenSums[kLongestDirect / 2 / kLanes + 1], oddSums[kLongestDirect / 2 / kLanes + 1];
  directSums(c->table.in(c), even, evens, evenSums);
  directSums(c->odd.in(c), odd, odds, oddSums);
  for (Index i = 0; i < evens; i += kLanes) {
    const V a = evenSums[i / kLanes], b = i < odds ? oddSums[i / kLanes] : V{};
    for (Index l = 0; l < kLanes && i + l < evens; ++l) {
      const Index k = i + l;
      if constexpr (Forward) {
        y[2 * k] = a[l] * (k ? c->scaleK : c->scale0);
        if (k < odds) y[2 * k + 1] = b[l] * c->scaleK;
      } else {
        y[k] = k < odds ? a[l] + b[l] : a[l];
        if (k < odds) y[n - 1 - k] = a[l] - b[l];
      }
    }
  }
}

// cos(pi (2n + 1) k / 2N) of every second k from `odd` on; rows are samples forward, frequencies inverse.
void fillDirect(Hux32f* to, Index n, Index odd, bool forward) {
  const Index count = (n + 1 - odd) / 2;
  for (Index row = 0; row < count; ++row)
    for (Index lane = 0; lane < padded(count); ++lane) {
      const Index i = forward ? row : lane, k = 2 * (forward ? lane : row) + odd;
      *to++ = lane < count ? Hux32f(cosine((2 * i + 1) * k % (4 * n), 2 * n)) : 0;
    }
}

// --- By a Fourier transform of twice the length, of which one half is zeros. `turns` are the factors of the outputs,
// cosines and sines, in which the scale is contained.

void fillTurns(Hux32f* to, Index n, bool forward) {
  const Hux64f k0 = 1 / std::sqrt(Hux64f(n)), k1 = std::numbers::sqrt2 * k0 * (forward ? 1 : 0.5);
  for (Index k = 0; k < n; ++k)
    to[2 * k] = Hux32f(k ? k1 * cosine(k, 2 * n) : k0), to[2 * k + 1] = k ? Hux32f(k1 * sine(k, 2 * n)) : 0;
}

// From a spectrum in the order Perm, whose second float is of no use, and to one.
void turnOutputs(const Hux32f* spectrum, const Hux32f* turns, Hux32f* dst, Index n) {
  for (Index k = 0; k + kLanes <= n; k += kLanes) {
    const V a = load(spectrum + 2 * k) * load(turns + 2 * k);
    const V b = load(spectrum + 2 * k + kLanes) * load(turns + 2 * k + kLanes);
    store(dst + k, alternate<0>(a, b) + alternate<1>(a, b));
  }
  for (Index k = n / kLanes * kLanes; k < n; ++k)
    elements(dst)[k] = spectrum[2 * k] * turns[2 * k] + spectrum[2 * k + 1] * turns[2 * k + 1];
}
void turnInputs(const Hux32f* src, const Hux32f* turns, Hux32f* spectrum, Index n) {
  for (Index k = 0; k + kLanes <= n; k += kLanes) {
    const V x = load(src + k);
    store(spectrum + 2 * k, interleaved<0>(x, x) * load(turns + 2 * k));
    store(spectrum + 2 * k + kLanes, interleaved<1>(x, x) * load(turns + 2 * k + kLanes));
  }
  for (Index k = n / kLanes * kLanes; k < n; ++k) {
    const Hux32f x = elements(src)[k];
    spectrum[2 * k] = x * turns[2 * k], spectrum[2 * k + 1] = x * turns[2 * k + 1];
  }
}

template <bool Forward>
void fourier(const Record* c, const Hux32f* src, Hux32f* dst, Hux32f* spectrum) {
  const Index n = c->length;
  const Hux32f* turns = c->table.in(c);
  auto* work = reinterpret_cast<std::byte*>(spectrum + 2 * n);
  if constexpr (Forward) {
    std::memcpy(spectrum, src, sizeof(Hux32f) * std::size_t(n));
    std::fill(spectrum + n, spectrum + 2 * n, 0.0f);
    fft::transformReal<Order::perm>(c, c->whole, spectrum, spectrum, work);
    turnOutputs(spectrum, turns, dst, n);
  } else {
    turnInputs(src, turns, spectrum, n);
    fft::transformToReal<Order::perm>(c, c->whole, spectrum, spectrum, work);
    std::memcpy(dst, spectrum, sizeof(Hux32f) * std::size_t(n));
  }
}

// --- The same for other lengths: of the N complex numbers that 2N real ones are, by a chirp. chirp[k] is
// exp(-pi i k^2 / N), padded with zeros to whole vectors.

void multiply(Hux32fc* z, const Hux32fc* by, Index n) {
  for (Index i = 0; i < n; i += kSplitLanes)
    storeSplit(z + i, fft::turned<Way::forward>(loadSplit<SplitLanes>(z + i), loadSplit<SplitLanes>(by + i)));
}

// The transform of the first numbers of z, the others being of no use: the results still lack the chirp.
void convolve(const Record* c, Hux32fc* z, Index numbers) {
  const Index longer = Index(1) << c->power.order;
  auto* work = reinterpret_cast<std::byte*>(z + longer);
  std::fill(z + numbers, z + longer, Hux32fc{});
  multiply(z, c->chirp.in(c), padded(numbers));
  fft::transform<Way::forward>(c, c->power, z, z, work);
  multiply(z, c->chirpSpectrum.in(c), longer);
  fft::transform<Way::inverse>(c, c->power, z, z, work);
}

template <bool Forward>
void byChirp(const Record* c, const Hux32f* src, Hux32f* dst, Hux32f* buffer) {
  const Index n = c->length;
  auto* z = reinterpret_cast<Hux32fc*>(buffer);
  const Hux32fc* chirp = c->chirp.in(c);
  if constexpr (Forward) {
    std::memcpy(buffer, src, sizeof(Hux32f) * std::size_t(n));
    buffer[n] = 0;
    convolve(c, z, (n + 1) / 2);
    multiply(z, chirp, padded(n));
    fft::cRealRecombine<Order::perm>(buffer, buffer, 2 * n, c->recombineForward.in(c));
    turnOutputs(buffer, c->table.in(c), dst, n);
  } else {
    turnInputs(src, c->table.in(c), buffer, n);
    fft::cCcsRecombine<Order::perm>(buffer, buffer, 2 * n, c->recombineInverse.in(c));
    convolve(c, z, n);
    multiply(z, chirp, padded(n));
    // The inverse is the forward transform with the results but the first in the opposite order.
    auto* y = elements(dst);
    for (Index m = 0; 2 * m < n; ++m) {
      const Hux32fc pair = z[m ? n - m : 0];
      y[2 * m] = pair.re;
      if (2 * m + 1 < n) y[2 * m + 1] = pair.im;
    }
  }
}

void fillChirp(Record* c, std::byte* work) {
  const Index n = c->length, longer = Index(1) << c->power.order;
  Hux32fc *chirp = c->chirp.in(c), *h = c->chirpSpectrum.in(c);
  std::fill(h, h + longer, Hux32fc{});
  std::fill(chirp + n, chirp + padded(n), Hux32fc{});
  for (Index k = 0; k < n; ++k) {
    const auto square = Index(std::uint64_t(k) * std::uint64_t(k) % std::uint64_t(2 * n));
    chirp[k] = {Hux32f(cosine(square, n)), Hux32f(-sine(square, n))};
    h[k] = {chirp[k].re, -chirp[k].im};
    if (k) h[longer - k] = h[k];
  }
  fft::transform<Way::forward>(c, c->power, h, h, work);
  const Hux32f scale = 1.0f / Hux32f(longer);
  for (Index i = 0; i < longer; ++i) h[i] = {h[i].re * scale, h[i].im * scale};
  fft::fillRecombination(c->recombineForward.in(c), c->recombineInverse.in(c), 2 * n, [n](Index k) {
    return Split<Hux32f>{Hux32f(cosine(k, n)), Hux32f(-sine(k, n))};
  });
}

// --- Contexts.

struct Plan {
  Record record{};
  std::size_t bytes = 0;
  std::int64_t work = 0, scratch = 0;

  Plan(Hux32s tag, int length, HuxAccuracyHint hint) {
    record.tag = tag, record.length = length, record.hint = hint;
    record.scale0 = Hux32f(1.0 / std::sqrt(Hux64f(length)));
    record.scaleK = Hux32f(std::numbers::sqrt2 / std::sqrt(Hux64f(length)));
    const Index n = length;
    const auto reported = [](std::int64_t bytes) { return bytes ? bytes + 16 : 0; };
    Arena arena(sizeof(Record));
    if (n == 1 || n == 2 || n == 4 || n == 8) {
      record.method = Method::small;
    } else if ((n & (n - 1)) == 0 && !(n > kLongestHalved && hint == huxHintAccurate)) {
      record.method = Method::halves;
      record.table = arena.take<Hux32f>(n);
      work = 4 * std::int64_t(n);
    } else if ((n & (n - 1)) == 0) {
      record.method = Method::fourier;
      work = 8 * std::int64_t(n);
      record.whole.order = __builtin_ctzll(std::uint64_t(n)) + 1;
      if (record.whole.order <= fft::kMostOrder) {
        record.table = arena.take<Hux32f>(2 * n);
        record.whole.take(arena);
        work += reported(fft::workBytes(record.whole.order - 1));
        scratch = 4 * Waves::entries(record.whole.order);
      }
    } else if (n > kLongestDirect) {
      record.method = Method::chirp;
      int order = 0;
      while (Index(1) << order < 2 * n - 1) ++order;
      work = std::int64_t(8) << order;
      if (order <= fft::kMostOrder) {
        record.power.order = order;
        record.power.take(arena);
        record.table = arena.take<Hux32f>(2 * n);
        record.chirp = arena.take<Hux32fc>(padded(n));
        record.chirpSpectrum = arena.take<Hux32fc>(Index(1) << order);
        record.recombineForward = arena.take<Hux32f>(fft::recombinationFloats(2 * n));
        record.recombineInverse = arena.take<Hux32f>(fft::recombinationFloats(2 * n));
        work += reported(fft::workBytes(order));
        scratch = std::max<std::int64_t>(4 * Waves::entries(order), fft::workBytes(order));
      }
    } else {
      record.method = Method::direct;
      record.table = arena.take<Hux32f>((n + 1) / 2 * padded((n + 1) / 2));
      record.odd = arena.take<Hux32f>(n / 2 * padded(n / 2));
      work = 4 * std::int64_t(n);
    }
    bytes = arena.bytes();
    record.workSize = Hux32s(std::min<std::int64_t>(work, kMost));
  }

  // What is reported must be a signed 32-bit number.
  HuxStatus fits() const {
    return failUnless(std::int64_t(bytes) + 16 <= kMost && work + 16 <= kMost && scratch + 16 <= kMost, huxStsNoMem);
  }
  int reportedScratch() const { return scratch ? int(scratch + 16) : 0; }

  // scratch: from the first multiple of 16 of as many bytes as are reported.
  HuxStatus make(Record* c, void* memory) const {
    *c = record;
    const Index n = c->length;
    const bool forward = c->tag == kForward;
    auto* scratch = roundedUp(memory);
    auto* quarter = reinterpret_cast<Hux32f*>(scratch);
    switch (c->method) {
      case Method::small:
        break;
      case Method::halves:
        fillHalves(c->table.in(c), n);
        break;
      case Method::fourier:
        fillTurns(c->table.in(c), n, forward);
        c->whole.fill(c, Waves(c->whole.order, quarter));
        break;
      case Method::chirp:
        fillTurns(c->table.in(c), n, forward);
        c->power.fill(c, Waves(c->power.order, quarter));
        fillChirp(c, scratch);
        break;
      case Method::direct:
        fillDirect(c->table.in(c), n, 0, forward);
        fillDirect(c->odd.in(c), n, 1, forward);
        break;
    }
    return huxStsOk;
  }

 private:
  static constexpr std::int64_t kMost = std::numeric_limits<Hux32s>::max();
};

HuxStatus initAlloc(Hux32s tag, Record** ppCtx, int n, HuxAccuracyHint hint) {
  if (HuxStatus s = check(pointers(ppCtx), length(n))) return s;
  Plan plan(tag, n, hint);
  if (HuxStatus s = plan.fits()) return s;
  plan.record.owned = 1;
  const Scratch<Hux8u> scratch(plan.reportedScratch() + 1);
  if (!scratch) return huxStsNoMem;
  return create(ppCtx, plan.bytes, [&](Record* made) { return plan.make(made, scratch.get()); });
}

HuxStatus getSize(Hux32s tag, int n, HuxAccuracyHint hint, int* pSize, int* pInitBufSize, int* pBufSize) {
  if (HuxStatus s = check(length(n), pointers(pSize, pInitBufSize, pBufSize))) return s;
  const Plan plan(tag, n, hint);
  if (HuxStatus s = plan.fits()) return s;
  *elements(pSize) = int(plan.bytes + 16);
  *elements(pInitBufSize) = plan.reportedScratch();
  *elements(pBufSize) = plan.work ? int(plan.work + 16) : 0;
  return huxStsOk;
}

HuxStatus init(Hux32s tag, Record** ppCtx, int n, HuxAccuracyHint hint, Hux8u* pMem, Hux8u* pInitBuf) {
  if (HuxStatus s = check(pointers(ppCtx), length(n), pointers(pMem))) return s;
  const Plan plan(tag, n, hint);
  const bool needsBuffer = plan.record.method == Method::fourier || plan.record.method == Method::chirp;
  if (HuxStatus s = check(failUnless(!needsBuffer || pInitBuf, huxStsNullPtr), plan.fits())) return s;
  return place(ppCtx, pMem, [&](Record* made) { return plan.make(made, pInitBuf); });
}

template <bool Forward>
HuxStatus transform(const Hux32f* pSrc, Hux32f* pDst, const Record* c, Hux8u* pBuffer) {
  return fft::transforming(Forward ? kForward : kInverse, pSrc, pDst, c, pBuffer, [=](std::byte* buffer) {
    auto* work = reinterpret_cast<Hux32f*>(buffer);
    switch (c->method) {
      case Method::small:
        return small<Forward>(pSrc, pDst, c->length);
      case Method::halves:
        return halves<Forward>(c, pSrc, pDst, work);
      case Method::fourier:
        return fourier<Forward>(c, pSrc, pDst, work);
      case Method::chirp:
        return byChirp<Forward>(c, pSrc, pDst, work);
      case Method::direct:
        return direct<Forward>(c, pSrc, pDst, work);
    }
  });
}

}  // namespace
}  // namespace hux

#define EXPORT(way, tag, forward)                                                                        \
  HuxStatus huxsDCT##way##InitAlloc_32f(HuxsDCTRecord** ppCtx, int length, HuxAccuracyHint hint) {       \
    return hux::initAlloc(hux::tag, ppCtx, length, hint);                                                \
  }                                                                                                      \
  HuxStatus huxsDCT##way##GetSize_32f(int length, HuxAccuracyHint hint, int* pSize, int* pInitBufSize,   \
                                      int* pBufSize) {                                                   \
    return hux::getSize(hux::tag, length, hint, pSize, pInitBufSize, pBufSize);                          \
  }                                                                                                      \
  HuxStatus huxsDCT##way##Init_32f(HuxsDCTRecord** ppCtx, int length, HuxAccuracyHint hint, Hux8u* pMem, \
                                   Hux8u* pInitBuf) {                                                    \
    return hux::init(hux::tag, ppCtx, length, hint, pMem, pInitBuf);                                     \
  }                                                                                                      \
  HUX_VECTOR_RECORD(DCT##way, 32f, HuxsDCTRecord, hux::tag)                                              \
  HUX_VECTOR_TRANSFORM(DCT##way##_32f, Hux32f, HuxsDCTRecord, transform<forward>)
EXPORT(Fwd, kForward, true)
EXPORT(Inv, kInverse, false)
