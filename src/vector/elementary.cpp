// Abs, Sqr, Sqrt, Exp and Ln on vectors: one row of the workers.
#include "workers/elementary.h"

#include "core/check.h"
#include "huxs.h"

namespace hux {
namespace {

template <class Worker, class T>
HuxStatus onVector(const T* pSrc, T* pDst, int len, int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  return Worker(scaleFactor)(elements(pSrc), elements(pDst), len);
}

}  // namespace
}  // namespace hux

#define EXPORT_SFS(function, t)                                                                      \
  HuxStatus huxs##function##_##t##_Sfs(const Hux##t* pSrc, Hux##t* pDst, int len, int scaleFactor) { \
    return hux::onVector<hux::function<Hux##t>>(pSrc, pDst, len, scaleFactor);                       \
  }                                                                                                  \
  HuxStatus huxs##function##_##t##_ISfs(Hux##t* pSrcDst, int len, int scaleFactor) {                 \
    return hux::onVector<hux::function<Hux##t>, Hux##t>(pSrcDst, pSrcDst, len, scaleFactor);         \
  }
#define EXPORT(function, t)                                                     \
  HuxStatus huxs##function##_##t(const Hux##t* pSrc, Hux##t* pDst, int len) {   \
    return hux::onVector<hux::function<Hux##t>>(pSrc, pDst, len);               \
  }                                                                             \
  HuxStatus huxs##function##_##t##_I(Hux##t* pSrcDst, int len) {                \
    return hux::onVector<hux::function<Hux##t>, Hux##t>(pSrcDst, pSrcDst, len); \
  }

EXPORT(Abs, 16s)
EXPORT(Abs, 32f)
EXPORT_SFS(Sqr, 8u)
EXPORT_SFS(Sqr, 16u)
EXPORT_SFS(Sqr, 16s)
EXPORT(Sqr, 32f)
EXPORT_SFS(Sqrt, 8u)
EXPORT_SFS(Sqrt, 16u)
EXPORT_SFS(Sqrt, 16s)
EXPORT(Sqrt, 32f)
EXPORT_SFS(Exp, 16s)
EXPORT(Exp, 32f)
EXPORT_SFS(Ln, 16s)
