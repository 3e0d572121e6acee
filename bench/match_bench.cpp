// Template matching beside OpenCV's, and on two threads beside one. The last places of the results differ, so that they
// are not compared.
#include "huxcore.h"
#include "numbers.h"

namespace {

using bench::Numbers;

// An image, a template and the results of the places where the template lies in the image.
template <class T>
struct Matching {
  Numbers<T, 1> src, tpl;
  bench::Image<Hux32f, 1> dst;

  Matching(int side, int n) : src({side, side}), tpl({n, n}), dst({side - n + 1, side - n + 1}) {}
};

template <class T, class Work, class Peer>
void at(const char* name, int side, int n, Work work, const char* peerName, Peer peer) {
  bench::Case c;
  c.name = std::string(name) + " " + std::to_string(n) + "x" + std::to_string(n);
  c.peerName = peerName;
  c.shape = bench::Shape::Same;
  c.pixelBytes = sizeof(T) + sizeof(Hux32f);
  c.only = {side, side};
  c.make = [=](HuxiSize) {
    auto o = std::make_shared<Matching<T>>(side, n);
    return bench::Job{[=] { work(*o); }, [=] { peer(*o); }, [] {}, {}, o->src.traffic() + o->dst.traffic()};
  };
  bench::add(std::move(c));
}

// The name of a member is the case's, its size apart; they are few, for each size is timed.
#define OPERANDS o.src.data, o.src.step, o.src.size, o.tpl.data, o.tpl.step, o.tpl.size, o.dst.data, o.dst.step
#ifdef HUX_BENCH_OPENCV
#define CASE(member, t, mode)                                                         \
  for (int side : {512, 1024, 2048})                                                  \
    for (int n : {16, 40, 64, 128})                                                   \
      at<Hux##t>(                                                                     \
          #member, side, n, [](auto& o) { huxi##member(OPERANDS); }, "matchTemplate", \
          [](auto& o) { cv::matchTemplate(o.src.mat, o.tpl.mat, o.dst.mat, cv::mode); });
#else
#define CASE(member, t, mode)        \
  for (int side : {512, 1024, 2048}) \
    for (int n : {16, 40, 64, 128})  \
      at<Hux##t>(                    \
          #member, side, n, [](auto& o) { huxi##member(OPERANDS); }, "", [](auto&) {});
#endif
#define TEAM(member, t)                       \
  for (int side : {512, 1024, 2048})          \
    for (int n : {16, 40, 64, 128})           \
      at<Hux##t>(                             \
          #member " on two threads", side, n, \
          [](auto& o) {                       \
            huxSetThreadCount(2);             \
            huxi##member(OPERANDS);           \
            huxSetThreadCount(1);             \
          },                                  \
          "one thread", [](auto& o) { huxi##member(OPERANDS); });

}  // namespace

void addCases() {
  CASE(CrossCorrValid_Norm_8u32f_C1R, 8u, TM_CCORR_NORMED)
  CASE(CrossCorrValid_NormLevel_8u32f_C1R, 8u, TM_CCOEFF_NORMED)
  CASE(SqrDistanceValid_Norm_8u32f_C1R, 8u, TM_SQDIFF_NORMED)
  CASE(CrossCorrValid_Norm_32f_C1R, 32f, TM_CCORR_NORMED)
  CASE(CrossCorrValid_NormLevel_32f_C1R, 32f, TM_CCOEFF_NORMED)
  CASE(SqrDistanceValid_Norm_32f_C1R, 32f, TM_SQDIFF_NORMED)
  TEAM(CrossCorrValid_NormLevel_8u32f_C1R, 8u)
  TEAM(SqrDistanceValid_Norm_32f_C1R, 32f)
}
