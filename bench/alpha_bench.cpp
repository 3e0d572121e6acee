// Composition and premultiplication by alpha, beside plain loops that divide by the maximum.
#include <limits>

#include "numbers.h"

namespace {

using bench::add, bench::Image, bench::Pair, bench::Planes, bench::Shape;

#define PAIRS o.src.first, o.src.step, o.src.second, o.src.step
#define PAIRS_C(a, b) o.src.first, o.src.step, a, o.src.second, o.src.step, b

// Over, on plain colours.
template <class Operands>
void composeOver(const Operands& o) {
  using T = std::remove_cvref_t<decltype(*o.dst.data)>;
  const unsigned m = std::numeric_limits<T>::max();
  for (std::int64_t i = 0; i < o.dst.pixels(); ++i) {
    const T *A = o.src.first + 4 * i, *B = o.src.second + 4 * i;
    T* dst = o.dst.data + 4 * i;
    for (int c = 0; c < 3; ++c) dst[c] = T(A[c] * unsigned(A[3]) / m + (m - A[3]) * (B[c] * unsigned(B[3]) / m) / m);
    dst[3] = T(A[3] + (m - A[3]) * B[3] / m);
  }
}
template <class Operands>
void premultiply(const Operands& o) {
  using T = std::remove_cvref_t<decltype(*o.dst.data)>;
  const unsigned m = std::numeric_limits<T>::max();
  for (std::int64_t i = 0; i < o.dst.pixels(); ++i) {
    const T* src = o.src.data + 4 * i;
    for (int c = 0; c < 3; ++c) o.dst.data[4 * i + c] = T(src[c] * unsigned(src[3]) / m);
    o.dst.data[4 * i + 3] = src[3];
  }
}

#define PLAIN(loop) bench::Side("plain loop", [](auto& o) { loop(o); })
#define COMP(t, l, c, rule, ...)                                                                           \
  add<Pair<Hux##t, c>, Image<Hux##t, c>>("AlphaComp_" #t "_" #l "R, " #rule, Shape::Same,                  \
                                         RUN(huxiAlphaComp_##t##_##l##R(PAIRS, DST, ROI, huxAlpha##rule)), \
                                         __VA_ARGS__)
#define COMP_C(t, l, c, rule)                           \
  add<Pair<Hux##t, c>, Image<Hux##t, c>>(               \
      "AlphaCompC_" #t "_" #l "R, " #rule, Shape::Same, \
      RUN(huxiAlphaCompC_##t##_##l##R(PAIRS_C(100, 200), DST, ROI, huxAlpha##rule)), bench::noPeer())
#define PREMUL(t, operands, l, ...)                                                        \
  add<operands<Hux##t, 4>, operands<Hux##t, 4>>("AlphaPremul_" #t "_" #l "R", Shape::Same, \
                                                RUN(huxiAlphaPremul_##t##_##l##R(SRC, DST, ROI)), __VA_ARGS__)
#define ALPHA(t)                                                                                                    \
  void addAlpha_##t() {                                                                                             \
    COMP(t, AC4, 4, Over, PLAIN(composeOver)), COMP(t, AC4, 4, ATop, bench::noPeer());                              \
    COMP(t, AC4, 4, OverPremul, bench::noPeer()), COMP(t, AC4, 4, PlusPremul, bench::noPeer());                     \
    COMP(t, AC1, 1, Over, bench::noPeer());                                                                         \
    COMP_C(t, C1, 1, Over), COMP_C(t, C3, 3, Xor), COMP_C(t, AC4, 4, OverPremul);                                   \
    PREMUL(t, Image, AC4, PLAIN(premultiply)), PREMUL(t, Planes, AP4, bench::noPeer());                             \
    add<Image<Hux##t, 4>, Image<Hux##t, 4>>("AlphaPremulC_" #t "_AC4R", Shape::Same,                                \
                                            RUN(huxiAlphaPremulC_##t##_AC4R(SRC, 100, DST, ROI)), bench::noPeer()); \
  }
ALPHA(8u)
ALPHA(16u)

}  // namespace

void addCases() { addAlpha_8u(), addAlpha_16u(); }
