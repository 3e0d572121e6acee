// Add, Sub, SubC and MulC on real vectors.
#include "core/check.h"
#include "huxs.h"
#include "workers/fill.h"
#include "workers/scaled.h"

namespace hux {
namespace {

template <class Op, class T>
HuxStatus combine(const T* pSrc1, const T* pSrc2, T* pDst, int len, int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc1, pSrc2, pDst), length(len))) return s;
  const auto zip = [&](auto rule) { zipRow<C1>(elements(pSrc1), elements(pSrc2), elements(pDst), len, rule); };
  if constexpr (std::is_integral_v<T>) {
    if (scaleFactor > Op::template allZeroAbove<T>)
      ownsZero_8u(pDst, Index(len) * Index(sizeof(T)));
    else
      withRule<Op, T>(scaleFactor, zip);
  } else {
    zip(Float<Op, T>{});
  }
  return huxStsOk;
}

// One constant for all elements, in the place of the first operand.
template <class Op>
HuxStatus combineC(const Hux32f* pSrc, Hux32f value, Hux32f* pDst, int len) {
  using Rule = Float<Op, Hux32f>;
  const Element<Hux32f> pixel = {value};
  applyRule<C1>(elements(pDst), len, Rule{}, Repeat<C1, Hux32f, Rule::lanes>(&pixel),
                FromRow<Hux32f, Rule::lanes>{elements(pSrc)});
  return huxStsOk;
}

}  // namespace
}  // namespace hux

// A constant that is neither below nor above 0 is taken for 0, a NaN too: nothing is subtracted.
HuxStatus huxsSubC_32f(const Hux32f* pSrc, Hux32f value, Hux32f* pDst, int len) {
  if (HuxStatus s = hux::check(hux::pointers(pSrc, pDst), hux::length(len))) return s;
  if (!(value < 0 || value > 0)) return huxsCopy_32f(pSrc, pDst, len);
  return hux::combineC<hux::SubOp>(pSrc, value, pDst, len);
}
HuxStatus huxsSubC_32f_I(Hux32f value, Hux32f* pSrcDst, int len) {
  if (HuxStatus s = hux::check(hux::pointers(pSrcDst), hux::length(len))) return s;
  if (!(value < 0 || value > 0)) return huxStsOk;
  return hux::combineC<hux::SubOp>(pSrcDst, value, pSrcDst, len);
}

// Times 0 is 0 whatever the element, infinity and NaN too.
HuxStatus huxsMulC_32f_I(Hux32f value, Hux32f* pSrcDst, int len) {
  if (HuxStatus s = hux::check(hux::pointers(pSrcDst), hux::length(len))) return s;
  if (value == 1) return huxStsOk;
  if (value == 0) return huxsZero_32f(pSrcDst, len);
  return hux::combineC<hux::MulOp>(pSrcDst, value, pSrcDst, len);
}

#define EXPORT_SFS(op, t)                                                                                            \
  HuxStatus huxs##op##_##t##_Sfs(const Hux##t* pSrc1, const Hux##t* pSrc2, Hux##t* pDst, int len, int scaleFactor) { \
    return hux::combine<hux::op##Op>(pSrc1, pSrc2, pDst, len, scaleFactor);                                          \
  }                                                                                                                  \
  HuxStatus huxs##op##_##t##_ISfs(const Hux##t* pSrc, Hux##t* pSrcDst, int len, int scaleFactor) {                   \
    return hux::combine<hux::op##Op, Hux##t>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);                              \
  }
#define EXPORT_FLOAT(op, t)                                                                   \
  HuxStatus huxs##op##_##t(const Hux##t* pSrc1, const Hux##t* pSrc2, Hux##t* pDst, int len) { \
    return hux::combine<hux::op##Op>(pSrc1, pSrc2, pDst, len);                                \
  }                                                                                           \
  HuxStatus huxs##op##_##t##_I(const Hux##t* pSrc, Hux##t* pSrcDst, int len) {                \
    return hux::combine<hux::op##Op, Hux##t>(pSrc, pSrcDst, pSrcDst, len);                    \
  }
EXPORT_SFS(Add, 16s)
EXPORT_SFS(Add, 32s)
EXPORT_FLOAT(Add, 32f)
EXPORT_SFS(Sub, 16s)
EXPORT_SFS(Sub, 32s)
EXPORT_FLOAT(Sub, 32f)
