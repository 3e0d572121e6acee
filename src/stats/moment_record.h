// The record of moments.
#pragma once

#include "core/context.h"
#include "huxi_stats.h"

namespace hux {

// The moments of a channel, M(m, n) = sum(p * x^m * y^n); those of m + n > 3 stay 0.
template <class W>
struct Moments {
  Element<W> entries[16];

  // Adds the sums of row y over p, p * x, p * x^2 and p * x^3, by doubles in this very order or modulo 2^64.
  template <class S>
  void add(const S (&s)[4], S y) {
    const auto to = [&](int m, int n, S term) { entries[m + 4 * n] = W(S(W(entries[m + 4 * n])) + term); };
    to(0, 0, s[0]), to(1, 0, s[1]), to(2, 0, s[2]), to(3, 0, s[3]);
    to(0, 1, s[0] * y), to(1, 1, s[1] * y), to(2, 1, s[2] * y);
    to(0, 2, s[0] * y * y), to(1, 2, s[1] * y * y);
    to(0, 3, s[0] * y * y * y);
  }
};

// A record may lie at any address, since callers may bring its memory.
template <class W, Hux32s Tag>
struct Record {
  using Value = W;
  static constexpr Hux32s kTag = Tag;
  // M00 must be above this to divide by.
  static constexpr Hux64f kLeastMass = std::is_integral_v<W> ? 0 : std::numeric_limits<Hux64f>::epsilon();
  Element<Hux32s> tag, hint;
  Element<Hux32s> nChannels;  // -1 before the first image
  Element<Hux32s> reserved;
  Moments<W> moments[3];
};

}  // namespace hux

struct HuxiMomentRecord_64f : hux::Record<Hux64f, 33> {};
struct HuxiMomentRecord_64s : hux::Record<Hux64s, 34> {};
static_assert(sizeof(HuxiMomentRecord_64f) == 400 && sizeof(HuxiMomentRecord_64s) == 400);

namespace hux {

template <class R>
auto kind(const R* pState) {
  return recordOf(pState, R::kTag);
}

}  // namespace hux
