/* Types, records, enumerations and status codes shared by all of hux. Plain C99. */
#ifndef HUXDEFS_H
#define HUXDEFS_H

#include <stdint.h>

#ifdef __cplusplus
#define HUX_BEGIN_C extern "C" {
#define HUX_END_C }
#else
#define HUX_BEGIN_C
#define HUX_END_C
#endif

/* What libhuxi and libhuxcore export. On Windows a program imports it, and a library exports its own where it is built.
 */
#ifndef _WIN32
#define HUX_EXPORT __attribute__((visibility("default")))
#define HUX_IMPORT HUX_EXPORT
#else
#define HUX_EXPORT __declspec(dllexport)
#define HUX_IMPORT __declspec(dllimport)
#endif
#ifndef HUX_API
#ifdef HUX_BUILDS_IMAGES
#define HUX_API HUX_EXPORT
#else
#define HUX_API HUX_IMPORT
#endif
#endif
#ifndef HUX_CORE_API
#ifdef HUX_BUILDS_CORE
#define HUX_CORE_API HUX_EXPORT
#else
#define HUX_CORE_API HUX_IMPORT
#endif
#endif

HUX_BEGIN_C

/* Element types. The token in a function's name (8u, 16sc, ...) names the element type of its images. */
typedef uint8_t Hux8u;
typedef int8_t Hux8s;
typedef uint16_t Hux16u;
typedef int16_t Hux16s;
typedef uint32_t Hux32u;
typedef int32_t Hux32s;
typedef int64_t Hux64s;
typedef float Hux32f;
typedef double Hux64f;

/* Complex elements, real part first. */
typedef struct {
  Hux16s re, im;
} Hux16sc;
typedef struct {
  Hux32s re, im;
} Hux32sc;
typedef struct {
  Hux32f re, im;
} Hux32fc;
typedef struct {
  Hux64f re, im;
} Hux64fc;

/* Sizes, points and rectangles count pixels, never elements or bytes. They are passed by value. */
typedef struct {
  Hux32s width;  /* columns */
  Hux32s height; /* rows */
} HuxiSize;
typedef struct {
  Hux32s x, y;
} HuxiPoint;
typedef struct {
  Hux32s x, y, width, height;
} HuxiRect;

/* The library's identity, as returned by huxiGetLibVersion. Natural C layout of the platform. */
typedef struct {
  Hux32s versionMajor;
  Hux32s versionMinor;
  Hux32s buildMajor;
  Hux32s buildNumber;
  char targetCode[4];
  const char* libraryName;
  const char* versionText;
  const char* buildDateText;
} HuxLibraryVersion;

/* The result of nearly every function: 0 is success, a negative value an error (the call has written nothing unless its
 * family says otherwise), a positive value a warning (the whole region was processed, or, where its text below says so,
 * there was nothing to do). A signed 32-bit integer. */
typedef Hux32s HuxStatus;
enum {
  huxStsOk = 0, /* success */

  /* Errors. */
  huxStsBadArg = -5,               /* a numeric argument is out of its domain */
  huxStsBadSize = -6,              /* a width, height, order or length is below its minimum */
  huxStsBadRange = -7,             /* lower bound above upper bound */
  huxStsNullPtr = -8,              /* a required pointer is null */
  huxStsNoMem = -9,                /* allocation of a work buffer or context failed */
  huxStsDivByZero = -10,           /* a constant divisor is zero */
  huxStsBadBitSize = -11,          /* palette bit size outside 1..8 (8u source) or 1..16 (16u source) */
  huxStsBadScaleRange = -13,       /* vMax not above vMin */
  huxStsBadStep = -14,             /* a row step is below 1, or below the minimum of the family */
  huxStsBadOrder = -15,            /* transform order outside 0..30 */
  huxStsBadFlag = -16,             /* transform normalisation flag unknown */
  huxStsBadContext = -17,          /* a context record does not belong to this function */
  huxStsBadThreshold = -18,        /* lower threshold above upper threshold */
  huxStsMomentTooSmall = -20,      /* the normalising moment is zero or too small to divide by */
  huxStsBadAxis = -21,             /* mirror axis unknown */
  huxStsBadInterpolation = -22,    /* interpolation mode unknown */
  huxStsBadResizeFactor = -23,     /* a resize factor is not positive */
  huxStsBadMaskSize = -33,         /* mask size, or HuxiMaskSize value, not allowed */
  huxStsBadAnchor = -34,           /* anchor outside the mask */
  huxStsBadEps = -36,              /* eps negative or NaN */
  huxStsStepBelowWidth = -37,      /* a step is smaller than one row of the region */
  huxStsBadMomentIndex = -47,      /* channel or order index outside the moment state */
  huxStsBadAlphaType = -50,        /* alpha composition type outside 0..11 */
  huxStsBadDivisor = -51,          /* integer filter divisor is zero */
  huxStsBadChannelCount = -53,     /* channel count not 1, 3 or 4 */
  huxStsBadQuad = -56,             /* coefficients singular, or giving a degenerate quadrangle */
  huxStsBadRect = -57,             /* rectangle has no extent */
  huxStsBadCoeffs = -58,           /* a quadrangle given by the caller is degenerate */
  huxStsZeroMask = -59,            /* the structuring element is all zero */
  huxStsBadChannelOrder = -60,     /* a channel index outside 0..2 */
  huxStsBadLutLevels = -106,       /* fewer than 2 look-up levels */
  huxStsBadHistLevels = -107,      /* fewer than 2 histogram levels */
  huxStsStepNotMultipleOf4 = -108, /* step not a multiple of 4 */
  huxStsBadNoise = -125,           /* noise argument outside 0 up to but not including 1 */
  huxStsResizeTooSmall = -201,     /* the destination would be less than one pixel */
  huxStsInternal = -9999,          /* a comparison mode that the function does not handle */

