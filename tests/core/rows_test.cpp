// Row walking and check lines: what all families lean on.
#include "core/rows.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace hux::test {
namespace {

TEST(Rows, GaplessRowsAreOneLongRow) {
  std::array<Hux8u, 64> a{}, b{};
  const auto visits = [&](HuxiSize roi, int stepA, int stepB) {
    std::vector<Index> widths;
    forEachRow(roi, rows<C3>(a.data(), stepA), rows<C1>(b.data(), stepB),
               [&](auto*, auto*, Index n) { widths.push_back(n); });
    return widths;
  };
  EXPECT_EQ(visits({4, 5}, 12, 4), std::vector<Index>{20});
  EXPECT_EQ(visits({4, 3}, 12, 5), (std::vector<Index>{4, 4, 4}));  // one operand with a gap is enough
  EXPECT_EQ(visits({4, 2}, 13, 4), (std::vector<Index>{4, 4}));
}

TEST(Rows, RowsFollowTheStepInBytesWhateverItsSign) {
  std::array<Hux16s, 64> image{};
  for (int step : {7, 6, 0, -5}) {
    auto* first = reinterpret_cast<std::byte*>(image.data()) + 30;
    std::vector<std::ptrdiff_t> at;
    forEachRow({1, 4}, rows<C1>(reinterpret_cast<Hux16s*>(first), step),
               [&](auto* row, Index) { at.push_back(reinterpret_cast<std::byte*>(row) - first); });
    EXPECT_EQ(at, (std::vector<std::ptrdiff_t>{0, step, 2 * step, 3 * step}));
  }
}

TEST(Rows, TheFirstStatusStandsAndTheWalkGoesOn) {
  Hux8u image[16] = {};
  int calls = 0;
  const HuxStatus results[] = {huxStsOk, huxStsLogZeroWarn, huxStsLogNegWarn, huxStsOk};
  EXPECT_EQ(forEachRow({1, 4}, rows<C1>(image, 3), [&](auto*, Index) { return results[calls++]; }), huxStsLogZeroWarn);
  EXPECT_EQ(calls, 4);
}

TEST(Check, StopsAtTheFirstFailure) {
  const Hux8u* null = nullptr;
  const Hux8u value = 0;
  EXPECT_EQ(check(pointers(&value, null), size({0, 0}), steps(0)), huxStsNullPtr);
  EXPECT_EQ(check(pointers(&value), size({1, 0}), steps(0)), huxStsBadSize);
  EXPECT_EQ(check(pointers(&value), size({1, 1}), steps(1, 0)), huxStsBadStep);
  bool reached = false;
  const auto domain = [&] {
    reached = true;
    return HuxStatus(huxStsBadAxis);
  };
  EXPECT_EQ(check(pointers(null), domain), huxStsNullPtr);
  EXPECT_FALSE(reached);  // a test that reads through a pointer runs only behind the pointer's own
  EXPECT_EQ(check(pointers(&value), domain), huxStsBadAxis);
}

}  // namespace
}  // namespace hux::test
