// Add, Sub, Mul, Div and their constant forms on complex vectors.
#include "workers/complex.h"

#include "core/check.h"
#include "core/stamp.h"
#include "huxs.h"

namespace hux {
namespace {

template <class Op, class C>
HuxStatus combine(const C* pSrc1, const C* pSrc2, C* pDst, int len, int scaleFactor = 0) {
  // These stand for the real functions of twice the length and test the length first.
  constexpr bool lengthFirst =
      !std::is_same_v<Op, MulOp> && sizeof(Part<C>) * 2 == sizeof(WordOfComplex<C>) && !std::is_same_v<C, Hux32sc>;
  if (HuxStatus s = check(lengthFirst ? length(len) : HuxStatus(huxStsOk), pointers(pSrc1, pSrc2, pDst), length(len)))
    return s;
  withComplexRule<Op, C>(
      scaleFactor, [&](auto rule) { zipRow<C1>(words(pSrc1), words(pSrc2), words(pDst), len * kWords<C>, rule); });
  return huxStsOk;
}

template <class Op, class C>
HuxStatus combineC(const C* pSrc, C value, C* pDst, int len, int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  withComplexRule<Op, C>(scaleFactor, [&](auto rule) {
    using Rule = decltype(rule);
    applyRule<C1>(words(pDst), len * kWords<C>, rule, Constants<C1, C, Rule::lanes>(words(&value)),
                  FromRow<WordOfComplex<C>, Rule::lanes>{words(pSrc)});
  });
  return huxStsOk;
}

template <class C>
HuxStatus divide(const C* pSrc1, const C* pSrc2, C* pDst, int len, int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc1, pSrc2, pDst), length(len))) return s;
  return divideRow<C1, C>(words(pSrc1), words(pSrc2), words(pDst), len * kWords<C>, scaleFactor);
}

template <class C>
HuxStatus divideC(const C* pSrc, C value, C* pDst, int len, int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len), failUnless(squaredNorm(value) > 0, huxStsDivByZero)))
    return s;
  divideRowC(words(pSrc), value, words(pDst), len, scaleFactor);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

// The names of an operation with two vectors, and with a constant; P and A are the parameters and arguments behind len.
#define EXPORT_IN_PLACE(name, call, t, I, P, A)                                            \
  HuxStatus huxs##name##_##t##I(const Hux##t* pSrc, Hux##t* pSrcDst, int len HUX_LIST P) { \
    return hux::call(pSrc, static_cast<const Hux##t*>(pSrcDst), pSrcDst, len HUX_LIST A);  \
  }
#define EXPORT_TWO(name, call, t, Sfs, I, P, A)                                                                 \
  HuxStatus huxs##name##_##t##Sfs(const Hux##t* pSrc1, const Hux##t* pSrc2, Hux##t* pDst, int len HUX_LIST P) { \
    return hux::call(pSrc1, pSrc2, pDst, len HUX_LIST A);                                                       \
  }                                                                                                             \
  EXPORT_IN_PLACE(name, call, t, I, P, A)
#define EXPORT_IN_PLACE_C(name, call, t, I, P, A)                                          \
  HuxStatus huxs##name##_##t##I(Hux##t value, Hux##t* pSrcDst, int len HUX_LIST P) {       \
    return hux::call(static_cast<const Hux##t*>(pSrcDst), value, pSrcDst, len HUX_LIST A); \
  }
#define EXPORT_C(name, call, t, Sfs, I, P, A)                                                           \
  HuxStatus huxs##name##_##t##Sfs(const Hux##t* pSrc, Hux##t value, Hux##t* pDst, int len HUX_LIST P) { \
    return hux::call(pSrc, value, pDst, len HUX_LIST A);                                                \
  }                                                                                                     \
  EXPORT_IN_PLACE_C(name, call, t, I, P, A)
#define EXPORT_SFS(form, name, call, t) form(name, call, t, _Sfs, _ISfs, (, int scaleFactor), (, scaleFactor))
#define EXPORT_PLAIN(form, name, call, t) form(name, call, t, , _I, (), ())
#define EXPORT(op)                                         \
  EXPORT_SFS(EXPORT_TWO, op, combine<hux::op##Op>, 16sc)   \
  EXPORT_SFS(EXPORT_TWO, op, combine<hux::op##Op>, 32sc)   \
  EXPORT_PLAIN(EXPORT_TWO, op, combine<hux::op##Op>, 32fc) \
  EXPORT_SFS(EXPORT_C, op##C, combineC<hux::op##Op>, 16sc) \
  EXPORT_SFS(EXPORT_C, op##C, combineC<hux::op##Op>, 32sc) \
  EXPORT_PLAIN(EXPORT_C, op##C, combineC<hux::op##Op>, 32fc)
EXPORT(Add)
EXPORT(Sub)
EXPORT(Mul)
EXPORT_IN_PLACE(Mul, combine<hux::MulOp>, 64fc, _I, (), ())
EXPORT_IN_PLACE_C(MulC, combineC<hux::MulOp>, 64fc, _I, (), ())
EXPORT_SFS(EXPORT_TWO, Div, divide, 16sc)
EXPORT_PLAIN(EXPORT_TWO, Div, divide, 32fc)
EXPORT_PLAIN(EXPORT_TWO, Div, divide, 64fc)
EXPORT_SFS(EXPORT_C, DivC, divideC, 16sc)
EXPORT_PLAIN(EXPORT_C, DivC, divideC, 32fc)
