#include "workers/tiles.h"

#include <algorithm>

#include "core/check.h"

// Rows lie in the order perm, so that the complex columns start at whole vectors. The first number of each row is none:
// its halves are the two real columns, which are transformed apart, before the group of columns that they lie in is,
// and come back after it.
namespace hux {
namespace {

using fft::Way;
using V = SplitLanes;
using Z = Split<V>;
constexpr Index kGroup = 2 * kSplitLanes;  // floats of a group of columns

Z product(Z a, Z b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }

// Of real columns, in the order perm: the first two numbers are real.
void conjugate(Hux32f* column, Index n) {
  for (Index i = 3; i < n; i += 2) column[i] = -column[i];
}
// In lanes apart, for GCC 12 would make fused operations of products as they lie, whatever it is told.
void multiplyColumn(const Hux32f* a, Hux32f* b, Index n) {
  b[0] = a[0] * b[0], b[1] = a[1] * b[1];
  for (Index i = 2; i < n; i += kGroup) {
    const Index count = std::min<Index>(kSplitLanes, (n - i) / 2);
    if (count == kSplitLanes)
      storeSplit(b + i, product(loadSplit<V>(a + i), loadSplit<V>(b + i)));
    else
      storeSplit(b + i, product(loadSplit<V>(a + i, count), loadSplit<V>(b + i, count)), count);
  }
}

}  // namespace

HuxStatus Blocks::make(int orderX, int orderY) {
  const auto inRange = [](int order) { return order <= fft::kMostOrder; };
  if (HuxStatus s = failUnless(inRange(orderX) && inRange(orderY), huxStsBadOrder)) return s;
  return fft::makeImageRecord(&record_, Record::kReal, orderX, orderY, {1 << orderX, 1 << orderY}, huxFftScaleInv,
                              huxHintNone);
}

Index Blocks::groups() const { return (width() + kGroup - 1) / kGroup; }
Index Blocks::spectrumFloats() const { return (groups() * kGroup + 2) * height(); }

// What the transforms need, a group of columns between its way forward and back, and the real columns.
std::size_t Blocks::workBytes() const {
  return roundedUp(std::size_t(record_->bufSize), 64) + std::size_t(height() * (kGroup + 2)) * sizeof(Hux32f);
}

void Blocks::forwardRows(Hux32f* block, Index step, std::byte* work) const {
  for (Index y = 0; y < height(); ++y)
    fft::transformReal<fft::Order::perm>(record_, record_->plan.realRow, block + y * step, block + y * step, work);
}

void Blocks::takeOuter(const Hux32f* block, Index step, Hux32f* outer, std::byte* work) const {
  const Index n = height();
  for (Index y = 0; y < n; ++y) outer[y] = block[y * step], outer[n + y] = block[y * step + 1];
  for (Hux32f* column : {outer, outer + n})
    fft::transformReal<fft::Order::perm>(record_, record_->plan.realColumn, column, column, work);
}

void Blocks::spectrumOf(Hux32f* block, Index step, Hux32f* spectrum, bool conjugated, std::byte* work) const {
  const Index n = height();
  forwardRows(block, step, work);
  Hux32f* outer = spectrum + groups() * kGroup * n;
  takeOuter(block, step, outer, work);
  if (conjugated) conjugate(outer, n), conjugate(outer + n, n);
  for (Index g = 0; g < groups(); ++g)
    fft::transformColumns<Way::forward>(
        record_, record_->plan.column, n, work, [=](Index y) { return loadSplit<V>(block + y * step + g * kGroup); },
        [=](Index y, Z z) {
          storeParted(spectrum + (g * n + y) * kGroup, conjugated ? Z{z.re, -z.im} : z);
        });
}

void Blocks::multiply(Hux32f* block, Index step, const Hux32f* spectrum, std::byte* work) const {
  const Index n = height();
  auto* group = reinterpret_cast<Hux32f*>(work + roundedUp(std::size_t(record_->bufSize), 64));
  Hux32f* outer = group + n * kGroup;
  forwardRows(block, step, work);
  takeOuter(block, step, outer, work);
  for (Index g = 0; g < groups(); ++g) {
    const Hux32f* factors = spectrum + g * n * kGroup;
    Hux32f* columns = block + g * kGroup;
    fft::transformColumns<Way::forward>(
        record_, record_->plan.column, n, work, [=](Index y) { return loadSplit<V>(columns + y * step); },
        [=](Index y, Z z) { storeParted(group + y * kGroup, product(loadParted<V>(factors + y * kGroup), z)); });
    fft::transformColumns<Way::inverse>(
        record_, record_->plan.column, n, work, [=](Index y) { return loadParted<V>(group + y * kGroup); },
        [=](Index y, Z z) { storeSplit(columns + y * step, z); });
  }
  const Hux32f* factors = spectrum + groups() * kGroup * n;
  for (Index c = 0; c < 2; ++c) {
    Hux32f* column = outer + c * n;
    multiplyColumn(factors + c * n, column, n);
    fft::transformToReal<fft::Order::perm>(record_, record_->plan.realColumn, column, column, work);
    for (Index y = 0; y < n; ++y) block[y * step + c] = column[y];
  }
}

void Blocks::finish(Hux32f* row, std::byte* work) const {
  fft::transformToReal<fft::Order::perm>(record_, record_->plan.realRow, row, row, work);
}

}  // namespace hux
