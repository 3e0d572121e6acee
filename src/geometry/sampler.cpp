#include "geometry/sampler.h"

#include <bit>
#include <cmath>

#include "lanes/lanes.h"
#include "lanes/lanes_math.h"
#include "lanes/round.h"
#include "lanes/windows.h"

namespace hux {

// Where the pixels of a block lie: the bytes from the plane's first to each one's first tap, and by interpolation the
// fractions (linear, in [0]) or the weights (cubic) of columns and rows.
struct Places {
  alignas(64) Index offset[kBlock];
  alignas(64) Hux64f x[4][kBlock], y[4][kBlock];
};

namespace {

using Wide = Lanes<Hux64f, laneCount<Hux64f>>;

// Limits lanes; NaN comes to a limit.
Wide limited(Wide v, Wide low, Wide high) { return lesser(greater(v, low), high); }

// The pixel at or before a coordinate. A little is added, so that what rounding has left just below a whole number
// counts as that: its fraction is then a little below 0.
Wide pixelAt(Wide v) { return wholeParts(v + 1e-7); }

// Places the vectors of a block: column and row tell for a coordinate and a place in the block which pixel is the first
// to be taken, and note in `places` what they do with the rest. Behind the last position come zeros.
template <class Column, class Row>
void place(const Extent& image, const Hux64f* x, const Hux64f* y, Index n, Places& places, Column column, Row row) {
  constexpr int lanes = lanesIn<Wide>;
  const Wide step = splat<Wide>(image.step), pixelBytes = splat<Wide>(image.pixelBytes);
  const auto one = [=, &places](Wide x, Wide y, Index k) {
    // In floats, which is exact: no memory is so large that a byte's offset would not fit their digits.
    const Wide offset = row(y, k) * step + column(x, k) * pixelBytes;
    storeLanes(places.offset + k, nearestEvenBits(offset) - std::bit_cast<Hux64s>(0x1.8p52));
  };
  Index k = 0;
  for (; k + lanes <= n; k += lanes) one(loadLanes<Wide>(x + k), loadLanes<Wide>(y + k), k);
  if (k < n) one(loadLanes<Wide>(x + k, int(n - k), 0.0), loadLanes<Wide>(y + k, int(n - k), 0.0), k);
}

void placeNearest(const Extent& image, const Hux64f* x, const Hux64f* y, Index n, Places& places) {
  const auto nearest = [](Hux64f last) {
    return [last = splat<Wide>(last)](Wide v, Index) { return wholeParts(0.5 + limited(v, Wide{}, last)); };
  };
  place(image, x, y, n, places, nearest(image.xMax), nearest(image.yMax));
}

// The last column and row are reached from the one before with a fraction of 1. A position that is less than 1 outside
// keeps its fraction, one farther out counts as 1 outside.
void placeLinear(const Extent& image, const Hux64f* x, const Hux64f* y, Index n, Places& places) {
  const auto pair = [](Hux64f last, Hux64f* fraction) {
    return [=, last = splat<Wide>(last), beforeLast = splat<Wide>(last - 1)](Wide v, Index k) {
      v = limited(v, splat<Wide>(-1), last);
      const Wide first = pixelAt(v);
      storeLanes(fraction + k, first >= last ? splat<Wide>(1) : v - first);
      return lesser(first, beforeLast);
    };
  };
  place(image, x, y, n, places, pair(image.xMax, places.x[0]), pair(image.yMax, places.y[0]));
}

// The four by four pixels around a position, moved inside the image where they would leave it; there the offsets from
// the second one run from -1 to 2, and the same polynomials extrapolate. The weights are Lagrange's for the points -1,
// 0, 1 and 2; offset and square are rounded to single precision, the rest is computed in double.
void placeCubic(const Extent& image, const Hux64f* x, const Hux64f* y, Index n, Places& places) {
  const auto run = [](Hux64f last, Hux64f(*weights)[kBlock]) {
    return [=](Wide v, Index k) {
      constexpr Hux64f sixth = 1.0 / 6, third = 1.0 / 3;
      v = limited(v, splat<Wide>(-1), splat<Wide>(last + 1));
      const Wide first = limited(pixelAt(v) - 1, Wide{}, splat<Wide>(last - 3));
      const auto offset = convert<Hux32f>(v - 1 - first);
      const Wide t = convert<Hux64f>(offset), q = convert<Hux64f>(offset * offset);
      const Wide s = t * t * 0.5, cube = t * t * t;
      storeLanes(weights[0] + k, -cube * sixth + s - t * third);
      storeLanes(weights[1] + k, t * s + 1 - q - t * 0.5);
      storeLanes(weights[2] + k, -cube * 0.5 + s + t);
      storeLanes(weights[3] + k, cube * sixth - t * sixth);
      return first;
    };
  };
  place(image, x, y, n, places, run(image.xMax, places.x), run(image.yMax, places.y));
}

// Pixels are computed four at a time where they have one element, else their elements at a time.
using Four = Lanes<Hux64f, 4>;

template <class W>
W load(const std::byte* p) {
  W word;
  std::memcpy(&word, p, sizeof word);
  return word;
}

// Lanes of whole words from four places.
template <class W>
Lanes<W, 4> loadFour(const std::byte* plane, const Index* offset) {
  return Lanes<W, 4>{load<W>(plane + offset[0]), load<W>(plane + offset[1]), load<W>(plane + offset[2]),
                     load<W>(plane + offset[3])};
}

// Results to elements. Linear interpolation of bytes rounds, but of 16 bits truncates: so these images have always come
// out. What lies outside the type's range, as positions outside the image can make it, wraps.
template <class T>
struct LinearResult {
  static Four between(Four top, Four bottom, Four fraction) {
    if constexpr (sizeof(T) == 1)
      return fraction * (bottom - top) + 0.5 + top;
    else
      return fraction * (bottom - top) + top;
  }
  static Lanes<T, 4> narrowed(Four v) {
    if constexpr (sizeof(T) == 4)
      return convert<T>(v);
    else
      return convert<T>(convert<Hux32s>(v));
  }
};

template <class T>
Lanes<T, 4> cubicResult(Four v) {
  if constexpr (sizeof(T) == 4) {
    return convert<T>(v);
  } else {
    const Four inRange = greater(lesser(v, splat<Four>(std::numeric_limits<T>::max())), Four{});
    return convert<T>(convert<Hux32s>(inRange + 0.5));
  }
}

template <int Bytes, int Stride>
void fetchNearest(const std::byte* plane, Index, const Places& places, std::byte* dst, Index n) {
  for (Index k = 0; k < n; ++k) std::memcpy(dst + k * Stride, plane + places.offset[k], Bytes);
}

// Calls rule(k) for each group of four one-element pixels, which returns them.
template <class T, class Rule>
void forGroups(std::byte* dst, Index n, Rule rule) {
  Index k = 0;
  for (; k + 4 <= n; k += 4) storeLanes(dst + k * Index(sizeof(T)), rule(k));
  if (k < n) storeColours<4>(dst + k * Index(sizeof(T)), rule(k), int(n - k));
}

// At each of four places, of two neighbours the first and the second less the first, and the same a row below.
struct Pair {
  Four first, difference;
};
struct Square {
  Pair top, bottom;
};
template <class V>
Square squareOf(V first, V difference) {
  const auto pair = [](auto a, auto b) { return Pair{convert<Hux64f>(a), convert<Hux64f>(b)}; };
  return {pair(half<0>(first), half<0>(difference)), pair(half<1>(first), half<1>(difference))};
}
template <class T>
Square loadSquare(const std::byte* plane, Index step, const Index* offset) {
  const std::byte *p0 = plane + offset[0], *p1 = plane + offset[1], *p2 = plane + offset[2], *p3 = plane + offset[3];
  const auto pairs = [&]<class W>(W) {
    return Lanes<W, 8>{load<W>(p0),        load<W>(p1),        load<W>(p2),        load<W>(p3),
                       load<W>(p0 + step), load<W>(p1 + step), load<W>(p2 + step), load<W>(p3 + step)};
  };
  if constexpr (sizeof(T) == 1) {
    const auto words = pairs(Hux16u());
    const auto first = Lanes<Hux16s, 8>(words & 0xff);
    return squareOf(first, Lanes<Hux16s, 8>(words >> 8) - first);
  } else if constexpr (sizeof(T) == 2) {
    const auto words = pairs(Hux32u());
    const auto first = Lanes<Hux32s, 8>(words & 0xffff);
    return squareOf(first, Lanes<Hux32s, 8>(words >> 16) - first);
  } else {
    const auto row = [](const std::byte* a, const std::byte* b, const std::byte* c, const std::byte* d) {
      using W = std::uint64_t;
      const auto pairs = bitsAs<Lanes<Hux32f, 8>>(Lanes<W, 4>{load<W>(a), load<W>(b), load<W>(c), load<W>(d)});
      const Four first = convert<Hux64f>(__builtin_shufflevector(pairs, pairs, 0, 2, 4, 6));
      return Pair{first, convert<Hux64f>(__builtin_shufflevector(pairs, pairs, 1, 3, 5, 7)) - first};
    };
    return {row(p0, p1, p2, p3), row(p0 + step, p1 + step, p2 + step, p3 + step)};
  }
}

template <class T>
void fetchLinear(const std::byte* plane, Index step, const Places& places, std::byte* dst, Index n) {
  forGroups<T>(dst, n, [&](Index k) {
    const auto [top, bottom] = loadSquare<T>(plane, step, places.offset + k);
    const Four x = loadLanes<Four>(places.x[0] + k), y = loadLanes<Four>(places.y[0] + k);
    using Result = LinearResult<T>;
    return Result::narrowed(Result::between(top.first + top.difference * x, bottom.first + bottom.difference * x, y));
  });
}

// Four neighbours at each of four places.
template <class T>
std::array<Four, 4> loadRuns(const std::byte* plane, const Index* offset) {
  std::array<Four, 4> taps;
  if constexpr (sizeof(T) == 1) {
    const auto runs = Lanes<Hux32s, 4>(loadFour<Hux32u>(plane, offset));
    for (int c = 0; c < 4; ++c) taps[c] = convert<Hux64f>((runs >> (8 * c)) & 0xff);
  } else if constexpr (sizeof(T) == 2) {
    // A number below 2^52 stands in the low digits of 2^52 and itself.
    const auto runs = loadFour<std::uint64_t>(plane, offset);
    for (int c = 0; c < 4; ++c)
      taps[c] = bitsAs<Four>(((runs >> (16 * c)) & 0xffff) | std::bit_cast<std::uint64_t>(0x1p52)) - 0x1p52;
  } else {
    using V = Lanes<Hux32f, 4>;
    V v[4];
    for (int i = 0; i < 4; ++i) v[i] = loadLanes<V>(plane + offset[i]);
    const V a = __builtin_shufflevector(v[0], v[1], 0, 4, 1, 5), b = __builtin_shufflevector(v[2], v[3], 0, 4, 1, 5);
    const V c = __builtin_shufflevector(v[0], v[1], 2, 6, 3, 7), d = __builtin_shufflevector(v[2], v[3], 2, 6, 3, 7);
    taps[0] = convert<Hux64f>(__builtin_shufflevector(a, b, 0, 1, 4, 5));
    taps[1] = convert<Hux64f>(__builtin_shufflevector(a, b, 2, 3, 6, 7));
    taps[2] = convert<Hux64f>(__builtin_shufflevector(c, d, 0, 1, 4, 5));
    taps[3] = convert<Hux64f>(__builtin_shufflevector(c, d, 2, 3, 6, 7));
  }
  return taps;
}

// Rows first, each from left to right, then what they give from top to bottom.
Four weighed(const std::array<Four, 4>& taps, const std::array<Four, 4>& weights) {
  return taps[0] * weights[0] + taps[1] * weights[1] + taps[2] * weights[2] + taps[3] * weights[3];
}

template <class T>
void fetchCubic(const std::byte* plane, Index step, const Places& places, std::byte* dst, Index n) {
  forGroups<T>(dst, n, [&](Index k) {
    std::array<Four, 4> x, y, rows;
    for (int c = 0; c < 4; ++c) x[c] = loadLanes<Four>(places.x[c] + k), y[c] = loadLanes<Four>(places.y[c] + k);
    for (int r = 0; r < 4; ++r) rows[r] = weighed(loadRuns<T>(plane + r * step, places.offset + k), x);
    return cubicResult<T>(weighed(rows, y));
  });
}

// The elements of a pixel. Of three, four are loaded, from the pixel's first on or, for the last of a run, to its last:
// what lies outside a run may lie outside the image.
template <class L, class T, bool Last>
Four loadPixel(const std::byte* p) {
  if constexpr (L::channels == 3 && Last) {
    p -= sizeof(T);
    if constexpr (sizeof(T) == 4) {
      const auto v = loadLanes<Lanes<T, 4>>(p);
      return convert<Hux64f>(__builtin_shufflevector(v, v, 1, 2, 3, 3));
    } else {
      using W = std::conditional_t<sizeof(T) == 1, Hux32u, std::uint64_t>;
      return convert<Hux64f>(bitsAs<Lanes<T, 4>>(W(load<W>(p) >> (8 * sizeof(T)))));
    }
  } else {
    return convert<Hux64f>(loadLanes<Lanes<T, 4>>(p));
  }
}

// Stores a pixel, of three elements with a fourth where the next pixel follows and will be stored.
template <class L, bool Last = false, class V>
void storePixel(std::byte* dst, V v) {
  if constexpr (L::processed == 4 || (L::channels == 3 && !Last))
    storeLanes(dst, v);
  else
    storeColours<3>(dst, v);
}

// Calls rule(k) for each pixel, which returns its elements.
template <class L, class T, class Rule>
void forPixels(std::byte* dst, Index first, Index n, Rule rule) {
  constexpr Index bytes = L::channels * sizeof(T);
  for (Index k = first; k < n - 1; ++k) storePixel<L>(dst + k * bytes, rule(k));
  if (first < n) storePixel<L, true>(dst + (n - 1) * bytes, rule(n - 1));
}

template <class L, class T>
Lanes<T, 4> linearAt(const std::byte* plane, Index step, const Places& places, Index k) {
  constexpr Index bytes = L::channels * sizeof(T);
  const Four x = splat<Four>(places.x[0][k]), y = splat<Four>(places.y[0][k]);
  const auto row = [&](const std::byte* p) {
    const Four first = loadPixel<L, T, false>(p);
    return first + (loadPixel<L, T, true>(p + bytes) - first) * x;
  };
  const std::byte* p = plane + places.offset[k];
  using Result = LinearResult<T>;
  return Result::narrowed(Result::between(row(p), row(p + step), y));
}

// Linear interpolation of bytes in single precision, fused or not, which is less than kDoubt away from the result of
// double precision: where no integer lies that near, both round to the same byte. Other pixels, one in a thousand, are
// computed again.
using Eight = Lanes<Hux32f, 8>;
using Bits = Lanes<Hux32s, 8>;

// Next to 256 a float has 15 bits behind the point, and its whole part stands in the eight bits before them.
constexpr int kBehindPoint = 15;
constexpr int kDoubt = 4;  // in units of the last bit

// The fractions of a block in single precision.
struct Fractions {
  alignas(64) Hux32f x[kBlock], y[kBlock];
  bool inside;  // whether no position lies before the image's first column or row

