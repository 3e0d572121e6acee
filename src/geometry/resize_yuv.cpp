// Resize of packed 4:2:2: two pixels share four bytes, Y0 U Y1 V, so that a row holds twice as many samples of Y as of
// U and V, two and four bytes apart.
#include "geometry/modes.h"
#include "geometry/resize_super.h"
#include "huxi_geometry.h"

namespace hux {
namespace {

HuxStatus even(int a, int b, int c) { return failUnless(((a | b | c) & 1) == 0, huxStsBadSize); }

HuxiInterpolation yuvModeFor(HuxiSize image, HuxiInterpolation mode) {
  if (mode == huxiInterCubic && (image.width < 8 || image.height < 4)) mode = huxiInterLinear;
  if (mode == huxiInterLinear && (image.width < 4 || image.height < 2)) mode = huxiInterNearest;
  return mode;
}

// Source, destination and positions of a call. Luma and chroma have axes of their own, in samples. The region begins
// four bytes into a row for each unit of its x, which is sample 2 x of luma and x of chroma: twice as far as its pixels
// do. On the axes, where it begins at x and at x / 2, positions are limited as if it began there. Samples beyond the
// last pair of a row stand for it.
struct Packed {
  const std::byte* src;
  Index srcStep, srcX, srcWidth;
  std::byte* dst;
  Index dstStep, pairs;
  Axis luma, chroma, rows;

  Index lumaByte(Index at) const { return 2 * std::clamp(at + srcX, Index(0), srcWidth - 1); }
  Index chromaByte(Index at) const { return 4 * std::clamp(at + srcX / 2, Index(0), srcWidth / 2 - 1); }

