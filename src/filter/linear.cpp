// Filter, FilterRow, FilterColumn and their 32f forms: convolution with a kernel of the caller's, of two dimensions or
// of one. The kernel is flipped, and the anchor is the cell of it that meets the output pixel.
#include "core/check.h"
#include "core/scratch.h"
#include "core/stamp.h"
#include "huxi_filter.h"
#include "huxs.h"
#include "lanes/elementwise.h"
#include "workers/taps_sum.h"

namespace hux {
namespace {

// What follows a sum of floats, on lanes.
template <class T>
struct Rounded;
template <>
struct Rounded<Hux32f> {
  template <class V>
  V operator()(V sum) const {
    return sum;
  }
};
// Half up in single precision, a NaN as 0.
template <>
struct Rounded<Hux8u> {
  template <class V>
  auto operator()(V sum) const {
    return convert<Hux32s>(lesser(greater(sum, V{}) + 0.5f, splat<V>(255)));
  }
};
// Half away from zero in single precision, a NaN as the lowest value.
template <>
struct Rounded<Hux16s> {
  template <class V>
  auto operator()(V sum) const {
    const V nudged = sum + (sum < 0 ? splat<V>(-0.5f) : splat<V>(0.5f));
    return convert<Hux32s>(lesser(greater(nudged, splat<V>(-32768)), splat<V>(32767)));
  }
};

// What follows a sum of integers: a division, rounded half up, negative results as 0. A power of two shifts; any other
// divisor, a negative one too, multiplies by its reciprocal in single precision and rounds in double.
class Divided {
 public:
  explicit Divided(Hux32s divisor) { GetScale(divisor); }

  template <class V>
  auto operator()(V wrapped) const {
    using Ints = Lanes<Hux32s, lanesIn<V>>;
    const Ints sum = Ints(wrapped);
    if (mode_ == 0) return lesser(greater(sum, Ints{}), splat<Ints>(255));
    if (mode_ == 1) return Ints(lesser((V(greater(sum, Ints{})) + rounder_) >> shift_, splat<V>(255)));
    // The limits take nothing from the result, and leave the lanes room for its fraction, so that they see a half as
    // double precision would.
    using Floats = Lanes<Hux32f, lanesIn<V>>;
    const Floats f = lesser(greater(convert<Hux32f>(sum) * factor_, Floats{}), splat<Floats>(255));
    const Ints whole = convert<Hux32s>(f);
    return whole - Ints(f - convert<Hux32f>(whole) >= 0.5f);
  }

 private:
  void GetScale(Hux32s divisor) {
    const Hux32u bits = Hux32u(divisor);
    mode_ = divisor == 1 ? 0 : divisor > 1 && (bits & (bits - 1)) == 0 ? 1 : 2;
    shift_ = mode_ == 1 ? Hux32u(__builtin_ctz(bits)) : 0;
    rounder_ = mode_ == 1 ? bits / 2 : 0;
    factor_ = mode_ == 2 ? 1.0f / Hux32f(divisor) : 1.0f;
  }

