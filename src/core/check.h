// Argument checks as data. A family writes its contract as one line,
//
//   if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep))) return s;
//
// and the order on that line is the order in which failures win. The usual orders, by the families that use them:
//   A  pointers, size, steps       B  pointers, steps, size
//   C  pointers, size              N  pointers only
// each followed by the tests of the family's own arguments.
#pragma once

#include <type_traits>

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

// Forms of three and four equal channels that stand for the one-channel form over a wider row ask for their width, or
// their size, ahead of everything else.
constexpr HuxStatus width(HuxiSize roi) { return failUnless(roi.width >= 1, huxStsBadSize); }
template <class L>
constexpr HuxStatus delegated(HuxStatus test) {
  return L::channels == 1 || L::channels != L::processed ? HuxStatus(huxStsOk) : test;
}

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

// An item that ends the call where it stands on the line: where `when` holds, what `then` returns is the result of the
// call, success too. Both are asked only once the items before have passed; `when` may be a plain condition.
template <class When, class Then>
struct Early {
  When when;
  Then then;
};
template <class When, class Then>
constexpr Early<When, Then> answer(When when, Then then) {
  return {when, then};
}

// What a line with answers comes to: whether the call has ended, and with what.
struct Verdict {
  bool ended = false;
  HuxStatus status = huxStsOk;
  explicit constexpr operator bool() const { return ended; }
  constexpr operator HuxStatus() const { return status; }
};

namespace detail {

template <class Item>
constexpr bool isEarly = false;
template <class When, class Then>
constexpr bool isEarly<Early<When, Then>> = true;

template <class Item>
constexpr Verdict judge(Item item) {
  if constexpr (isEarly<Item>) {
    bool holds;
    if constexpr (std::is_same_v<decltype(item.when), bool>)
      holds = item.when;
    else
      holds = item.when();
    return holds ? Verdict{true, item.then()} : Verdict{};
  } else {
    const HuxStatus status = evaluate(item);
    return {status != huxStsOk, status};
  }
}

}  // namespace detail

template <class... Items>
constexpr auto check(Items... items) {
  Verdict verdict;
  static_cast<void>(((verdict = detail::judge(items)).ended || ...));
  if constexpr ((detail::isEarly<Items> || ...))
    return verdict;
  else
    return verdict.status;
}

// The status of a sequence of row results: the first that is not success stands.
constexpr HuxStatus firstOf(HuxStatus kept, HuxStatus next) { return kept ? kept : next; }

}  // namespace hux
