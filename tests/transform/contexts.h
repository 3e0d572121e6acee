// What every kind of context promises, and a run of a transform with it.
#pragma once

#include "support/failing_malloc.h"
#include "support/forms.h"
#include "transform/reference.h"

namespace hux::test {

using FreeFn = HuxStatus(void* record);
using BufSizeFn = HuxStatus(const void* record, void* size);

// make(pp) makes a context that takes memory; `foreign` is one of another kind.
template <class Make>
void expectContract(Make make, FreeFn* free, BufSizeFn* getBufSize, void* foreign) {
  int live = liveBlocks(), bytes = 0;
  void *untouched = &live, *record = untouched;
  EXPECT_EQ(make(nullptr), huxStsNullPtr);
  const auto create = [&] {
    EXPECT_EQ(record, untouched);
    return make(&record);
  };
  EXPECT_GT(failuresOf(create), 0);
  EXPECT_EQ(getBufSize(nullptr, &bytes), huxStsNullPtr);
  EXPECT_EQ(getBufSize(record, nullptr), huxStsNullPtr);
  EXPECT_EQ(getBufSize(foreign, &bytes), huxStsBadContext);
  EXPECT_EQ(free(nullptr), huxStsNullPtr);
  EXPECT_EQ(free(foreign), huxStsBadContext);
  EXPECT_EQ(free(record), huxStsOk);
  EXPECT_EQ(liveBlocks(), live);
}

// run(source, destination, buffer) gives `target`: with a buffer of `bytes` at the end of a page and at any address,
// and the same in place without one.
template <class Run>
void expectTransform(Rng& rng, const Floats& src, const Numbers& target, double bound, int bytes, Run run) {
  const int parts = src.parts();
  const std::size_t n = src.count() / std::size_t(parts);
  const Image buffer(rng, bytes + 1, 1, 1, Place::kEnd), before = src.image();
  const Floats dst(rng, n, parts, Place(between(rng, 0, 2))), both(rng, n, parts);
  ASSERT_EQ(run(src.as<void>(), dst.as<void>(), bytes ? buffer.data<Hux8u>() + 1 : nullptr), huxStsOk);
  EXPECT_TRUE(near(dst.numbers(), target, bound));
  EXPECT_TRUE(same(src.image(), before));
  std::memcpy(both.as<char>(), src.as<char>(), src.count() * 4);
  ASSERT_EQ(run(both.as<void>(), both.as<void>(), nullptr), huxStsOk);
  EXPECT_EQ(std::memcmp(both.as<char>(), dst.as<char>(), dst.count() * 4), 0) << "in place";
}

}  // namespace hux::test
