// The sums are made in double precision and narrowed. In bands of rows the first sum is made afresh. Along the band's
// first row each step adds the column that enters and takes off the one that leaves, square by square as (new - old) *
// (new + old); that change, too, goes from row to row by the line that enters below and the one that leaves above. So
// every sum takes four pixels, however large the window, and its rounding does not build up beyond a band. Sums of
// bytes are exact.
#include "stats/windows.h"

#include <algorithm>
#include <array>

#include "lanes/lanes.h"

namespace hux {
namespace {

constexpr Index kBand = 20;
constexpr Index kAbreast = 4;  // rows that are summed side by side, for each waits for its last sum

using V = Lanes<Hux64f, laneCount<Hux64f>>;
constexpr Index kLanes = lanesIn<V>;

V load(const Hux32f* p) { return convert<Hux64f>(loadLanes<Lanes<Hux32f, kLanes>>(p)); }

// N is 1 for squares and 2 for squares and pixels.
template <int N, class T>
void add(T (&sums)[N], T entering, T leaving) {
  const T difference = entering - leaving;
  sums[0] += difference * (entering + leaving);
  if constexpr (N == 2) sums[1] += difference;
}

// What the sums of a row change by from place to place; kAbreast rows of it.
template <int N>
class Changes {
 public:
  static Index room(Index across) { return kAbreast * N * wholeVectors(across); }
  Changes(Hux64f* room, Index across) : room_(room), across_(wholeVectors(across)) {
    std::fill_n(room, Changes::room(across), 0.0);
  }
  Hux64f* of(Index row, int sum) const { return room_ + (row % kAbreast * N + sum) * across_; }

  // The band's first row, from all rows of the window.
  void start(const Windows& w, const Hux32f* top) const {
    for (Index x = 0; x < across_; x += kLanes) {
      V change[N] = {};
      const Hux32f* p = top + x;
      for (Index j = 0; j < w.height; ++j, p += w.step) add(change, load(p + w.width), load(p));
      for (int i = 0; i < N; ++i) storeLanes(of(0, i) + x, change[i]);
    }
  }
  // Row `row` of the band from the one above: lines enter below and leave above.
  void move(const Windows& w, Index row, const Hux32f* entering, const Hux32f* leaving) const {
    for (Index x = 0; x < across_; x += kLanes) {
      V in[N] = {}, out[N] = {};
      add(in, load(entering + x + w.width), load(entering + x));
      add(out, load(leaving + x + w.width), load(leaving + x));
      for (int i = 0; i < N; ++i) storeLanes(of(row, i) + x, V(loadLanes<V>(of(row - 1, i) + x) + in[i] - out[i]));
    }
  }

 private:
  static Index wholeVectors(Index across) { return (across + kLanes - 1) / kLanes * kLanes; }
  Hux64f* room_;
  Index across_;
};

template <int N>
using Sums = std::array<Hux64f, N>;

// The sums of one window: of its columns first, then from left to right.
template <int N>
Sums<N> afresh(const Windows& w, const Hux32f* top) {
  Sums<N> sums{};
  for (Index x = 0; x < w.width; x += kLanes) {
    V columns[N] = {};
    const Hux32f* p = top + x;
    for (Index j = 0; j < w.height; ++j, p += w.step) add(columns, load(p), V{});
    for (Index l = 0; l < std::min(kLanes, w.width - x); ++l)
      for (int i = 0; i < N; ++i) sums[i] += columns[i][l];
  }
  return sums;
}

// store(y, sums) takes rows of sums, N of them `across` apart, row after row.
template <int N, class Store>
void windowSums(const Windows& w, Hux64f* room, Store store) {
  const Changes<N> changes(room, w.across);
  auto* rows = reinterpret_cast<Hux32f*>(room + Changes<N>::room(w.across));
  for (Index first = 0; first < w.down; first += kBand) {
    const Hux32f* band = w.pixels + first * w.step;
    const Index down = std::min(kBand, w.down - first);
    Sums<N> start = afresh<N>(w, band);
    changes.start(w, band);
    for (Index y = 0; y < down; y += kAbreast) {
      // The first sum of each row from that of the row above. Where there is none, and beyond the band, lines leave as
      // they enter.
      const Hux32f *entering[kAbreast], *leaving[kAbreast];
      for (Index r = 0; r < kAbreast; ++r) {
        const bool follows = y + r > 0 && y + r < down;
        leaving[r] = band + (follows ? y + r - 1 : 0) * w.step;
        entering[r] = leaving[r] + (follows ? w.height * w.step : 0);
        if (follows) changes.move(w, y + r, entering[r], leaving[r]);
      }
      Hux64f lines[kAbreast][N] = {}, sums[N][kAbreast];
      for (Index x = 0; x < w.width; ++x)
        for (Index r = 0; r < kAbreast; ++r) add(lines[r], Hux64f(entering[r][x]), Hux64f(leaving[r][x]));
      for (Index r = 0; r < kAbreast; ++r)
        for (int i = 0; i < N; ++i) sums[i][r] = start[i] += lines[r][i];

      for (int i = 0; i < N; ++i) {
        const Hux64f* change = changes.of(0, i);
        const Index apart = changes.of(1, i) - change;
        Hux32f* to = rows + i * w.across;
        for (Index x = 0; x < w.across; ++x)
          for (Index r = 0; r < kAbreast; ++r) {
            to[r * N * w.across + x] = Hux32f(sums[i][r]);
            sums[i][r] += change[r * apart + x];
          }
      }
      for (Index r = 0; r < std::min(kAbreast, down - y); ++r) store(first + y + r, rows + r * N * w.across);
    }
  }
}

}  // namespace

Index windowRoom(Index across) { return Changes<2>::room(across) + (kAbreast * 2 * across + 1) / 2; }

void windowEnergies(const Windows& w, Hux32f* energies, Index step, Hux64f* room) {
  windowSums<1>(
      w, room, [=, across = w.across](Index y, const Hux32f* sums) { std::copy_n(sums, across, energies + y * step); });
}

void windowVariances(const Windows& w, Hux32f inverse, Hux32f* variances, Index step, Hux64f* room) {
  windowSums<2>(w, room, [=, across = w.across](Index y, const Hux32f* sums) {
    Hux32f* to = variances + y * step;
    for (Index x = 0; x < across; ++x) to[x] = sums[x] - sums[across + x] * sums[across + x] * inverse;
  });
}

}  // namespace hux
