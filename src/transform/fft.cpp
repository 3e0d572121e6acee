// The power-of-two transform of vectors: contexts, complex transforms, and real ones with their packed spectra.
#include <limits>

#include "transform/vector.h"

// At most 80 bytes: that many are reported for a record without tables, besides the slack of its alignment.
struct HuxsFFTRecord {
  static constexpr Hux32s kComplex = 4, kReal = 6;

  Hux32s tag;
  HuxAccuracyHint hint;
  Hux32s workSize;
  Hux32u owned;
  hux::fft::RealPlan plan;  // of a complex record, its half is the whole

  const hux::fft::PowerPlan& whole() const { return plan.half; }
};
static_assert(sizeof(HuxsFFTRecord) <= 80);

namespace hux {
namespace {

using namespace fft;
using Record = HuxsFFTRecord;

constexpr Hux32s kReal = Record::kReal;

constexpr HuxStatus orderInRange(int n) { return failUnless(n >= 0 && n <= kMostOrder, huxStsBadOrder); }

// What is reported, all of it told by the order.
struct Sizes {
  std::int64_t record = 96, scratch = 0, work = 0;

  Sizes(Hux32s tag, int order) {
    if (order <= 3 || order > kMostOrder) return;
    const auto align = [](std::int64_t n) { return n & ~std::int64_t(15); };
    const std::int64_t n = std::int64_t(1) << order;
    const int complexOrder = tag == kReal ? order - 1 : order;
    record += align((std::int64_t(1) << complexOrder) + 19) + tablesBytes(complexOrder);
    if (tag == kReal) record += 2 * align(2 * n + 15);
    scratch = align(n + 19) + 16 + scratchBytes(complexOrder);
    work = workBytes(complexOrder);
  }
  HuxStatus fit() const {
    constexpr std::int64_t most = std::numeric_limits<Hux32s>::max();
    return failUnless(record <= most && scratch <= most, huxStsNoMem);
  }
};

Record planned(Hux32s tag, int order, HuxAccuracyHint hint, const Scaling& scaling) {
  Record record{};
  record.tag = tag;
  record.hint = hint;
  record.workSize = Hux32s(Sizes(tag, order).work);
  record.plan.order = order;
  record.plan.half.scaling = scaling;
  return record;
}

// Places the tables behind the record.
Arena take(Record& record) {
  Arena arena(sizeof(Record));
  RealPlan& plan = record.plan;
  if (record.tag == kReal)
    plan.take(arena);
  else
    plan.half.order = plan.order, plan.half.take(arena);
  return arena;
}

void fill(Record* record, Hux32f* scratch) {
  const RealPlan& plan = record->plan;
  if (plan.order <= 3) return;
  const Waves waves(plan.order, scratch);
  if (record->tag == kReal)
    plan.fill(record, waves);
  else
    plan.half.fill(record, waves);
}

HuxStatus initAlloc(Hux32s tag, Record** ppCtx, int order, Hux32s flag, HuxAccuracyHint hint) {
  if (HuxStatus s = check(pointers(ppCtx), orderInRange(order), Sizes(tag, order).fit())) return s;
  Record record = planned(tag, order, hint, {});
  record.owned = true;
  return create(ppCtx, take(record).bytes(), [&](Record* made) -> HuxStatus {
    if (HuxStatus s = scalingOf(flag, Index(1) << order, record.plan.half.scaling)) return s;
    const Scratch<Hux32f> waves(Waves::entries(order));
    if (!waves) return huxStsNoMem;
    *made = record;
    fill(made, waves.get());
    return huxStsOk;
  });
}

HuxStatus getSize(Hux32s tag, int order, int* pSize, int* pInitBufSize, int* pBufSize) {
  const Sizes sizes(tag, order);
  if (HuxStatus s = check(orderInRange(order), pointers(pSize, pInitBufSize, pBufSize), sizes.fit())) return s;
  *elements(pSize) = int(sizes.record);
  *elements(pInitBufSize) = int(sizes.scratch);
  *elements(pBufSize) = int(bufferBytes(sizes.work));
  return huxStsOk;
}

HuxStatus init(Hux32s tag, Record** ppCtx, int order, Hux32s flag, HuxAccuracyHint hint, Hux8u* pMem, Hux8u* pInitBuf) {
  Scaling scaling;
  const auto flagKnown = [&] { return scalingOf(flag, Index(1) << order, scaling); };
  const auto scratchGiven = order <= 3 ? HuxStatus(huxStsOk) : pointers(pInitBuf);
  if (HuxStatus s =
          check(pointers(ppCtx), orderInRange(order), pointers(pMem), flagKnown, scratchGiven, Sizes(tag, order).fit()))
    return s;
  Record record = planned(tag, order, hint, scaling);
  take(record);
  return place(ppCtx, pMem, [&](Record* made) -> HuxStatus {
    *made = record;
    fill(made, reinterpret_cast<Hux32f*>(roundedUp(pInitBuf)));
    return huxStsOk;
  });
}

template <Way W>
HuxStatus permTransform(const Hux32f* pSrc, Hux32f* pDst, const Record* pCtx, Hux8u* pBuffer) {
  return transforming(kReal, pSrc, pDst, pCtx, pBuffer, [=](std::byte* work) {
    if constexpr (W == Way::forward)
      transformReal<Order::perm>(pCtx, pCtx->plan, pSrc, pDst, work);
    else
      transformToReal<Order::perm>(pCtx, pCtx->plan, pSrc, pDst, work);
  });
}

}  // namespace
}  // namespace hux

#define EXPORT(kind, t)                                                                                         \
  HuxStatus huxsFFTInitAlloc_##t(HuxsFFTRecord** ppCtx, int order, int flag, HuxAccuracyHint hint) {            \
    return hux::initAlloc(HuxsFFTRecord::kind, ppCtx, order, flag, hint);                                       \
  }                                                                                                             \
  HuxStatus huxsFFTGetSize_##t(int order, int, HuxAccuracyHint, int* pSize, int* pInitBufSize, int* pBufSize) { \
    return hux::getSize(HuxsFFTRecord::kind, order, pSize, pInitBufSize, pBufSize);                             \
  }                                                                                                             \
  HuxStatus huxsFFTInit_##t(HuxsFFTRecord** ppCtx, int order, int flag, HuxAccuracyHint hint, Hux8u* pMem,      \
                            Hux8u* pInitBuf) {                                                                  \
    return hux::init(HuxsFFTRecord::kind, ppCtx, order, flag, hint, pMem, pInitBuf);                            \
  }
EXPORT(kComplex, C_32fc)
EXPORT(kReal, R_32f)
HUX_FOURIER_VECTORS(FFT)
HUX_VECTOR_TRANSFORM(FFTFwd_RToPerm_32f, Hux32f, HuxsFFTRecord, permTransform<hux::Way::forward>)
HUX_VECTOR_TRANSFORM(FFTInv_PermToR_32f, Hux32f, HuxsFFTRecord, permTransform<hux::Way::inverse>)
