#include "support/failing_malloc.h"

#include <atomic>
#include <cstddef>

#include "huxcore.h"

namespace hux::test {
namespace {

std::atomic<int> live{0};
std::atomic<int> untilFailure{-1};  // below 0: none fails
std::atomic<bool> failed{false};

// What a test leaves behind: no blocks of the library's, and the number of threads as it was.
class Watch : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override { live_ = live, threads_ = huxGetThreadCount(); }
  void OnTestEnd(const testing::TestInfo&) override {
    EXPECT_EQ(live, live_) << "blocks that were not freed";
    huxSetThreadCount(threads_);
  }
  int live_ = 0;
  Hux32u threads_ = 1;
};
const bool watching = [] {
  testing::UnitTest::GetInstance()->listeners().Append(new Watch);
  return true;
}();

}  // namespace

int liveBlocks() { return live; }

void failAllocation(int n) {
  failed = false;
  untilFailure = n;
}
bool allocationFailed() { return failed; }
void stopFailing() { untilFailure = -1; }

}  // namespace hux::test

// The linker sends the objects' calls of malloc and free here.
extern "C" {
void* __real_malloc(std::size_t bytes);
void __real_free(void* block);

void* __wrap_malloc(std::size_t bytes) {
  using namespace hux::test;
  if (untilFailure >= 0 && untilFailure-- == 0) {
    failed = true;
    return nullptr;
  }
  void* block = __real_malloc(bytes);
  if (block) ++live;
  return block;
}

void __wrap_free(void* block) {
  if (block) --hux::test::live;
  __real_free(block);
}
}
