// The tour's steps through resizing, warps and remapping.
#include <cmath>
#include <vector>

#include "tour.h"

namespace tour {
namespace {

constexpr Hux8u kPaper[3] = {236, 230, 216};

Colour paper() {
  Colour out(kWhole);
  HUX_DO(huxiSet_8u_C3R(kPaper, out.at(0, 0), out.step(), kWhole));
  return out;
}

HuxiRect whole(HuxiSize s) { return {0, 0, s.width, s.height}; }

// Nine tiles. First thumbnails by every interpolation, each of their pixels shown four times; then an eye, enlarged.
Colour thumbnails(const Photos& in) {
  const Colour& src = in.raccoon;
  const HuxiSize small = {kWhole.width / 6, kWhole.height / 6}, tile = {2 * small.width, 2 * small.height};
  const HuxiInterpolation modes[5] = {huxiInterNearest, huxiInterLinear, huxiInterCubic, huxiInterLanczos,
                                      huxiInterSuper};
  Colour out = paper(), thumbnail(small);
  const auto place = [&](int i) { return out.at(i % 3 * (tile.width + 2), i / 3 * tile.height); };
  for (int i = 0; i < 5; ++i) {
    HUX_DO(huxiResize_8u_C3R(src.at(0, 0), kWhole, src.step(), whole(kWhole), thumbnail.at(0, 0), thumbnail.step(),
                             small, 1. / 6, 1. / 6, modes[i]));
    HUX_DO(huxiResize_8u_C3R(thumbnail.at(0, 0), small, thumbnail.step(), whole(small), place(i), out.step(), tile, 2,
                             2, huxiInterNearest));
  }
  const HuxiRect eye = {535, 270, 85, 64};
  for (int i = 0; i < 4; ++i) {
    int bytes;
    HUX_DO(huxiResizeSqrPixelGetBufSize(tile, 3, modes[i], &bytes));
    std::vector<Hux8u> buffer(std::size_t(bytes), 0);
    // Shifts are in pixels of the destination: the region's corner comes to its origin.
    HUX_DO(huxiResizeSqrPixel_8u_C3R(src.at(0, 0), kWhole, src.step(), eye, place(i + 5), out.step(), whole(tile), 4, 4,
                                     -4. * eye.x, -4. * eye.y, modes[i], buffer.data()));
  }
  return out;
}

// Rotated, and sheared; below, the corners of both enlarged: with hard edges, and with smooth ones.
Colour turned(const Photos& in) {
  Colour out = paper(), hard = paper();
  const HuxiRect left = {0, 0, 512, 384}, right = {512, 0, 512, 384};
  const HuxiSize small = {360, 270};
  Colour photo(small);
  HUX_DO(huxiResize_8u_C3R(in.raccoon.at(0, 0), kWhole, in.raccoon.step(), {470, 110, 512, 384}, photo.at(0, 0),
                           photo.step(), small, 360. / 512, 270. / 384, huxiInterSuper));
  // The middle of the photograph goes to the middle of the left half.
  double x, y;
  HUX_DO(huxiGetRotateShift((small.width - 1) / 2., (small.height - 1) / 2., 20, &x, &y));
  x += 256 - small.width / 2., y += 192 - small.height / 2.;
  for (Colour* picture : {&out, &hard}) {
    const HuxiInterpolation mode = picture == &out ? huxiInterCubic | huxiInterSmoothEdge : huxiInterCubic;
    HUX_DO(huxiRotate_8u_C3R(photo.at(0, 0), small, photo.step(), whole(small), picture->at(0, 0), picture->step(),
                             left, 20, x, y, mode));
    HUX_DO(huxiShear_8u_C3R(photo.at(0, 0), small, photo.step(), whole(small), picture->at(0, 0), picture->step(),
                            right, 0.3, 0.1, 512 + 36, 40, mode));
  }
  const auto enlarge = [&](const Colour& from, HuxiPoint corner, int i) {
    HUX_DO(huxiResize_8u_C3R(from.at(0, 0), kWhole, from.step(), {corner.x, corner.y, 32, 48}, out.at(i * 256, 384),
                             out.step(), {256, 384}, 8, 8, huxiInterNearest));
  };
  const HuxiPoint rotated = {38, 106}, sheared = {540, 30};
  enlarge(hard, rotated, 0), enlarge(out, rotated, 1), enlarge(hard, sheared, 2), enlarge(out, sheared, 3);
  return out;
}

// A railing seen at an angle, its four corners marked; below, the plane that it stands in, seen from the front. To the
// right, the other way: a photograph on a floor.
Colour straightened(const Photos& in) {
  Colour out = paper();
  const Gray& stairs = in.stairs;
  const int top = 128;  // of what is shown
  HUX_DO(huxiDup_8u_C1C3R(stairs.at(0, top), stairs.step(), quarter(out, 0), out.step(), kFace));
  const double railing[4][2] = {{79, 269}, {283, 341}, {311, 490}, {74, 371}};
  const Hux8u mark[3] = {255, 120, 0};
  for (const auto& corner : railing)
    HUX_DO(huxiSet_8u_C3R(mark, out.at(int(corner[0]) - 4, int(corner[1]) - top - 4), out.step(), {9, 9}));

  const HuxiSize front = {kWhole.width, kFace.height};
  const double level[4][2] = {{0, 0}, {1023, 0}, {1023, 383}, {0, 383}};
  Gray flat(front);
  HUX_DO(huxiWarpPerspectiveQuad_8u_C1R(stairs.at(0, 0), kStairs, stairs.step(), whole(kStairs), railing, flat.at(0, 0),
                                        flat.step(), whole(front), level, huxiInterCubic));
  HUX_DO(huxiDup_8u_C1C3R(flat.at(0, 0), flat.step(), quarter(out, 2), out.step(), front));

  const double edges[4][2] = {{0, 0}, {1023, 0}, {1023, 767}, {0, 767}};
  const double floor[4][2] = {{640, 70}, {860, 40}, {1010, 330}, {540, 350}};
  HUX_DO(huxiWarpPerspectiveQuad_8u_C3R(in.raccoon.at(0, 0), kWhole, in.raccoon.step(), whole(kWhole), edges,
                                        out.at(0, 0), out.step(), {512, 0, 512, 384}, floor,
                                        huxiInterLinear | huxiInterSmoothEdge));
  return out;
}

// A ball of glass over the face: inside a circle every pixel is looked up closer to the middle, the less the nearer
// the rim. Maps tell for each pixel where it comes from.
Colour lens(const Photos& in) {
  const double centreX = 645, centreY = 330, radius = 270;
  Image<Hux32f, 1> mapX(kWhole), mapY(kWhole);
  for (int j = 0; j < kWhole.height; ++j)
    for (int i = 0; i < kWhole.width; ++i) {
      const double x = i - centreX, y = j - centreY, r = std::sqrt(x * x + y * y) / radius;
      const double nearer = r < 1 ? 0.45 + 0.55 * r * r * r : 1;
      *mapX.at(i, j) = Hux32f(centreX + x * nearer);
      *mapY.at(i, j) = Hux32f(centreY + y * nearer);
    }
  Colour out = paper();
  HUX_DO(huxiRemap_8u_C3R(in.raccoon.at(0, 0), kWhole, in.raccoon.step(), whole(kWhole), mapX.at(0, 0), mapX.step(),
                          mapY.at(0, 0), mapY.step(), out.at(0, 0), out.step(), kWhole, huxiInterCubic));
  return out;
}

constexpr Step kSteps[] = {
    {"thumbnails", "every interpolation; an eye by four of them", thumbnails},
    {"turned", "rotated, sheared; hard and smooth edges", turned},
    {"straightened", "at an angle; from the front; on a floor", straightened},
    {"lens", "a map of where each pixel comes from", lens},
};

}  // namespace

std::span<const Step> geometrySteps() { return kSteps; }

}  // namespace tour
