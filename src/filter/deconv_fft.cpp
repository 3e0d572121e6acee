// DeconvFFT: a blur undone by the inverse of its kernel's spectrum.
#include <limits>

#include "core/stamp.h"
#include "filter/deconv.h"
#include "huxi_filter.h"
#include "huxi_transform.h"
#include "huxs.h"

// One array of each kind serves all channels in turn, but for the inverse filters.
struct HuxiDeconvFFTState {
  Hux32s fftSize, kernelSize;
  Hux32f threshold;
  HuxiFFTRecord* context;
  hux::At<Hux32f> kernel, sums;
  hux::At<Hux8u> buffer;
  hux::At<Hux32fc> image, spectrum, inverse;

  hux::Index mostWidth() const { return fftSize; }
  hux::Index mostHeight() const { return fftSize; }
  hux::Index numbers() const { return hux::Index(fftSize) * fftSize; }
  void releaseParts() { huxiFFTFree_C_32fc(context); }
};

namespace hux {
namespace {

using State = HuxiDeconvFFTState;

int bytesOf(const State& state) { return state.fftSize * int(sizeof(Hux32fc)); }  // of a row

void transformForward(State* state) {
  huxiFFTFwd_CToC_32fc_C1R(state->image.in(state), bytesOf(*state), state->spectrum.in(state), bytesOf(*state),
                           state->context, state->buffer.in(state));
}

// 1 / z, but 1 where nothing of z is above the threshold.
Hux32fc inverseOf(Hux32fc z, Hux32f threshold) {
  if (std::fabs(z.re) < threshold) z.re = 0;
  if (std::fabs(z.im) < threshold) z.im = 0;
  if (!(std::fabs(z.re) > threshold) && !(std::fabs(z.im) > threshold)) return {1, 0};
  const Hux32f square = z.re * z.re + z.im * z.im;
  return {z.re / square, -z.im / square};
}

template <class L>
void fillState(State* state, const Hux32f* pKernel) {
  const Index k = state->kernelSize, cells = k * k, numbers = state->numbers();
  Hux32f* kernels = state->kernel.in(state);
  deconv::copyKernel<L>(pKernel, kernels, cells);
  for (int c = 0; c < L::channels; ++c) {
    Hux32fc* image = state->image.in(state);
    std::fill_n(image, numbers, Hux32fc{0, 0});
    for (Index i = 0; i < cells; ++i) {
      const Hux32f tap = kernels[c * cells + i];
      image[i / k * state->fftSize + i % k].re = std::fabs(tap) <= state->threshold ? 0 : tap;
    }
    transformForward(state);
    const Hux32fc* spectrum = state->spectrum.in(state);
    Hux32fc* inverse = state->inverse.in(state) + c * numbers;
    for (Index i = 0; i < numbers; ++i) inverse[i] = inverseOf(spectrum[i], state->threshold);
  }
}

template <class L>
HuxStatus initAlloc(State** ppState, const Hux32f* pKernel, int kernelSize, int order, Hux32f threshold) {
  const int n = int(std::min(std::ldexp(1.0, order), Hux64f(std::numeric_limits<int>::max())));
  if (HuxStatus s = check(pointers(pKernel, ppState), failUnless(kernelSize >= 1 && kernelSize <= n, huxStsBadSize),
                          failUnless(!(threshold < 0), huxStsBadArg)))
    return s;
  State state{};
  if (huxiFFTInitAlloc_C_32fc(&state.context, order, order, huxFftScaleInv, huxHintAccurate) == huxStsBadOrder)
    return huxStsBadOrder;
  if (!state.context) return huxStsNoMem;
  int bufferBytes = 0;
  huxiFFTGetBufSize_C_32fc(state.context, &bufferBytes);
  state.fftSize = n, state.kernelSize = kernelSize, state.threshold = threshold;

  Arena arena(sizeof(State));
  state.kernel = arena.take<Hux32f>(L::channels * Index(kernelSize) * kernelSize);
  state.sums = arena.take<Hux32f>(kernelSize);
  state.buffer = arena.take<Hux8u>(bufferBytes);
  state.image = arena.take<Hux32fc>(state.numbers());
  state.spectrum = arena.take<Hux32fc>(state.numbers());
  state.inverse = arena.take<Hux32fc>(L::channels * state.numbers());
  const HuxStatus status = !deconv::canBePlaced(Hux64f(arena.bytes()))
                               ? HuxStatus(huxStsNoMem)
                               : create(ppState, arena.bytes(), [&](State* made) -> HuxStatus {
                                   *made = state;
                                   fillState<L>(made, pKernel);
                                   return huxStsOk;
                                 });
  if (status) huxiFFTFree_C_32fc(state.context);
  return status;
}

template <class L>
HuxStatus restore(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roi, State* pState) {
  if (HuxStatus s = deconv::checked<L>(pSrc, srcStep, pDst, dstStep, roi, pState)) return s;
  const auto src = rows<L>(pSrc, srcStep);
  const auto dst = rows<L>(pDst, dstStep);
  const Index n = pState->fftSize, k = pState->kernelSize, numbers = pState->numbers();
  Hux32fc *image = pState->image.in(pState), *spectrum = pState->spectrum.in(pState);
  for (int c = 0; c < L::channels; ++c) {
    std::fill_n(image, numbers, Hux32fc{0, 0});
    deconv::widen(
        {pState->kernel.in(pState) + c * k * k, k}, roi,
        [&](Index x, Index y) { return Hux32f(src.row(y)[x * L::channels + c]); },
        [&](Index row, Index column, Hux32f value) { image[row * n + column].re = value; }, pState->sums.in(pState));
    transformForward(pState);
    const Hux32fc* inverse = pState->inverse.in(pState) + c * numbers;
    for (Index y = 0; y < n; ++y) huxsMul_32fc_I(inverse + y * n, spectrum + y * n, int(n));
    huxiFFTInv_CToC_32fc_C1R(spectrum, bytesOf(*pState), image, bytesOf(*pState), pState->context,
                             pState->buffer.in(pState));
    // The kernel lay at the origin, so the image does now.
    deconv::store<L>(dst, c, roi, pState->threshold, [&](Index x, Index y) { return image[y * n + x].re; });
  }
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(_, l) HUX_EXPORT_DECONV(DeconvFFT, l, int, FFTorder, (), ())
HUX_STAMP(EXPORT, (_), (C1, C3))
