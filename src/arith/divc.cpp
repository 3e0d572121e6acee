// DivC: an image divided by a constant. Each element type has a way of its own, in checks and in rounding.
#include "arith/scaled_images.h"
#include "core/scratch.h"
#include "huxi_arith.h"
#include "workers/divide.h"
#include "workers/table.h"

namespace hux {
namespace {

// The constants of a pixel.
template <class T>
struct Divisor {
  const T* p;

  T operator[](int c) const { return elements(p)[c]; }
  // A NaN is no better than a zero.
  template <class L>
  HuxStatus nonZero() const {
    for (int c = 0; c < L::processed; ++c)
      if (!((*this)[c] < 0 || (*this)[c] > 0)) return huxStsDivByZero;
    return huxStsOk;
  }
};

// 8u: tables of the 256 quotients.
template <class L>
void replace(const Hux8u* tables, const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roi) {
  const ByteTables<L> rule(tables);
  forEachRow(roi, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep),
             [&](auto* s, auto* d, Index n) { rule.map(s, d, n); });
}

// One channel multiplies by the six-decimal reciprocal. The others divide, and of these C3 and C4 carry on past a zero
// constant: they write what Div would, and then return the error.
template <class L>
HuxStatus divC(const Hux8u* pSrc, int srcStep, const Hux8u* pPixel, Hux8u* pDst, int dstStep, HuxiSize roi,
               int scaleFactor) {
  constexpr bool carriesOn = L::channels > 1 && L::channels == L::processed;
  const Divisor<Hux8u> divisor{pPixel};
  if (HuxStatus s = check(pointers(pSrc, pPixel, pDst), size(roi), steps(srcStep, dstStep),
                          [&] { return carriesOn ? huxStsOk : divisor.nonZero<L>(); }))
    return s;
  const HuxStatus status = divisor.nonZero<L>();
  if constexpr (L::channels == 1) {
    Hux8u quotients[256];
    tabulate(quotients, ReciprocalProduct<Hux8u>(divisor[0], scaleFactor));
    replace<L>(quotients, pSrc, srcStep, pDst, dstStep, roi);
  } else {
    const Scratch<Hux8u> quotients(ByteTables<L>::bytes);
    if (!quotients) return huxStsNoMem;
    for (int c = 0; c < L::processed; ++c) {
      const Element<Hux8u> value = {divisor[c]};
      tabulate(quotients.get() + 256 * c, Quotient<Hux8u>(scaleFactor),
               Repeat<C1, Hux8u, Quotient<Hux8u>::lanes>(&value));
    }
    replace<L>(quotients.get(), pSrc, srcStep, pDst, dstStep, roi);
  }
  return status;
}

// 16s: one channel multiplies by the reciprocal; the others divide by a row of constants, in which alpha is 1.
template <class L>
HuxStatus divC(const Hux16s* pSrc, int srcStep, const Hux16s* pPixel, Hux16s* pDst, int dstStep, HuxiSize roi,
               int scaleFactor) {
  const Divisor<Hux16s> divisor{pPixel};
  if (HuxStatus s =
          check(pointers(pSrc, pPixel, pDst), size(roi), steps(srcStep, dstStep), [&] { return divisor.nonZero<L>(); }))
    return s;
  const auto src = rows<L>(pSrc, srcStep);
  const auto dst = rows<L>(pDst, dstStep);
  if constexpr (L::channels == 1) {
    const ReciprocalProduct<Hux16s> rule(divisor[0], scaleFactor);
    forEachRow(roi, src, dst, [&](auto* s, auto* d, Index n) { mapRow<L>(s, d, n, rule); });
  } else {
    const Index elements = L::channels * Index(roi.width);
    const Scratch<Hux16s> constants(elements);
    if (!constants) return huxStsNoMem;
    for (Index i = 0; i < elements; ++i)
      constants[i] = i % L::channels < L::processed ? divisor[int(i % L::channels)] : Hux16s(1);
    const Quotient<Hux16s> rule(scaleFactor);
    forEachRow(roi, rows<L>(constants.get(), 0), src, dst,
               [&](auto* c, auto* s, auto* d, Index n) { ownDiv<L, Hux16s>(c, s, d, n, rule); });
  }
  return huxStsOk;
}

// 16u: in the fixed point of Div; quotients by 1 are rounded to nearest there too. Shortcuts come ahead of the other
// checks, and for that reason the constants of several channels are tested before everything; C3 and C4 stand for C1
// over a wider row where their constants are equal.
template <class L>
HuxStatus divC(const Hux16u* pSrc, int srcStep, const Hux16u* pPixel, Hux16u* pDst, int dstStep, HuxiSize roi,
               int scaleFactor) {
  const Divisor<Hux16u> divisor{pPixel};
  constexpr bool single = L::channels == 1;
  const auto nonZero = [=] { return divisor.nonZero<L>(); };
  const auto identity = [=] { return single && scaleFactor == 0 && divisor[0] == 1; };
  const auto copy = [=] { return copyAll<L>(pSrc, srcStep, pDst, dstStep, roi); };
  const auto equal = [=] {
    bool all = !single && L::channels == L::processed && roi.width >= 1 &&
               roi.width <= std::numeric_limits<int>::max() / L::channels;
    for (int c = 1; c < L::channels && all; ++c) all = divisor[c] == divisor[0];
    return all;
  };
  const auto asOneChannel = [=] {
    const Hux16u one = divisor[0];
    return divC<C1>(pSrc, srcStep, &one, pDst, dstStep, {roi.width * L::channels, roi.height}, scaleFactor);
  };
  const auto zero = [=] { return scaleFactor > 16 && divisor[0] != 0; };
  const auto zeros = [=] {
    return HuxStatus(check(pointers(pSrc), [=] { return setAll<L>(Hux16u(0), pDst, dstStep, roi); }));
  };
  if (const auto s = check(
          single ? huxStsOk : pointers(pPixel), [=] { return single ? HuxStatus(huxStsOk) : nonZero(); },
          answer(identity, copy), answer(equal, asOneChannel), answer(zero, zeros), pointers(pSrc, pDst), size(roi),
          nonZero))
    return s;
  withQuotient<Hux16u>(scaleFactor, [&](auto rule) {
    using Rule = decltype(rule);
    const Repeat<L, Hux16u, Rule::lanes> constants(elements(pPixel));
    forEachRow(roi, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep), [&](auto* s, auto* d, Index n) {
      applyRule<L>(d, n, rule, constants, FromRow<Hux16u, Rule::lanes>{s});
    });
  });
  return huxStsOk;
}

// 32f: a product with the single-precision reciprocal.
template <class L>
HuxStatus divC(const Hux32f* pSrc, int srcStep, const Hux32f* pPixel, Hux32f* pDst, int dstStep, HuxiSize roi) {
  const Divisor<Hux32f> divisor{pPixel};
  if (HuxStatus s =
          check(pointers(pSrc, pPixel, pDst), size(roi), steps(srcStep, dstStep), [&] { return divisor.nonZero<L>(); }))
    return s;
  Hux32f reciprocals[L::processed];
  for (int c = 0; c < L::processed; ++c) reciprocals[c] = 1.0f / divisor[c];
  return combineC<L, MulOp>(pSrc, srcStep, reciprocals, pDst, dstStep, roi);
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l) HUX_EXPORT_ARITH_CONSTANT(DivC, t, l, Sfs, hux::divC<hux::l>)
HUX_STAMP(EXPORT, (8u, 16s, 16u), (C1, C3, C4, AC4))
#undef EXPORT

#define EXPORT(t, l) HUX_EXPORT_ARITH_CONSTANT(DivC, t, l, , hux::divC<hux::l>)
HUX_STAMP(EXPORT, (32f), (C1, C3, C4, AC4))
