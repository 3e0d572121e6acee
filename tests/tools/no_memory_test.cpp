// Every function with its first, second, ... allocation failing: its status says so, nothing has been written, and
// nothing is left behind.
#include <gtest/gtest.h>

#include "caller.h"
#include "huxcore.h"
#include "support/failing_malloc.h"

namespace hux::tool {
namespace {

class Walker : public Caller {
 public:
  using Caller::Caller;

  int failing = -1;  // allocation to fail, or -1
  bool hit = false, wrote = false;
  int left = 0;  // blocks that the call has left behind, of a context those that it made

 private:
  HuxStatus invoke(const Function& function, const Value* arguments) override {
    Digest before, after;
    memory().digest(before);
    const int live = test::liveBlocks();
    if (failing >= 0) test::failAllocation(failing);
    const HuxStatus status = Caller::invoke(function, arguments);
    hit = failing >= 0 && test::allocationFailed();
    test::stopFailing();
    left = test::liveBlocks() - live;
    memory().digest(after);
    wrote = before.value() != after.value();
    return status;
  }
};

TEST(NoMemory, EveryAllocationOfEveryFunction) {
  Arena arena;
  Walker walker(arena);
  int failed = 0, allocating = 0;
  for (int i = 0; i < kFunctionCount; ++i) {
    const Function& function = kFunctions[i];
    if (!function.covered || function.byHand) continue;
    const int before = failed;
    for (int number = 0; number < std::min(function.calls, 9); ++number) {
      const Plan plan = {number, {-1, -1}, {0, 0}};
      walker.failing = -1;
      const std::uint64_t expected = walker.run(function, plan);
      const int made = walker.left;
      for (walker.failing = 0;; ++walker.failing) {
        const int live = test::liveBlocks();
        const std::uint64_t digest = walker.run(function, plan);
        EXPECT_EQ(test::liveBlocks(), live) << function.name << " leaks in call " << number;
        if (!walker.hit) break;
        ++failed;
        // A function may do without, if nobody sees it.
        if (digest == expected) {
          EXPECT_EQ(walker.left, made) << function.name << ", call " << number;
          continue;
        }
        EXPECT_TRUE(walker.status() == function.noMemory[0] || walker.status() == function.noMemory[1])
            << function.name << " returns " << walker.status() << " in call " << number;
        EXPECT_TRUE(!walker.wrote || function.writesAnyway) << function.name << " writes in call " << number;
        EXPECT_EQ(walker.left, 0) << function.name << ", call " << number;
      }
    }
    if (failed > before) ++allocating;
  }
  std::printf("%d failed allocations in %d functions\n", failed, allocating);
  EXPECT_GT(allocating, 100);
}

}  // namespace
}  // namespace hux::tool