  int mode_;
  Hux32u shift_, rounder_;
  Hux32f factor_;
};

// A kernel's size and anchor, of two dimensions, or of one.
struct Shape {
  HuxiSize size;
  HuxiPoint anchor;
  // A filter along columns treats all elements of a row alike: the forms of three and four equal channels stand for the
  // one-channel form over a wider row.
  bool column = false;
};
Shape image(HuxiSize size, HuxiPoint anchor) { return {size, anchor}; }
Shape row(int size, int anchor) { return {{size, 1}, {anchor, 0}}; }
Shape column(int size, int anchor) { return {{1, size}, {0, anchor}, true}; }

template <class L>
HuxStatus widthFirst(Shape kernel, HuxiSize roi) {
  return kernel.column ? delegated<L>(width(roi)) : HuxStatus(huxStsOk);
}

// The rows of a range, on one thread.
template <class L, class T>
void viFilter(WindowRows<T> src, Rows<T> dst, RowRange range, Index width, Taps<Hux32f> taps) {
  const auto run = [&](const auto& products) { tapsSum<L>(products, taps, src, dst, range, width, Rounded<T>{}); };
  if (taps.size.width == 1)
    run(NarrowProducts<T, Hux32f, Hux32f, 1>(taps, L::channels));
  else if (sizeof(T) == sizeof(Hux32f) && taps.size.width == 3)
    run(NarrowProducts<T, Hux32f, Hux32f, 3>(taps, L::channels));
  else
    run(PlainProducts<T, Hux32f, Hux32f>(taps, L::channels));
}
template <class L>
void viFilter(WindowRows<Hux8u> src, Rows<Hux8u> dst, RowRange range, Index width, Taps<Hux32s> taps, Divided divided) {
  if (PairProducts::serve(taps))
    tapsSum<L>(PairProducts(taps, L::channels), taps, src, dst, range, width, divided);
  else
    tapsSum<L>(PlainProducts<Hux8u, Hux32s, Hux32u>(taps, L::channels), taps, src, dst, range, width, divided);
}

// With taps of floats, or of integers and their divisor.
template <class L, class T, class K, class... Divisor>
HuxStatus filter(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, const K* pKernel, Shape kernel,
                 Divisor... divisor) {
  const Index width = roi.width, wide = width + kernel.size.width - 1;
  if (HuxStatus s = check(widthFirst<L>(kernel, roi), pointers(pSrc, pDst, pKernel), size(roi), size(kernel.size),
                          failUnless(((divisor != 0) && ...), huxStsBadDivisor),
                          stepsHold<T>(wide * L::channels, srcStep), stepsHold<T>(width * L::channels, dstStep)))
    return s;
  const Taps<K> taps = {elements(pKernel), kernel.size};
  const auto src = windowRows<L>(pSrc, wholeElements<T>(srcStep), fromFarCorner(kernel.size, kernel.anchor));
  const auto dst = rows<L>(pDst, wholeElements<T>(dstStep));
  splitRows(roi.height, [&](RowRange range) { viFilter<L>(src, dst, range, width, taps, Divided(divisor)...); });
  return huxStsOk;
}

// Integer taps on 16s become floats, divided beforehand, and the form with float taps makes the remaining checks.
template <class L>
HuxStatus filter(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roi, const Hux32s* pKernel,
                 Shape kernel, Hux32s divisor) {
  if (HuxStatus s = check(widthFirst<L>(kernel, roi), pointers(pKernel), size(kernel.size),
                          failUnless(divisor != 0, huxStsBadDivisor)))
    return s;
  const int width = kernel.size.width;
  const Index count = Index(width) * kernel.size.height;
  const Scratch<Hux32f> taps(count);
  if (!taps) return huxStsNoMem;
  for (Index first = 0; first < count; first += width) {
    huxsConvert_32s32f(pKernel + first, taps.get() + first, width);
    huxsMulC_32f_I(1.0f / Hux32f(divisor), taps.get() + first, width);
  }
  const Hux32f* divided = taps.get();
  return filter<L>(pSrc, srcStep, pDst, dstStep, roi, divided, kernel);
}

}  // namespace
}  // namespace hux

// The three shapes of a name: the size and anchor of the kernel, and what more there is in the argument list.
#define EXPORT_SHAPE(name, t, k, l, shape, Size, anchorType, anchor, parameters, arguments)                            \
  HuxStatus huxi##name##_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, HuxiSize dstRoiSize, \
                                      const Hux##k* pKernel, Size kernelSize, anchorType anchor HUX_LIST parameters) { \
    return hux::filter<hux::l>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel,                                      \
                               hux::shape(kernelSize, anchor) HUX_LIST arguments);                                     \
  }
#define EXPORT_SHAPES(kind, t, k, l, parameters, arguments)                                      \
  EXPORT_SHAPE(Filter##kind, t, k, l, image, HuxiSize, HuxiPoint, anchor, parameters, arguments) \
  EXPORT_SHAPE(FilterRow##kind, t, k, l, row, int, int, xAnchor, parameters, arguments)          \
  EXPORT_SHAPE(FilterColumn##kind, t, k, l, column, int, int, yAnchor, parameters, arguments)
#define EXPORT(_, l)                                            \
  EXPORT_SHAPES(, 8u, 32s, l, (, Hux32s divisor), (, divisor))  \
  EXPORT_SHAPES(, 16s, 32s, l, (, Hux32s divisor), (, divisor)) \
  EXPORT_SHAPES(, 32f, 32f, l, (), ())                          \
  EXPORT_SHAPES(32f, 8u, 32f, l, (), ())                        \
  EXPORT_SHAPES(32f, 16s, 32f, l, (), ())
HUX_STAMP(EXPORT, (_), (C1, C3, C4, AC4))
