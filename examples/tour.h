// What the steps of the tour share: the photographs, and how a step is told.
#pragma once

#include <span>

#include "huxs.h"
#include "image.h"

namespace tour {

struct Photos {
  Colour raccoon;
  Gray stairs;
};

inline constexpr HuxiSize kWhole = {1024, 768};  // of the raccoon
inline constexpr HuxiSize kStairs = {512, 512};
inline bool same(HuxiSize a, HuxiSize b) { return a.width == b.width && a.height == b.height; }

// The raccoon's face. A region is no object: it is a pointer to its first pixel, the step of the image around it, and a
// size.
inline constexpr HuxiSize kFace = {512, 384};
inline const Hux8u* face(const Photos& in) { return in.raccoon.at(470, 150); }

// Where quarter 0, 1, 2, 3 of a picture starts: four faces fill a whole one.
inline Hux8u* quarter(Colour& picture, int i) { return picture.at(i % 2 * kFace.width, i / 2 * kFace.height); }

// Gray pictures in a colour one: a whole, or one that fills a quarter.
inline void show(const Gray& gray, Colour& out, int i) {
  HUX_DO(huxiDup_8u_C1C3R(gray.at(0, 0), gray.step(), quarter(out, i), out.step(), kFace));
}

// A step takes the photographs, works with functions of the library only, and returns its picture. The name is that of
// its file and, with spaces for hyphens, its title.
struct Step {
  const char* name;
  const char* shows;
  Colour (*run)(const Photos&);
};

// The steps, by rooms of the library.
std::span<const Step> pixelSteps();
std::span<const Step> filterSteps();
std::span<const Step> transformSteps();
std::span<const Step> geometrySteps();
std::span<const Step> chainSteps();

}  // namespace tour
