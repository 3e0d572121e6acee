// Row workers of the elementary functions Abs, Sqr, Sqrt, Exp and Ln.
//
// A worker is made once a call, from the scale factor, and then takes rows: it checks nothing, demands no alignment,
// lets source and destination be the same row, and returns the row's status, success or the first warning met. The
// operators are defined, for the types that a function exists on, with the vector functions of the same name.
#pragma once

#include "core/check.h"
#include "core/layout.h"

namespace hux {

template <class T>
struct Abs {
  explicit Abs(int = 0) {}
  HuxStatus operator()(const Element<T>* src, Element<T>* dst, Index n) const;
};

template <class T>
struct Sqr {
  int scaleFactor;
  explicit Sqr(int scaleFactor = 0) : scaleFactor(scaleFactor) {}
  HuxStatus operator()(const Element<T>* src, Element<T>* dst, Index n) const;
};

template <class T>
struct Sqrt {
  int scaleFactor;
  explicit Sqrt(int scaleFactor = 0) : scaleFactor(scaleFactor) {}
  HuxStatus operator()(const Element<T>* src, Element<T>* dst, Index n) const;
};

// On integers, all results that are neither 0 nor the largest value belong to a few neighbouring elements: `entries`
// are the results of the elements from `first` on, and those of all others equal that of the nearest.
template <class T>
struct Exp {
  static constexpr int size = sizeof(T) == 1 ? 256 : 32;
  int first;
  T entries[size];
  explicit Exp(int scaleFactor);
  HuxStatus operator()(const Element<T>* src, Element<T>* dst, Index n) const;
};
template <>
struct Exp<Hux32f> {
  explicit Exp(int = 0) {}
  HuxStatus operator()(const Element<Hux32f>* src, Element<Hux32f>* dst, Index n) const;
};

template <class T>
struct Ln {
  int scaleFactor;
  explicit Ln(int scaleFactor = 0) : scaleFactor(scaleFactor) {}
  HuxStatus operator()(const Element<T>* src, Element<T>* dst, Index n) const;
};

// The exported vector functions.
template <class Worker, class T>
HuxStatus onVector(const T* pSrc, T* pDst, int len, int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  return Worker(scaleFactor)(elements(pSrc), elements(pDst), len);
}

}  // namespace hux

// The names of one function on vectors of one type.
#define HUX_EXPORT_VECTOR_SFS(function, t)                                                           \
  HuxStatus huxs##function##_##t##_Sfs(const Hux##t* pSrc, Hux##t* pDst, int len, int scaleFactor) { \
    return hux::onVector<hux::function<Hux##t>>(pSrc, pDst, len, scaleFactor);                       \
  }                                                                                                  \
  HuxStatus huxs##function##_##t##_ISfs(Hux##t* pSrcDst, int len, int scaleFactor) {                 \
    return hux::onVector<hux::function<Hux##t>, Hux##t>(pSrcDst, pSrcDst, len, scaleFactor);         \
  }
#define HUX_EXPORT_VECTOR(function, t)                                          \
  HuxStatus huxs##function##_##t(const Hux##t* pSrc, Hux##t* pDst, int len) {   \
    return hux::onVector<hux::function<Hux##t>>(pSrc, pDst, len);               \
  }                                                                             \
  HuxStatus huxs##function##_##t##_I(Hux##t* pSrcDst, int len) {                \
    return hux::onVector<hux::function<Hux##t>, Hux##t>(pSrcDst, pSrcDst, len); \
  }
