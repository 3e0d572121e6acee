// A page as a scanner sees it, and the chain that makes it clean again: shared by the example and the tour.
#pragma once

#include <random>

#include "hux/chain.hpp"
#include "hux/hux.hpp"

namespace page {

using Gray = hux::image<std::uint8_t, 1>;

// Lines of letters, black on white: strokes in cells of 8 by 12.
inline Gray drawn(hux::extent size) {
  Gray out(size);
  hux::set(255, out);
  std::minstd_rand random(7);
  for (int y = 24; y + 32 < size.height; y += 22)
    for (int x = 24; x + 32 < size.width; x += 10) {
      if (random() % 6 == 0) continue;  // between words
      const auto stroke = [&](int left, int top, int width, int height) {
        if (random() % 3) hux::set(0, out.roi(x + left, y + top, width, height));
      };
      stroke(0, 0, 3, 12), stroke(0, 0, 8, 3), stroke(5, 3, 3, 9), stroke(0, 5, 7, 3), stroke(0, 9, 8, 3);
    }
  return out;
}

// The same under a lamp at the left, with grain and with specks.
inline Gray scanned(const Gray& page) {
  Gray out(page.size()), light(page.size());
  hux::image_ramp(light, 235, -150.0f / float(page.width()), hux::axis::horizontal);
  hux::add(hux::view<const std::uint8_t, 1>(page), 40, out);  // ink is not black
  hux::mul(out, light, out, {.shift = 8});
  std::uint32_t seed = 3;
  hux::add_rand_gauss_direct(out, 0, 4, seed);
  std::minstd_rand random(11);
  for (int i = 0; i < page.width() * page.height() / 400; ++i) {
    const int x = int(random() % unsigned(page.width()));  // ahead of y
    *out.at(x, int(random() % unsigned(page.height()))) = 10;
  }
  return out;
}

// What the steps of the cleaning make of a scan, and how many pixels of ink there are.
struct Cleaned {
  Gray light, flat, clean;
  int ink = 0;
};
inline Cleaned cleaned(const Gray& scan) {
  Cleaned out = {Gray(scan.size()), Gray(scan.size()), Gray(scan.size())};
  hux::chain c;
  auto page = c.input(scan);
  auto light = c.filter_box(c.filter_max(page, {15, 15}), {41, 41});  // how bright the paper is
  auto flat = c.div(page, light, {.shift = -8});                      // paper is 255
  auto paper = c.compare(flat, 130, hux::cmp_op::greater);
  auto clean = c.erode3x3(c.dilate3x3(paper));  // opens the ink: what is smaller than a stroke goes
  c.output(light, out.light);
  c.output(flat, out.flat);
  c.output(clean, out.clean);
  c.output(c.count_in_range(clean, 0, 0), out.ink);
  c.run({.threads = 2});
  return out;
}

}  // namespace page
