// The order in place: when a row is written, every window that reads it has been seen, and its line holds it still.
#include "core/ring.h"

#include <gtest/gtest.h>

#include <vector>

namespace hux::test {
namespace {

void expectOrder(InPlace order, Index above, Index rows) {
  SCOPED_TRACE(testing::Message() << rows << " rows, " << above << " above, " << order.atOnce << " at once");
  std::vector<std::byte> memory(Ring<Hux16s>::bytes(order.lines, 40));
  const Ring<Hux16s> ring(memory.data(), order.lines, 40);
  Index computed = 0, written = 0;
  inPlace(
      order,
      [&](Index first, Index count) {
        EXPECT_EQ(first, computed);
        EXPECT_LE(written, first - above > 0 ? first - above : 0);  // the windows' rows stand
        for (Index r = first; r < first + count; ++r) ring[r][0] = ring[r][39] = Hux16s(r);
        computed += count;
      },
      [&](Index row) {
        EXPECT_EQ(row, written++);
        EXPECT_EQ(ring[row][0], row);
        EXPECT_EQ(ring[row][39], row);
      });
  EXPECT_EQ(computed, rows);
  EXPECT_EQ(written, rows);
}

TEST(Ring, RowsInPlaceAreWrittenBehindTheirWindows) {
  for (Index height : {1, 2, 5, 16, 40})
    for (Index above : {0, 1, 4, 20})
      for (Index atOnce : {1, 3, 16})
        expectOrder(rowsInPlace(height, above, atOnce), above, std::max(height, above + 1));
  for (Index height : {1, 2, 3, 9}) expectOrder(rowsInPlace3x3(height), 1, height);
}

TEST(Ring, SizesBeyondAllMemoryAreNotCutShort) {
  const Index most = std::numeric_limits<int>::max();
  EXPECT_GE(Ring<Hux32f>::bytes(most, 4 * most), std::size_t(1) << 63);
  EXPECT_EQ(Ring<Hux32f>::bytes(3, 17), 3u * 128);
}

}  // namespace
}  // namespace hux::test
