// The four work divisions: every row and tile once, whatever the team. The program is also run with a thread limit of
// 1, where the runtime refuses all teams.
#include "core/team.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

#include "huxcore.h"

namespace hux::test {
namespace {

// Runs body(largest possible team) for teams of 1, 2, 3 and 7, and for counts that act as a small number.
template <class Body>
void forTeams(Body body) {
  for (Hux32u n : {0u, 1u, 2u, 3u, 7u}) {
    SCOPED_TRACE(n);
    huxSetThreadCount(n);
    body(n == 0 ? 1 : int(n));
  }
}

// Counts visits to rows or tiles from several threads.
class Visits {
 public:
  explicit Visits(Index count) : visits_(std::size_t(count)) {}
  void visit(Index i) { ++visits_[std::size_t(i)]; }
  void visit(RowRange r) {
    for (Index y = r.first; y < r.first + r.count; ++y) visit(y);
  }
  bool each(int times) const {
    return std::all_of(visits_.begin(), visits_.end(), [&](int visits) { return visits == times; });
  }
  bool eachOnce() const { return each(1); }
  bool none() const { return each(0); }

 private:
  std::vector<std::atomic<int>> visits_;
};

TEST(Team, InitialCountIsTheProcessorsOfTheProcess) {
  EXPECT_EQ(huxGetThreadCount(), threads_omp_of_n_hux);
  EXPECT_GE(threads_omp_of_n_hux, 1u);
}

TEST(Team, SplitRowsGivesTheRestToTheLast) {
  forTeams([](int most) {
    for (Index height : {1, 2, 6, 7, 100}) {
      Visits visits(height);
      std::mutex mutex;
      std::vector<RowRange> shares;
      splitRows(height, [&](RowRange r) {
        visits.visit(r);
        std::lock_guard lock(mutex);
        shares.push_back(r);
      });
      EXPECT_TRUE(visits.eachOnce());
      std::sort(shares.begin(), shares.end(), [](RowRange a, RowRange b) { return a.first < b.first; });
      ASSERT_LE(int(shares.size()), most);
      const RowRange first = shares.front(), last = shares.back();
      for (std::size_t t = 0; t + 1 < shares.size(); ++t) EXPECT_EQ(shares[t].count, first.count);
      EXPECT_GE(last.count, first.count);
      EXPECT_LT(last.count, first.count + most);
    }
  });
}

TEST(Team, LoopRowsGivesEachThreadOneRangeAndItsOwnSlice) {
  forTeams([](int most) {
    for (bool fork : {false, true})
      for (Index height : {1, 5, 64}) {
        Visits visits(height);
        std::mutex mutex;
        std::set<std::byte*> slices;
        EXPECT_EQ(loopRows(height, fork, 100,
                           [&](RowRange r, std::byte* slice) {
                             std::memset(slice, int(r.first), 100);
                             visits.visit(r);
                             std::lock_guard lock(mutex);
                             EXPECT_TRUE(slices.insert(slice).second);
                             EXPECT_EQ(slice[99], std::byte(r.first));
                           }),
                  huxStsOk);
        EXPECT_TRUE(visits.eachOnce());
        EXPECT_LE(int(slices.size()), fork ? most : 1);
      }
  });
}

// A caller's buffer bounds the team, whatever the number of threads asked for.
TEST(Team, SlicesOfTheCallersBufferBoundTheTeam) {
  forTeams([](int most) {
    for (int room : {1, 2, 5}) {
      Visits split(23), summed(23);
      std::vector<std::byte> buffer(std::size_t(room) * 24 + 1);
      const auto fill = [&](Visits& visits) {
        return [&](RowRange r, std::byte* slice) {
          EXPECT_EQ((slice - buffer.data()) % 24, 0);
          ASSERT_LT(slice - buffer.data(), 24 * room);
          std::memset(slice, 1 + int(r.first), 24);
          visits.visit(r);
        };
      };
      splitRows(23, room, buffer.data(), 24, fill(split));
      EXPECT_TRUE(split.eachOnce());
      int added = 0, last = 0;
      sumRows(23, room, buffer.data(), 24, fill(summed), [&](const std::byte* partial) {
        EXPECT_GT(int(*partial), last);
        last = int(*partial), ++added;
      });
      EXPECT_TRUE(summed.eachOnce());
      EXPECT_LE(added, std::min(most, room));
      EXPECT_EQ(buffer.back(), std::byte(0));
    }
  });
}

TEST(Team, TilesAreTakenOnceAndTheLowestStatusWins) {
  forTeams([](int) {
    for (Index tiles : {0, 1, 6, 50}) {
      Visits visits(tiles);
      std::atomic<int> prepared{0};
      const auto run = [&](HuxStatus ofPreparation) {
        return runTiles(
            {40, 24},
            [&](std::byte* shared, Index& count) {
              ++prepared;
              std::memset(shared, 0x11, 40);
              count = tiles;
              return ofPreparation;
            },
            [&](Index tile, std::byte* shared, std::byte* slice) {
              EXPECT_EQ(shared[39], std::byte(0x11));  // the master's work is seen by all
              std::memset(slice, int(tile), 24);
              visits.visit(tile);
              return HuxStatus(tile == 3 ? huxStsNoMem : tile == 4 ? huxStsBadSize : huxStsOk);
            });
      };
      EXPECT_EQ(run(huxStsBadOrder), huxStsBadOrder);
      EXPECT_TRUE(visits.none());
      EXPECT_EQ(run(huxStsOk), tiles > 4 ? huxStsNoMem : huxStsOk);
      EXPECT_EQ(prepared, 2);
      EXPECT_TRUE(visits.eachOnce());
    }
  });
}

TEST(Team, PartialSumsAreAddedInThreadOrder) {
  forTeams([](int most) {
    for (Index height : {1, 3, 40}) {
      Visits visits(height);
      Index last = -1, sum = 0, partials = 0;
      EXPECT_EQ(sumRows(
                    height, sizeof(Index),
                    [&](RowRange r, std::byte* partial) {
                      visits.visit(r);
                      std::memcpy(partial, &r.count, sizeof r.count);
                    },
                    [&](const std::byte* partial) {
                      Index count;
                      std::memcpy(&count, partial, sizeof count);
                      EXPECT_GE(count, last);  // equal shares, and the last takes the rest
                      last = count, sum += count, ++partials;
                    }),
                huxStsOk);
      EXPECT_TRUE(visits.eachOnce());
      EXPECT_EQ(sum, height);
      EXPECT_LE(partials, most);
    }
  });
}

// A call from inside another team: the runtime does not nest, and the team of one does all the work.
TEST(Team, RefusedTeamDoesAllTheWork) {
  huxSetThreadCount(4);
  std::atomic<int> whole{0};
  splitRows(4, [&](RowRange) {
    Visits rows(10), tiles(10);
    splitRows(10, [&](RowRange r) { rows.visit(r); });
    runTiles(
        {1, 1},
        [](std::byte*, Index& count) {
          count = 10;
          return HuxStatus(huxStsOk);
        },
        [&](Index tile, std::byte*, std::byte*) {
          tiles.visit(tile);
          return HuxStatus(huxStsOk);
        });
    whole += rows.eachOnce() && tiles.eachOnce();
  });
  EXPECT_GE(whole, 1);
}

// Several application threads, each with a team of its own.
TEST(Team, CallsFromSeveralThreadsDoNotDisturbEachOther) {
  const Hux32u before = huxGetThreadCount();
  std::vector<std::thread> callers;
  std::atomic<int> whole{0};
  for (int i = 0; i < 4; ++i)
    callers.emplace_back([&, i] {
      for (int round = 0; round < 20; ++round) {
        huxSetThreadCount(Hux32u(1 + (i + round) % 4));  // a call takes the count as it finds it
        Visits visits(33);
        splitRows(33, [&](RowRange r) { visits.visit(r); });
        whole += visits.eachOnce();
      }
    });
  for (auto& caller : callers) caller.join();
  EXPECT_EQ(whole, 80);
  huxSetThreadCount(before);
}

// The runtime's threads do not come along in a fork: a child that waited for them would hang, and is ended here.
TEST(Team, AForkedChildWorksByItself) {
  forTeams([](int) {
    const auto work = [] {
      std::atomic<Index> rows = 0, partials = 0;
      const auto count = [&](RowRange r, std::byte*) { rows += r.count; };
      splitRows(50, [&](RowRange r) { rows += r.count; });
      const HuxStatus looped = loopRows(50, true, 8, count);
      const auto prepare = [](std::byte*, Index& tiles) { return tiles = 50, HuxStatus(huxStsOk); };
      const HuxStatus tiled =
          runTiles({8, 8}, prepare, [&](Index, std::byte*, std::byte*) { return ++rows, HuxStatus(huxStsOk); });
      const HuxStatus summed = sumRows(50, 8, count, [&](const std::byte*) { ++partials; });
      return rows == 200 && partials >= 1 && !looped && !tiled && !summed;
    };
    ASSERT_TRUE(work());  // so that there is a team to remember
    const pid_t child = fork();
    if (child == 0) {
      alarm(20);
      _exit(work() ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(work());
  });
}

}  // namespace
}  // namespace hux::test
