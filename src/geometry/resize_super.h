// Supersampling: each pixel of the destination is the mean of the rectangle of the source that it covers.
#pragma once

#include <cmath>
#include <span>

#include "geometry/resize_rows.h"

namespace hux {

// What a destination pixel covers of one axis: a part of the first source pixel, whole ones, and a part of the one that
// follows, where the next destination pixel goes on.
struct Cover {
  Index first;
  Hux32f head;  // 0: there is none
  Index whole;
  Hux32f tail;  // 0: there is none

  Index firstWhole() const { return first + (head != 0); }
  Index end() const { return firstWhole() + whole + (tail != 0); }
};

// The covers of destination pixels, first to last. Parts of at most 1e-7 are left out.
class Covers {
 public:
  explicit Covers(Hux64f step) : step_(step) {}

  Cover next() {
    Cover cover{at_, 0, 0, 0};
    if (first_) {
      first_ = false;
      const Hux64f whole = std::floor(step_);
      rest_ = step_ - whole;
      cover.whole = Index(whole), cover.tail = Hux32f(rest_);
    } else {
      const Hux64f head = 1 - rest_, whole = std::floor(1e-7 + step_ - head);
      rest_ = step_ - head - whole;
      cover.whole = Index(whole);
      if (head == 1)
        ++cover.whole;
      else if (head > 1e-7)
        cover.head = Hux32f(head);
      else
        ++cover.first;  // all of it is taken
      if (rest_ > 1e-7) cover.tail = Hux32f(rest_);
    }
    at_ = cover.firstWhole() + cover.whole;
    return cover;
  }

 private:
  Hux64f step_, rest_ = 0;
  Index at_ = 0;
  bool first_ = true;
};

// Factors of at most 1, which the planes' axes hold in place of steps. huxStsNoMem where there is no memory for a row
// of sums: each plane takes its own before those behind it, and is written after them, so that nothing is written then.
using Planes = std::span<const ResizePlane>;
HuxStatus ownviDecimateSuper(Planes planes);

}  // namespace hux