  Fractions(const Places& places, Index n) {
    Wide least{};
    const auto narrow = [&](const Hux64f* from, Hux32f* to) {
      const Wide v = loadLanes<Wide>(from);
      least = lesser(v, least);
      storeLanes(to, convert<Hux32f>(v));
    };
    for (Index k = 0; k < n; k += lanesIn<Wide>) narrow(places.x[0] + k, x + k), narrow(places.y[0] + k, y + k);
    inside = !any(least < -1e-6);
  }
};

// Whether single precision rounds nothing, as all fractions are multiples of 1/64: those of shifts by half a pixel are,
// whose results lie next to integers all the time.
[[gnu::noinline]] bool fewDigits(const Places& places, Index n) {
  for (const Hux64f* fraction : {places.x[0], places.y[0]})
    for (Index k = 0; k < n; ++k)
      if (fraction[k] * 64 != std::trunc(fraction[k] * 64)) return false;
  return true;
}

// Two neighbours: the elements of the first from lane 0 on, those of the second from lane 4 on. What lies behind them
// is not read.
template <class L>
Eight loadNeighbours(const std::byte* p) {
  if constexpr (L::channels == 3)
    return convert<Hux32f>(spreadWords<1>(p, p + 2));
  else
    return convert<Hux32f>(convert<Hux32s>(loadLanes<Lanes<Hux8u, 8>>(p)));
}

// The whole parts of two pixels each, in order.
inline Lanes<Hux8u, 16> wholeBytes(Bits a, Bits b) {
  const auto whole = [](Bits v) { return v >> kBehindPoint & 0xff; };
  if constexpr (sizeof(Bits) > kLaneBytes) {
    const auto first = convert<Hux8u>(whole(a)), second = convert<Hux8u>(whole(b));
    return __builtin_shufflevector(first, second, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
  } else {
    const auto words = packWords(whole(a), whole(b));
    const auto pixels = bitsAs<Bits>(packBytes(words, words));
    return bitsAs<Lanes<Hux8u, 16>>(__builtin_shufflevector(pixels, pixels, 0, 4, 1, 5));
  }
}

// In double precision, out of the way of what comes before it.
template <class L>
[[gnu::noinline]] void fetchLinearFour(const std::byte* plane, Index step, const Places& places, Index first,
                                       std::byte* dst) {
  for (Index k = 0; k < 4; ++k)
    storePixel<L>(dst + k * L::channels, linearAt<L, Hux8u>(plane, step, places, first + k));
}

// Four pixels a time, as many as there are but for the last ones; returns how many these are.
template <class L>
Index fetchLinearSingles(const std::byte* plane, Index step, const Places& places, std::byte* dst, Index n) {
  const Fractions fractions(places, n);
  if (!fractions.inside) return 0;
  const auto across = [&](Index k) {
    const std::byte* p = plane + places.offset[k];
    const Eight top = loadNeighbours<L>(p);
    return mulAdd(loadNeighbours<L>(p + step) - top, splat<Eight>(fractions.y[k]), top);
  };
  // The bits of two pixels, a half and the doubt added.
  const auto two = [&](Index k) {
    const Eight a = across(k), b = across(k + 1);
    const Eight first = __builtin_shufflevector(a, b, 0, 1, 2, 3, 8, 9, 10, 11);
    const Eight second = __builtin_shufflevector(a, b, 4, 5, 6, 7, 12, 13, 14, 15);
    const auto both = bitsAs<Eight>(splat<Lanes<std::uint64_t, 4>>(loadLanes<std::uint64_t>(fractions.x + k)));
    const Eight x = __builtin_shufflevector(both, both, 0, 0, 0, 0, 5, 5, 5, 5);
    return bitsAs<Bits>(mulAdd(second - first, x, first) + (256.5f + Hux32f(kDoubt) / (1 << kBehindPoint)));
  };
  // What lies behind the point, in the upper bits.
  const auto fraction = [](Bits v) { return Lanes<Hux32u, 8>(v) << (32 - kBehindPoint); };
  constexpr Hux32u doubtful = (2u * kDoubt) << (32 - kBehindPoint);
  bool exact = false;
  Index k = 0;
  for (; k + 6 <= n; k += 4) {
    const Bits a = two(k), b = two(k + 2);
    std::byte* to = dst + k * L::channels;
    if (any(lesser(fraction(a), fraction(b)) < doubtful) && !exact && !(exact = fewDigits(places, n))) {
      fetchLinearFour<L>(plane, step, places, k, to);
      continue;
    }
    const auto pixels = wholeBytes(a, b);
    if constexpr (L::channels == 3)
      storeLanes(to, Lanes<Hux8u, 16>(__builtin_shufflevector(pixels, pixels, 0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14,
                                                              15, 15, 15, 15)));
    else
      storeColours<L::processed>(to, pixels);
  }
  return k;
}

template <class L, class T>
void fetchLinear(const std::byte* plane, Index step, const Places& places, std::byte* dst, Index n) {
  Index done = 0;
  if constexpr (sizeof(T) == 1) done = fetchLinearSingles<L>(plane, step, places, dst, n);
  forPixels<L, T>(dst, done, n, [&](Index k) { return linearAt<L, T>(plane, step, places, k); });
}

template <class L, class T>
void fetchCubic(const std::byte* plane, Index step, const Places& places, std::byte* dst, Index n) {
  constexpr Index bytes = L::channels * sizeof(T);
  forPixels<L, T>(dst, 0, n, [&](Index k) {
    std::array<Four, 4> x, y, rows;
    for (int c = 0; c < 4; ++c) x[c] = splat<Four>(places.x[c][k]), y[c] = splat<Four>(places.y[c][k]);
    const std::byte* p = plane + places.offset[k];
    for (int r = 0; r < 4; ++r, p += step)
      rows[r] = weighed({loadPixel<L, T, false>(p), loadPixel<L, T, false>(p + bytes),
                         loadPixel<L, T, false>(p + 2 * bytes), loadPixel<L, T, true>(p + 3 * bytes)},
                        x);
    return cubicResult<T>(weighed(rows, y));
  });
}

// The three interpolations of one kind of plane.
using Fetches = std::array<Fetch, 3>;
template <class L, class T>
constexpr Fetches fetchesOf() {
  constexpr int bytes = sizeof(T);
  if constexpr (L::channels == 1)
    return {fetchNearest<bytes, bytes>, fetchLinear<T>, fetchCubic<T>};
  else
    return {fetchNearest<L::processed * bytes, L::channels * bytes>, fetchLinear<L, T>, fetchCubic<L, T>};
}
template <class T>
const Fetches& fetchesOf(const Format& format) {
  static constexpr Fetches c1 = fetchesOf<C1, T>(), c3 = fetchesOf<C3, T>(), c4 = fetchesOf<C4, T>(),
                           ac4 = fetchesOf<AC4, T>();
  return format.stride == 1 ? c1 : format.stride == 3 ? c3 : format.touched == 4 ? c4 : ac4;
}

}  // namespace

Sampler::Sampler(const Format& format, const Image<const std::byte>& image, HuxiSize size,
                 HuxiInterpolation interpolation)
    : image_(image),
      planes_(format.planes),
      extent_{Hux64f(size.width - 1), Hux64f(size.height - 1), Hux64f(image.step), Hux64f(format.pixelBytes())} {
  const int least = std::min(size.width, size.height);
  const int mode = least == 1 || interpolation == huxiInterNearest ? 0
                   : least < 4 || interpolation == huxiInterLinear ? 1
                                                                   : 2;
  constexpr Locate locate[] = {placeNearest, placeLinear, placeCubic};
  locate_ = locate[mode];
  switch (format.type) {
    case ElementType::u8:
      fetch_ = fetchesOf<Hux8u>(format)[mode];
      break;
    case ElementType::u16:
      fetch_ = fetchesOf<Hux16u>(format)[mode];
      break;
    case ElementType::f32:
      fetch_ = fetchesOf<Hux32f>(format)[mode];
      break;
  }
}

void Sampler::operator()(const Hux64f* x, const Hux64f* y, Index n, const std::array<std::byte*, 4>& dst) const {
  Places places;
  locate_(extent_, x, y, n, places);
  // Pixels are fetched four at a time, however many places there are to a vector: those behind the last are its own.
  std::fill(places.offset + n, places.offset + (n + 3) / 4 * 4, places.offset[n - 1]);
  for (int c = 0; c < planes_; ++c) fetch_(image_.plane[c], image_.step, places, dst[c], n);
}

}  // namespace hux
