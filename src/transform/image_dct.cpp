// The cosine transform of images of any size: the transforms of vectors on all rows, then on all columns, four at a
// time; blocks of 8 by 8 go to the functions of those.
#include <limits>

#include "core/context.h"
#include "core/rows.h"
#include "core/stamp.h"
#include "huxi_transform.h"
#include "huxs_transform.h"
#include "lanes/split.h"

struct HuxiDCTRecord {
  Hux32s tag, width, height;
  HuxAccuracyHint hint;
  Hux32s bufSize;
  Hux32u is8x8;
  HuxsDCTRecord *rowSpec, *colSpec;  // the latter where the sides differ
};

namespace hux {
namespace {

using Record = HuxiDCTRecord;
constexpr int kColumns = 4;  // what the reported work memory holds of them
using V = Lanes<Hux32f, kColumns>;

struct Forward {
  static constexpr Hux32s tag = 31;
  static constexpr auto initAlloc = huxsDCTFwdInitAlloc_32f;
  static constexpr auto free = huxsDCTFwdFree_32f;
  static constexpr auto getBufSize = huxsDCTFwdGetBufSize_32f;
  static constexpr auto vector = huxsDCTFwd_32f;
  static constexpr auto block = huxiDCT8x8Fwd_32f_C1;
};
struct Inverse {
  static constexpr Hux32s tag = 32;
  static constexpr auto initAlloc = huxsDCTInvInitAlloc_32f;
  static constexpr auto free = huxsDCTInvFree_32f;
  static constexpr auto getBufSize = huxsDCTInvGetBufSize_32f;
  static constexpr auto vector = huxsDCTInv_32f;
  static constexpr auto block = huxiDCT8x8Inv_32f_C1;
};

template <class Way>
void freeVectors(const Record& record) {
  if (record.rowSpec) Way::free(record.rowSpec);
  if (record.colSpec) Way::free(record.colSpec);
}

template <class Way>
HuxStatus makeVectors(Record& record) {
  const auto lines = [](HuxsDCTRecord*& spec, int length, HuxAccuracyHint hint, std::int64_t& bytes) -> HuxStatus {
    if (HuxStatus s = Way::initAlloc(&spec, length, hint)) return s;
    int work = 0;
    Way::getBufSize(spec, &work);
    bytes = std::max<std::int64_t>(bytes, std::int64_t(16) * length + work);
    return huxStsOk;
  };
  std::int64_t bytes = 0;
  if (record.is8x8) {
    bytes = 16 * 8 * 8;
  } else {
    if (HuxStatus s = lines(record.rowSpec, record.width, record.hint, bytes)) return s;
    if (record.width != record.height)
      if (HuxStatus s = lines(record.colSpec, record.height, record.hint, bytes)) return s;
  }
  if (bytes + 16 > std::numeric_limits<Hux32s>::max()) return huxStsNoMem;
  record.bufSize = Hux32s(bytes + 16);
  return huxStsOk;
}

template <class Way>
HuxStatus initAlloc(Record** ppSpec, HuxiSize roi, HuxAccuracyHint hint) {
  if (HuxStatus s = check(pointers(ppSpec), size(roi))) return s;
  Record record{Way::tag, roi.width, roi.height, hint, 0, roi.width == 8 && roi.height == 8, nullptr, nullptr};
  HuxStatus s = makeVectors<Way>(record);
  if (!s)
    s = create(ppSpec, sizeof(Record), [&](Record* made) -> HuxStatus {
      *made = record;
      return huxStsOk;
    });
  if (s) freeVectors<Way>(record);
  return s;
}

template <class Way>
HuxStatus freeRecord(Record* pSpec) {
  if (HuxStatus s = check(pointers(pSpec), recordOf(pSpec, Way::tag))) return s;
  freeVectors<Way>(*pSpec);
  retire(pSpec, true);
  return huxStsOk;
}

template <class Way>
HuxStatus getBufSize(const Record* pSpec, int* pSize) {
  if (HuxStatus s = check(pointers(pSpec, pSize), recordOf(pSpec, Way::tag))) return s;
  *elements(pSize) = pSpec->bufSize;
  return huxStsOk;
}

// One channel of a row to a line and back.
template <class L>
void gather(const Element<Hux32f>* row, Hux32f* line, Index n) {
  for (Index x = 0; x < n; ++x) line[x] = row[x * L::channels];
}
template <class L>
void scatter(const Hux32f* line, Element<Hux32f>* row, Index n) {
  for (Index x = 0; x < n; ++x) row[x * L::channels] = line[x];
}

// `count` columns of a channel to lines of `height` and back, by squares where pixels lie side by side.
template <class L, bool ToLines>
void moveColumns(Rows<Hux32f> image, Index first, int count, Index height, Hux32f* lines) {
  Index y = 0;
  if constexpr (L::channels == 1)
    if (count == kColumns)
      for (; y + kColumns <= height; y += kColumns) {
        V square[kColumns];
        const auto at = [&](int i) { return image.row(y + i) + first; };
        const auto line = [&](int i) { return lines + i * height + y; };
        for (int i = 0; i < kColumns; ++i) square[i] = ToLines ? loadLanes<V>(at(i)) : loadLanes<V>(line(i));
        transposeSquare(square);
        for (int i = 0; i < kColumns; ++i) ToLines ? storeLanes(line(i), square[i]) : storeLanes(at(i), square[i]);
      }
  for (; y < height; ++y)
    for (int i = 0; i < count; ++i) {
      auto& pixel = image.row(y)[(first + i) * L::channels];
      if constexpr (ToLines)
        lines[i * height + y] = pixel;
      else
        pixel = lines[i * height + y];
    }
}

template <class Way, class L>
HuxStatus transformChannel(const Record& record, Rows<const Hux32f> src, Rows<Hux32f> dst, std::byte* work) {
  const Index width = record.width, height = record.height;
  auto* line = reinterpret_cast<Hux32f*>(work);
  if (record.is8x8) {
    for (Index y = 0; y < 8; ++y) gather<L>(src.row(y), line + 8 * y, 8);
    Way::block(line, line);
    for (Index y = 0; y < 8; ++y) scatter<L>(line + 8 * y, dst.row(y), 8);
    return huxStsOk;
  }
  auto* behindRow = reinterpret_cast<Hux8u*>(work + 16 * width);
  for (Index y = 0; y < height; ++y) {
    HuxStatus s;
    if constexpr (L::channels == 1) {
      s = Way::vector(argument<Hux32f>(src.row(y)), argument<Hux32f>(dst.row(y)), record.rowSpec, behindRow);
    } else {
      gather<L>(src.row(y), line, width);
      s = Way::vector(line, line, record.rowSpec, behindRow);
      scatter<L>(line, dst.row(y), width);
    }
    if (s) return s;
  }
  if (height == 1) return huxStsOk;
  const HuxsDCTRecord* column = record.colSpec ? record.colSpec : record.rowSpec;
  auto* behindColumns = reinterpret_cast<Hux8u*>(work + 16 * height);
  for (Index x = 0; x < width; x += kColumns) {
    const int count = int(std::min<Index>(kColumns, width - x));
    moveColumns<L, true>(dst, x, count, height, line);
    for (int i = 0; i < count; ++i)
      if (HuxStatus s = Way::vector(line + i * height, line + i * height, column, behindColumns)) return s;
    moveColumns<L, false>(dst, x, count, height, line);
  }
  return huxStsOk;
}

template <class Way, class L>
HuxStatus transform(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, const Record* pSpec, Hux8u* pBuffer) {
  if (HuxStatus s = check(pointers(pSpec), recordOf(pSpec, Way::tag), pointers(pSrc, pDst), steps(srcStep, dstStep)))
    return s;
  if (L::channels == 1 && pSpec->is8x8 && srcStep == 32 && dstStep == 32) return Way::block(pSrc, pDst);
  const WorkBuffer work(pBuffer, std::size_t(pSpec->bufSize));
  if (!work) return huxStsNoMem;
  auto src = rows<L>(pSrc, srcStep);
  auto dst = rows<L>(pDst, dstStep);
  for (int c = 0; c < L::processed; ++c, ++src.first, ++dst.first)
    if (HuxStatus s = transformChannel<Way, L>(*pSpec, src, dst, work.get())) return s;
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(name, Way)                                                                                  \
  HuxStatus huxiDCT##name##InitAlloc_32f(HuxiDCTRecord** ppSpec, HuxiSize roiSize, HuxAccuracyHint hint) { \
    return hux::initAlloc<hux::Way>(ppSpec, roiSize, hint);                                                \
  }                                                                                                        \
  HuxStatus huxiDCT##name##Free_32f(HuxiDCTRecord* pSpec) { return hux::freeRecord<hux::Way>(pSpec); }     \
  HuxStatus huxiDCT##name##GetBufSize_32f(const HuxiDCTRecord* pSpec, int* pSize) {                        \
    return hux::getBufSize<hux::Way>(pSpec, pSize);                                                        \
  }
EXPORT(Fwd, Forward)
EXPORT(Inv, Inverse)
#undef EXPORT

#define EXPORT_WAY(name, Way, l)                                                                   \
  HuxStatus huxiDCT##name##_32f_##l##R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, \
                                       const HuxiDCTRecord* pSpec, Hux8u* pBuffer) {               \
    return hux::transform<hux::Way, hux::l>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);         \
  }
#define EXPORT(_, l) EXPORT_WAY(Fwd, Forward, l) EXPORT_WAY(Inv, Inverse, l)
HUX_STAMP(EXPORT, (_), (C1, C3, C4, AC4))
