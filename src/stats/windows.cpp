// The sums are made in double precision and narrowed. In bands of rows the first sum is made afresh. Along the band's
// first row each step adds the column that enters and takes off the one that leaves, square by square as (new - old) *
// (new + old); that change, too, goes from row to row by the line that enters below and the one that leaves above. So
// every sum takes four pixels, however large the window, and its rounding does not build up beyond a band.
//
// Sums of bytes are exact, so they may be formed in another way: columns as high as a window are kept up from row to
// row, as floats, and running totals of integers make windows of them.
#include "stats/windows.h"

#include <algorithm>
#include <array>

#include "lanes/scan.h"

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

// store(y, sums) takes the N sums of a row, row after row.
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
      for (Index r = 0; r < std::min(kAbreast, down - y); ++r) {
        const Hux32f* of[N];
        for (int i = 0; i < N; ++i) of[i] = rows + (r * N + i) * w.across;
        store(first + y + r, of);
      }
    }
  }
}

// Of bytes, where floats hold the sums of columns and 32 bits those of windows.
bool areSmall(const Windows& w) { return w.bytes && w.height <= 258 && w.width * w.height <= 33025; }

template <int N>
class ByteColumns {
 public:
  static Index room(Index across, Index width) { return N * (step(across, width) + vectors(across)); }
  ByteColumns(const Windows& w, Hux32f* room)
      : w_(w), step_(step(w.across, w.width)), columns_(room), sums_(room + N * step_) {
    std::fill_n(columns_, N * step_, 0.0f);
    for (Index j = 0; j < w.height; ++j) move([p = w.pixels + j * w.step](Index x) { return Pair{load(p + x), F{}}; });
  }

  // To the windows one row below.
  void down(Index row) {
    const Hux32f *leaving = w_.pixels + row * w_.step, *entering = leaving + w_.height * w_.step;
    move([=](Index x) { return Pair{load(entering + x), load(leaving + x)}; });
  }

  // The sums of the windows of this row.
  const Hux32f* sums(int i) const {
    const Hux32f* columns = columns_ + i * step_;
    Hux32f* to = sums_ + i * vectors(w_.across);
    Hux32s first = 0;
    for (Index x = 0; x < w_.width; ++x) first += Hux32s(columns[x]);
    I before = splat<I>(first);
    for (Index x = 0; x < w_.across; x += lanes) {
      const I change = convert<Hux32s>(load(columns + x + w_.width) - load(columns + x)),
              upTo = runningTotals<1>(change);
      storeLanes(to + x, convert<Hux32f>(before + upTo - change));
      before += lastPixel<1>(upTo);
    }
    return to;
  }

 private:
  using F = Lanes<Hux32f, laneCount<Hux32f>>;
  using I = Lanes<Hux32s, laneCount<Hux32s>>;
  static constexpr Index lanes = lanesIn<F>;
  struct Pair {
    F entering, leaving;
  };

  static F load(const Hux32f* p) { return loadLanes<F>(p); }
  static Index vectors(Index n) { return (n + lanes - 1) / lanes * lanes; }
  static Index step(Index across, Index width) { return vectors(across + width) + lanes; }

  template <class At>
  void move(At at) {
    for (Index x = 0; x < w_.across + w_.width - 1; x += lanes) {
      const auto [entering, leaving] = at(x);
      F sums[N];
      for (int i = 0; i < N; ++i) sums[i] = load(columns_ + i * step_ + x);
      add(sums, entering, leaving);
      for (int i = 0; i < N; ++i) storeLanes(columns_ + i * step_ + x, sums[i]);
    }
  }

  const Windows& w_;
  Index step_;
  Hux32f *columns_, *sums_;
};

template <int N, class Store>
void byteSums(const Windows& w, Hux64f* room, Store store) {
  ByteColumns<N> columns(w, reinterpret_cast<Hux32f*>(room));
  for (Index y = 0; y < w.down; ++y) {
    if (y > 0) columns.down(y - 1);
    const Hux32f* sums[N];
    for (int i = 0; i < N; ++i) sums[i] = columns.sums(i);
    store(y, sums);
  }
}

template <int N, class Store>
void sumsOf(const Windows& w, Hux64f* room, Store store) {
  return areSmall(w) ? byteSums<N>(w, room, store) : windowSums<N>(w, room, store);
}

}  // namespace

Index windowRoom(Index across, Index width) {
  const Index bands = Changes<2>::room(across) + (kAbreast * 2 * across + 1) / 2;
  return std::max(bands, (ByteColumns<2>::room(across, width) + 1) / 2);
}

void owniAutoCorr(const Windows& w, Hux32f* energies, Index step, Hux64f* room) {
  sumsOf<1>(w, room, [=, across = w.across](Index y, const Hux32f* const(&sums)[1]) {
    std::copy_n(sums[0], across, energies + y * step);
  });
}

void windowVariances(const Windows& w, Hux32f inverse, Hux32f* variances, Index step, Hux64f* room) {
  sumsOf<2>(w, room, [=, across = w.across](Index y, const Hux32f* const(&sums)[2]) {
    Hux32f* to = variances + y * step;
    for (Index x = 0; x < across; ++x) to[x] = sums[0][x] - sums[1][x] * sums[1][x] * inverse;
  });
}

}  // namespace hux
