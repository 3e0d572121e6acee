// The power-of-two transform of images.
#include "core/stamp.h"
#include "huxi_transform.h"
#include "transform/image.h"

struct HuxiFFTRecord : hux::fft::ImageRecord<hux::fft::ByPower, 25, 26, 29> {};

namespace hux {
namespace {

HuxStatus initAlloc(HuxiFFTRecord** ppCtx, Hux32s tag, int orderX, int orderY, Hux32s flag, HuxAccuracyHint hint) {
  const auto inRange = [](int order) { return order >= 0 && order <= fft::kMostOrder; };
  if (HuxStatus s = check(pointers(ppCtx), failUnless(inRange(orderX) && inRange(orderY), huxStsBadOrder))) return s;
  return fft::makeImageRecord(ppCtx, tag, orderX, orderY, {1 << orderX, 1 << orderY}, flag, hint);
}

}  // namespace
}  // namespace hux

#define EXPORT(t, kind)                                                                                           \
  HuxStatus huxiFFTInitAlloc_##t(HuxiFFTRecord** ppCtx, int orderX, int orderY, int flag, HuxAccuracyHint hint) { \
    return hux::initAlloc(ppCtx, HuxiFFTRecord::kind, orderX, orderY, flag, hint);                                \
  }
EXPORT(C_32fc, kComplex)
EXPORT(R_32f, kReal)
EXPORT(R_32s, kInteger)
HUX_IMAGE_TRANSFORMS(FFT)
