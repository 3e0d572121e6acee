// Look-up tables: tables of bytes, tables of 16 bits, searches, curves of floats, palettes.
#include "numbers.h"

namespace {

using bench::add, bench::Image, bench::Numbers, bench::Shape;

const Hux32s kLevels[] = {0, 30, 90, 160, 220, 256}, kValues[] = {10, 20, 140, 180, 230, 255};
const Hux32s kLevels16[] = {0, 3000, 9000, 16000, 32000, 65536}, kValues16[] = {10, 2000, 9000, 20000, 40000, 65535};
const Hux32f kLevels32f[] = {-200, -50, 0, 10, 90, 200}, kValues32f[] = {-1, 0, 3, 40, 80, 100};
const Hux32s *const kLists[] = {kLevels, kLevels, kLevels, kLevels}, *const kResults[] = {kValues, kValues, kValues,
                                                                                          kValues};
const int kCounts[] = {6, 6, 6, 6};

// The levels and values of many narrow segments.
struct Many {
  Hux32f levels[101], values[101];
  Many() {
    for (int k = 0; k <= 100; ++k) levels[k] = Hux32f(2 * k - 100), values[k] = Hux32f(k * k);
  }
} const kMany;
const Hux8u* palette() {
  static Hux8u entries[4 * 256];
  for (int i = 0; i < 4 * 256; ++i) entries[i] = Hux8u(i * 37);
  return entries;
}

#ifdef HUX_BENCH_OPENCV
// The same table as ours.
cv::Mat tableOf(HuxStatus (*fn)(Hux8u*, int, HuxiSize, const Hux32s*, const Hux32s*, int)) {
  cv::Mat table(1, 256, CV_8U);
  for (int i = 0; i < 256; ++i) table.at<Hux8u>(i) = Hux8u(i);
  fn(table.data, 256, {256, 1}, kValues, kLevels, 6);
  return table;
}
#endif

#define PEER_LUT(name) \
  PEER("LUT", static const cv::Mat table = tableOf(huxi##name##_8u_C1IR); cv::LUT(o.src.mat, table, o.dst.mat))
#define BYTES(name)                                                                                                    \
  add<Image<Hux8u, 1>, Image<Hux8u, 1>>(#name "_8u_C1R", Shape::Same,                                                  \
                                        RUN(huxi##name##_8u_C1R(SRC, DST, ROI, kValues, kLevels, 6)), PEER_LUT(name)); \
  add<Image<Hux8u, 3>, Image<Hux8u, 3>>(#name "_8u_C3R", Shape::Same,                                                  \
                                        RUN(huxi##name##_8u_C3R(SRC, DST, ROI, kResults, kLists, kCounts)),            \
                                        PEER_LUT(name))

}  // namespace

void addCases() {
  BYTES(LUT);
  BYTES(LUT_Linear);
  BYTES(LUT_Cubic);
  add<Image<Hux8u, 4>, Image<Hux8u, 4>>(
      "LUT_8u_AC4R", Shape::Same, RUN(huxiLUT_8u_AC4R(SRC, DST, ROI, kResults, kLists, kCounts)), bench::noPeer());
  add<Image<Hux16u, 1>, Image<Hux16u, 1>>(
      "LUT_16u_C1R", Shape::Same, RUN(huxiLUT_16u_C1R(SRC, DST, ROI, kValues16, kLevels16, 6)), bench::noPeer());
  add<Image<Hux16u, 1>, Image<Hux16u, 1>>("LUT_Cubic_16u_C1R", Shape::Same,
                                          RUN(huxiLUT_Cubic_16u_C1R(SRC, DST, ROI, kValues16, kLevels16, 6)),
                                          bench::noPeer());
  add<Numbers<Hux32f, 1>, Image<Hux32f, 1>>("LUT_32f_C1R, 6 levels", Shape::Same,
                                            RUN(huxiLUT_32f_C1R(SRC, DST, ROI, kValues32f, kLevels32f, 6)),
                                            bench::noPeer());
  add<Numbers<Hux32f, 1>, Image<Hux32f, 1>>("LUT_32f_C1R, 101 levels", Shape::Same,
                                            RUN(huxiLUT_32f_C1R(SRC, DST, ROI, kMany.values, kMany.levels, 101)),
                                            bench::noPeer());
  add<Numbers<Hux32f, 1>, Image<Hux32f, 1>>("LUT_Linear_32f_C1R", Shape::Same,
                                            RUN(huxiLUT_Linear_32f_C1R(SRC, DST, ROI, kValues32f, kLevels32f, 6)),
                                            bench::noPeer());
  add<Numbers<Hux32f, 1>, Image<Hux32f, 1>>("LUT_Cubic_32f_C1R", Shape::Same,
                                            RUN(huxiLUT_Cubic_32f_C1R(SRC, DST, ROI, kValues32f, kLevels32f, 6)),
                                            bench::noPeer());
  add<Image<Hux8u, 1>, Image<Hux8u, 3>>("LUTPalette_8u24u_C1R", Shape::Same,
                                        RUN(huxiLUTPalette_8u24u_C1R(SRC, DST, ROI, palette(), 8)), bench::noPeer());
  add<Image<Hux8u, 1>, Image<Hux32s, 1>>(
      "LUTPalette_8u32u_C1R", Shape::Same,
      RUN(huxiLUTPalette_8u32u_C1R(SRC, reinterpret_cast<Hux32u*>(o.dst.data), o.dst.step, ROI,
                                   reinterpret_cast<const Hux32u*>(palette()), 8)),
      bench::noPeer());
}
