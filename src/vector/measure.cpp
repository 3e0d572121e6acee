// Mean, Norm_L2 and DotProd of float vectors.
#include <cmath>

#include "core/check.h"
#include "huxs.h"
#include "lanes/elementwise.h"

namespace hux {
namespace {

// The sum of term(lanes...) over a vector in the precision W. There are as many partial sums as fit into 256 bytes and
// they are added up in halves, whatever the machine's vectors: the order of the additions is the same everywhere.
template <class W, class Term, class... Operands>
W sumOf(Index len, Term term, const Element<Operands>*... operands) {
  constexpr int lanes = laneCount<W>, vectors = 256 / kLaneBytes;
  Lanes<W, lanes> sums[vectors] = {};
  Index i = 0;
  for (; i + vectors * lanes <= len; i += vectors * lanes)
    for (int k = 0; k < vectors; ++k) sums[k] += term(loadLanes<Lanes<Operands, lanes>>(operands + i + k * lanes)...);
  for (int k = 0; i < len; ++k, i += lanes) {
    const int count = int(std::min<Index>(lanes, len - i));
    sums[k] += term(loadLanes<Lanes<Operands, lanes>>(operands + i, count, Operands(0))...);
  }
  W all[vectors * lanes];
  std::memcpy(all, sums, sizeof all);
  for (int half = vectors * lanes / 2; half > 0; half /= 2)
    for (int k = 0; k < half; ++k) all[k] += all[k + half];
  return all[0];
}

}  // namespace
}  // namespace hux

HuxStatus huxsMean_32f(const Hux32f* pSrc, int len, Hux32f* pResult) {
  if (HuxStatus s = hux::check(hux::pointers(pSrc, pResult), hux::length(len))) return s;
  const auto value = [](auto v) { return hux::convert<Hux64f>(v); };
  *hux::elements(pResult) = Hux32f(hux::sumOf<Hux64f>(len, value, hux::elements(pSrc)) / len);
  return huxStsOk;
}

HuxStatus huxsNorm_L2_32f(const Hux32f* pSrc, int len, Hux32f* pResult) {
  if (HuxStatus s = hux::check(hux::pointers(pSrc, pResult), hux::length(len))) return s;
  const auto square = [](auto v) { return hux::convert<Hux64f>(v) * hux::convert<Hux64f>(v); };
  *hux::elements(pResult) = Hux32f(std::sqrt(hux::sumOf<Hux64f>(len, square, hux::elements(pSrc))));
  return huxStsOk;
}

HuxStatus huxsDotProd_32f(const Hux32f* pSrc1, const Hux32f* pSrc2, int len, Hux32f* pResult) {
  if (HuxStatus s = hux::check(hux::pointers(pSrc1, pSrc2, pResult), hux::length(len))) return s;
  const auto product = [](auto a, auto b) { return a * b; };
  *hux::elements(pResult) = hux::sumOf<Hux32f>(len, product, hux::elements(pSrc1), hux::elements(pSrc2));
  return huxStsOk;
}
