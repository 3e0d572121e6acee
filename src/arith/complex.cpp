// Add, Sub, Mul, Div and their constant forms on complex images.
#include "workers/complex.h"

#include "arith/scaled_images.h"
#include "core/scratch.h"
#include "huxi_arith.h"
#include "workers/convert.h"

namespace hux {
namespace {

template <class L, class C>
auto complexRows(C* p, int step) {
  using W = WordOfComplex<std::remove_const_t<C>>;
  return rows<L>(reinterpret_cast<std::conditional_t<std::is_const_v<C>, const W, W>*>(p), step);
}

template <class L, class Op, class C>
HuxStatus zipComplex(const C* pSrc1, int src1Step, const C* pSrc2, int src2Step, C* pDst, int dstStep, HuxiSize roi,
                     int scaleFactor = 0) {
  if (HuxStatus s =
          check(delegated<L>(width(roi)), pointers(pSrc1, pSrc2, pDst), size(roi), steps(src1Step, src2Step, dstStep)))
    return s;
  withComplexRule<Op, C, L>(scaleFactor, [&](auto rule) {
    forEachRow(roi, complexRows<L>(pSrc1, src1Step), complexRows<L>(pSrc2, src2Step), complexRows<L>(pDst, dstStep),
               [&](auto* a, auto* b, auto* d, Index n) { zipRow<L>(a, b, d, n, rule); });
  });
  return huxStsOk;
}

template <class L, class Op, class C>
HuxStatus zipComplexC(const C* pSrc, int srcStep, const C* pPixel, C* pDst, int dstStep, HuxiSize roi,
                      int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc, pPixel, pDst), size(roi), steps(srcStep, dstStep))) return s;
  withComplexRule<Op, C, L>(scaleFactor, [&](auto rule) {
    constexpr int lanes = decltype(rule)::lanes;
    const Constants<L, C, lanes> constants(words(pPixel));
    forEachRow(roi, complexRows<L>(pSrc, srcStep), complexRows<L>(pDst, dstStep), [&](auto* src, auto* dst, Index n) {
      applyRule<L>(dst, n, rule, constants, FromRow<WordOfComplex<C>, lanes>{src});
    });
  });
  return huxStsOk;
}

// A work row: the pixel of constants, alpha being 1, over and over.
template <class L, class T, class Make>
void fillRow(const Scratch<T>& row, Index width, Make make) {
  for (Index i = 0; i < width * L::channels; ++i)
    row[i] = i % L::channels < L::processed ? make(int(i % L::channels)) : T{1, 0};
}

// Copies whole elements, and of layouts with alpha the colours.
constexpr OnWords<Hux32sc, AC4, Same<Hux32s>> kColours{};

// 32-bit integers divide in double precision, from row to row: a row of results, rounded and scaled to the destination.
template <class L>
class Results32 {
 public:
  Results32(Index width, int scaleFactor) : row_(width * L::channels), rule_{powerOfTwo<Hux64f>(scaleFactor)} {}
  explicit operator bool() const { return bool(row_); }
  Element<Hux64f>* row() const { return words(row_.get()); }

  void store(Element<std::uint64_t>* dst, Index width) const {
    const Index n = 2 * L::channels * width;
    if constexpr (L::channels == L::processed) {
      mapRow<C1>(row(), elementsAs<Hux32s>(dst), n, rule_);
    } else {
      mapRow<C1>(row(), elementsAs<Hux32s>(row_.get()), n,
                 rule_);  // the results are shorter than the row that they are made of
      mapRow<L>(elementsAs<const std::uint64_t>(row_.get()), dst, width, kColours);
    }
  }

 private:
  Scratch<Hux64fc> row_;
  FromScaledFloat<Hux64f, Hux64f, Hux32s, true> rule_;
};

template <class L, class C>
HuxStatus divide(const C* pSrc1, int src1Step, const C* pSrc2, int src2Step, C* pDst, int dstStep, HuxiSize roi,
                 int scaleFactor = 0) {
  if (HuxStatus s =
          check(delegated<L>(width(roi)), pointers(pSrc1, pSrc2, pDst), size(roi), steps(src1Step, src2Step, dstStep)))
    return s;
  const auto divisors = complexRows<L>(pSrc1, src1Step), src = complexRows<L>(pSrc2, src2Step);
  const auto dst = complexRows<L>(pDst, dstStep);
  if constexpr (!std::is_same_v<C, Hux32sc>) {
    return forEachRow(roi, divisors, src, dst,
                      [&](auto* a, auto* b, auto* d, Index n) { return divideRow<L, C>(a, b, d, n, scaleFactor); });
  } else {
    // A zero divisor gives 0 here, not the NaN of doubles.
    const Widened<FloatQuotient<Hux64f>> rule{FloatQuotient<Hux64f>(0.0)};
    constexpr int lanes = decltype(rule)::lanes;
    constexpr bool alpha = L::channels != L::processed;
    const Results32<L> results(roi.width, scaleFactor);
    const Scratch<Hux32sc> opaque(alpha ? roi.width * Index(L::channels) : 1);
    if (!results || !opaque) return huxStsNoMem;
    if constexpr (alpha) fillRow<L>(opaque, roi.width, [](int) { return Hux32sc{}; });
    return forEachRow(
        roi, divisors, src, dst, complexRows<L>(opaque.get(), 0), [&](auto* a, auto* b, auto* d, auto* copy, Index n) {
          if constexpr (alpha) mapRow<L>(a, copy, n, kColours);
          const FromRow<Hux32s, lanes> x{elementsAs<const Hux32s>(alpha ? copy : a), 1}, y{elementsAs<const Hux32s>(b)};
          const HuxStatus status = applyRule<C1>(results.row(), 2 * L::channels * n, rule, x, y).status();
          results.store(d, n);
          return status;
        });
  }
}

