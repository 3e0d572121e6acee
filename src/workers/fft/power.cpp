#include <cmath>

#include "workers/fft/across.h"
#include "workers/portable.h"

namespace hux::fft {
namespace {

constexpr int kLanes = kSplitLanes;
using V = SplitLanes;
using Z = Split<V>;

// Numbers in floats, the parts of each 2 * kLanes of them apart where they travel between passes.
constexpr Index floats(Index numbers) { return 2 * numbers; }

constexpr Index kMergeLength = Index(1) << kMergeOrder;
constexpr Index kBlock = Index(1) << kBlockOrder;

// Room on the stack for a transform that cannot go straight from source to destination.
struct alignas(64) Aside {
  Hux32f floats[2 * kMergeLength];
};

// --- Passes along a row.

// How the last pass leaves the numbers, and all others.
struct Joined {
  static void store(Hux32f* d, Z z) { storeSplit(d, z); }
};
struct Parted {
  static void store(Hux32f* d, Z z) { storeParted(d, z); }
};

// The first pass: transforms of N numbers, one for each lane. Number s of all lanes is at src + s * stride, the results
// of the transform that starts `e` behind the first go to dst + groupStep * (e, its bits reversed).
template <Way W, int N, class U>
void firstPass(const Hux32fc* src, Index stride, Hux32f* dst, Index groupStep) {
  constexpr int lanes = splitLanes<U>, bits = lanes == 8 ? 3 : 2, order = N == 8 ? 3 : 4;
  Split<U> z[N];
  for (int i = 0; i < N; ++i) z[i] = loadSplit<U>(src + reversed(i, order) * stride);
  kernel<W>(z);
  // A vector of results in the end is `lanes` numbers of one transform, in the order of parted vectors V.
  for (int h = 0; h < N; h += lanes) {
    const int unit = h / kLanes * kLanes, first = h - unit;
    U re[lanes], im[lanes];
    for (int l = 0; l < lanes; ++l) {
      const int k = unit + heldBy<V>(first + l);
      re[l] = z[k].re, im[l] = z[k].im;
    }
    transposeSquare(re);
    transposeSquare(im);
    for (int l = 0; l < lanes; ++l) {
      Hux32f* to = dst + groupStep * reversed(heldBy<U>(l), bits) + floats(unit) + first;
      storeLanes(to, re[l]);
      storeLanes(to + kLanes, im[l]);
    }
  }
}

// z turned by K sixteenths of the circle in the low half of the lanes, and by L in the high one.
template <Way W, int K, int L>
Z turnedByHalves(Z z) {
  const auto by = [z](auto k) -> Z {
    if constexpr (k == 4)
      return W == Way::forward ? Z{z.im, -z.re} : Z{-z.im, z.re};
    else
      return turnedBySixteenths<W, k>(z);
  };
  const Z low = by(std::integral_constant<int, K>{}), high = by(std::integral_constant<int, L>{});
  return {ownHalves(low.re, high.re), ownHalves(low.im, high.im)};
}

// The same of 16 numbers for the four lanes of 64 numbers in their own order, in vectors of 8: each holds numbers of
// the transforms' evens in one half and of their odds in the other, and then of two results.
template <Way W>
void firstPassOfFour(const Hux32fc* src, Hux32f* dst) {
  Z even[4], odd[4], results[4][2];
  for (int i = 0; i < 4; ++i) {
    even[i] = loadHalves<V>(src + 16 * reversed(i, 2));
    odd[i] = loadHalves<V>(src + 16 * reversed(i, 2) + 8);
  }
  radix4<W>(even[0], even[1], even[2], even[3]);
  radix4<W>(odd[0], odd[1], odd[2], odd[3]);
  unrolled<2>([&](auto j) {
    const auto halves = [&](auto high, const Z(&z)[4]) -> Z {
      return {sameHalves<high>(z[j].re, z[j + 2].re), sameHalves<high>(z[j].im, z[j + 2].im)};
    };
    Z a = halves(std::false_type{}, even), b = turnedByHalves<W, 2 * j, 2 * j + 4>(halves(std::false_type{}, odd));
    Z c = turnedByHalves<W, j, j + 2>(halves(std::true_type{}, even)),
      d = turnedByHalves<W, 3 * j, 3 * j + 6>(halves(std::true_type{}, odd));
    radix4<W>(a, b, c, d);
    results[0][j] = a, results[1][j] = b, results[2][j] = c, results[3][j] = d;
  });
  for (int h = 0; h < 2; ++h) {
    const auto &one = results[2 * h], &two = results[2 * h + 1];
    V re[4] = {one[0].re, one[1].re, two[0].re, two[1].re}, im[4] = {one[0].im, one[1].im, two[0].im, two[1].im};
    transposeHalves(re);
    transposeHalves(im);
    for (int l = 0; l < 4; ++l) storeParted(dst + floats(16) * reversed(l, 2) + floats(8) * h, Z{re[l], im[l]});
  }
}

// All of a sequence in its own order, to groups in bit-reversed order.
template <Way W, int N>
void firstPasses(const Hux32fc* src, Hux32f* dst, int order) {
  const int bits = order - (N == 8 ? 3 : 4);  // of the number of a group
  const Index count = Index(1) << bits;
  if constexpr (kLanes == 8 && N == 16)
    if (count == 4) return firstPassOfFour<W>(src, dst);
  if (kLanes == 8 && count >= 8) {
    Index to = 0;
    for (Index q = 0; q < count; q += 8) {
      firstPass<W, N, V>(src + q, count, dst + floats(N) * to, floats(N) << (bits - 3));
      Index bit = count >> 4;
      while (to & bit) to ^= bit, bit >>= 1;
      to |= bit;
    }
  } else {
    using U = Lanes<Hux32f, 4>;
    for (Index q = 0; q < count; q += 4)
      firstPass<W, N, U>(src + q, count, dst + floats(N) * reversed(q, bits), floats(N) << (bits - 2));
  }
}

// Radix 4: groups of four times `quarter` numbers, `n` in all.
template <Way W, class Out, class Scale>
void radix4Pass(Hux32f* d, Index n, Index quarter, const Hux32f* factors, Scale scale) {
  const Index q = floats(quarter);
  for (Index j = 0; j < q; j += floats(kLanes), factors += 6 * kLanes) {
    const Z w1 = loadParted<V>(factors), w2 = loadParted<V>(factors + 2 * kLanes),
            w3 = loadParted<V>(factors + 4 * kLanes);
    for (Hux32f *p = d + j, *end = p + floats(n); p != end; p += 4 * q) {
      Z a = loadParted<V>(p);
      Z b = turned<W>(loadParted<V>(p + q), w2);
      Z c = turned<W>(loadParted<V>(p + 2 * q), w1);
      Z e = turned<W>(loadParted<V>(p + 3 * q), w3);
      radix4<W>(a, b, c, e);
      Out::store(p, scale(a));
      Out::store(p + q, scale(b));
      Out::store(p + 2 * q, scale(c));
      Out::store(p + 3 * q, scale(e));
    }
  }
}

// Radix 2: two halves of `half` numbers. The factors of the second quarter of them are a quarter turn on.
template <Way W, class Out>
void cFft_Blk_R2(Hux32f* d, Index half, const Hux32f* factors) {
  const Index h = floats(half), q = h / 2;
  for (Index j = 0; j < q; j += floats(kLanes), factors += 2 * kLanes) {
    const Z w = loadParted<V>(factors);
    const Z a = loadParted<V>(d + j), b = loadParted<V>(d + j + q);
    const Z s = turned<W>(loadParted<V>(d + j + h), w), t = turned<W>(loadParted<V>(d + j + h + q), w);
    Out::store(d + j, a + s);
    Out::store(d + j + h, a - s);
    Out::store(d + j + q, addTurned<W>(b, t));
    Out::store(d + j + h + q, subTurned<W>(b, t));
  }
}

// The radix-4 passes behind the first, up to 2^order numbers.
template <Way W, class Out, class Scale>
void cRadix4(Hux32f* d, int order, const Hux32f* factors, Scale scale) {
  const Index n = Index(1) << order;
  Index quarter = Index(1) << kernelOrder(order);
  for (; 4 * quarter < n; factors += 6 * quarter, quarter *= 4)
    radix4Pass<W, Parted>(d, n, quarter, factors, Unscaled{});
  radix4Pass<W, Out>(d, n, quarter, factors, scale);
}

// Everything behind the first pass, for orders 5 to 12.
template <Way W, class Scale>
void finish(Hux32f* d, int order, const Hux32f* passes, const Hux32f* merges, Scale scale) {
  if (order <= kBlockOrder) return cRadix4<W, Joined>(d, order, passes, scale);
  const Index n = Index(1) << order;
  for (Index block = n - kBlock; block >= 0; block -= kBlock)
    cRadix4<W, Parted>(d + floats(block), kBlockOrder, passes, scale);
  if (order == kBlockOrder + 1) return cFft_Blk_R2<W, Joined>(d, kBlock, merges);
  for (Index block = 0; block < n; block += 2 * kBlock) cFft_Blk_R2<W, Parted>(d + floats(block), kBlock, merges);
  cFft_Blk_R2<W, Joined>(d, 2 * kBlock, merges + kBlock);
}

// --- Transforms that fit the cache.

template <Way W, int N, class First, class Last>
void single(const Hux32fc* src, Hux32fc* dst, First first, Last last) {
  Split<Hux32f> z[N];
  constexpr int order = N == 4 ? 2 : N == 8 ? 3 : 4;
  for (int i = 0; i < N; ++i) z[i] = loadSplit<Hux32f>(src + reversed(i, order));
  kernel<W>(z, first);
  for (int i = 0; i < N; ++i) storeSplit(dst + i, last(z[i]));
}

// Orders 3 to 12 by the passes of the long ones; src is not dst.
template <Way W>
void apart(const void* block, const PowerPlan& plan, const Hux32fc* src, Hux32fc* dst) {
  withScale<W>(plan.scaling, [&](auto scale) {
    if (plan.order == 3) return single<W, 8>(src, dst, Unscaled{}, scale);
    if (plan.order == 4) return single<W, 16>(src, dst, Unscaled{}, scale);
    auto* d = reinterpret_cast<Hux32f*>(dst);
    // Merged lengths are made of blocks of an even order, whatever their own.
    if (plan.order > kBlockOrder || plan.order % 2 == 0)
      firstPasses<W, 16>(src, d, plan.order);
    else
      firstPasses<W, 8>(src, d, plan.order);
    finish<W>(d, plan.order, plan.passes.in(block), plan.merges.in(block), scale);
  });
}

template <Way W>
__attribute__((noinline)) void inPlace(const void* block, const PowerPlan& plan, Hux32fc* d) {
  Aside aside;
  auto* copy = reinterpret_cast<Hux32fc*>(aside.floats);
  std::memcpy(copy, d, sizeof(Hux32fc) << plan.order);
  apart<W>(block, plan, copy, d);
}

template <Way W>
void smallest(const PowerPlan& plan, const Hux32fc* src, Hux32fc* dst) {
  withScale<W>(plan.scaling, [&](auto scale) {
    const auto at = [&](int i) { return loadSplit<Hux32f>(src + i); };
    if (plan.order == 0) return storeSplit(dst, scale(at(0)));
    if (plan.order == 1) {
      const Split<Hux32f> a = at(0), b = at(1);
      storeSplit(dst, scale(a + b));
      return storeSplit(dst + 1, scale(a - b));
    }
    if (plan.order == 2) return single<W, 4>(src, dst, scale, Unscaled{});
    single<W, 8>(src, dst, scale, Unscaled{});
  });
}

// --- Long transforms.

// Turns 8 rows over, `step` numbers apart and of 8 or 16 numbers, and takes both rows and columns in the order of their
// reversed bits: square[reversed(column)][reversed(row)].
void turnSquare(const Hux32fc* src, Index step, Hux32fc* square, Index columns) {
  const int bits = columns == 8 ? 3 : 4;
  for (Index c = 0; c < columns; c += 8)
    for (Index h = 0; h < 2; ++h) {
      Hux32fc* to[8];
      for (Index i = 0; i < 8; ++i) to[i] = square + reversed(c + i, bits) * 8 + 4 * h;
      const Hux32fc* from = src + h * step + c;
      turnColumns({from, from + 4 * step, from + 2 * step, from + 6 * step}, to);
    }
}

// Swaps, or brings from one array to another, all numbers to their bit-reversed places, by squares of 8 by 8 whose
// lines are whole in both.
void BitRev(const Hux32fc* src, Hux32fc* dst, int order) {
  const Index middles = Index(1) << (order - 6), high = Index(1) << (order - 3);
  const auto load = [&](Index middle, Hux32fc(&square)[64]) { turnSquare(src + middle * 8, high, square, 8); };
  const auto store = [&](Index middle, const Hux32fc(&square)[64]) {
    for (Index a = 0; a < 8; ++a) std::memcpy(dst + a * high + middle * 8, square + a * 8, 8 * sizeof(Hux32fc));
  };
  Index other = 0;
  for (Index middle = 0; middle < middles; ++middle) {
    if (middle <= other) {
      Hux32fc one[64], two[64];
      load(middle, one);
      load(other, two);
      store(other, one);
      store(middle, two);
    }
    Index bit = middles >> 1;
    while (other & bit) other ^= bit, bit >>= 1;
    other |= bit;
  }
}

// The numbers of a square of the first pass: one for each lane of a transform of a kernel's length.
constexpr Index squareOf(int order) { return Index(8) << (order > kBlockOrder ? 4 : kernelOrder(order)); }

// A row whose squares hold their numbers in their own order, while the squares are in bit-reversed order.
template <Way W, int N>
void firstPassesWithin(Hux32f* row, Index n) {
  for (Index i = 0; i < n; i += 8 * N) {
    auto* square = reinterpret_cast<Hux32fc*>(row + floats(i));
    if constexpr (kLanes == 8) {
      firstPass<W, N, V>(square, 8, row + floats(i), floats(N));
    } else {
      alignas(64) Hux32f aside[floats(8 * N)];
      for (int half = 0; half < 2; ++half)
        firstPass<W, N, V>(square + 4 * half, 8, aside + floats(N) * half, 2 * floats(N));
      std::memcpy(row + floats(i), aside, sizeof aside);
    }
  }
}
template <Way W, class Scale>
void rowTransform(const void* block, const PowerPlan& plan, Hux32f* row, int order, Scale scale) {
  if (squareOf(order) == 64)
    firstPassesWithin<W, 8>(row, Index(1) << order);
  else
    firstPassesWithin<W, 16>(row, Index(1) << order);
  finish<W>(row, order, plan.passes.in(block), plan.merges.in(block), scale);
}

// Rows of the matrix, 8 at a time, from the source in its own order: row r is every S-th number from r on.
template <Way W, class Scale>
void gatheredRows(const void* block, const PowerPlan& plan, const Hux32fc* src, Hux32fc* dst, Scale scale) {
  const int s = rowsOrder(plan.order), order = plan.order - s;
  const Index rows = Index(1) << s, n = Index(1) << order, square = squareOf(order), squares = n / square;
  for (Index r = 0; r < rows; r += 8) {
    Hux32fc* to[8];
    for (int i = 0; i < 8; ++i) to[i] = dst + reversed(r + i, s) * n;
    for (Index q = 0; q < squares; ++q) {
      const Index place = reversed(q, order - (square == 64 ? 6 : 7));
      for (Index t = 0; t < square; t += 4) {
        Hux32fc* lines[8];
        for (int i = 0; i < 8; ++i) lines[i] = to[i] + place * square + t;
        const Hux32fc* line = src + (q + t * squares) * rows + r;
        const Index step = squares * rows;
        turnColumns({line, line + step, line + 2 * step, line + 3 * step}, lines);
      }
    }
    for (int i = 0; i < 8; ++i) rowTransform<W>(block, plan, reinterpret_cast<Hux32f*>(to[i]), order, scale);
  }
}

// Half of the numbers of eight columns; the other half is in the caller's work memory.
struct alignas(64) HalfColumns {
  Hux32f floats[8 << 10];
};

// The columns of the matrix, eight at a time.
template <Way W>
__attribute__((noinline)) void columns(const void* block, const PowerPlan& plan, Hux32fc* d, int order, int level,
                                       std::byte* work) {
  const int s = rowsOrder(order);
  const Index n = Index(1) << (order - s), rows = Index(1) << s;
  const Hux32f* crossing = plan.crossings[level].in(block);
  const Hux32f* passes = plan.columnPasses[level].in(block);
  HalfColumns half;
  const Columns<V> held{reinterpret_cast<Hux32f*>(work), half.floats};
  const auto walk = [&](auto kernelSize) {
    constexpr int N = kernelSize;
    for (Index c = 0; c < n; c += kLanes, crossing += floats(rows) * kLanes) {
      const auto kernels = [&](Index begin, Index end) {
        for (Index r = begin; r < end; r += N) {
          Z z[N];
          for (int i = 0; i < N; ++i)
            z[i] = turned<W>(loadSplit<V>(d + (r + i) * n + c), loadParted<V>(crossing + floats(r + i) * kLanes));
          kernel<W>(z);
          for (int i = 0; i < N; ++i) held.set(r + i, z[i]);
        }
      };
      blockAcross<W>(held, 0, rows, N, passes, kernels, Unscaled{},
                     [&](Index row, Z z) { storeSplit(d + row * n + c, z); });
    }
  };
  if (s % 2)
    walk(std::integral_constant<int, 8>{});
  else
    walk(std::integral_constant<int, 16>{});
}

// From bit-reversed order.
template <Way W>
void cFft_BlkStep(const void* block, const PowerPlan& plan, Hux32fc* d, int order, int level, std::byte* work) {
  const int s = rowsOrder(order), inner = order - s;
  const Index n = Index(1) << inner;
  for (Index r = 0; r < Index(1) << s; ++r) {
    Hux32fc* row = d + r * n;
    if (inner > kMergeOrder) {
      cFft_BlkStep<W>(block, plan, row, inner, level + 1, work);
      continue;
    }
    const Index square = squareOf(inner);
    // Squares go back to their own order: of 8 transforms, the numbers of each lie side by side.
    for (Index q = 0; q < n; q += square) {
      Hux32fc aside[128];
      turnSquare(row + q, square / 8, aside, square / 8);
      std::memcpy(row + q, aside, sizeof(Hux32fc) * std::size_t(square));
    }
    withScale<W>(plan.scaling,
                 [&](auto scale) { rowTransform<W>(block, plan, reinterpret_cast<Hux32f*>(row), inner, scale); });
  }
  columns<W>(block, plan, d, order, level, work);
}

template <Way W>
void cFft_Large(const void* block, const PowerPlan& plan, const Hux32fc* src, Hux32fc* dst, std::byte* work) {
  if (src != dst && plan.order - rowsOrder(plan.order) <= kMergeOrder) {
    withScale<W>(plan.scaling, [&](auto scale) { gatheredRows<W>(block, plan, src, dst, scale); });
    return columns<W>(block, plan, dst, plan.order, 0, work);
  }
  BitRev(src, dst, plan.order);
  cFft_BlkStep<W>(block, plan, dst, plan.order, 0, work);
}

// Orders from 3 up by the passes of the long ones.
template <Way W>
void byPasses(const void* block, const PowerPlan& plan, const Hux32fc* src, Hux32fc* dst, std::byte* work) {
  if (plan.order > kMergeOrder) return cFft_Large<W>(block, plan, src, dst, work);
  if (src == dst) return inPlace<W>(block, plan, dst);
  apart<W>(block, plan, src, dst);
}

// --- Real sequences.

constexpr Hux32f kRootHalf = 0.70710678118654752f;

// Up to 8 real numbers to their spectrum in the order perm, and back. The first sums are scaled.
template <class Scale>
void smallestReal(const Element<Hux32f>* x, Element<Hux32f>* d, int order, Scale scale) {
  if (order == 0) {
    d[0] = scale(Hux32f(x[0]));
  } else if (order == 1) {
    const Hux32f a = x[0], b = x[1];
    d[0] = scale(a + b), d[1] = scale(a - b);
  } else if (order == 2) {
    const Hux32f a = scale(x[0] + x[2]), b = scale(x[0] - x[2]), c = scale(x[1] + x[3]), e = scale(x[3] - x[1]);
    d[0] = a + c, d[1] = a - c, d[2] = b, d[3] = e;
  } else {
    const Hux32f a = scale(x[0] + x[4]), b = scale(x[0] - x[4]), c = scale(x[2] + x[6]), e = scale(x[2] - x[6]);
    const Hux32f f = scale(x[1] + x[5]), g = scale(x[1] - x[5]), h = scale(x[3] + x[7]), i = scale(x[3] - x[7]);
    const Hux32f u = (g - i) * kRootHalf, v = (g + i) * kRootHalf;
    d[0] = (a + c) + (f + h), d[1] = (a + c) - (f + h);
    d[2] = b + u, d[3] = -(e + v);
    d[4] = a - c, d[5] = h - f;
    d[6] = b - u, d[7] = e - v;
  }
}
template <class Scale>
void smallestToReal(const Element<Hux32f>* x, Element<Hux32f>* d, int order, Scale scale) {
  if (order == 0) {
    d[0] = scale(Hux32f(x[0]));
  } else if (order == 1) {
    const Hux32f a = x[0], b = x[1];
    d[0] = scale(a + b), d[1] = scale(a - b);
  } else if (order == 2) {
    const Hux32f a = scale(x[0] + x[1]), b = scale(x[0] - x[1]), c = scale(x[2] + x[2]), e = scale(x[3] + x[3]);
    d[0] = a + c, d[1] = b - e, d[2] = a - c, d[3] = b + e;
  } else {
    const Hux32f a = scale(x[0] + x[1]), b = scale(x[0] - x[1]), c = scale(x[4] + x[4]), e = scale(x[5] + x[5]);
    const Hux32f f = scale(x[2] + x[6]), g = scale(x[2] - x[6]), h = scale(x[3] + x[7]), i = scale(x[3] - x[7]);
    const Hux32f u = (g - h) * (2 * kRootHalf), v = (g + h) * (2 * kRootHalf);
    d[0] = (a + c) + (f + f), d[4] = (a + c) - (f + f);
    d[2] = (a - c) - (i + i), d[6] = (a - c) + (i + i);
    d[1] = (b - e) + u, d[5] = (b - e) - u;
    d[3] = (b + e) - v, d[7] = (b + e) + v;
  }
}

// A packed spectrum of up to 8 numbers in the other order.
template <class Kernel>
void packed(Element<Hux32f>* d, Index n, Kernel kernel) {
  kernel();
  if (n < 4) return;
  const Hux32f last = d[1];
  std::memmove(d + 1, d + 2, std::size_t(n - 2) * sizeof(Hux32f));
  d[n - 1] = last;
}

// Numbers of a spectrum that face each other, k and half - k, with those behind k and before half - k in lanes. From
// and To are by how many floats the numbers lie before their places at the source and at the destination. What comes
// next is loaded before anything is stored, so that both may be one array.
template <int From, int To, class Rule>
void facing(const Hux32f* src, Hux32f* dst, Index half, const Hux32f* table, Rule rule) {
  const Index pairs = half / 2;
  Z low, high;
  const auto load = [&](Index k) {
    if (const Index left = pairs - k + 1; left < kLanes) {
      Hux32f a[2 * kLanes] = {}, b[2 * kLanes] = {};
      std::memcpy(a, src + 2 * k - From, std::size_t(left) * sizeof(Hux32fc));
      std::memcpy(b + 2 * (kLanes - left), src + 2 * (half - k - left + 1) - From, std::size_t(left) * sizeof(Hux32fc));
      low = loadSplit<V>(a), high = mirrored(loadSplit<V>(b));
    } else {
      low = loadSplit<V>(src + 2 * k - From), high = mirrored(loadSplit<V>(src + 2 * (half - k - kLanes + 1) - From));
    }
  };
  if (pairs > 0) load(1);
  for (Index k = 1; k <= pairs; k += kLanes, table += 2 * kLanes) {
    Z a = low, b = high;
    if (k + kLanes <= pairs) load(k + kLanes);
    rule(a, b, loadParted<V>(table));
    b = mirrored(b);
    if (const Index left = pairs - k + 1; left < kLanes) {
      Hux32f c[2 * kLanes], d[2 * kLanes];
      storeSplit(c, a), storeSplit(d, b);
      std::memcpy(dst + 2 * k - To, c, std::size_t(left) * sizeof(Hux32fc));
      std::memcpy(dst + 2 * (half - k - left + 1) - To, d + 2 * (kLanes - left), std::size_t(left) * sizeof(Hux32fc));
    } else {
      storeSplit(dst + 2 * k - To, a), storeSplit(dst + 2 * (half - k - kLanes + 1) - To, b);
    }
  }
}

}  // namespace

// The number in the middle of an even half faces itself: its factors are (0, 0) and (0, -1), and the rules turn them
// into its conjugate, and twice that.
template <Order O>
void cRealRecombine(const Hux32f* src, Hux32f* dst, Index n, const Hux32f* table) {
  constexpr int shift = O == Order::pack;
  const auto* x = elements(src);
  const Hux32f a = x[0], b = x[1];
  facing<0, shift>(src, dst, n / 2, table, [](Z& low, Z& high, Z w) {
    const V A = low.re - high.re, B = low.im + high.im;
    const V p = w.im * A + w.re * B, q = B * w.im - A * w.re;
    const Z l{high.re + p, q - high.im}, h{low.re - p, q - low.im};
    low = l, high = h;
  });
  elements(dst)[0] = a + b;
  elements(dst)[shift ? n - 1 : 1] = a - b;
}

template <Order O>
void cCcsRecombine(const Hux32f* src, Hux32f* dst, Index n, const Hux32f* table) {
  constexpr int shift = O == Order::pack;
  const auto* x = elements(src);
  const Hux32f a = x[0], b = x[shift ? n - 1 : 1];
  facing<shift, 0>(src, dst, n / 2, table, [](Z& low, Z& high, Z w) {
    const V A = low.re - high.re, B = low.im + high.im, S = low.re + high.re, D = low.im - high.im;
    const V p = w.im * A - w.re * B, q = A * w.re + B * w.im;
    low = {S + p, D + q}, high = {S - p, q - D};
  });
  elements(dst)[0] = a + b;
  elements(dst)[1] = a - b;
}

template void cRealRecombine<Order::perm>(const Hux32f*, Hux32f*, Index, const Hux32f*);
template void cRealRecombine<Order::pack>(const Hux32f*, Hux32f*, Index, const Hux32f*);
template void cCcsRecombine<Order::perm>(const Hux32f*, Hux32f*, Index, const Hux32f*);
template void cCcsRecombine<Order::pack>(const Hux32f*, Hux32f*, Index, const Hux32f*);

template <Way W>
void transform(const void* block, const PowerPlan& plan, const Hux32fc* src, Hux32fc* dst, std::byte* work) {
  if (plan.order <= 3) return smallest<W>(plan, src, dst);
  byPasses<W>(block, plan, src, dst, work);
}
template void transform<Way::forward>(const void*, const PowerPlan&, const Hux32fc*, Hux32fc*, std::byte*);
template void transform<Way::inverse>(const void*, const PowerPlan&, const Hux32fc*, Hux32fc*, std::byte*);

template <Order O>
void transformReal(const void* block, const RealPlan& plan, const Hux32f* src, Hux32f* dst, std::byte* work) {
  const Index n = Index(1) << plan.order;
  if (plan.order <= 3) {
    auto* d = elements(dst);
    const auto kernel = [&] {
      withScale<Way::forward>(plan.half.scaling,
                              [&](auto scale) { smallestReal(elements(src), d, plan.order, scale); });
    };
    if constexpr (O == Order::pack)
      packed(d, n, kernel);
    else
      kernel();
    return;
  }
  byPasses<Way::forward>(block, plan.half, reinterpret_cast<const Hux32fc*>(src), reinterpret_cast<Hux32fc*>(dst),
                         work);
  cRealRecombine<O>(dst, dst, n, plan.recombineForward.in(block));
}

template <Order O>
__attribute__((noinline)) void transformToReal(const void* block, const RealPlan& plan, const Hux32f* src, Hux32f* dst,
                                               std::byte* work) {
  const Index n = Index(1) << plan.order;
  const Hux32f* table = plan.recombineInverse.in(block);
  auto* numbers = reinterpret_cast<Hux32fc*>(dst);
  if (plan.order <= 3) {
    Hux32f perm[8];
    std::memcpy(perm, src, std::size_t(n) * sizeof(Hux32f));
    if (O == Order::pack && n >= 4) {
      perm[1] = elements(src)[n - 1];
      std::memcpy(perm + 2, src + 1, std::size_t(n - 2) * sizeof(Hux32f));
    }
    withScale<Way::inverse>(plan.half.scaling,
                            [&](auto scale) { smallestToReal(elements(perm), elements(dst), plan.order, scale); });
  } else if (plan.half.order <= kMergeOrder) {
    Aside aside;
    cCcsRecombine<O>(src, aside.floats, n, table);
    apart<Way::inverse>(block, plan.half, reinterpret_cast<const Hux32fc*>(aside.floats), numbers);
  } else {
    cCcsRecombine<O>(src, dst, n, table);
    cFft_Large<Way::inverse>(block, plan.half, numbers, numbers, work);
  }
}

template void transformReal<Order::perm>(const void*, const RealPlan&, const Hux32f*, Hux32f*, std::byte*);
template void transformReal<Order::pack>(const void*, const RealPlan&, const Hux32f*, Hux32f*, std::byte*);
template void transformToReal<Order::perm>(const void*, const RealPlan&, const Hux32f*, Hux32f*, std::byte*);
template void transformToReal<Order::pack>(const void*, const RealPlan&, const Hux32f*, Hux32f*, std::byte*);

// --- Plans.

HuxStatus scalingOf(Hux32s flag, Index length, Scaling& scaling) {
  const auto n = Hux64f(length);
  switch (flag) {
    case huxFftScaleFwd:
      scaling = {1, 0, Hux32f(1 / n)};
      break;
    case huxFftScaleInv:
      scaling = {0, 1, Hux32f(1 / n)};
      break;
    case huxFftScaleRoot:
      scaling = {1, 1, Hux32f(1 / std::sqrt(n))};
      break;
    case huxFftScaleNone:
      scaling = {};
      break;
    default:
      return huxStsBadFlag;
  }
  return huxStsOk;
}

Split<Hux64f> rootOf(Index k, Index n) {
  k %= n;
  Index a = 8 * k;  // in units of 1/8 of the circle, n to each
  const int eighth = int(a / n);
  a %= n;
  const Index within = eighth % 2 ? n - a : a;
  const auto [s, c] = portable::ofEighth(6.283185307179586 * Hux64f(within) / (8 * Hux64f(n)));
  const bool swapped = (eighth + 1) / 2 % 2, left = eighth >= 2 && eighth < 6, below = eighth >= 4;
  const Hux64f x = swapped ? s : c, y = swapped ? c : s;
  return {left ? -x : x, below ? y : -y};
}

Waves::Waves(int order, Hux32f* memory) : order_(order), quarter_(memory) {
  const Index n = Index(1) << order;
  for (Index k = 0; k <= n / 4; ++k) memory[k] = Hux32f(-rootOf(k, n).im);
}
Hux32f Waves::sine(Index k) const {
  const Index n = Index(1) << order_, half = n / 2;
  const bool below = k & half;
  k &= half - 1;
  if (k > n / 4) k = half - k;
  return below ? -quarter_[k] : quarter_[k];
}
Split<Hux32f> Waves::turn(Index k) const { return {sine(k + (Index(1) << order_) / 4), -sine(k)}; }
Split<Hux32f> Waves::turn(Index k, int order) const { return turn(k << (order_ - order)); }

namespace {

constexpr std::int64_t align(std::int64_t n) { return n & ~std::int64_t(15); }
constexpr std::int64_t reversalBytes(std::int64_t n) { return align(n + 19); }
constexpr std::int64_t radixBytes(std::int64_t n) { return align(8 * n + 23); }

// A vector of factors: the numbers first.. of what factor(k) gives.
template <class Factor>
void fillVector(Hux32f* to, Index first, Factor factor) {
  for (int l = 0; l < kLanes; ++l) {
    const Split<Hux32f> w = factor(first + heldBy<V>(l));
    to[l] = w.re, to[l + kLanes] = w.im;
  }
}
void initTabTwd_L1(Hux32f* to, int order, const Waves& waves) {
  int group = kernelOrder(order) + 2;
  for (; group <= order; group += 2)
    for (Index j = 0; j < Index(1) << (group - 2); j += kLanes)
      for (int i = 1; i <= 3; ++i, to += 2 * kLanes)
        fillVector(to, j, [&](Index k) { return waves.turn(k * i, group); });
}

}  // namespace

Index passesFloats(int order) {
  Index numbers = 0;
  for (int group = kernelOrder(order) + 2; group <= order; group += 2) numbers += Index(3) << (group - 2);
  return floats(numbers);
}

std::int64_t tablesBytes(int order) {
  const std::int64_t n = std::int64_t(1) << order;
  if (order <= kBlockOrder) return radixBytes(n);
  if (order <= kMergeOrder) return align(2 * n + 15) + radixBytes(kBlock);
  const int s = rowsOrder(order);
  return tablesBytes(order - s) + radixBytes(std::int64_t(1) << s) + 8 * n;
}
std::int64_t scratchBytes(int order) {
  if (order <= kMergeOrder) return 0;
  const std::int64_t rows = std::int64_t(1) << rowsOrder(order);
  return scratchBytes(order - rowsOrder(order)) + 32 * rows + reversalBytes(rows);
}
std::int64_t workBytes(int order) {
  if (order <= kMergeOrder) return 0;
  return std::max(workBytes(order - rowsOrder(order)), std::int64_t(32) << rowsOrder(order));
}

void PowerPlan::take(Arena& arena) {
  int inner = order;
  for (int level = 0; rowsOrder(inner); ++level) {
    columnPasses[level] = arena.take<Hux32f>(passesFloats(rowsOrder(inner)));
    crossings[level] = arena.take<Hux32f>(floats(Index(1) << inner));
    inner -= rowsOrder(inner);
  }
  if (inner <= 4) return;
  passes = arena.take<Hux32f>(passesFloats(std::min(inner, kBlockOrder)));
  if (inner > kBlockOrder) merges = arena.take<Hux32f>((Index(1) << inner) - kBlock);
}

void PowerPlan::fill(void* block, const Waves& waves) const {
  int inner = order;
  for (int level = 0; rowsOrder(inner); ++level) {
    const int s = rowsOrder(inner);
    initTabTwd_L1(columnPasses[level].in(block), s, waves);
    Hux32f* to = crossings[level].in(block);
    for (Index c = 0; c < Index(1) << (inner - s); c += kLanes)
      for (Index r = 0; r < Index(1) << s; ++r, to += 2 * kLanes)
        fillVector(to, c, [&, row = reversed(r, s)](Index k) { return waves.turn(k * row, inner); });
    inner -= s;
  }
  if (inner <= 4) return;
  initTabTwd_L1(passes.in(block), std::min(inner, kBlockOrder), waves);
  Hux32f* to = merges.in(block);
  for (int length = kBlockOrder + 1; length <= inner; ++length)
    for (Index j = 0; j < Index(1) << (length - 2); j += kLanes, to += 2 * kLanes)
      fillVector(to, j, [&](Index k) { return waves.turn(k, length); });
}

void RealPlan::take(Arena& arena) {
  half.order = std::max(order - 1, 0);
  if (order <= 3) return;
  half.take(arena);
  const Index n = recombinationFloats(Index(1) << order);
  recombineForward = arena.take<Hux32f>(n);
  recombineInverse = arena.take<Hux32f>(n);
}
void RealPlan::fill(void* block, const Waves& waves) const {
  if (order <= 3) return;
  half.fill(block, waves);
  fillRecombination(recombineForward.in(block), recombineInverse.in(block), Index(1) << order,
                    [&](Index k) { return waves.turn(k, order); });
}

}  // namespace hux::fft
