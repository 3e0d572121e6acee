// Row workers of the elementary functions Abs, Sqr, Sqrt, Exp and Ln.
//
// A worker is made once a call, from the scale factor, and then takes rows: it checks nothing, demands no alignment,
// lets source and destination be the same row, and returns the row's status, success or the first warning met.
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

}  // namespace hux
