// The library's allocations, counted, and failing on demand. No test may leave any behind: its end looks.
#pragma once

#include "support/image.h"

namespace hux::test {

// Allocations of the library that have not been freed yet.
int liveBlocks();

// Makes the n-th allocation of the library from now on (from 0) fail, until stopFailing.
void failAllocation(int n);
bool allocationFailed();
void stopFailing();

// Walks every allocation failure of a call: call() is run with its first, second, ... allocation failing until it runs
// through without one; onFailure(result) is called for each run that was hit. Returns the result of the last run.
template <class Call, class OnFailure>
auto walkAllocationFailures(Call call, OnFailure onFailure) {
  for (int n = 0;; ++n) {
    failAllocation(n);
    const auto result = call();
    const bool failed = allocationFailed();
    stopFailing();
    if (!failed) return result;
    onFailure(result);
  }
}

// Walks the failures of a call that reports them, keeps nothing and leaves the images alone, and succeeds at last.
// Returns how many there are.
template <class Call, class... Images>
int failuresOf(Call call, const Images&... images) {
  const int live = liveBlocks();
  int count = 0;
  const std::vector<Image> before = {images...};
  const HuxStatus last = walkAllocationFailures(call, [&](HuxStatus status) {
    ++count;
    EXPECT_EQ(status, huxStsNoMem);
    EXPECT_EQ(liveBlocks(), live);
    auto kept = before.begin();
    [[maybe_unused]] const auto compare = [&](const Image& image) { EXPECT_TRUE(same(image, *kept++)); };
    (..., compare(images));
  });
  EXPECT_EQ(last, huxStsOk);
  return count;
}

}  // namespace hux::test
