// Moving pixels: Copy, Set, the border families, Dup, SwapChannels, Transpose and Mirror.
#include "support.h"

namespace {

using bench::add, bench::Image, bench::Planes, bench::Shape, bench::kBorder;

#ifdef HUX_BENCH_OPENCV
// Channels from and to, in pairs.
template <class Src, class Dst>
void mix(const Src& src, Dst& dst, std::initializer_list<int> pairs) {
  cv::mixChannels(&src.mat, 1, &dst.mat, 1, pairs.begin(), pairs.size() / 2);
}
template <class T>
cv::Scalar scalar(const T* p) {
  return {double(p[0]), double(p[1]), double(p[2]), double(p[3])};
}
#endif

// A pixel whose bytes differ, so that no side can fall back on setting bytes.
template <class T>
constexpr T kPixel[] = {T(17), T(4660), T(9029), T(13398)};

#define COPY(t, l, src, dst, ...) \
  add<src, dst>("Copy_" #t "_" #l, Shape::Same, RUN(huxiCopy_##t##_##l(SRC, DST, ROI)), PEER(__VA_ARGS__))
#define COPY_MASKED(t, l, c)                                                                              \
  add<Image<Hux##t, c>, Image<Hux##t, c>>("Copy_" #t "_" #l, Shape::Masked,                               \
                                          RUN(huxiCopy_##t##_##l(SRC, DST, ROI, MASK)),                   \
                                          PEER("copyTo, mask", o.src.mat.copyTo(o.dst.mat, o.mask.mat))), \
      add<Image<Hux##t, c>, Image<Hux##t, c>>("Copy_" #t "_" #l ", random", Shape::MaskedRandom,          \
                                              RUN(huxiCopy_##t##_##l(SRC, DST, ROI, MASK)),               \
                                              PEER("copyTo, mask", o.src.mat.copyTo(o.dst.mat, o.mask.mat)))
#define COPIES(t)                                                                                 \
  void addCopy_##t() {                                                                            \
    using C1 = Image<Hux##t, 1>;                                                                  \
    using C3 = Image<Hux##t, 3>;                                                                  \
    using C4 = Image<Hux##t, 4>;                                                                  \
    using P3 = Planes<Hux##t, 3>;                                                                 \
    using P4 = Planes<Hux##t, 4>;                                                                 \
    COPY(t, C1R, C1, C1, "copyTo", o.src.mat.copyTo(o.dst.mat));                                  \
    add<C1, C1>("Copy_" #t "_C1R, region", Shape::Region, RUN(huxiCopy_##t##_C1R(SRC, DST, ROI)), \
                PEER("copyTo", o.src.mat.copyTo(o.dst.mat)));                                     \
    COPY(t, C3R, C3, C3, "copyTo", o.src.mat.copyTo(o.dst.mat));                                  \
    COPY(t, C4R, C4, C4, "copyTo", o.src.mat.copyTo(o.dst.mat));                                  \
    COPY(t, AC4R, C4, C4, "mixChannels", mix(o.src, o.dst, {0, 0, 1, 1, 2, 2}));                  \
    COPY(t, AC4C3R, C4, C3, "mixChannels", mix(o.src, o.dst, {0, 0, 1, 1, 2, 2}));                \
    COPY(t, C3AC4R, C3, C4, "mixChannels", mix(o.src, o.dst, {0, 0, 1, 1, 2, 2}));                \
    COPY(t, C3CR, C3, C3, "mixChannels", mix(o.src, o.dst, {0, 0}));                              \
    COPY(t, C4CR, C4, C4, "mixChannels", mix(o.src, o.dst, {0, 0}));                              \
    COPY(t, C3C1R, C3, C1, "extractChannel", cv::extractChannel(o.src.mat, o.dst.mat, 0));        \
    COPY(t, C4C1R, C4, C1, "extractChannel", cv::extractChannel(o.src.mat, o.dst.mat, 0));        \
    COPY(t, C1C3R, C1, C3, "insertChannel", cv::insertChannel(o.src.mat, o.dst.mat, 0));          \
    COPY(t, C1C4R, C1, C4, "insertChannel", cv::insertChannel(o.src.mat, o.dst.mat, 0));          \
    COPY(t, C3P3R, C3, P3, "split", cv::split(o.src.mat, o.dst.mat.data()));                      \
    COPY(t, C4P4R, C4, P4, "split", cv::split(o.src.mat, o.dst.mat.data()));                      \
    COPY(t, P3C3R, P3, C3, "merge", cv::merge(o.src.mat.data(), 3, o.dst.mat));                   \
    COPY(t, P4C4R, P4, C4, "merge", cv::merge(o.src.mat.data(), 4, o.dst.mat));                   \
    COPY_MASKED(t, C1MR, 1), COPY_MASKED(t, C3MR, 3), COPY_MASKED(t, C4MR, 4);                    \
  }
COPIES(8u)
COPIES(16s)
COPIES(32f)

#define SET(t, l, c, value)                                                                                       \
  add<Image<Hux##t, c>, Image<Hux##t, c>>("Set_" #t "_" #l, Shape::Fill, RUN(huxiSet_##t##_##l(value, DST, ROI)), \
                                          PEER("setTo", o.dst.mat.setTo(scalar(kPixel<Hux##t>))))
#define SET_REGION(t)                                                                        \
  add<Image<Hux##t, 1>, Image<Hux##t, 1>>("Set_" #t "_C1R, region", Shape::FillRegion,       \
                                          RUN(huxiSet_##t##_C1R(*kPixel<Hux##t>, DST, ROI)), \
                                          PEER("setTo", o.dst.mat.setTo(scalar(kPixel<Hux##t>))))
#define SET_MASKED(t, l, c, value)                                                       \
  add<Image<Hux##t, c>, Image<Hux##t, c>>("Set_" #t "_" #l, Shape::FillMasked,           \
                                          RUN(huxiSet_##t##_##l(value, DST, ROI, MASK)), \
                                          PEER("setTo, mask", o.dst.mat.setTo(scalar(kPixel<Hux##t>), o.mask.mat)))
#define SET_ALPHA(t)                                                      \
  add<Image<Hux##t, 4>, Image<Hux##t, 4>>("Set_" #t "_AC4R", Shape::Fill, \
                                          RUN(huxiSet_##t##_AC4R(kPixel<Hux##t>, DST, ROI)), bench::noPeer())
#define SETS(t)                                                                      \
  void addSet_##t() {                                                                \
    SET(t, C1R, 1, *kPixel<Hux##t>), SET_REGION(t);                                  \
    SET(t, C3R, 3, kPixel<Hux##t>), SET(t, C4R, 4, kPixel<Hux##t>), SET_ALPHA(t);    \
    SET_MASKED(t, C1MR, 1, *kPixel<Hux##t>), SET_MASKED(t, C3MR, 3, kPixel<Hux##t>); \
    SET_MASKED(t, C4MR, 4, kPixel<Hux##t>);                                          \
  }
SETS(8u)
SETS(16s)
SETS(32f)

#define BORDERED SRC, ROI, DST, o.dst.size, kBorder, kBorder
#define BORDER(name, t, l, c, mode, ...)                                                                        \
  add<Image<Hux##t, c>, Image<Hux##t, c>>(                                                                      \
      #name "_" #t "_" #l, Shape::Bordered, RUN(huxi##name##_##t##_##l(__VA_ARGS__)),                           \
      PEER("copyMakeBorder", cv::copyMakeBorder(o.src.mat, o.dst.mat, kBorder, kBorder, kBorder, kBorder, mode, \
                                                scalar(kPixel<Hux##t>))))
#define BORDERS(t)                                                                                            \
  void addBorder_##t() {                                                                                      \
    BORDER(CopyConstBorder, t, C1R, 1, cv::BORDER_CONSTANT | cv::BORDER_ISOLATED, BORDERED, *kPixel<Hux##t>); \
    BORDER(CopyConstBorder, t, C3R, 3, cv::BORDER_CONSTANT | cv::BORDER_ISOLATED, BORDERED, kPixel<Hux##t>);  \
    BORDER(CopyConstBorder, t, C4R, 4, cv::BORDER_CONSTANT | cv::BORDER_ISOLATED, BORDERED, kPixel<Hux##t>);  \
    BORDER(CopyReplicateBorder, t, C1R, 1, cv::BORDER_REPLICATE | cv::BORDER_ISOLATED, BORDERED);             \
    BORDER(CopyReplicateBorder, t, C3R, 3, cv::BORDER_REPLICATE | cv::BORDER_ISOLATED, BORDERED);             \
    BORDER(CopyReplicateBorder, t, C4R, 4, cv::BORDER_REPLICATE | cv::BORDER_ISOLATED, BORDERED);             \
  }
BORDERS(8u)
BORDERS(16s)
BORDERS(32s)
void addWrapBorder() { BORDER(CopyWrapBorder, 32s, C1R, 1, cv::BORDER_WRAP | cv::BORDER_ISOLATED, BORDERED); }

#define SWAP(t, l, c, order, ...)                                                 \
  add<Image<Hux##t, c>, Image<Hux##t, c>>("SwapChannels_" #t "_" #l, Shape::Same, \
                                          RUN(huxiSwapChannels_##t##_##l(SRC, DST, ROI, order)), PEER(__VA_ARGS__))
constexpr int kReversed[] = {2, 1, 0}, kRotated[] = {1, 2, 0};

void addChannels() {
  add<Image<Hux8u, 1>, Image<Hux8u, 3>>("Dup_8u_C1C3R", Shape::Same, RUN(huxiDup_8u_C1C3R(SRC, DST, ROI)),
                                        PEER("cvtColor", cv::cvtColor(o.src.mat, o.dst.mat, cv::COLOR_GRAY2BGR)));
  SWAP(8u, C3R, 3, kReversed, "cvtColor", cv::cvtColor(o.src.mat, o.dst.mat, cv::COLOR_BGR2RGB));
  SWAP(16u, C3R, 3, kReversed, "cvtColor", cv::cvtColor(o.src.mat, o.dst.mat, cv::COLOR_BGR2RGB));
  SWAP(32f, C3R, 3, kReversed, "cvtColor", cv::cvtColor(o.src.mat, o.dst.mat, cv::COLOR_BGR2RGB));
  SWAP(8u, AC4R, 4, kRotated, "mixChannels", mix(o.src, o.dst, {1, 0, 2, 1, 0, 2}));
  SWAP(16u, AC4R, 4, kRotated, "mixChannels", mix(o.src, o.dst, {1, 0, 2, 1, 0, 2}));
  SWAP(32f, AC4R, 4, kRotated, "mixChannels", mix(o.src, o.dst, {1, 0, 2, 1, 0, 2}));
  add<Image<Hux8u, 3>, Image<Hux8u, 3>>("SwapChannels_8u_C3IR", Shape::InPlace,
                                        RUN(huxiSwapChannels_8u_C3IR(DST, ROI, kReversed)),
                                        PEER("cvtColor", cv::cvtColor(o.dst.mat, o.dst.mat, cv::COLOR_BGR2RGB)));
}

#define TRANSPOSE(t, l, c)                                                                         \
  add<Image<Hux##t, c>, Image<Hux##t, c>>("Transpose_" #t "_" #l "R", Shape::Transposed,           \
                                          RUN(huxiTranspose_##t##_##l##R(SRC, DST, ROI)),          \
                                          PEER("transpose", cv::transpose(o.src.mat, o.dst.mat))), \
      add<Image<Hux##t, c>, Image<Hux##t, c>>("Transpose_" #t "_" #l "IR", Shape::InPlaceSquare,   \
                                              RUN(huxiTranspose_##t##_##l##IR(DST, ROI)),          \
                                              PEER("transpose", cv::transpose(o.dst.mat, o.dst.mat)))
#define MIRROR(t, l, c, axis, code)                                                                  \
  add<Image<Hux##t, c>, Image<Hux##t, c>>("Mirror_" #t "_" #l "R, " #axis, Shape::Same,              \
                                          RUN(huxiMirror_##t##_##l##R(SRC, DST, ROI, huxAxs##axis)), \
                                          PEER("flip", cv::flip(o.src.mat, o.dst.mat, code))),       \
      add<Image<Hux##t, c>, Image<Hux##t, c>>("Mirror_" #t "_" #l "IR, " #axis, Shape::InPlace,      \
                                              RUN(huxiMirror_##t##_##l##IR(DST, ROI, huxAxs##axis)), \
                                              PEER("flip", cv::flip(o.dst.mat, o.dst.mat, code)))
#define MIRRORS(t, l, c) MIRROR(t, l, c, Horizontal, 0), MIRROR(t, l, c, Vertical, 1), MIRROR(t, l, c, Both, -1)

void addGeometry() {
  TRANSPOSE(8u, C1, 1), TRANSPOSE(8u, C3, 3), TRANSPOSE(8u, C4, 4);
  TRANSPOSE(16u, C1, 1), TRANSPOSE(16u, C3, 3), TRANSPOSE(16u, C4, 4);
  TRANSPOSE(32s, C1, 1), TRANSPOSE(32s, C3, 3), TRANSPOSE(32s, C4, 4);
  MIRRORS(8u, C1, 1), MIRRORS(8u, C3, 3), MIRRORS(8u, C4, 4), MIRRORS(16u, C1, 1), MIRRORS(16u, C3, 3),
      MIRRORS(32s, C1, 1);
}

}  // namespace

void addCases() {
  addCopy_8u(), addCopy_16s(), addCopy_32f();
  addSet_8u(), addSet_16s(), addSet_32f();
  addBorder_8u(), addBorder_16s(), addBorder_32s(), addWrapBorder();
  addChannels();
  addGeometry();
}
