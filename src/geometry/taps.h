// Where the samples of a destination pixel lie along one axis, and with what weights they count. Positions are computed
// in double precision, one after the other; weights follow from their fractions.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "core/layout.h"

namespace hux {

// A double as a number of pixels: truncated, limited to 32 bits; what is not a number comes out lowest.
inline Index pixelsOf(Hux64f v) {
  using Limits = std::numeric_limits<Hux32s>;
  return v >= Limits::max() ? Limits::max() : v > Limits::min() ? Index(v) : Limits::min();
}

// One axis of a resize.
struct Axis {
  Index image;       // pixels of the whole source image, which taps never leave
  Index count;       // pixels of the destination
  bool afresh;       // how positions come about, see below
  Hux64f origin;     // accumulated: the region's first pixel; afresh: the number of the first destination pixel
  Hux64f start = 0;  // accumulated: the position of destination pixel 0, relative to the region; afresh: the shift
  Hux64f step = 0;   // accumulated: from one to the next; afresh: the factor
};

// A place in the source image: a whole part, which is limited to the image, and a fraction.
struct Position {
  Index whole;
  Hux64f fraction;
};

// The positions of destination pixels, first to last. Accumulated ones grow by additions, and their whole part is that
// of a number a little above. Those computed afresh are the centres of squares, from half a pixel before the image to
// half a pixel behind it: pixel i lies at (i + 0.5) / factor - 0.5 - shift / factor.
class Walk {
 public:
  explicit Walk(const Axis& axis) : axis_(axis), at_(axis.afresh ? axis.origin : axis.start) {}

  Position next() {
    const Hux64f at = at_;
    if (axis_.afresh) {
      at_ += 1;
      const Hux64f s = (at + 0.5) / axis_.step - 0.5 - axis_.start / axis_.step, whole = std::floor(s);
      return {std::clamp(pixelsOf(whole), Index(-1), axis_.image - 1), s - whole};
    }
    at_ += axis_.step;
    const Hux64f whole = std::trunc(at + 1e-7);
    if (!(whole + axis_.origin >= 0)) return {0, 0};
    if (whole + axis_.origin >= Hux64f(axis_.image)) return {axis_.image - 1, 0};
    return {Index(whole + axis_.origin), at - whole};
  }

  // The next n positions as an axis of their own; the walk goes on behind them.
  Axis take(Index n) {
    Axis part = axis_;
    part.count = n;
    (axis_.afresh ? part.origin : part.start) = at_;
    for (Index i = 0; i < n; ++i) at_ += axis_.afresh ? 1 : axis_.step;
    return part;
  }

  // The source pixel that the next destination pixel copies.
  Index nextNearest() {
    if (!axis_.afresh) return next().whole;
    const Hux64f at = (at_ + 0.5) / axis_.step + (1e-10 - axis_.start / axis_.step);
    at_ += 1;
    return std::clamp(pixelsOf(at), Index(0), axis_.image - 1);
  }

 private:
  Axis axis_;
  Hux64f at_;
};

// The samples of one position: as many as its mode has, from `first` on. Those that lie outside the image stand for the
// nearest of its pixels.
struct Tap {
  Index first;
  Hux64f fraction;
};

struct Linear {
  static constexpr int taps = 2, weights = 1;

  // On the image's last pixel the fraction is 1, from the one before.
  static Tap tap(const Axis& axis, Position p) {
    return p.whole >= axis.image - 1 ? Tap{axis.image - 2, 1} : Tap{p.whole, p.fraction};
  }
  static void weigh(Hux64f fraction, Hux32f (&w)[1]) { w[0] = Hux32f(fraction); }

  template <class V>
  static V along(const V (&p)[2], const V (&w)[1]) {
    return (p[1] - p[0]) * w[0] + p[0];
  }
  template <class V>
  static V across(const V (&p)[2], const V (&w)[1]) {
    return p[1] * w[0] + p[0] * (1 - w[0]);
  }
};

// Weights of integers: a fraction in units of 2^-14.
inline Hux16s q14Of(Hux64f fraction) { return Hux16s(fraction * 16384 + 1e-7); }

// Newton's form of the cubic through the points at -1, 0, 1 and 2.
struct Cubic {
  static constexpr int taps = 4, weights = 3;