  /* Warnings. */
  huxStsEmptyDestWarn = 1,      /* the destination region comes out empty, nothing is written */
  huxStsSqrtNegWarn = 3,        /* the square root of a negative value was met */
  huxStsDivByZeroWarn = 6,      /* a zero denominator was met */
  huxStsLogZeroWarn = 7,        /* the logarithm of zero was met */
  huxStsLogNegWarn = 8,         /* the logarithm of a negative value was met */
  huxStsQuadNotAffineWarn = 28, /* the quadrangle is not a parallelogram; three of its corners are fitted */
  huxStsNoOverlapWarn = 29,     /* source region and image do not intersect; nothing was done */
  huxStsQuadOutsideWarn = 30    /* the transformed quadrangle misses the destination region; nothing was done */
};

/* The enumerations below are plain signed 32-bit integers, so that any value may be passed and is judged by the callee.
 */

/* Comparison of a with b. */
typedef Hux32s HuxCmpOp;
enum { huxCmpLess = 0, huxCmpLessEq = 1, huxCmpEq = 2, huxCmpGreaterEq = 3, huxCmpGreater = 4 };

/* Float to integer: towards zero (every value other than huxRndNear behaves so), or to nearest with ties to even. */
typedef Hux32s HuxRoundMode;
enum { huxRndZero = 0, huxRndNear = 1 };

/* Mask of a fixed filter; the decimal digits are width, then height. */
typedef Hux32s HuxiMaskSize;
enum {
  huxMskSize1x3 = 13,
  huxMskSize1x5 = 15,
  huxMskSize3x1 = 31,
  huxMskSize3x3 = 33,
  huxMskSize5x1 = 51,
  huxMskSize5x5 = 55
};

/* Mirror: reverse the order of rows, of columns, or of both. ImageRamp: grow along a row, down a column, or both. */
typedef Hux32s HuxiAxis;
enum { huxAxsHorizontal = 0, huxAxsVertical = 1, huxAxsBoth = 2 };

/* Composition of image A (first source) with image B; the Premul rules take colours already multiplied by alpha. */
typedef Hux32s HuxiAlphaType;
enum {
  huxAlphaOver = 0,
  huxAlphaIn = 1,
  huxAlphaOut = 2,
  huxAlphaATop = 3,
  huxAlphaXor = 4,
  huxAlphaPlus = 5,
  huxAlphaOverPremul = 6,
  huxAlphaInPremul = 7,
  huxAlphaOutPremul = 8,
  huxAlphaATopPremul = 9,
  huxAlphaXorPremul = 10,
  huxAlphaPlusPremul = 11
};

/* Interpolation of the geometric functions. huxiInterSmoothEdge is a flag added to one of the modes. */
typedef Hux32s HuxiInterpolation;
enum {
  huxiInterNearest = 1,
  huxiInterLinear = 2,
  huxiInterCubic = 4,
  huxiInterSuper = 8,
  huxiInterLanczos = 16,
  huxiInterSmoothEdge = -2147483647 - 1 /* bit 31 */
};

/* Normalisation of a transform pair: forward by 1/N, inverse by 1/N, both by 1/sqrt(N), or none. */
enum { huxFftScaleFwd = 1, huxFftScaleInv = 2, huxFftScaleRoot = 4, huxFftScaleNone = 8 };

/* A wish for accuracy over speed. Most functions that take one have a single path and ignore it. */
typedef Hux32s HuxAccuracyHint;
enum { huxHintNone = 0, huxHintAccurate = 2, huxAlgHintAccurate = huxHintAccurate };

HUX_END_C

#endif
