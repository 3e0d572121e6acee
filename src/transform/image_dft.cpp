// The transform of images of any size.
#include "core/stamp.h"
#include "huxi_transform.h"
#include "transform/image.h"

struct HuxiDFTRecord : hux::fft::ImageRecord<hux::fft::ByLength, 27, 28, 30> {};

namespace hux {
namespace {

HuxStatus initAlloc(HuxiDFTRecord** ppCtx, Hux32s tag, HuxiSize roi, Hux32s flag, HuxAccuracyHint hint) {
  if (HuxStatus s = check(pointers(ppCtx), size(roi))) return s;
  return fft::makeImageRecord(ppCtx, tag, roi.width, roi.height, roi, flag, hint);
}

}  // namespace
}  // namespace hux

#define EXPORT(t, kind)                                                                                          \
  HuxStatus huxiDFTInitAlloc_##t(HuxiDFTRecord** ppCtx, int width, int height, int flag, HuxAccuracyHint hint) { \
    return hux::initAlloc(ppCtx, HuxiDFTRecord::kind, {width, height}, flag, hint);                              \
  }
EXPORT(C_32fc, kComplex)
EXPORT(R_32f, kReal)
EXPORT(R_32s, kInteger)
HUX_IMAGE_TRANSFORMS(DFT)
