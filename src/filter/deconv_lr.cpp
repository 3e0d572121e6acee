// DeconvLR: a blur undone by the iterations of Richardson and Lucy.
#include "core/stamp.h"
#include "filter/deconv.h"
#include "huxi_filter.h"
#include "workers/taps_sum.h"

// The image with its margin and what is filtered: arrays whose rows are a kernel wider than the largest region. A row
// and a column of zeros lie in front, for windows of kernels of even sides begin one further back than they end. One
// array of each kind serves all channels in turn.
struct HuxiDeconvLRState {
  Hux32s maxWidth, maxHeight, kernelSize;
  Hux32f threshold;
  hux::At<Hux32f> kernel, kernelT, sums;
  hux::At<Hux32f> arrays[4];

  hux::Index mostWidth() const { return maxWidth; }
  hux::Index mostHeight() const { return maxHeight; }
  hux::Index stride() const { return hux::Index(kernelSize) + maxWidth; }
  hux::Index guard() const { return stride() + 1; }
  hux::Index floats() const { return guard() + stride() * (hux::Index(kernelSize) + maxHeight); }
  void releaseParts() {}
};

namespace hux {
namespace {

using State = HuxiDeconvLRState;

template <class L>
HuxStatus initAlloc(State** ppState, const Hux32f* pKernel, int kernelSize, HuxiSize most, Hux32f threshold) {
  const auto fits = failUnless(kernelSize >= 1 && kernelSize <= most.width && kernelSize <= most.height, huxStsBadSize);
  if (HuxStatus s = check(pointers(pKernel, ppState), fits, failUnless(!(threshold < 0), huxStsBadArg))) return s;
  State state{};
  state.maxWidth = most.width, state.maxHeight = most.height;
  state.kernelSize = kernelSize, state.threshold = threshold;
  const Index k = kernelSize;
  const Hux64f kernelFloats = Hux64f(k) * Hux64f(k), imageFloats = Hux64f(k + most.width) * Hux64f(k + most.height + 2);
  if (!deconv::canBePlaced(4 * (4 * imageFloats + 2 * L::channels * kernelFloats) + 4096)) return huxStsNoMem;

  const Index cells = k * k;
  Arena arena(sizeof(State));
  state.kernel = arena.take<Hux32f>(L::channels * cells);
  state.kernelT = arena.take<Hux32f>(L::channels * cells);
  state.sums = arena.take<Hux32f>(k);
  for (auto& array : state.arrays) array = arena.take<Hux32f>(state.floats());
  return create(ppState, arena.bytes(), [&](State* made) -> HuxStatus {
    *made = state;
    Hux32f *kernel = state.kernel.in(made), *transposed = state.kernelT.in(made);
    deconv::copyKernel<L>(pKernel, kernel, cells);
    for (Index i = 0; i < L::channels * cells; ++i) {
      const Index plane = i / cells * cells, cell = i % cells;
      transposed[i] = kernel[plane + cell % k * k + cell / k];
    }
    return huxStsOk;
  });
}

// The general filter with its anchor in the middle, on this thread. What it reads around its region is there.
void filter(const Hux32f* src, Hux32f* dst, Index stride, HuxiSize size, const Hux32f* kernel, int k) {
  const Taps<Hux32f> taps{elements(kernel), {k, k}};
  const int h = (k - 1) / 2;
  const Reach reach = fromFarCorner(taps.size, {h, h});
  constexpr Index bytes = sizeof(Hux32f);
  const WindowRows<Hux32f> windows{{elements(src - reach.above * stride - reach.left), stride * bytes}};
  tapsSum<C1>(PlainProducts<Hux32f, Hux32f, Hux32f>(taps, 1), taps, windows,
              Rows<Hux32f>{elements(dst), stride * bytes, bytes}, {0, size.height}, size.width,
              [](auto sum) { return sum; });
}

template <class L>
HuxStatus restore(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roi, int numIter,
                  State* pState) {
  if (HuxStatus s =
          check(deconv::checked<L>(pSrc, srcStep, pDst, dstStep, roi, pState), failUnless(numIter >= 1, huxStsBadArg)))
    return s;
  const auto src = rows<L>(pSrc, srcStep);
  const auto dst = rows<L>(pDst, dstStep);
  const int k = pState->kernelSize;
  const Index h = (k - 1) / 2, stride = pState->stride(), cells = Index(k) * k;
  const HuxiSize wide = {roi.width + k - 1, roi.height + k - 1};
  const Hux32f threshold = pState->threshold;
  constexpr Hux32f least = 0x19p-124f;  // 100 times the smallest normal number
  const auto array = [&](int i) { return pState->arrays[i].in(pState) + pState->guard(); };
  Hux32f* image = array(0);
  const Index inside = stride * h + h;
  Hux32f *estimate = array(1) + inside, *ratio = array(2) + inside, *correction = array(3) + inside;

  for (int c = 0; c < L::channels; ++c) {
    const Hux32f *kernel = pState->kernel.in(pState) + c * cells, *transposed = pState->kernelT.in(pState) + c * cells;
    for (const auto& at : pState->arrays) std::fill_n(at.in(pState), pState->floats(), 0.0f);
    deconv::widen(
        {kernel, k}, roi, [&](Index x, Index y) { return Hux32f(src.row(y)[x * L::channels + c]); },
        [&](Index row, Index column, Hux32f value) { image[row * stride + column] = value; }, pState->sums.in(pState));
    const auto forRows = [&](auto body) {
      for (Index y = 0; y < wide.height; ++y) body(y * stride);
    };
    forRows([&](Index row) { std::copy_n(image + row, wide.width, estimate + row); });
    for (int i = 0; i < numIter; ++i) {
      filter(estimate, ratio, stride, wide, kernel, k);
      forRows([&](Index row) {
        for (Index at = row; at < row + wide.width; ++at)
          ratio[at] = std::fabs(ratio[at]) > threshold ? image[at] / ratio[at] : 0;
      });
      filter(ratio, correction, stride, wide, transposed, k);
      forRows([&](Index row) {
        for (Index at = row; at < row + wide.width; ++at)
          estimate[at] = std::fabs(estimate[at]) > least ? estimate[at] * correction[at] : 0;
      });
    }
    deconv::store<L>(dst, c, roi, threshold, [&](Index x, Index y) { return estimate[(h + y) * stride + h + x]; });
  }
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(_, l) HUX_EXPORT_DECONV(DeconvLR, l, HuxiSize, maxRoiSize, (, int numIter), (, numIter))
HUX_STAMP(EXPORT, (_), (C1, C3))