// One channel of 16-bit integers is multiplied by a reciprocal; several are divided by a row of constants, and round
// differently at times. All others multiply by a row of reciprocals, or by one.
template <class L, class C>
HuxStatus divideC(const C* pSrc, int srcStep, const C* pPixel, C* pDst, int dstStep, HuxiSize roi,
                  int scaleFactor = 0) {
  const auto constant = [pPixel](int c) { return C(elements(pPixel)[c]); };
  const auto nonZero = [&] {
    bool all = true;
    for (int c = 0; c < L::processed; ++c) all &= squaredNorm(constant(c)) > 0;
    return failUnless(all, huxStsDivByZero);
  };
  if (HuxStatus s = check(pointers(pSrc, pPixel, pDst), size(roi), steps(srcStep, dstStep), nonZero)) return s;
  const auto src = complexRows<L>(pSrc, srcStep);
  const auto dst = complexRows<L>(pDst, dstStep);
  if constexpr (std::is_same_v<C, Hux32sc>) {
    const Widened<FloatProduct<Hux64f>> rule{};
    constexpr int lanes = decltype(rule)::lanes;
    const Results32<L> results(roi.width, scaleFactor);
    const Scratch<Hux64fc> factors(roi.width * Index(L::channels));
    if (!results || !factors) return huxStsNoMem;
    fillRow<L>(factors, roi.width, [&](int c) { return reciprocal(constant(c)); });
    forEachRow(roi, src, dst, rows<L>(factors.get(), 0), [&](auto* b, auto* d, auto*, Index n) {
      applyRule<C1>(results.row(), 2 * L::channels * n, rule, FromRow<Hux64f, lanes>{words(factors.get())},
                    FromRow<Hux32s, lanes>{elementsAs<const Hux32s>(b)});
      results.store(d, n);
    });
  } else if constexpr (L::channels == 1) {
    forEachRow(roi, src, dst, [&](auto* b, auto* d, Index n) { divideRowC(b, constant(0), d, n, scaleFactor); });
  } else {
    const Scratch<C> row(roi.width * Index(L::channels));
    if (!row) return huxStsNoMem;
    constexpr bool reciprocals = std::is_same_v<C, Hux32fc>;
    fillRow<L>(row, roi.width, [&](int c) {
      if constexpr (reciprocals)
        return reciprocal(constant(c));
      else
        return constant(c);
    });
    forEachRow(roi, complexRows<L>(row.get(), 0), src, dst, [&](auto* a, auto* b, auto* d, Index n) {
      if constexpr (reciprocals)
        zipRow<L>(a, b, d, n, onWords<C, L>(FloatProduct<Hux32f>{}));
      else
        divideRow<L, C>(a, b, d, n, scaleFactor);
    });
  }
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT_ARITH(op, t, l, sfs)                                                    \
  HUX_EXPORT_ARITH_IMAGES(op, t, l, sfs, hux::zipComplex<hux::l, hux::op##Op, Hux##t>) \
  HUX_EXPORT_ARITH_CONSTANT(op##C, t, l, sfs, hux::zipComplexC<hux::l, hux::op##Op, Hux##t>)
#define EXPORT_TYPE(t, l, sfs)                                         \
  EXPORT_ARITH(Add, t, l, sfs)                                         \
  EXPORT_ARITH(Sub, t, l, sfs)                                         \
  EXPORT_ARITH(Mul, t, l, sfs)                                         \
  HUX_EXPORT_ARITH_IMAGES(Div, t, l, sfs, hux::divide<hux::l, Hux##t>) \
  HUX_EXPORT_ARITH_CONSTANT(DivC, t, l, sfs, hux::divideC<hux::l, Hux##t>)
#define EXPORT(t, l) EXPORT_TYPE(t, l, Sfs)
HUX_STAMP(EXPORT, (16sc, 32sc), (C1, C3, AC4))
#undef EXPORT

#define EXPORT(t, l) EXPORT_TYPE(t, l, )
HUX_STAMP(EXPORT, (32fc), (C1, C3, AC4))
