// WinBartlett and WinHamming, by the distance from the centre or as the product of a window of the row and one of the
// column, and the windows of vectors that they are made of.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "core/check.h"
#include "core/scratch.h"
#include "core/stamp.h"
#include "huxi_filter.h"
#include "huxs.h"
#include "lanes/elementwise.h"
#include "lanes/lanes_math.h"

namespace hux {
namespace {

// The unevaluated sum of two doubles, of which the second is below the last place of the first: about 104 bits, in
// which a rotation may be repeated as often as a vector is long and still gives the nearest double.
struct Twofold {
  Hux64f high, low;

  static Twofold sum(Hux64f a, Hux64f b) {
    const Hux64f s = a + b, ofB = s - a;
    return {s, (a - (s - ofB)) + (b - ofB)};
  }
  static Twofold product(Hux64f a, Hux64f b) {
    const Hux64f p = a * b;
#ifdef FP_FAST_FMA
    return {p, std::fma(a, b, -p)};
#else
    const auto upper = [](Hux64f v) {
      const Hux64f big = v * 0x8000001p0;  // 2^27 + 1
      return big - (big - v);
    };
    const Hux64f a1 = upper(a), b1 = upper(b), a2 = a - a1, b2 = b - b1;
    return {p, ((a1 * b1 - p) + a1 * b2 + a2 * b1) + a2 * b2};
#endif
  }

  friend Twofold operator-(Twofold a) { return {-a.high, -a.low}; }
  friend Twofold operator+(Twofold a, Twofold b) {
    const Twofold s = sum(a.high, b.high);
    return sum(s.high, s.low + (a.low + b.low));
  }
  friend Twofold operator*(Twofold a, Twofold b) {
    const Twofold p = product(a.high, b.high);
    return sum(p.high, p.low + (a.high * b.low + a.low * b.high));
  }
  friend Twofold operator/(Twofold a, Hux64f b) {
    const Hux64f q = a.high / b;
    const Twofold p = product(q, b);
    return sum(q, ((a.high - p.high) - p.low + a.low) / b);
  }
};

struct Angle {
  Twofold cosine, sine;

  static Angle of(Twofold radians) {
    Angle angle = {{1, 0}, {0, 0}};
    Twofold term = {1, 0};
    for (int k = 1; std::fabs(term.high) > 0x1p-110; ++k) {
      term = term * radians / k;
      Twofold& sum = k % 2 == 0 ? angle.cosine : angle.sine;
      sum = sum + (k % 4 < 2 ? term : -term);
    }
    return angle;
  }
  friend Angle operator+(Angle a, Angle b) {
    return {a.cosine * b.cosine + -(a.sine * b.sine), a.sine * b.cosine + a.cosine * b.sine};
  }
};

using Doubles = Lanes<Hux64f, laneCount<Hux64f>>;

// The cosine of angles from 0 to pi, as the sine of what is left to a right angle.
Doubles cosine(Doubles angle) {
  constexpr int kTerms = 11;
  const Doubles t = (std::numbers::pi / 2 - angle) + 0x1.1a62633145c07p-54, square = t * t;
  Doubles sum{};
  Hux64f coefficient[kTerms] = {1};
  for (int k = 1; k < kTerms; ++k) coefficient[k] = -coefficient[k - 1] / ((2 * k) * (2 * k + 1));
  for (int k = kTerms - 1; k >= 1; --k) sum = (sum + coefficient[k]) * square;
  return t + t * sum;
}

// The windows: the values of a vector, from the ends inwards, and those at a distance from the centre.
struct Bartlett {
  static constexpr auto line = &huxsWinBartlett_32f_I;
  static constexpr Hux64f outside = 0;

  explicit Bartlett(int length) : step_(2.0 / (length - 1)) {}
  Hux64f next() { return std::exchange(value_, value_ + step_); }

  static Doubles inside(Doubles r, Hux64f width) { return 1 - r * (2 / width); }

 private:
  Hux64f value_ = 0, step_;
};
struct Hamming {
  static constexpr auto line = &huxsWinHamming_32f_I;
  static constexpr Hux64f outside = 0.08;

  explicit Hamming(int length)
      : step_(Angle::of(Twofold{2 * std::numbers::pi, 0x1.1a62633145c07p-52} / (length - 1.0))) {}
  Hux64f next() {
    // At a cosine of 1/2 the value lies in the middle between two doubles: what is left of it is error, and would
    // choose.
    Twofold cosine = angle_.cosine;
    if (std::fabs(cosine.low) < 0x1p-75) cosine.low = 0;
    const Twofold value = Twofold{0.54, 0} + Twofold{-0.46, 0} * cosine;
    angle_ = angle_ + step_;
    return value.high;
  }

  static Doubles inside(Doubles r, Hux64f width) {
    return 0.54 - 0.46 * cosine((width / 2 - r) * (2 * std::numbers::pi / width));
  }

