// Convert and Scale of images, the bit images, and Convert of vectors.
#include "huxs.h"
#include "numbers.h"

namespace {

using bench::add, bench::Image, bench::Numbers, bench::Shape;

// To the depth of the destination, as cv::Mat::convertTo does it with or without a scale.
#define CONVERT_TO(...) PEER("convertTo", o.src.mat.convertTo(o.dst.mat, o.dst.mat.depth() __VA_OPT__(, ) __VA_ARGS__))
#define CASE(name, s, d, l, c, hux, ...) \
  add<Numbers<Hux##s, c>, Image<Hux##d, c>>(name, Shape::Same, RUN(hux), __VA_ARGS__)

#define CONVERT(s, d, l, c, ...)                                                                                       \
  CASE("Convert_" #s #d "_" #l "R", s, d, l, c, huxiConvert_##s##d##_##l##R(SRC, DST, ROI __VA_OPT__(, ) __VA_ARGS__), \
       CONVERT_TO())

void addConvert() {
  CONVERT(8u, 16u, C1, 1), CONVERT(8u, 16s, C1, 1), CONVERT(8u, 32s, C1, 1), CONVERT(8u, 32f, C1, 1);
  CONVERT(8s, 32s, C1, 1), CONVERT(8s, 32f, C1, 1);
  CONVERT(16u, 8u, C1, 1), CONVERT(16u, 32s, C1, 1), CONVERT(16u, 32f, C1, 1);
  CONVERT(16s, 8u, C1, 1), CONVERT(16s, 32f, C1, 1), CONVERT(32s, 8u, C1, 1), CONVERT(32s, 8s, C1, 1);
  CONVERT(32f, 8u, C1, 1, huxRndNear), CONVERT(32f, 8s, C1, 1, huxRndNear);
  CONVERT(32f, 16u, C1, 1, huxRndNear), CONVERT(32f, 16s, C1, 1, huxRndNear);
  CONVERT(8u, 32f, C3, 3), CONVERT(32f, 8u, C3, 3, huxRndNear);
  CASE("Convert_32f8u_C1R, to zero", 32f, 8u, C1, 1, huxiConvert_32f8u_C1R(SRC, DST, ROI, huxRndZero), bench::noPeer());
  CASE("Convert_32f8u_AC4R", 32f, 8u, AC4, 4, huxiConvert_32f8u_AC4R(SRC, DST, ROI, huxRndNear), bench::noPeer());
  CASE("Convert_8u32f_AC4R", 8u, 32f, AC4, 4, huxiConvert_8u32f_AC4R(SRC, DST, ROI), bench::noPeer());
}

// The quick forms, and 8u32s, give integers that a scale in floats does not.
#define SCALE_DOWN(s, factor, offset)                                                                          \
  CASE("Scale_" #s "8u_C1R, accurate", s, 8u, C1, 1, huxiScale_##s##8u_C1R(SRC, DST, ROI, huxAlgHintAccurate), \
       CONVERT_TO(factor, offset)),                                                                            \
      CASE("Scale_" #s "8u_C1R, quick", s, 8u, C1, 1, huxiScale_##s##8u_C1R(SRC, DST, ROI, huxHintNone),       \
           bench::noPeer())

void addScale() {
  CASE("Scale_8u16u_C1R", 8u, 16u, C1, 1, huxiScale_8u16u_C1R(SRC, DST, ROI), CONVERT_TO(257));
  CASE("Scale_8u16s_C1R", 8u, 16s, C1, 1, huxiScale_8u16s_C1R(SRC, DST, ROI), CONVERT_TO(257, -32768));
  CASE("Scale_8u32s_C1R", 8u, 32s, C1, 1, huxiScale_8u32s_C1R(SRC, DST, ROI), bench::noPeer());
  CASE("Scale_8u32f_C1R", 8u, 32f, C1, 1, huxiScale_8u32f_C1R(SRC, DST, ROI, 0, 1), CONVERT_TO(1 / 255.0));
  SCALE_DOWN(16u, 1 / 257.0, 0), SCALE_DOWN(16s, 1 / 257.0, 32768 / 257.0), SCALE_DOWN(32s, 1 / 16843009.0, 127.5);
  CASE("Scale_32f8u_C1R", 32f, 8u, C1, 1, huxiScale_32f8u_C1R(SRC, DST, ROI, -255, 255), CONVERT_TO(0.5, 127.5));
}

void addBits() {
  add<Image<Hux8u, 1>, Image<Hux8u, 1>>("Convert_1u8u_C1R", Shape::Same, RUN(huxiConvert_1u8u_C1R(SRC, 0, DST, ROI)),
                                        bench::noPeer());
  add<Image<Hux8u, 1>, Image<Hux8u, 1>>("Convert_8u1u_C1R", Shape::Same,
                                        RUN(huxiConvert_8u1u_C1R(SRC, DST, 0, ROI, 128)), bench::noPeer());
}

// Images of both sizes have no gaps between their rows.
#define LEN o.size.width* o.size.height
#define VECTOR(s, d, hux, ...) CASE("huxsConvert_" #s #d, s, d, C1, 1, huxsConvert_##hux, __VA_ARGS__)
#define VECTOR_SFS(s, d) VECTOR(s, d, s##d##_Sfs(o.src.data, o.dst.data, LEN, huxRndNear, 2), CONVERT_TO(0.25))

void addVectors() {
  VECTOR(32s, 32f, 32s32f(o.src.data, o.dst.data, LEN), CONVERT_TO());
  VECTOR(32s, 64f, 32s64f(o.src.data, o.dst.data, LEN), CONVERT_TO());
  VECTOR_SFS(32f, 8u), VECTOR_SFS(32f, 16s), VECTOR_SFS(32f, 32s), VECTOR_SFS(64f, 32s);
}

}  // namespace

void addCases() { addConvert(), addScale(), addBits(), addVectors(); }
