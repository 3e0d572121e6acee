// The order of checks: arguments are broken all at once and repaired one by one in the contract's order.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <type_traits>
#include <vector>

#include "huxdefs.h"
#include "support/image.h"

namespace hux::test {

// The usual arguments of a call: up to two sources, a destination, and a region of one pixel.
struct Arguments {
  const void *a, *b;
  void* d;
  int aStep, bStep, dStep;
  HuxiSize roi;

  explicit Arguments(const Image& image, HuxiSize size = {1, 1})
      : a(image.bytes()), b(a), d(image.bytes()), aStep(image.step()), bStep(aStep), dStep(aStep), roi(size) {}
};

// CheckOrder(call).breaks(status, argument, bad)....run(image): each broken argument in turn must decide the status
// while those behind it are broken as well, and also when it is the only one, since its neighbours mostly give the same
// status; no such call may touch the image. With all arguments as they were, the call succeeds. An argument may
// be broken in several ways. What most contracts ask for has words of its own: pointers that are not null, sizes and
// regions, steps above 0, an anchor inside its mask.
class CheckOrder {
 public:
  explicit CheckOrder(std::function<HuxStatus()> call) : call_(std::move(call)) {}

  template <class T>
  CheckOrder& breaks(HuxStatus status, T& argument, std::type_identity_t<T> bad) {
    faults_.push_back(
        {status, [&argument, bad] { argument = bad; }, [&argument, good = argument] { argument = good; }});
    return *this;
  }

  template <class... P>
  CheckOrder& nulls(P&... pointers) {
    (..., breaks(huxStsNullPtr, pointers, nullptr));
    return *this;
  }
  CheckOrder& sizes(HuxiSize& size) {
    return breaks(huxStsBadSize, size.width, 0).breaks(huxStsBadSize, size.height, -1);
  }
  CheckOrder& sizes(HuxiRect& region) {
    breaks(huxStsBadSize, region.x, -1).breaks(huxStsBadSize, region.y, -1);
    return breaks(huxStsBadSize, region.width, 0).breaks(huxStsBadSize, region.height, -1);
  }
  template <class... S>
  CheckOrder& steps(S&... steps) {
    (..., breaks(huxStsBadStep, steps, 0).breaks(huxStsBadStep, steps, -4));
    return *this;
  }
  // A contract in letters: a, b and d are the pointers, A, B and D their steps, w and h the extents, z the two of them;
  // those of `without` are left out.
  CheckOrder& in(Arguments& args, const std::string& order, const std::string& without = "") {
    for (const char letter : order) {
      if (without.find(letter) != std::string::npos) continue;
      if (letter == 'a') nulls(args.a);
      if (letter == 'b') nulls(args.b);
      if (letter == 'd') nulls(args.d);
      if (letter == 'A') steps(args.aStep);
      if (letter == 'B') steps(args.bStep);
      if (letter == 'D') steps(args.dStep);
      if (letter == 'w' || letter == 'z') breaks(huxStsBadSize, args.roi.width, 0);
      if (letter == 'h' || letter == 'z') breaks(huxStsBadSize, args.roi.height, -1);
    }
    return *this;
  }
  CheckOrder& anchors(HuxiPoint& anchor, HuxiSize mask) {
    for (HuxiPoint bad : {HuxiPoint{-1, 0}, {mask.width, 0}, {0, -1}, {0, mask.height}})
      breaks(huxStsBadAnchor, anchor, bad);
    return *this;
  }

  void run(const Image& image) {
    const Image before = image;
    const auto decides = [&](std::size_t first, std::size_t last) {
      for (std::size_t i = last + 1; i-- > first;) faults_[i].spoil();
      EXPECT_EQ(call_(), faults_[first].status) << "check " << first << (first == last ? " alone" : "");
      EXPECT_TRUE(same(image, before)) << "check " << first;
      for (const Fault& fault : faults_) fault.repair();
    };
    for (std::size_t i = 0; i < faults_.size(); ++i) decides(i, faults_.size() - 1), decides(i, i);
    EXPECT_EQ(call_(), huxStsOk) << "with all arguments repaired";
  }

 private:
  struct Fault {
    HuxStatus status;
    std::function<void()> spoil, repair;
  };
  std::function<HuxStatus()> call_;
  std::vector<Fault> faults_;
};

}  // namespace hux::test
