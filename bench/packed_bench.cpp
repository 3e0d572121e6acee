// Packed spectra beside mulSpectrums, which has the same layout, and polar images beside magnitude and phase. The peer
// differs from us in last places, so results are not compared.
#include "numbers.h"

namespace {

using bench::add, bench::Image, bench::Numbers, bench::Pair, bench::Shape;

#define PAIRS o.src.first, o.src.step, o.src.second, o.src.step

// The peer keeps the parts of complex numbers in planes of their own.
struct Cartesian : Numbers<Hux32f, 2> {
#ifdef HUX_BENCH_OPENCV
  cv::Mat parts[2];
#endif
  Cartesian() = default;
  explicit Cartesian(HuxiSize s, int margin = 0) : Numbers<Hux32f, 2>(s, margin) {
#ifdef HUX_BENCH_OPENCV
    cv::split(mat, parts);
#endif
  }
  Hux32fc* elements() const { return reinterpret_cast<Hux32fc*>(data); }
};

}  // namespace

void addCases() {
  using One = Numbers<Hux32f, 1>;
  add<Pair<Hux32f, 1>, One>("MulPack_32f_C1R", Shape::Same, RUN(huxiMulPack_32f_C1R(PAIRS, DST, ROI)),
                            PEER("mulSpectrums", cv::mulSpectrums(o.src.mat1, o.src.mat2, o.dst.mat, 0)));
  add<Pair<Hux32f, 1>, One>("MulPackConj_32f_C1R", Shape::Same, RUN(huxiMulPackConj_32f_C1R(PAIRS, DST, ROI)),
                            PEER("mulSpectrums", cv::mulSpectrums(o.src.mat1, o.src.mat2, o.dst.mat, 0, true)));
  add<Pair<Hux32f, 3>, Numbers<Hux32f, 3>>("MulPack_32f_C3R", Shape::Same, RUN(huxiMulPack_32f_C3R(PAIRS, DST, ROI)),
                                           bench::noPeer());
  add<Pair<Hux32f, 4>, Numbers<Hux32f, 4>>("MulPack_32f_C4R", Shape::Same, RUN(huxiMulPack_32f_C4R(PAIRS, DST, ROI)),
                                           bench::noPeer());
  add<Pair<Hux16s, 1>, Image<Hux16s, 1>>("MulPack_16s_C1RSfs", Shape::Same,
                                         RUN(huxiMulPack_16s_C1RSfs(PAIRS, DST, ROI, 10)), bench::noPeer());
  add<Pair<Hux32s, 1>, Image<Hux32s, 1>>("MulPack_32s_C1RSfs", Shape::Same,
                                         RUN(huxiMulPack_32s_C1RSfs(PAIRS, DST, ROI, 20)), bench::noPeer());
  add<Cartesian, One>("Magnitude_32fc32f_C1R", Shape::Same,
                      RUN(huxiMagnitude_32fc32f_C1R(o.src.elements(), o.src.step, DST, ROI)),
                      PEER("magnitude", cv::magnitude(o.src.parts[0], o.src.parts[1], o.dst.mat)));
  add<Cartesian, One>("Phase_32fc32f_C1R", Shape::Same,
                      RUN(huxiPhase_32fc32f_C1R(o.src.elements(), o.src.step, DST, ROI)),
                      PEER("phase", cv::phase(o.src.parts[0], o.src.parts[1], o.dst.mat)));
  add<One, One>("MagnitudePack_32f_C1R", Shape::Same, RUN(huxiMagnitudePack_32f_C1R(SRC, DST, ROI)), bench::noPeer());
  add<One, Cartesian>(
      "PackToCplxExtend_32f32fc_C1R", Shape::Same,
      RUN(huxiPackToCplxExtend_32f32fc_C1R(o.src.data, o.size, o.src.step, o.dst.elements(), o.dst.step)),
      bench::noPeer());
}
