// The tour's steps through Fourier transforms, packed spectra and wavelets.
#include <cmath>
#include <vector>

#include "tour.h"

namespace tour {
namespace {

using Plane = Image<Hux32f, 1>;
using Planes = Image<Hux32f, 3>;

// The Fourier transform of real pictures of one size, in Pack order, and its inverse. The context is made once, the
// work buffer belongs to one call at a time.
class Fourier {
 public:
  explicit Fourier(HuxiSize size) {
    HUX_DO(huxiDFTInitAlloc_R_32f(&context_, size.width, size.height, huxFftScaleInv, huxHintNone));
    int bytes;
    HUX_DO(huxiDFTGetBufSize_R_32f(context_, &bytes));
    buffer_.resize(std::size_t(bytes));
  }
  ~Fourier() { huxiDFTFree_R_32f(context_); }
  Fourier(const Fourier&) = delete;
  Fourier& operator=(const Fourier&) = delete;

  void forward(Plane& p) { HUX_DO(huxiDFTFwd_RToPack_32f_C1IR(p.at(0, 0), p.step(), context_, buffer_.data())); }
  void inverse(Plane& p) { HUX_DO(huxiDFTInv_PackToR_32f_C1IR(p.at(0, 0), p.step(), context_, buffer_.data())); }
  void forward(Planes& p) { HUX_DO(huxiDFTFwd_RToPack_32f_C3IR(p.at(0, 0), p.step(), context_, buffer_.data())); }
  void inverse(Planes& p) { HUX_DO(huxiDFTInv_PackToR_32f_C3IR(p.at(0, 0), p.step(), context_, buffer_.data())); }

