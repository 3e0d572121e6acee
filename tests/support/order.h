// The order of checks: arguments are broken all at once and repaired one by one in the contract's order.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <type_traits>
#include <vector>

#include "huxdefs.h"
#include "support/image.h"

namespace hux::test {

// CheckOrder(call).breaks(status, argument, bad)....run(image): each broken argument in turn must decide the status
// while those behind it are broken as well, and also when it is the only one, since its neighbours mostly give the same
// status; no such call may touch the image. With all arguments as they were, the call succeeds. An argument may
// be broken in several ways.
class CheckOrder {
 public:
  explicit CheckOrder(std::function<HuxStatus()> call) : call_(std::move(call)) {}

  template <class T>
  CheckOrder& breaks(HuxStatus status, T& argument, std::type_identity_t<T> bad) {
    faults_.push_back(
        {status, [&argument, bad] { argument = bad; }, [&argument, good = argument] { argument = good; }});
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
