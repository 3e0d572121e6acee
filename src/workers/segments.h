// Where elements lie among levels: segment k of a list reaches from levels[k] up to, but without, levels[k + 1]. Shared
// by histograms and look-up tables.
#pragma once

#include <algorithm>

#include "lanes/elementwise.h"

namespace hux {

// A list of levels, of at least two.
template <class Level>
struct Levels {
  const Element<Level>* at;
  int count;

  Level operator[](int k) const { return at[k]; }
  Level last() const { return at[count - 1]; }
  int segments() const { return count - 1; }

  // A NaN is no fault here.
  bool ascend() const {
    for (int k = 0; k + 1 < count; ++k)
      if ((*this)[k] >= (*this)[k + 1]) return false;
    return true;
  }
  // Whether each level lies above the one before it, so that every way to search comes to the same segment.
  bool regular() const {
    for (int k = 0; k + 1 < count; ++k)
      if (!((*this)[k] < (*this)[k + 1])) return false;
    return true;
  }

  // The search by halves: the last level not above the element, if levels ascend, of an element that has one. It
  // selects and does not branch, since which half comes next cannot be predicted.
  template <class T>
  int byHalves(T element) const {
    const Element<Level>* base = at;
    for (int length = count - 1; length > 1;) {
      const int half = length >> 1, upper = element >= base[half];
      base += -upper & half;
      length = half + (upper & length);
    }
    return int(base - at);
  }

  // The same of regular levels, for many elements: the steps of one search do not depend on its element, so that a
  // group of them goes side by side. An element outside comes to some segment.
  template <class T>
  void byHalves(const Element<T>* elements, Index n, Hux32s* segments) const {
    constexpr Index group = 16;
    for (Index i = 0; i < n; i += group) {
      const Index size = std::min(group, n - i);
      Level element[group] = {};
      for (Index j = 0; j < size; ++j) element[j] = Level(elements[i + j]);
      Hux32s base[group] = {};
      for (int length = count - 1; length > 1;) {
        const int half = length >> 1;
        for (Index j = 0; j < group; ++j) base[j] += element[j] >= at[base[j] + half] ? half : 0;
        length -= half;
      }
      std::copy_n(base, size, segments + i);
    }
  }
};

// The segments of floats, for a list of levels at a time. An element belongs to the first segment k with not
// levels[k] > element and not element >= levels[k + 1]; so a NaN belongs to the first of all.
class Segments {
 public:
  static constexpr Hux32s kNone = -1;

  Segments() = default;
  explicit Segments(Levels<Hux32f> levels) : levels_(levels), regular_(levels.regular()) {
    const Hux32f width = levels.last() - levels[0];
    // The segment of an element if they are all equally wide, as a first guess.
    scale_ = regular_ && width <= std::numeric_limits<Hux32f>::max() ? Hux32f(levels.segments()) / width : 0;
    // Guesses do where that puts no level further off than its neighbour.
    for (int k = 1; k < levels.segments() && scale_ > 0; ++k) {
      const Hux32f at = (levels[k] - levels[0]) * scale_;
      if (!(at > Hux32f(k - 1) && at < Hux32f(k + 1))) scale_ = 0;
    }
  }

  bool regular() const { return regular_; }
  // Whether a comparison with each level is cheaper than a search.
  bool areFew() const { return regular_ && levels_.count <= kFew; }

  // The segments of so many elements.
  void find(const Element<Hux32f>* elements, Index n, Hux32s* segments) const {
    auto* to = hux::elements(segments);
    if (!regular_) {
      for (Index i = 0; i < n; ++i) segments[i] = firstOf(elements[i]);
    } else if (areFew()) {
      mapRow<C1>(elements, to, n, Count{levels_});
    } else {
      mapRow<C1>(elements, to, n, Guess{levels_[0], levels_.last(), scale_, levels_.segments() - 1});
      if (scale_ > 0) {
        for (Index i = 0; i < n; ++i)
          if (segments[i] != kNone) segments[i] = corrected(elements[i], segments[i]);
      } else {
        constexpr Index group = 64;
        Hux32s found[group];
        for (Index i = 0; i < n; i += group) {
          const Index size = std::min(group, n - i);
          levels_.byHalves(elements + i, size, found);
          for (Index j = 0; j < size; ++j) segments[i + j] |= found[j];  // kNone has all bits set
        }
      }
    }
  }

 private:
  static constexpr int kFew = 24;
  using V = Lanes<Hux32f, laneCount<Hux32f>>;
  using I = Lanes<Hux32s, lanesIn<V>>;

  static I outside(V v, Hux32f first, Hux32f last) { return (first > v) | (v >= last); }

  struct Count {
    static constexpr int lanes = lanesIn<V>;
    Levels<Hux32f> levels;
    I operator()(V v) const {
      I segment{};
      for (int k = 1; k < levels.count - 1; ++k) segment -= v >= levels[k];
      return segment | outside(v, levels[0], levels.last());  // kNone has all bits set
    }
  };
  struct Guess {
    static constexpr int lanes = lanesIn<V>;
    Hux32f first, last, scale;
    Hux32s highest;
    I operator()(V v) const {
      const V at = lesser(greater((v - first) * scale, V{}), splat<V>(0x1p24f));
      return lesser(convert<Hux32s>(at), splat<I>(highest)) | outside(v, first, last);
    }
  };

  int firstOf(Hux32f element) const {
    for (int k = 0; k < levels_.segments(); ++k)
      if (!(levels_[k] > element) && !(element >= levels_[k + 1])) return k;
    return kNone;
  }
  // A guess is mostly off by no more than its rounding.
  int corrected(Hux32f element, int guess) const {
    if (levels_[guess] > element) --guess;
    if (element >= levels_[guess + 1]) ++guess;
    if (levels_[guess] > element || element >= levels_[guess + 1]) return levels_.byHalves(element);
    return guess;
  }

  Levels<Hux32f> levels_{};
  bool regular_ = false;
  Hux32f scale_ = 0;
};

}  // namespace hux
