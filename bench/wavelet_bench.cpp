// One level of a wavelet transform; there is no peer of its kind. The sub-bands lie side by side in one image.
#include <iterator>

#include "numbers.h"

namespace {

using bench::add, bench::Numbers, bench::Shape;

constexpr Hux32f kLow[] = {-0.125f, 0.25f, 0.75f, 0.25f, -0.125f}, kHigh[] = {-0.5f, 1, -0.5f};
constexpr int kMargin = 8;  // pixels around the region

template <auto InitAlloc>
HuxiWTRecord* state() {
  static HuxiWTRecord* made = [] {
    HuxiWTRecord* record = nullptr;
    InitAlloc(&record, kLow, int(std::size(kLow)), 2, kHigh, int(std::size(kHigh)), 1);
    return record;
  }();
  return made;
}
alignas(64) Hux8u buffer[1 << 16];

// The size of sub-bands, and the corners of four of them and of the image with a margin around each.
HuxiSize bandSize(HuxiSize s) { return {s.width / 2 - 2 * kMargin, s.height / 2 - 2 * kMargin}; }
template <int C, class T>
T* at(T* data, int step, int x, int y) {
  return data + std::int64_t(y) * (step / 4) + std::int64_t(x) * C;
}
#define IMAGE(side, C) at<C>(o.side.data, o.side.step, 2 * kMargin, 2 * kMargin), o.side.step
#define BAND(side, C, x, y) \
  at<C>(o.side.data, o.side.step, kMargin + x * (o.size.width / 2), kMargin + y * (o.size.height / 2)), o.side.step
#define BANDS(side, C) BAND(side, C, 0, 0), BAND(side, C, 0, 1), BAND(side, C, 1, 0), BAND(side, C, 1, 1)

#define CASES(l, C)                                                                                                    \
  add<Numbers<Hux32f, C>, Numbers<Hux32f, C>>(                                                                         \
      "WTFwd_32f_" #l "R 5/3", Shape::Same,                                                                            \
      RUN(huxiWTFwd_32f_##l##R(IMAGE(src, C), BANDS(dst, C), bandSize(o.size), state<huxiWTFwdInitAlloc_32f_##l##R>(), \
                               buffer)),                                                                               \
      bench::noPeer());                                                                                                \
  add<Numbers<Hux32f, C>, Numbers<Hux32f, C>>(                                                                         \
      "WTInv_32f_" #l "R 5/3", Shape::Same,                                                                            \
      RUN(huxiWTInv_32f_##l##R(BANDS(src, C), bandSize(o.size), IMAGE(dst, C), state<huxiWTInvInitAlloc_32f_##l##R>(), \
                               buffer)),                                                                               \
      bench::noPeer())

}  // namespace

void addCases() {
  CASES(C1, 1);
  CASES(C3, 3);
}