 private:
  HuxiDFTRecord* context_ = nullptr;
  std::vector<Hux8u> buffer_;
};

// Shows a plane in a quarter: `low` is black, `high` is white.
void show(const Plane& plane, Colour& out, int i, Hux32f low, Hux32f high) {
  Gray gray(kFace);
  HUX_DO(huxiScale_32f8u_C1R(plane.at(0, 0), plane.step(), gray.at(0, 0), gray.step(), kFace, low, high));
  tour::show(gray, out, i);
}

// The green channel of a region, in floats.
Plane green(const Hux8u* pixels, int step, HuxiSize size) {
  Gray gray(size);
  Plane plane(size);
  HUX_DO(huxiCopy_8u_C3C1R(pixels + 1, step, gray.at(0, 0), gray.step(), size));
  HUX_DO(huxiConvert_8u32f_C1R(gray.at(0, 0), gray.step(), plane.at(0, 0), plane.step(), size));
  return plane;
}

// How far a frequency, or a place, is from 0 on a circle of n.
int around(int i, int n) { return i <= n / 2 ? i : i - n; }

// A spectrum begins with the frequency 0: quarters change places, so that it comes to the middle.
Plane centred(const Plane& spectrum) {
  const HuxiSize half = {kFace.width / 2, kFace.height / 2};
  Plane out(kFace);
  for (int i = 0; i < 4; ++i) {
    const int x = i % 2 * half.width, y = i / 2 * half.height;
    HUX_DO(huxiCopy_32f_C1R(spectrum.at(x, y), spectrum.step(), out.at(half.width - x, half.height - y), out.step(),
                            half));
  }
  return out;
}

// Magnitudes (of which the logarithm is shown) and phases; and the photograph of its low frequencies alone.
Colour spectrum(const Photos& in) {
  Plane picture = green(face(in), in.raccoon.step(), kFace), full(kFace), low(kFace);
  Colour out(kWhole);
  show(picture, out, 0, 0, 255);
  Fourier fourier(kFace);
  fourier.forward(picture);

  HUX_DO(huxiMagnitudePack_32f_C1R(picture.at(0, 0), picture.step(), full.at(0, 0), full.step(), kFace));
  HUX_DO(huxiAddC_32f_C1IR(1, full.at(0, 0), full.step(), kFace));
  HUX_DO(huxiLn_32f_C1IR(full.at(0, 0), full.step(), kFace));
  show(centred(full), out, 1, 5, 13);
  HUX_DO(huxiPhasePack_32f_C1R(picture.at(0, 0), picture.step(), full.at(0, 0), full.step(), kFace));
  show(centred(full), out, 2, -3.1416f, 3.1416f);

  // What each frequency is multiplied by, as a full spectrum, and packed as the photograph's.
  Image<Hux32fc, 1> gain(kFace);
  for (int v = 0; v < kFace.height; ++v)
    for (int u = 0; u < kFace.width; ++u) {
      const int x = around(u, kFace.width), y = around(v, kFace.height);
      *gain.at(u, v) = {x * x + y * y <= 24 * 24 ? 1.f : 0.f, 0.f};
    }
  HUX_DO(huxiCplxExtendToPack_32fc32f_C1R(gain.at(0, 0), gain.step(), kFace, low.at(0, 0), low.step()));
  HUX_DO(huxiMulPack_32f_C1IR(low.at(0, 0), low.step(), picture.at(0, 0), picture.step(), kFace));
  fourier.inverse(picture);
  show(picture, out, 3, 0, 255);
  return out;
}

// Products of spectra are circular convolutions: a bell around the origin smooths, as wide as one likes at the same
// cost. What it takes away, added once more, sharpens.
Colour sharpenedSpectrum(const Photos& in) {
  Planes picture(kWhole), bell(kWhole);
  HUX_DO(huxiConvert_8u32f_C3R(in.raccoon.at(0, 0), in.raccoon.step(), picture.at(0, 0), picture.step(), kWhole));
  const double sigma = 2.5, amount = 1.5;
  const auto weight = [&](int i, int n) {
    const double x = around(i, n) / sigma;
    return std::exp(-x * x / 2) / (sigma * std::sqrt(2 * 3.14159265358979));
  };
  for (int y = 0; y < kWhole.height; ++y)
    for (int x = 0; x < kWhole.width; ++x) {
      const double here = x == 0 && y == 0;
      const double value = (1 + amount) * here - amount * weight(x, kWhole.width) * weight(y, kWhole.height);
      for (int c = 0; c < 3; ++c) bell.at(x, y)[c] = Hux32f(value);
    }
  Fourier fourier(kWhole);
  fourier.forward(picture);
  fourier.forward(bell);
  HUX_DO(huxiMulPack_32f_C3IR(bell.at(0, 0), bell.step(), picture.at(0, 0), picture.step(), kWhole));
  fourier.inverse(picture);
  Colour out(kWhole);
  HUX_DO(huxiConvert_32f8u_C3R(picture.at(0, 0), picture.step(), out.at(0, 0), out.step(), kWhole, huxRndNear));
  // To the left, the photograph as it is.
  HUX_DO(huxiCopy_8u_C3R(in.raccoon.at(0, 0), in.raccoon.step(), out.at(0, 0), out.step(),
                         {kWhole.width / 2, kWhole.height}));
  return out;
}

// One level of the wavelet of five and three taps. The region is twice the size of its sub-bands; the two rows and
// columns ahead of it, and the one behind, are the nearest pixels.
struct Level {
  explicit Level(const Plane& whole)
      : size{whole.size().width / 2, whole.size().height / 2}, approx(size), x(size), y(size), xy(size) {
    const HuxiSize larger = {whole.size().width + 3, whole.size().height + 3};
    Image<Hux32s, 1> framed(larger);  // moved as bits
    HUX_DO(huxiCopyReplicateBorder_32s_C1R(reinterpret_cast<const Hux32s*>(whole.at(0, 0)), whole.step(), whole.size(),
                                           framed.at(0, 0), framed.step(), larger, 2, 2));
    const Hux32f low[5] = {-.125f, .25f, .75f, .25f, -.125f}, high[3] = {-.5f, 1, -.5f};
    HuxiWTRecord* state;
    HUX_DO(huxiWTFwdInitAlloc_32f_C1R(&state, low, 5, 2, high, 3, 2));
    int bytes;
    HUX_DO(huxiWTFwdGetBufSize_C1R(state, &bytes));
    std::vector<Hux8u> buffer(std::size_t(bytes), 0);
    HUX_DO(huxiWTFwd_32f_C1R(reinterpret_cast<const Hux32f*>(framed.at(2, 2)), framed.step(), approx.at(0, 0),
                             approx.step(), x.at(0, 0), x.step(), y.at(0, 0), y.step(), xy.at(0, 0), xy.step(), size,
                             state, buffer.data()));
    HUX_DO(huxiWTFwdFree_32f_C1R(state));
  }
  HuxiSize size;
  Plane approx, x, y, xy;
};

// Each level leaves a picture of half the size, and what it takes to have the whole again, of which magnitudes are
// shown.
Colour wavelets(const Photos& in) {
  Plane picture = green(in.raccoon.at(0, 0), in.raccoon.step(), kWhole);
  Gray gray(kWhole);
  const auto lay = [&](const Plane& band, int x, int y, Hux32f white) {
    HUX_DO(huxiScale_32f8u_C1R(band.at(0, 0), band.step(), gray.at(x, y), gray.step(), band.size(), 0, white));
  };
  for (int level = 0; level < 3; ++level) {
    Level bands(picture);
    const auto [w, h] = bands.size;
    for (Plane* band : {&bands.x, &bands.y, &bands.xy})
      HUX_DO(huxiAbs_32f_C1IR(band->at(0, 0), band->step(), bands.size));
    const Hux32f white = Hux32f(24 << level);
    lay(bands.approx, 0, 0, 255);
    lay(bands.y, w, 0, white), lay(bands.x, 0, h, white), lay(bands.xy, w, h, white);
    picture = std::move(bands.approx);
  }
  Colour out(kWhole);
  HUX_DO(huxiDup_8u_C1C3R(gray.at(0, 0), gray.step(), out.at(0, 0), out.step(), kWhole));
  return out;
}

constexpr Step kSteps[] = {
    {"spectrum", "as it is, magnitudes, phases, low frequencies", spectrum},
    {"sharpened-spectrum", "as it is; by way of its spectrum", sharpenedSpectrum},
    {"wavelets", "three levels of sub-bands", wavelets},
};

}  // namespace

std::span<const Step> transformSteps() { return kSteps; }

}  // namespace tour
