// The names of an operation on two images, and on an image and a constant, out of place and in place.
#pragma once

#include "core/layout.h"

// `sfs` is Sfs or nothing, what follows it is the function to call. Constants come by value in C1, else as an array.
#define HUX_PARAMETER_
#define HUX_PARAMETER_Sfs , int scaleFactor
#define HUX_ARGUMENT_
#define HUX_ARGUMENT_Sfs , scaleFactor
#define HUX_EXPORT_ARITH_IMAGES(name, t, l, sfs, ...)                                                            \
  HuxStatus huxi##name##_##t##_##l##R##sfs(const Hux##t* pSrc1, int src1Step, const Hux##t* pSrc2, int src2Step, \
                                           Hux##t* pDst, int dstStep, HuxiSize roiSize HUX_PARAMETER_##sfs) {    \
    return __VA_ARGS__(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize HUX_ARGUMENT_##sfs);             \
  }                                                                                                              \
  HuxStatus huxi##name##_##t##_##l##IR##sfs(const Hux##t* pSrc, int srcStep, Hux##t* pSrcDst, int srcDstStep,    \
                                            HuxiSize roiSize HUX_PARAMETER_##sfs) {                              \
    return __VA_ARGS__(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize HUX_ARGUMENT_##sfs);     \
  }
#define HUX_EXPORT_ARITH_CONSTANT(name, t, l, sfs, ...)                                                               \
  HuxStatus huxi##name##_##t##_##l##R##sfs(const Hux##t* pSrc, int srcStep, hux::Constant<hux::l, Hux##t> constant,   \
                                           Hux##t* pDst, int dstStep, HuxiSize roiSize HUX_PARAMETER_##sfs) {         \
    return __VA_ARGS__(pSrc, srcStep, hux::pixelOf(constant), pDst, dstStep, roiSize HUX_ARGUMENT_##sfs);             \
  }                                                                                                                   \
  HuxStatus huxi##name##_##t##_##l##IR##sfs(hux::Constant<hux::l, Hux##t> constant, Hux##t* pSrcDst, int srcDstStep,  \
                                            HuxiSize roiSize HUX_PARAMETER_##sfs) {                                   \
    return __VA_ARGS__(pSrcDst, srcDstStep, hux::pixelOf(constant), pSrcDst, srcDstStep, roiSize HUX_ARGUMENT_##sfs); \
  }
