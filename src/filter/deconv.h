// What the two ways of undoing a blur share: their checks, and the margin around the image.
#pragma once

#include <cmath>

#include "core/context.h"
#include "core/rows.h"

namespace hux::deconv {

// Of the filters, ahead of what a family adds. A state tells the largest region with the margin of its kernel.
template <class L, class State>
HuxStatus checked(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roi, const State* pState) {
  const auto fits = [=] {
    const Index margin = pState->kernelSize - 1;
    return failUnless(roi.width + margin <= pState->mostWidth() && roi.height + margin <= pState->mostHeight(),
                      huxStsBadSize);
  };
  return check(pointers(pSrc, pDst, pState), size(roi), fits,
               stepsHold<Hux32f>(Index(roi.width) * L::channels, srcStep, dstStep),
               failUnless(srcStep % 4 == 0 && dstStep % 4 == 0, huxStsStepNotMultipleOf4));
}

// A channel of the result: values of a magnitude at or below the threshold become 0.
template <class L, class Value>
void store(Rows<Hux32f> dst, int channel, HuxiSize roi, Hux32f threshold, Value value) {
  for (Index y = 0; y < roi.height; ++y) {
    auto* row = dst.row(y) + channel;
    for (Index x = 0; x < roi.width; ++x) {
      const Hux32f v = value(x, y);
      row[x * L::channels] = std::fabs(v) > threshold ? v : 0.0f;
    }
  }
}

// Whether a record of so many bytes can tell where its tables lie.
constexpr bool canBePlaced(Hux64f bytes) { return bytes < 0x1p32 * kContextAlignment; }

// The channels of interleaved kernels, one plane for each.
template <class L>
void copyKernel(const Hux32f* pKernel, Hux32f* planes, Index cells) {
  for (Index i = 0; i < cells; ++i)
    for (int c = 0; c < L::channels; ++c) planes[c * cells + i] = elements(pKernel)[i * L::channels + c];
}

// A kernel of k by k taps, whose margin is h = (k - 1) / 2 cells wide.
struct Kernel {
  const Hux32f* taps;
  Index k;

  Index margin() const { return (k - 1) / 2; }
  Hux32f operator()(Index r, Index c) const { return taps[r * k + c]; }
};

// The places along an edge of n pixels at which the kernel is cut off alike: body(first, end, lo, hi) with the range of
// the kernel that is left there.
template <class Body>
void forRuns(Index n, Kernel kernel, Body body) {
  const Index k = kernel.k, h = kernel.margin();
  const auto lo = [=](Index x) { return std::max<Index>(h - x, 0); };
  const auto hi = [=](Index x) { return std::min(k, h + n - x); };
  for (Index first = 0, end; first < n; first = end) {
    for (end = first + 1; end < n && lo(end) == lo(first) && hi(end) == hi(first);) ++end;
    body(first, end, lo(first), hi(first));
  }
}

// Puts an image into the middle of an array, put(row, column, value), and around it a margin of the image's edge, each
// cell weighted by what part of the kernel's weight reaches it: pixel * numerator / denominator, whose sums are taken
// in the order of rows and columns. Products, quotients and sums are in single precision. `sums` holds margin() + 1
// numbers.
//
// Two things are as they always were: the upper and lower edges mirror the kernel's columns in the numerator and not in
// the denominator, and the upper right corner runs from the image outwards where the others run towards it.
template <class Pixel, class Put>
void widen(Kernel kernel, HuxiSize size, Pixel pixel, Put put, Hux32f* sums) {
  const Index k = kernel.k, h = kernel.margin(), width = size.width, height = size.height;
  for (Index y = 0; y < height; ++y)
    for (Index x = 0; x < width; ++x) put(h + y, h + x, pixel(x, y));

  for (const bool below : {false, true}) {
    const Index y = below ? height - 1 : 0;
    const auto rowOf = [=](Index i) { return below ? height + 2 * h - 1 - i : i; };
    const auto tap = [=](Index a, Index c) { return kernel(below ? a : k - 1 - a, c); };

    for (const bool right : {false, true}) {
      const Hux32f corner = pixel(right ? width - 1 : 0, y);
      const auto cell = [=](Index a, Index b) { return tap(a, right ? b : k - 1 - b); };
      const auto columnOf = [=](Index j) { return !right ? j : below ? width + 2 * h - 1 - j : h + width + j; };
      Hux32f whole = 0;
      for (Index a = 0; a <= h; ++a)
        for (Index b = 0; b <= h; ++b) whole += cell(a, b);
      for (Index j = 0; j < h; ++j) {
        Hux32f part = 0;
        for (Index i = 0; i < h; ++i) {
          for (Index b = 0; b <= j; ++b) part += cell(i, b);
          put(rowOf(i), columnOf(j), corner * part / whole);
        }
      }
    }

    forRuns(width, kernel, [&](Index first, Index end, Index lo, Index hi) {
      Hux32f part = 0, whole = 0;
      for (Index a = 0; a <= h; ++a)
        for (Index b = lo; b < hi; ++b) whole += tap(a, b);
      for (Index i = 0; i < h; ++i) {
        for (Index b = lo; b < hi; ++b) part += tap(i, k - 1 - b);
        for (Index x = first; x < end; ++x) put(rowOf(i), h + x, pixel(x, y) * part / whole);
      }
    });
  }

  // Here the columns are added up last: one sum for each cell, and the one behind them is the whole.
  for (const bool right : {false, true}) {
    const Index x = right ? width - 1 : 0;
    forRuns(height, kernel, [&](Index first, Index end, Index lo, Index hi) {
      std::fill_n(sums, h + 1, 0.0f);
      for (Index r = lo; r < hi; ++r)
        for (Index b = 0; b <= h; ++b) {
          const Hux32f tap = kernel(r, right ? b : k - 1 - b);
          for (Index j = b; j <= h; ++j) sums[j] += tap;
        }
      for (Index y = first; y < end; ++y)
        for (Index j = 0; j < h; ++j) put(h + y, right ? width + 2 * h - 1 - j : j, pixel(x, y) * sums[j] / sums[h]);
    });
  }
}

// A state releases what it holds outside of its record.
template <class State>
HuxStatus freeState(State* pState) {
  if (HuxStatus s = check(pointers(pState))) return s;
  pState->releaseParts();
  release(pState);
  return huxStsOk;
}

}  // namespace hux::deconv

// The names of a family, whose initAlloc is told what limits the region and whose deconv may be told one thing more.
#define HUX_EXPORT_DECONV(family, l, Most, most, parameter, argument)                                                \
  HuxStatus huxi##family##InitAlloc_32f_##l##R(Huxi##family##State** ppState, const Hux32f* pKernel, int kernelSize, \
                                               Most most, Hux32f threshold) {                                        \
    return hux::initAlloc<hux::l>(ppState, pKernel, kernelSize, most, threshold);                                    \
  }                                                                                                                  \
  HuxStatus huxi##family##_32f_##l##R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,                    \
                                      HuxiSize roiSize HUX_LIST parameter, Huxi##family##State* pState) {            \
    return hux::restore<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize HUX_LIST argument, pState);                    \
  }                                                                                                                  \
  HuxStatus huxi##family##Free_32f_##l##R(Huxi##family##State* pState) { return hux::deconv::freeState(pState); }
