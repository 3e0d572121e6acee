// The tour's steps through neighbourhood filters and template matching.
#include <algorithm>
#include <stdexcept>
#include <vector>

#include "tour.h"

namespace tour {
namespace {

// Filters read the pixels around their region. Here these are the nearest ones, in a frame as wide as the largest mask
// of the tour asks for.
constexpr int kReach = 8;

class Framed {
 public:
  explicit Framed(const Gray& inner) : image_(larger(inner.size())) {
    HUX_DO(huxiCopyReplicateBorder_8u_C1R(inner.at(0, 0), inner.step(), inner.size(), image_.at(0, 0), image_.step(),
                                          image_.size(), kReach, kReach));
  }
  const Hux8u* pixels() const { return image_.at(kReach, kReach); }
  int step() const { return image_.step(); }

 private:
  static HuxiSize larger(HuxiSize s) { return {s.width + 2 * kReach, s.height + 2 * kReach}; }
  Gray image_;
};

// The face in gray: its green channel.
Gray grayFace(const Photos& in) {
  Gray gray(kFace);
  HUX_DO(huxiCopy_8u_C3C1R(face(in) + 1, in.raccoon.step(), gray.at(0, 0), gray.step(), kFace));
  return gray;
}

// Calls filter(source, step, destination, step) with the framed picture and a new one.
template <class Filter>
Gray filtered(const Gray& gray, Filter filter) {
  const Framed framed(gray);
  Gray out(gray.size());
  HUX_DO(filter(framed.pixels(), framed.step(), out.at(0, 0), out.step()));
  return out;
}

// Slopes along rows and along columns, how steep they are together, and where the picture bends.
Colour edges(const Photos& in) {
  const Framed framed(grayFace(in));
  Image<Hux16s, 1> vertical(kFace), horizontal(kFace);
  Gray steep(kFace);
  Colour out(kWhole);
  HUX_DO(huxiFilterScharrVert_8u16s_C1R(framed.pixels(), framed.step(), vertical.at(0, 0), vertical.step(), kFace));
  HUX_DO(
      huxiFilterScharrHoriz_8u16s_C1R(framed.pixels(), framed.step(), horizontal.at(0, 0), horizontal.step(), kFace));
  const auto lay = [&](Image<Hux16s, 1>& slopes, int i) {
    HUX_DO(huxiAbs_16s_C1IR(slopes.at(0, 0), slopes.step(), kFace));
    HUX_DO(huxiRShiftC_16s_C1IR(2, slopes.at(0, 0), slopes.step(), kFace));
    HUX_DO(huxiConvert_16s8u_C1R(slopes.at(0, 0), slopes.step(), steep.at(0, 0), steep.step(), kFace));
    show(steep, out, i);
  };
  lay(vertical, 0), lay(horizontal, 1);
  HUX_DO(huxiAdd_16s_C1IRSfs(vertical.at(0, 0), vertical.step(), horizontal.at(0, 0), horizontal.step(), kFace, 0));
  HUX_DO(huxiConvert_16s8u_C1R(horizontal.at(0, 0), horizontal.step(), steep.at(0, 0), steep.step(), kFace));
  show(steep, out, 2);
  HUX_DO(huxiFilterLaplace_8u_C1R(framed.pixels(), framed.step(), steep.at(0, 0), steep.step(), kFace, huxMskSize5x5));
  show(steep, out, 3);
  return out;
}

Colour sharpened(const Photos& in) {
  const Gray gray = grayFace(in);
  Colour out(kWhole);
  show(gray, out, 0);
  show(filtered(gray, [](auto... image) { return huxiFilterSharpen_8u_C1R(image..., kFace); }), out, 1);
  show(filtered(gray, [](auto... image) { return huxiFilterGauss_8u_C1R(image..., kFace, huxMskSize5x5); }), out, 2);
  // A kernel of one's own: light falls in from the upper left. The anchor is the tap over the pixel.
  const Hux32s relief[9] = {2, 1, 0, 1, 1, -1, 0, -1, -2};
  show(filtered(gray,
                [&](auto... image) {
                  return huxiFilter_8u_C1R(image..., kFace, relief, {3, 3}, {1, 1}, 1);
                }),
       out, 3);
  return out;
}

Colour denoised(const Photos& in) {
  Gray noisy = grayFace(in);
  Hux32u seed = 1903;
  HUX_DO(huxiAddRandGauss_Direct_8u_C1IR(noisy.at(0, 0), noisy.step(), kFace, 0, 18, &seed));
  Colour out(kWhole);
  show(noisy, out, 0);
  const HuxiSize mask = {5, 5};
  const HuxiPoint centre = {2, 2};
  show(filtered(noisy, [&](auto... image) { return huxiFilterBox_8u_C1R(image..., kFace, mask, centre); }), out, 1);
  show(filtered(noisy, [&](auto... image) { return huxiFilterMedian_8u_C1R(image..., kFace, mask, centre); }), out, 2);
  // The strength of the noise is not given, so that the filter measures it.
  int bytes;
  HUX_DO(huxiFilterWienerGetBufferSize(kFace, mask, 1, &bytes));
  std::vector<Hux8u> buffer(std::size_t(bytes), 0);
  Hux32f noise = 0;
  show(filtered(noisy,
                [&](auto... image) {
                  return huxiFilterWiener_8u_C1R(image..., kFace, mask, centre, &noise, buffer.data());
                }),
       out, 3);
  return out;
}

// Black and white, and what goes when small grains, or small gaps, are taken away.
Colour openedAndClosed(const Photos& in) {
  const Gray gray = grayFace(in);
  Gray marks(kFace);
  HUX_DO(huxiCompareC_8u_C1R(gray.at(0, 0), gray.step(), 110, marks.at(0, 0), marks.step(), kFace, huxCmpGreater));
  const HuxiSize size = {7, 7};
  const HuxiPoint centre = {3, 3};
  std::vector<Hux8u> disc;
  for (int y = -3; y <= 3; ++y)
    for (int x = -3; x <= 3; ++x) disc.push_back(x * x + y * y <= 10);
  const auto eroded = [&](const Gray& g) {
    return filtered(g, [&](auto... image) { return huxiErode_8u_C1R(image..., kFace, disc.data(), size, centre); });
  };
  const auto dilated = [&](const Gray& g) {
    return filtered(g, [&](auto... image) { return huxiDilate_8u_C1R(image..., kFace, disc.data(), size, centre); });
  };
  Colour out(kWhole);
  show(marks, out, 0);
  show(dilated(eroded(marks)), out, 1);
  show(eroded(dilated(marks)), out, 2);
  Gray outline = dilated(marks);
  const Gray inside = eroded(marks);
  HUX_DO(huxiSub_8u_C1IRSfs(inside.at(0, 0), inside.step(), outline.at(0, 0), outline.step(), kFace, 0));
  show(outline, out, 3);
  return out;
}

// Light spread over discs, as by a lens that is out of focus, and brought together again, from the bytes that a camera
// would give. Light from outside of a photograph cannot be brought back: more is restored than is shown.
Colour restored(const Photos& in) {
  using Plane = Image<Hux32f, 1>;
  constexpr int radius = 3, side = 2 * radius + 1, around = 32, reach = around + radius;
  constexpr HuxiSize disc = {side, side}, taken = {kFace.width + 2 * around, kFace.height + 2 * around},
                     scene = {taken.width + side - 1, taken.height + side - 1};
  std::vector<Hux32f> kernel;
  for (int y = -radius; y <= radius; ++y)
    for (int x = -radius; x <= radius; ++x) kernel.push_back(x * x + y * y <= radius * radius ? 1 : 0);
  const int kernelStep = side * int(sizeof(Hux32f));
  Hux64f sum;
  HUX_DO(huxiSum_32f_C1R(kernel.data(), kernelStep, disc, &sum, huxHintNone));
  HUX_DO(huxiDivC_32f_C1IR(Hux32f(sum), kernel.data(), kernelStep, disc));

  const auto gray = [](const Plane& p) {
    Gray g(p.size());
    HUX_DO(huxiConvert_32f8u_C1R(p.at(0, 0), p.step(), g.at(0, 0), g.step(), g.size(), huxRndNear));
    return g;
  };
  const auto plane = [](const Gray& g) {
    Plane p(g.size());
    HUX_DO(huxiConvert_8u32f_C1R(g.at(0, 0), g.step(), p.at(0, 0), p.step(), p.size()));
    return p;
  };
  Gray pixels(scene);
  HUX_DO(huxiCopy_8u_C3C1R(face(in) - reach * in.raccoon.step() - reach * 3 + 1, in.raccoon.step(), pixels.at(0, 0),
                           pixels.step(), scene));
  const Plane sharp = plane(pixels);
  Plane spread(taken), divided(taken), iterated(taken);
  HUX_DO(huxiConvValid_32f_C1R(sharp.at(0, 0), sharp.step(), scene, kernel.data(), kernelStep, disc, spread.at(0, 0),
                               spread.step()));
  const Plane blurred = plane(gray(spread));

  HuxiDeconvFFTState* byFFT;
  HUX_DO(huxiDeconvFFTInitAlloc_32f_C1R(&byFFT, kernel.data(), side, 10, 0.028f));
  HUX_DO(huxiDeconvFFT_32f_C1R(blurred.at(0, 0), blurred.step(), divided.at(0, 0), divided.step(), taken, byFFT));
  HUX_DO(huxiDeconvFFTFree_32f_C1R(byFFT));
  HuxiDeconvLRState* byLR;
  HUX_DO(huxiDeconvLRInitAlloc_32f_C1R(&byLR, kernel.data(), side, scene, 1e-4f));
  HUX_DO(huxiDeconvLR_32f_C1R(blurred.at(0, 0), blurred.step(), iterated.at(0, 0), iterated.step(), taken, 20, byLR));
  HUX_DO(huxiDeconvLRFree_32f_C1R(byLR));

  // Both must be much nearer to what was there.
  const auto distance = [&](const Plane& p) {
    Hux64f norm;
    HUX_DO(huxiNormDiff_L2_32f_C1R(p.at(around, around), p.step(), sharp.at(reach, reach), sharp.step(), kFace, &norm,
                                   huxHintNone));
    return norm;
  };
  if (std::max(distance(divided), distance(iterated)) > 0.8 * distance(blurred))
    throw std::runtime_error("a blur was not undone");

  Colour out(kWhole);
  const Plane* planes[] = {&blurred, &divided, &iterated, &sharp};
  for (int i = 0; i < 4; ++i) {
    const int from = i < 3 ? around : reach;
    const Gray g = gray(*planes[i]);
    HUX_DO(huxiDup_8u_C1C3R(g.at(from, from), g.step(), quarter(out, i), out.step(), kFace));
  }
  return out;
}

// Draws the outline of a region of a quarter.
void outline(Colour& picture, int i, HuxiPoint at, HuxiSize size) {
  constexpr Hux8u amber[] = {255, 190, 0};
  constexpr int width = 3;
  const auto fill = [&](int x, int y, HuxiSize area) {
    HUX_DO(huxiSet_8u_C3R(amber, quarter(picture, i) + y * picture.step() + x * 3, picture.step(), area));
  };
  const int right = at.x + size.width - width, bottom = at.y + size.height - width;
  fill(at.x, at.y, {size.width, width}), fill(at.x, bottom, {size.width, width});
  fill(at.x, at.y, {width, size.height}), fill(right, at.y, {width, size.height});
}

// An eye, cut out of the photograph, is sought in a copy that is darker, flatter and noisy: correlation without the
// means does not mind.
Colour found(const Photos& in) {
  constexpr HuxiPoint eye = {218, 156};
  constexpr HuxiSize patch = {64, 48}, places = {kFace.width - patch.width + 1, kFace.height - patch.height + 1};
  const Gray gray = grayFace(in);
  Gray seen(kFace);
  Hux32u seed = 5;
  HUX_DO(huxiMulC_8u_C1RSfs(gray.at(0, 0), gray.step(), 3, seen.at(0, 0), seen.step(), kFace, 3));
  HUX_DO(huxiAddRandGauss_Direct_8u_C1IR(seen.at(0, 0), seen.step(), kFace, 10, 12, &seed));

  Image<Hux32f, 1> scores(places);
  HUX_DO(huxiCrossCorrValid_NormLevel_8u32f_C1R(seen.at(0, 0), seen.step(), kFace, gray.at(eye.x, eye.y), gray.step(),
                                                patch, scores.at(0, 0), scores.step()));
  Hux32f best;
  HuxiPoint at;
  HUX_DO(huxiMaxIndx_32f_C1R(scores.at(0, 0), scores.step(), places, &best, &at.x, &at.y));
  if (at.x != eye.x || at.y != eye.y) throw std::runtime_error("the eye was found where it is not");

  Gray map(kFace), large(kFace);
  HUX_DO(huxiSet_8u_C1R(0, map.at(0, 0), map.step(), kFace));
  HUX_DO(huxiScale_32f8u_C1R(scores.at(0, 0), scores.step(), map.at(patch.width / 2, patch.height / 2), map.step(),
                             places, -1, 1));
  HUX_DO(huxiResize_8u_C1R(gray.at(0, 0), kFace, gray.step(), {eye.x, eye.y, patch.width, patch.height}, large.at(0, 0),
                           large.step(), kFace, 8, 8, huxiInterNearest));
  Colour out(kWhole);
  show(gray, out, 0), outline(out, 0, eye, patch);
  show(large, out, 1);
  show(map, out, 2);
  show(seen, out, 3), outline(out, 3, at, patch);
  return out;
}

constexpr Step kSteps[] = {
    {"edges", "slopes along rows, along columns, both; bends", edges},
    {"sharpened", "as it is; sharpened, smoothed, in relief", sharpened},
    {"denoised", "with noise; mean, median, Wiener filter", denoised},
    {"opened-and-closed", "above 110; opened, closed; outlines", openedAndClosed},
    {"restored", "out of focus; by the spectrum, by Lucy; in focus", restored},
    {"found", "an eye; enlarged; where it agrees; found in the dark", found},
};

}  // namespace

std::span<const Step> filterSteps() { return kSteps; }

}  // namespace tour
