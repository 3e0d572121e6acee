// Argument checks as data. A family writes its contract as one line,
//
//   if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep))) return s;
//
// and the order on that line is the order in which failures win. The usual orders, by the families that use them:
//   A  pointers, size, steps       B  pointers, steps, size
//   C  pointers, size              N  pointers only
// each followed by the tests of the family's own arguments.
#pragma once

#include "core/layout.h"

namespace hux {

constexpr HuxStatus failUnless(bool holds, HuxStatus status) { return holds ? HuxStatus(huxStsOk) : status; }

template <class... P>
constexpr HuxStatus pointers(const P*... p) {
  return failUnless(((p != nullptr) && ...), huxStsNullPtr);
}

// An array of plane pointers: the array itself, then each plane.
template <int Planes, class T>
constexpr HuxStatus planePointers(const T* const* planes) {
  if (!planes) return huxStsNullPtr;
  for (int c = 0; c < Planes; ++c)
    if (!planes[c]) return huxStsNullPtr;
  return huxStsOk;
}

constexpr HuxStatus size(HuxiSize roi) { return failUnless(roi.width >= 1 && roi.height >= 1, huxStsBadSize); }

// The size of a vector; the vector functions test it behind their pointers.
constexpr HuxStatus length(int len) { return failUnless(len >= 1, huxStsBadSize); }

template <class... S>
constexpr HuxStatus steps(S... step) {
  return failUnless(((step >= 1) && ...), huxStsBadStep);
}

// Each row must lie within its step; a row is of `elements` elements of T.
template <class T, class... S>
constexpr HuxStatus stepsHold(Index elements, S... step) {
  return failUnless(((step >= elements * Index(sizeof(T))) && ...), huxStsBadStep);
}

// The mask of a neighbourhood filter, and the cell of it that lies over the pixel; of one row or column, plain numbers.
constexpr HuxStatus maskSize(HuxiSize mask) {
  return failUnless(mask.width >= 1 && mask.height >= 1, huxStsBadMaskSize);
}
constexpr HuxStatus maskSize(int mask) { return failUnless(mask >= 1, huxStsBadMaskSize); }
constexpr HuxStatus anchorInside(int anchor, int mask) {
  return failUnless(anchor >= 0 && anchor < mask, huxStsBadAnchor);
}
constexpr HuxStatus anchorInside(HuxiPoint anchor, HuxiSize mask) {
  return failUnless(!anchorInside(anchor.x, mask.width) && !anchorInside(anchor.y, mask.height), huxStsBadAnchor);
}

// An item of a check line is a status, or a callable giving one where the test may only run once those before it
// passed.
constexpr HuxStatus evaluate(HuxStatus status) { return status; }
template <class Test>
constexpr auto evaluate(Test test) -> decltype(HuxStatus(test())) {
  return test();
}

template <class... Items>
constexpr HuxStatus check(Items... items) {
  HuxStatus status = huxStsOk;
  static_cast<void>(((status = evaluate(items)) || ...));
  return status;
}

// The status of a sequence of row results: the first that is not success stands.
constexpr HuxStatus firstOf(HuxStatus kept, HuxStatus next) { return kept ? kept : next; }

}  // namespace hux