 private:
  Angle angle_ = {{1, 0}, {0, 0}}, step_;
};

// Both ends at once; the middle of an odd length stays as it is.
template <class Window>
HuxStatus windowLine(Hux32f* pSrcDst, int len) {
  if (HuxStatus s = check(pointers(pSrcDst), failUnless(len >= 3, huxStsBadSize))) return s;
  auto* values = elements(pSrcDst);
  Window window(len);
  for (int k = 0; k < len / 2; ++k) {
    const Hux64f w = window.next();
    for (const int at : {k, len - 1 - k}) values[at] = Hux32f(values[at].bits * w);
  }
  return huxStsOk;
}

// The window of a side, as floats.
template <class Window>
struct Side : Scratch<Hux32f> {
  explicit Side(int length) : Scratch<Hux32f>(length) {
    if (!*this) return;
    std::fill_n(get(), length, 1.0f);
    Window::line(get(), length);
  }
};

// A pixel times the weights of its column and row, in single precision; bytes are rounded half up as in double.
template <class T>
struct WeightedTwice {
  static constexpr int lanes = laneCount<Hux32f>;
  using V = Lanes<Hux32f, lanes>;
  Hux32f row;
  auto operator()(Lanes<T, lanes> v, V column) const {
    const V product = convert<Hux32f>(v) * column * row;
    if constexpr (std::is_floating_point_v<T>) {
      return product;
    } else {
      const V limited = lesser(product, splat<V>(255));
      const auto whole = convert<Hux32s>(limited);
      return convert<T>(whole - (limited - convert<Hux32f>(whole) >= 0.5f));
    }
  }
};

// A pixel times a weight, in double precision.
template <class T>
struct Weighted {
  static constexpr int lanes = laneCount<Hux64f>;
  template <class W>
  auto operator()(Lanes<T, lanes> v, W weight) const {
    const Doubles product = convert<Hux64f>(v) * convert<Hux64f>(weight);
    if constexpr (std::is_floating_point_v<T>)
      return convert<T>(product);
    else
      return convert<T>(convert<Hux32s>(lesser(product, splat<Doubles>(255)) + 0.5));
  }
};

// The weights of row i of an image's upper half, but for the middle column of an odd width.
template <class Window>
void weigh(HuxiSize size, Index i, Hux64f* weights) {
  const Hux64f width = size.width, rx = width / 2, ry = Hux64f(size.height) / 2, dy = ry - Hux64f(i);
  const Hux64f q = (ry / rx) * (ry / rx), rowSquare = dy * dy / q, rowPart = dy * dy / (ry * ry);
  const auto inside = [&](Index j) {
    const Hux64f dx = rx - Hux64f(j);
    return size.width == size.height ? std::sqrt(rowSquare + dx * dx) < rx : dx * dx / (rx * rx) + rowPart < 1.0;
  };
  // Each operation keeps the order of what it is given, so that the columns inside follow those outside.
  const Index n = size.width / 2;
  Index first = 0;
  for (Index end = n; first < end;) {
    const Index middle = (first + end) / 2;
    if (inside(middle))
      end = middle;
    else
      first = middle + 1;
  }
  std::fill_n(weights, first, Window::outside);
  constexpr int lanes = lanesIn<Doubles>;
  Doubles column;
  for (int k = 0; k < lanes; ++k) column[k] = Hux64f(first + k);
  for (Index j = first; j < n; j += lanes, column += Hux64f(lanes)) {
    const Doubles dx = rx - column, weight = Window::inside(squareRoot(rowSquare + dx * dx), width);
    storeColours<4>(weights + j, weight, int(std::min<Index>(lanes, n - j)));
  }
  std::reverse_copy(weights, weights + n, weights + size.width - n);
}

template <class Window, class T>
HuxStatus windowed(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc, pDst), failUnless(roi.width >= 3 && roi.height >= 3, huxStsBadSize),
                          steps(srcStep, dstStep)))
    return s;
  const Side<Window> row(roi.width), column(roi.height);
  const Scratch<Hux64f> weights(roi.width);
  if (!row || !column || !weights) return huxStsNoMem;
  const auto src = rows<C1>(pSrc, srcStep);
  const auto dst = rows<C1>(pDst, dstStep);
  const auto apply = [&](const auto* ofRow, Index y) {
    zipRow<C1>(src.row(y), elements(ofRow), dst.row(y), roi.width, Weighted<T>{});
  };
  for (Index i = 0; i < roi.height / 2; ++i) {
    weigh<Window>(roi, i, weights.get());
    if (roi.width % 2 != 0) weights[roi.width / 2] = column[i];
    for (const Index y : {i, Index(roi.height) - 1 - i}) apply(weights.get(), y);
  }
  if (roi.height % 2 != 0) apply(row.get(), roi.height / 2);
  return huxStsOk;
}

template <class Window, class T>
HuxStatus separable(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc, pDst), failUnless(roi.width >= 3 && roi.height >= 3, huxStsBadSize),
                          steps(srcStep, dstStep)))
    return s;
  const Side<Window> row(roi.width), column(roi.height);
  if (!row || !column) return huxStsNoMem;
  const auto src = rows<C1>(pSrc, srcStep);
  const auto dst = rows<C1>(pDst, dstStep);
  for (Index y = 0; y < roi.height; ++y)
    zipRow<C1>(src.row(y), elements(row.get()), dst.row(y), roi.width, WeightedTwice<T>{column[y]});
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT_MEMBER(name, t, body, window)                                                                          \
  HuxStatus huxiWin##name##_##t##_C1R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, HuxiSize roiSize) { \
    return hux::body<hux::window>(pSrc, srcStep, pDst, dstStep, roiSize);                                             \
  }                                                                                                                   \
  HuxStatus huxiWin##name##_##t##_C1IR(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize) {                           \
    return hux::body<hux::window, Hux##t>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);                         \
  }
#define EXPORT(t, window)                    \
  EXPORT_MEMBER(window, t, windowed, window) \
  EXPORT_MEMBER(window##Sep, t, separable, window)
HUX_STAMP(EXPORT, (8u, 32f), (Bartlett, Hamming))

HuxStatus huxsWinBartlett_32f_I(Hux32f* pSrcDst, int len) { return hux::windowLine<hux::Bartlett>(pSrcDst, len); }
HuxStatus huxsWinHamming_32f_I(Hux32f* pSrcDst, int len) { return hux::windowLine<hux::Hamming>(pSrcDst, len); }
