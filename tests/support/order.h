// The order of checks: arguments are broken all at once and repaired one by one in the contract's order.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "huxdefs.h"

namespace hux::test {

// CheckOrder(call).breaks(status, argument, bad)....run(untouched): each broken argument in turn must decide the status
// while those behind it are still broken, with untouched() holding after each call; when all are repaired the call
// succeeds.
class CheckOrder {
 public:
  explicit CheckOrder(std::function<HuxStatus()> call) : call_(std::move(call)) {}

  template <class T>
  CheckOrder& breaks(HuxStatus status, T& argument, std::type_identity_t<T> bad) {
    faults_.push_back({status, [&argument, good = argument] { argument = good; }});
    argument = bad;
    return *this;
  }

  void run(const std::function<testing::AssertionResult()>& untouched) {
    for (std::size_t i = 0; i < faults_.size(); ++i) {
      EXPECT_EQ(call_(), faults_[i].status) << "check " << i;
      EXPECT_TRUE(untouched()) << "check " << i;
      faults_[i].repair();
    }
    EXPECT_EQ(call_(), huxStsOk) << "with all arguments repaired";
  }

 private:
  struct Fault {
    HuxStatus status;
    std::function<void()> repair;
  };
  std::function<HuxStatus()> call_;
  std::vector<Fault> faults_;
};

}  // namespace hux::test
