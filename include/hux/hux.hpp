// hux for C++20: the functions of the C library on typed views, in headers only. Link with the library as ever.
//
//   hux::image<std::uint8_t, 3> a(640, 480), b(640, 480), out(640, 480);
//   hux::set({250, 180, 30}, a);
//   hux::add(a, b, out, {.shift = 1});                           // huxiAdd_8u_C3RSfs
//   hux::filter_box(a, out, {5, 3}, {.border = hux::border::wrap});
//   const auto [least, greatest] = hux::min_max(out);            // an array each
//
// T and C of a call are those of its destination, or of its first source where they may differ or nothing is written:
// other sources are whatever converts to a view of them. Sources come first, then constants, the destination, the
// operation's own parameters, and options by name. sub(a, b, dst) is a - b, and div(a, b, dst) is a / b.
//
// Functions of hux throw hux::error where the C library returns an error, and return its warnings; their twins in
// hux::nothrow return either. All views of a call are compared in size; whether they may overlap, C's headers tell.
#ifndef HUX_HUX_HPP
#define HUX_HUX_HPP

#include "arith.hpp"
#include "filter.hpp"
#include "geometry.hpp"
#include "image.hpp"
#include "lines.hpp"
#include "measures.hpp"
#include "pixel.hpp"
#include "plans.hpp"
#include "stats.hpp"
#include "transform.hpp"

#endif