  // Accumulated positions keep four pixels of the image and extrapolate at its ends. Others repeat its ends; there, the
  // last pixel lies at fraction 1 from the one before.
  static Tap tap(const Axis& axis, Position p) {
    const Index last = axis.image - 1;
    if (axis.afresh) return p.whole == last && p.fraction == 0 ? Tap{last - 2, 1} : Tap{p.whole - 1, p.fraction};
    if (p.whole == last) return {last - 3, 2};
    if (p.whole == 0) return {0, p.fraction - 1};
    if (p.whole == last - 1) return {last - 3, p.fraction + 1};
    return {p.whole - 1, p.fraction};
  }
  static void weigh(Hux64f fraction, Hux32f (&w)[3]) {
    const Hux32f t = Hux32f(fraction), e = t * (1 + t) * 0.5f;
    w[0] = (t - 1) * e / 3, w[1] = e, w[2] = 1 + t;
  }

  template <class V>
  static V along(const V (&p)[4], const V (&w)[3]) {
    const V d1 = p[1] - p[0], d2 = p[2] - p[1] - d1, d3 = p[1] - p[2] - p[2] + p[3] - d2;
    return p[0] + w[0] * d3 + w[1] * d2 + w[2] * d1;
  }
  template <class V>
  static V across(const V (&p)[4], const V (&w)[3]) {
    return along(p, w);
  }
};

// tblLanczos3[i] = L(i / 100): L(x) = sinc(x) sinc(x / 3), sinc(x) = sin(pi x) / (pi x), and 0 from 3 on.
inline constexpr auto tblLanczos3 = [] {
  constexpr Hux64f pi = 3.14159265358979323846;
  // The sine of a part of pi, within an exact half of it.
  constexpr auto sine = [](int part, int of) {
    part %= 2 * of;
    const Hux64f sign = part >= of ? -1 : 1;
    part %= of;
    if (2 * part > of) part = of - part;
    const Hux64f x = pi * part / of;
    Hux64f term = x, sum = 0;
    for (int k = 1; k < 40; k += 2) sum += term, term *= -x * x / ((k + 1) * (k + 2));
    return sign * sum;
  };
  std::array<Hux32f, 302> table{};
  table[0] = 1;
  for (int i = 1; i < 300; ++i) {
    const Hux64f x = pi * i / 100;
    table[std::size_t(i)] = Hux32f(sine(i, 100) / x * (sine(i, 300) / (x / 3)));
  }
  return table;
}();

struct Lanczos {
  static constexpr int taps = 6, weights = 6;

  static Tap tap(const Axis&, Position p) { return {p.whole - 2, p.fraction}; }
  static void weigh(Hux64f fraction, Hux32f (&w)[6]) { ownvi_Lanczos3(Hux32f(fraction), w); }

  static void ownvi_Lanczos3(Hux32f t, Hux32f (&w)[6]) {
    Hux32f sum = 0;
    for (int k = 0; k < 6; ++k) {
      const Hux32f x = -2 - t + Hux32f(k);
      w[k] = 0;
      if (x > -3 && x < 3) {
        const Hux32f u = std::fabs(x) * 100;
        const auto m = std::size_t(u);
        w[k] = tblLanczos3[m] + (tblLanczos3[m + 1] - tblLanczos3[m]) * (u - Hux32f(m));
      }
      sum += w[k];
    }
    for (Hux32f& weight : w) weight /= sum;
  }

  template <class V>
  static V along(const V (&p)[6], const V (&w)[6]) {
    V sum = p[0] * w[0];
    for (int k = 1; k < 6; ++k) sum += p[k] * w[k];
    return sum;
  }
  template <class V>
  static V across(const V (&p)[6], const V (&w)[6]) {
    return along(p, w);
  }
};

}  // namespace hux