  // Calls strip(pairs, the walks at the first of them, where they are written), left to right.
  template <class Strip>
  void forStrips(Strip strip) const {
    Walk y(luma), uv(chroma);
    for (Index done = 0; done < pairs; done += kStrip / 4)
      strip(std::min(kStrip / 4, pairs - done), y, uv, dst + 4 * done);
  }
};

// Chroma goes at the pace of luma: pair k comes from the source pair whose number is that of column k's sample.
void ownResizeYUY2nn(const Packed& p) {
  p.forStrips([&](Index n, Walk& luma, Walk& chroma, std::byte* dst) {
    Index from[kStrip];
    for (Index k = 0; k < n; ++k) {
      const Index y0 = p.lumaByte(luma.nextNearest()), y1 = p.lumaByte(luma.nextNearest());
      const Index uv = p.chromaByte(chroma.nextNearest());
      from[4 * k] = y0, from[4 * k + 1] = uv + 1, from[4 * k + 2] = y1, from[4 * k + 3] = uv + 3;
    }
    const Index runs = 4 * n / kLaneBytes * kWindows;
    Windows windows;
    windows.build<1, 1, 4>(runs, 2 * p.srcWidth, 0, [&](Index byte) { return from[byte]; });
    Walk rows(p.rows);
    for (Index y = 0; y < p.rows.count; ++y) {
      const std::byte* row = p.src + rows.nextNearest() * p.srcStep;
      std::byte* to = dst + y * p.dstStep;
      for (Index i = windows.copy(row, to); i < 4 * n; ++i) to[i] = row[from[i]];
    }
  });
}

void ownResizeYUY2linear(const Packed& p) {
  p.forStrips([&](Index n, Walk& luma, Walk& chroma, std::byte* dst) {
    PairColumns<Hux8u> columns;
    for (Index k = 0; k < n; ++k) {
      const Tap y0 = Linear::tap(p.luma, luma.next()), y1 = Linear::tap(p.luma, luma.next());
      const Tap uv = Linear::tap(p.chroma, chroma.next());
      const auto addLuma = [&](Tap t) { columns.add(p.lumaByte(t.first), p.lumaByte(t.first + 1), q14Of(t.fraction)); };
      const auto addChroma = [&](Index byte) {
        columns.add(p.chromaByte(uv.first) + byte, p.chromaByte(uv.first + 1) + byte, q14Of(uv.fraction));
      };
      addLuma(y0), addChroma(1), addLuma(y1), addChroma(3);
    }
    columns.finish(2 * p.srcWidth);
    LineCache<2, Hux16s> cache;
    Walk rows(p.rows);
    for (Index y = 0; y < p.rows.count; ++y) {
      const Tap tap = Linear::tap(p.rows, rows.next());
      const auto lines = cache.rows(rowsOf<Linear>(p.rows, tap),
                                    [&](Index row, Hux16s* line) { columns.along(p.src + row * p.srcStep, line); });
      acrossPairs<4>(lines, q14Of(tap.fraction), reinterpret_cast<Element<Hux8u>*>(dst + y * p.dstStep), 4 * n, true);
    }
  });
}

void ownResizeYUY2cubic(const Packed& p) {
  p.forStrips([&](Index n, Walk& luma, Walk& chroma, std::byte* dst) {
    Index at[4][kStrip];
    alignas(64) Hux32f weights[3][kStrip] = {};
    Index e = 0;
    const auto add = [&](Tap tap, auto byteOf) {
      Hux32f w[3];
      Cubic::weigh(tap.fraction, w);
      for (int k = 0; k < 3; ++k) weights[k][e] = w[k];
      for (int k = 0; k < 4; ++k) at[k][e] = byteOf(tap.first + k);
      ++e;
    };
    for (Index k = 0; k < n; ++k) {
      const auto lumaByte = [&](Index i) { return p.lumaByte(i); };
      const Tap y0 = Cubic::tap(p.luma, luma.next()), y1 = Cubic::tap(p.luma, luma.next());
      const Tap uv = Cubic::tap(p.chroma, chroma.next());
      add(y0, lumaByte), add(uv, [&](Index i) { return p.chromaByte(i) + 1; });
      add(y1, lumaByte), add(uv, [&](Index i) { return p.chromaByte(i) + 3; });
    }
    for (; e < padded(4 * n); ++e)
      for (auto& tap : at) tap[e] = 0;
    LineCache<4, Hux32f> cache;
    Walk rows(p.rows);
    for (Index y = 0; y < p.rows.count; ++y) {
      const Tap tap = Cubic::tap(p.rows, rows.next());
      const auto lines = cache.rows(rowsOf<Cubic>(p.rows, tap), [&](Index row, Hux32f* line) {
        const auto* bytes = reinterpret_cast<const Element<Hux8u>*>(p.src + row * p.srcStep);
        for (Index i = 0; i < padded(4 * n); i += lanesIn<Floats>) {
          Floats samples[4], w[3];
          for (int k = 0; k < 4; ++k) samples[k] = lanesOf<Floats>([&](int j) { return Hux32f(bytes[at[k][i + j]]); });
          for (int k = 0; k < 3; ++k) w[k] = loadLanes<Floats>(weights[k] + i);
          storeLanes(line + i, Cubic::along(samples, w));
        }
      });
      Hux32f w[3];
      Cubic::weigh(tap.fraction, w);
      acrossFloats<4, Cubic>(lines, w, reinterpret_cast<Element<Hux8u>*>(dst + y * p.dstStep), 4 * n);
    }
  });
}

// Y, U and V by themselves, as planes of samples with other bytes between them.
HuxStatus ownviDecimateYUY2super(const Packed& p, Hux64f xFactor, Hux64f yFactor) {
  const auto plane = [&](int stride, Index byte, Index samples, Index first, Index count) {
    return ResizePlane{{ElementType::u8, 1, stride, 1},
                       p.src + byte,
                       p.srcStep,
                       p.dst + byte,
                       p.dstStep,
                       {samples, count, false, Hux64f(std::min(first, samples - 1)), 0, xFactor},
                       {p.rows.image, p.rows.count, false, p.rows.origin, 0, yFactor}};
  };
  const Index chroma = p.srcWidth / 2;
  const ResizePlane planes[] = {plane(2, 0, p.srcWidth, 2 * p.srcX, 2 * p.pairs), plane(4, 1, chroma, p.srcX, p.pairs),
                                plane(4, 3, chroma, p.srcX, p.pairs)};
  return ownviDecimateSuper(planes);
}

HuxStatus ownviResizeYUY2(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst, int dstStep,
                          HuxiSize dstSize, Hux64f xFactor, Hux64f yFactor, HuxiInterpolation interpolation) {
  const bool super = interpolation == huxiInterSuper;
  if (HuxStatus s = check(
          pointers(pSrc, pDst), size(srcSize), rectangle(srcRoi), overlap(srcSize, srcRoi), size(dstSize),
          even(srcSize.width, srcRoi.width, srcRoi.x), failUnless(dstSize.width >= 2, huxStsBadSize),
          positive(xFactor, yFactor),
          failUnless(super || (isMode(interpolation) && interpolation != huxiInterLanczos), huxStsBadInterpolation),
          failUnless(!super || (xFactor <= 1 && yFactor <= 1), huxStsBadResizeFactor)))
    return s;
  const HuxiRect roi = commonPart(srcSize, srcRoi);
  const Index width = countOf(roi.width, xFactor, dstSize.width, 2),
              height = countOf(roi.height, yFactor, dstSize.height);
  if (width < 2 || height < 1) return huxStsResizeTooSmall;

  const HuxiInterpolation mode = yuvModeFor(srcSize, interpolation);
  const auto axis = [mode](int image, int origin, int extent, Index count, Hux64f factor) {
    const Hux64f step = stepOf(extent, factor, mode);
    return Axis{image, count, false, Hux64f(origin), mode == huxiInterNearest ? step / 2 : 0, step};
  };
  Packed packed{reinterpret_cast<const std::byte*>(pSrc),
                srcStep,
                roi.x,
                srcSize.width,
                reinterpret_cast<std::byte*>(pDst),
                dstStep,
                width / 2,
                axis(srcSize.width, roi.x, roi.width, width, xFactor),
                axis(srcSize.width / 2, roi.x / 2, roi.width / 2, width / 2, xFactor),
                axis(srcSize.height, roi.y, roi.height, height, yFactor)};
  if (super) return ownviDecimateYUY2super(packed, xFactor, yFactor);
  if (mode == huxiInterCubic) return ownResizeYUY2cubic(packed), huxStsOk;
  if (mode == huxiInterLinear) return ownResizeYUY2linear(packed), huxStsOk;
  return ownResizeYUY2nn(packed), huxStsOk;
}

}  // namespace
}  // namespace hux

HuxStatus huxiResizeYUV422_8u_C2R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                  int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                  HuxiInterpolation interpolation) {
  return hux::ownviResizeYUY2(pSrc, srcSize, srcStep, srcRoi, pDst, dstStep, dstRoiSize, xFactor, yFactor,
                              interpolation);
}
