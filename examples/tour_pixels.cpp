// The tour's steps through pixel movement, arithmetic and measures.
#include <algorithm>
#include <cmath>

#include "tour.h"

namespace tour {
namespace {

Colour planes(const Photos& in) {
  Gray red(kFace), green(kFace), blue(kFace);
  Hux8u* const split[3] = {red.at(0, 0), green.at(0, 0), blue.at(0, 0)};
  HUX_DO(huxiCopy_8u_C3P3R(face(in), in.raccoon.step(), split, red.step(), kFace));
  Colour out(kWhole);
  for (int c = 0; c < 3; ++c) HUX_DO(huxiDup_8u_C1C3R(split[c], red.step(), quarter(out, c), out.step(), kFace));
  const Hux8u* const joined[3] = {split[1], split[2], split[0]};
  HUX_DO(huxiCopy_8u_P3C3R(joined, red.step(), quarter(out, 3), out.step(), kFace));
  return out;
}

Colour swapChannels(const Photos& in) {
  const int orders[4][3] = {{2, 1, 0}, {0, 2, 1}, {1, 0, 2}, {1, 1, 1}};
  Colour out(kWhole);
  for (int i = 0; i < 4; ++i)
    HUX_DO(huxiSwapChannels_8u_C3R(face(in), in.raccoon.step(), quarter(out, i), out.step(), kFace, orders[i]));
  return out;
}

Colour oneChannel(const Photos& in) {
  const int shift = 24;
  const HuxiSize moved = {kWhole.width - shift, kWhole.height};
  const Colour& src = in.raccoon;
  Colour out(kWhole);
  HUX_DO(huxiCopy_8u_C3R(src.at(0, 0), src.step(), out.at(0, 0), out.step(), kWhole));
  // The pointers address the channel in question of the region's first pixel.
  HUX_DO(huxiCopy_8u_C3CR(src.at(0, 0) + 0, src.step(), out.at(shift, 0) + 0, out.step(), moved));
  HUX_DO(huxiCopy_8u_C3CR(src.at(shift, 0) + 2, src.step(), out.at(0, 0) + 2, out.step(), moved));
  return out;
}

Colour grayToColour(const Photos& in) {
  const HuxiSize size = in.stairs.size(), band = {size.width / 4, size.height};
  Colour out(size);
  HUX_DO(huxiDup_8u_C1C3R(in.stairs.at(0, 0), in.stairs.step(), out.at(0, 0), out.step(), size));
  for (int c = 0; c < 3; ++c) HUX_DO(huxiSet_8u_C3CR(0, out.at((c + 1) * band.width, 0) + c, out.step(), band));
  return out;
}

Colour setRegions(const Photos&) {
  const int columns = 8, rows = 6, field = 128, inset = 32;
  Colour out(kWhole);
  for (int row = 0; row < rows; ++row)
    for (int column = 0; column < columns; ++column) {
      const Hux8u outer[3] = {Hux8u(30 + 28 * column), Hux8u(60 + 26 * row), Hux8u(190 - 20 * column)};
      const Hux8u inner[3] = {Hux8u(255 - outer[0]), Hux8u(255 - outer[1]), Hux8u(255 - outer[2])};
      HUX_DO(huxiSet_8u_C3R(outer, out.at(column * field, row * field), out.step(), {field, field}));
      HUX_DO(huxiSet_8u_C3R(inner, out.at(column * field + inset, row * field + inset), out.step(),
                            {field - 2 * inset, field - 2 * inset}));
    }
  return out;
}

// The green channel, which looks most like brightness.
Gray green(const Photos& in) {
  Gray plane(kWhole);
  HUX_DO(huxiCopy_8u_C3C1R(in.raccoon.at(0, 0) + 1, in.raccoon.step(), plane.at(0, 0), plane.step(), kWhole));
  return plane;
}

Colour shown(const Gray& plane) {
  Colour out(plane.size());
  HUX_DO(huxiDup_8u_C1C3R(plane.at(0, 0), plane.step(), out.at(0, 0), out.step(), plane.size()));
  return out;
}

// A mask that is set in a disc, made of one region for each of its rows.
Gray disc(HuxiSize size, HuxiPoint centre, int radius) {
  Gray mask(size);
  HUX_DO(huxiSet_8u_C1R(0, mask.at(0, 0), mask.step(), size));
  for (int y = -radius; y <= radius; ++y) {
    const int half = int(std::sqrt(double(radius * radius - y * y)));
    HUX_DO(huxiSet_8u_C1R(255, mask.at(centre.x - half, centre.y + y), mask.step(), {2 * half + 1, 1}));
  }
  return mask;
}

Colour maskedCopy(const Photos& in) {
  const Colour& src = in.raccoon;
  Colour out = shown(green(in));
  const HuxiPoint head = {690, 300};
  const Gray rim = disc(kWhole, head, 290), inside = disc(kWhole, head, 280);
  const Hux8u white[3] = {255, 255, 255};
  HUX_DO(huxiSet_8u_C3MR(white, out.at(0, 0), out.step(), kWhole, rim.at(0, 0), rim.step()));
  HUX_DO(huxiCopy_8u_C3MR(src.at(0, 0), src.step(), out.at(0, 0), out.step(), kWhole, inside.at(0, 0), inside.step()));
  return out;
}

// Lays the colours of a four-channel image into one quarter of `out` and its alpha, in gray, into another.
void showAlpha(const Image<Hux8u, 4>& image, Colour& out, int colours, int alpha) {
  Gray plane(image.size());
  HUX_DO(huxiCopy_8u_AC4C3R(image.at(0, 0), image.step(), quarter(out, colours), out.step(), image.size()));
  HUX_DO(huxiCopy_8u_C4C1R(image.at(0, 0) + 3, image.step(), plane.at(0, 0), plane.step(), image.size()));
  HUX_DO(huxiDup_8u_C1C3R(plane.at(0, 0), plane.step(), quarter(out, alpha), out.step(), image.size()));
}

Colour alphaKept(const Photos& in) {
  const Hux8u ground[4] = {30, 90, 120, 0};
  const int steps = 16;
  const HuxiSize band = {kFace.width / steps, kFace.height};
  Image<Hux8u, 4> canvas(kFace);
  HUX_DO(huxiSet_8u_C4R(ground, canvas.at(0, 0), canvas.step(), kFace));
  for (int i = 0; i < steps; ++i)
    HUX_DO(huxiSet_8u_C4CR(Hux8u(17 * i), canvas.at(i * band.width, 0) + 3, canvas.step(), band));
  Colour out(kWhole);
  showAlpha(canvas, out, 0, 1);
  HUX_DO(huxiCopy_8u_C3AC4R(face(in), in.raccoon.step(), canvas.at(0, 0), canvas.step(), kFace));
  showAlpha(canvas, out, 2, 3);
  return out;
}

constexpr HuxiPoint kFrame = {(kWhole.width - kFace.width) / 2, (kWhole.height - kFace.height) / 2};

Colour constantBorder(const Photos& in) {
  const Hux8u brick[3] = {170, 70, 50};
  Colour out(kWhole);
  HUX_DO(huxiCopyConstBorder_8u_C3R(face(in), in.raccoon.step(), kFace, out.at(0, 0), out.step(), kWhole, kFrame.y,
                                    kFrame.x, brick));
  return out;
}

Colour replicatedBorder(const Photos& in) {
  Colour out(kWhole);
  HUX_DO(huxiCopyReplicateBorder_8u_C3R(face(in), in.raccoon.step(), kFace, out.at(0, 0), out.step(), kWhole, kFrame.y,
                                        kFrame.x));
  return out;
}

Colour wrappedBorder(const Photos& in) {
  // Four channels of 8 bits are one element of 32: functions that only move pixels take either view.
  const Hux8u opaque[4] = {0, 0, 0, 255};
  Image<Hux8u, 4> four(kFace);
  HUX_DO(huxiSet_8u_C4R(opaque, four.at(0, 0), four.step(), kFace));
  HUX_DO(huxiCopy_8u_C3AC4R(face(in), in.raccoon.step(), four.at(0, 0), four.step(), kFace));

  // Every third pixel of every third row, by the copy of one channel of three.
  const HuxiSize size = {kFace.width / 3, kFace.height / 3};
  Image<Hux32s, 1> tile(size);
  HUX_DO(huxiCopy_32s_C3C1R(reinterpret_cast<const Hux32s*>(four.at(0, 0)), 3 * four.step(), tile.at(0, 0), tile.step(),
                            size));

  Image<Hux32s, 1> tiled(kWhole);
  HUX_DO(huxiCopyWrapBorder_32s_C1R(tile.at(0, 0), tile.step(), size, tiled.at(0, 0), tiled.step(), kWhole,
                                    (kWhole.height - size.height) / 2, (kWhole.width - size.width) / 2));
  Colour out(kWhole);
  HUX_DO(huxiCopy_8u_AC4C3R(reinterpret_cast<const Hux8u*>(tiled.at(0, 0)), tiled.step(), out.at(0, 0), out.step(),
                            kWhole));
  return out;
}

Colour mirror(const Photos& in) {
  const HuxiAxis axes[3] = {huxAxsVertical, huxAxsHorizontal, huxAxsBoth};
  Colour out(kWhole);
  HUX_DO(huxiCopy_8u_C3R(face(in), in.raccoon.step(), quarter(out, 0), out.step(), kFace));
  for (int i = 0; i < 3; ++i)
    HUX_DO(huxiMirror_8u_C3R(face(in), in.raccoon.step(), quarter(out, i + 1), out.step(), kFace, axes[i]));
  return out;
}

Colour transpose(const Photos& in) {
  Colour out({kWhole.height, kWhole.width});
  HUX_DO(huxiTranspose_8u_C3R(in.raccoon.at(0, 0), in.raccoon.step(), out.at(0, 0), out.step(), kWhole));
  return out;
}

// Contrast and brightness by integer arithmetic: a scale factor of 1 halves, one of -1 doubles, with saturation.
Colour contrast(const Photos& in) {
  const int step = in.raccoon.step();
  const Hux8u half[3] = {1, 1, 1}, base[3] = {50, 50, 50}, gain[3] = {3, 3, 3}, warm[3] = {60, 30, 0};
  Colour out(kWhole);
  HUX_DO(huxiMulC_8u_C3RSfs(face(in), step, half, quarter(out, 0), out.step(), kFace, 1));
  HUX_DO(huxiSubC_8u_C3RSfs(face(in), step, base, quarter(out, 1), out.step(), kFace, 0));
  HUX_DO(huxiMulC_8u_C3IRSfs(gain, quarter(out, 1), out.step(), kFace, 1));
  HUX_DO(huxiAddC_8u_C3RSfs(face(in), step, warm, quarter(out, 2), out.step(), kFace, 0));
  HUX_DO(huxiMul_8u_C3RSfs(face(in), step, face(in), step, quarter(out, 3), out.step(), kFace, 8));
  return out;
}

// A picture with alpha: colours from one place, alpha from another.
Image<Hux8u, 4> withAlpha(const Hux8u* colours, int step, const Gray& alpha, HuxiSize size) {
  Image<Hux8u, 4> image(size);
  HUX_DO(huxiCopy_8u_C3AC4R(colours, step, image.at(0, 0), image.step(), size));
  HUX_DO(huxiCopy_8u_C1C4R(alpha.at(0, 0), alpha.step(), image.at(0, 0) + 3, image.step(), size));
  return image;
}

Colour overlay(const Photos& in) {
  Colour stairs(kFace);
  HUX_DO(huxiDup_8u_C1C3R(in.stairs.at(0, 64), in.stairs.step(), stairs.at(0, 0), stairs.step(), kFace));
  const Gray round = disc(kFace, {250, 190}, 180);
  Gray fading(kFace);
  for (int x = 0; x < kFace.width; ++x)
    HUX_DO(huxiSet_8u_C1R(Hux8u(255 - x / 2), fading.at(x, 0), fading.step(), {1, kFace.height}));
  const auto front = withAlpha(face(in), in.raccoon.step(), round, kFace);
  const auto back = withAlpha(stairs.at(0, 0), stairs.step(), fading, kFace);
  const HuxiAlphaType rules[4] = {huxAlphaOver, huxAlphaATop, huxAlphaXor, huxAlphaPlus};
  Image<Hux8u, 4> composed(kFace);
  Colour out(kWhole);
  for (int i = 0; i < 4; ++i) {
    HUX_DO(huxiAlphaComp_8u_AC4R(front.at(0, 0), front.step(), back.at(0, 0), back.step(), composed.at(0, 0),
                                 composed.step(), kFace, rules[i]));
    HUX_DO(huxiCopy_8u_AC4C3R(composed.at(0, 0), composed.step(), quarter(out, i), out.step(), kFace));
  }
  return out;
}

Colour halftone(const Photos& in) {
  Gray plane = green(in);
  Gray bits({kWhole.width / 8, kWhole.height});
  HUX_DO(huxiConvert_8u1u_C1R(plane.at(0, 0), plane.step(), bits.at(0, 0), bits.step(), 0, kWhole, 128));
  HUX_DO(huxiConvert_1u8u_C1R(bits.at(0, 0), bits.step(), 0, plane.at(0, 0), plane.step(), kWhole));
  return shown(plane);
}

Colour binarised(const Photos& in) {
  const Gray plane = green(in);
  Gray mask(kWhole);
  HUX_DO(huxiCompareC_8u_C1R(plane.at(0, 0), plane.step(), 110, mask.at(0, 0), mask.step(), kWhole, huxCmpGreater));
  Colour out = shown(mask);
  // To the right, the photograph where the mask is set.
  const HuxiSize right = {kWhole.width / 2, kWhole.height};
  HUX_DO(huxiAnd_8u_C3IR(in.raccoon.at(right.width, 0), in.raccoon.step(), out.at(right.width, 0), out.step(), right));
  return out;
}

// How often each value occurs, channel by channel, drawn as bars four pixels wide: the colours add where they overlap.
Colour histogram(const Photos& in) {
  constexpr int bins = 256, width = kWhole.width / bins;
  Hux32s levels[3][bins + 1], counts[3][bins];
  Hux32s* const pLevels[3] = {levels[0], levels[1], levels[2]};
  Hux32s* const pCounts[3] = {counts[0], counts[1], counts[2]};
  const int nLevels[3] = {bins + 1, bins + 1, bins + 1}, lower[3] = {0, 0, 0}, upper[3] = {bins, bins, bins};
  HUX_DO(huxiHistogramEven_8u_C3R(face(in), in.raccoon.step(), kFace, pCounts, pLevels, nLevels, lower, upper));
  // The tallest bar, found as the largest pixel of an image of counts.
  Image<Hux32f, 1> heights({bins, 3});
  for (int c = 0; c < 3; ++c) HUX_DO(huxsConvert_32s32f(counts[c], heights.at(0, c), bins));
  Hux32f tallest;
  HUX_DO(huxiMax_32f_C1R(heights.at(0, 0), heights.step(), heights.size(), &tallest));
  const Hux8u paper[3] = {24, 24, 28};
  Colour out(kWhole);
  HUX_DO(huxiSet_8u_C3R(paper, out.at(0, 0), out.step(), kWhole));
  for (int c = 0; c < 3; ++c)
    for (int i = 0; i < bins; ++i) {
      const int height = std::max(1, int(*heights.at(i, c) * Hux32f(kWhole.height - 24) / tallest));
      HUX_DO(huxiSet_8u_C3CR(235, out.at(i * width, kWhole.height - height) + c, out.step(), {width, height}));
    }
  return out;
}

// Curves through pairs of levels and values: as it is; an S through four points; one curve for each channel; stairs.
Colour toneCurve(const Photos& in) {
  const int step = in.raccoon.step();
  const Hux32s levels[4] = {0, 64, 176, 256}, contrast[4] = {0, 28, 220, 255};
  const Hux32s warm[4] = {0, 84, 205, 255}, plain[4] = {0, 64, 176, 255}, cool[4] = {24, 70, 150, 210};
  const Hux32s stairLevels[6] = {0, 50, 90, 130, 180, 256}, stairs[6] = {20, 80, 125, 175, 235, 255};
  const Hux32s* const abscissae[3] = {levels, levels, levels};
  const Hux32s* const same[3] = {contrast, contrast, contrast};
  const Hux32s* const each[3] = {warm, plain, cool};
  const Hux32s* const stairAbscissae[3] = {stairLevels, stairLevels, stairLevels};
  const Hux32s* const stairValues[3] = {stairs, stairs, stairs};
  const int four[3] = {4, 4, 4}, six[3] = {6, 6, 6};
  Colour out(kWhole);
  HUX_DO(huxiCopy_8u_C3R(face(in), step, quarter(out, 0), out.step(), kFace));
  HUX_DO(huxiLUT_Cubic_8u_C3R(face(in), step, quarter(out, 1), out.step(), kFace, same, abscissae, four));
  HUX_DO(huxiLUT_Linear_8u_C3R(face(in), step, quarter(out, 2), out.step(), kFace, each, abscissae, four));
  HUX_DO(huxiLUT_8u_C3R(face(in), step, quarter(out, 3), out.step(), kFace, stairValues, stairAbscissae, six));
  return out;
}

// A chirp, made from nothing; with noise of two kinds; and a ramp.
Colour chirp(const Photos&) {
  Gray clean(kWhole), noisy(kFace);
  Hux32u seed = 2006;
  Colour out(kWhole);
  const auto lay = [&](const Gray& picture, int i) {
    HUX_DO(huxiDup_8u_C1C3R(picture.at(0, 0), picture.step(), quarter(out, i), out.step(), kFace));
  };
  HUX_DO(huxiImageJaehne_8u_C1R(clean.at(0, 0), clean.step(), kFace));
  lay(clean, 0);
  HUX_DO(huxiCopy_8u_C1R(clean.at(0, 0), clean.step(), noisy.at(0, 0), noisy.step(), kFace));
  HUX_DO(huxiAddRandGauss_Direct_8u_C1IR(noisy.at(0, 0), noisy.step(), kFace, 0, 40, &seed));
  lay(noisy, 1);
  HUX_DO(huxiImageRamp_8u_C1R(noisy.at(0, 0), noisy.step(), kFace, 0, 0.0013f, huxAxsBoth));
  lay(noisy, 2);
  HUX_DO(huxiAddRandUniform_Direct_8u_C1IR(noisy.at(0, 0), noisy.step(), kFace, 0, 90, &seed));
  lay(noisy, 3);
  return out;
}

constexpr Step kSteps[] = {
    {"planes", "red, green, blue; joined as green, blue, red", planes},
    {"swap-channels", "the channels in four other orders", swapChannels},
    {"one-channel", "red moved to the right, blue to the left", oneChannel},
    {"gray-to-colour", "gray in all channels, one cleared in each band", grayToColour},
    {"set", "regions filled with constants", setRegions},
    {"masked-copy", "colour copied onto gray through a mask", maskedCopy},
    {"alpha-kept", "colour and alpha, before and after a copy", alphaKept},
    {"constant-border", "a frame of one colour", constantBorder},
    {"replicated-border", "a frame of the nearest pixels", replicatedBorder},
    {"wrapped-border", "a frame of the periodic continuation", wrappedBorder},
    {"mirror", "as it is; vertical, horizontal, both axes", mirror},
    {"transpose", "rows become columns", transpose},
    {"contrast", "half; from 50 by 1.5; warmer; squared", contrast},
    {"overlay", "over, atop, xor, plus", overlay},
    {"halftone", "one bit for each pixel", halftone},
    {"binarised", "above 110; the photograph there", binarised},
    {"histogram", "how often each value occurs", histogram},
    {"tone-curve", "as it is; cubic, linear, stairs", toneCurve},
    {"chirp", "chirp, with noise; ramp, with noise", chirp},
};

}  // namespace

std::span<const Step> pixelSteps() { return kSteps; }

}  // namespace tour
