// The library's allocations, counted, and failing on demand.
#pragma once

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

}  // namespace hux::test
