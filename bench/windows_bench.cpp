// Window functions. Separable windows beside a window image and a product, as OpenCV has them, by a Hann window; radial
// ones beside the loop that one would write.
#include <cmath>
#include <numbers>

#include "numbers.h"

namespace {

using bench::add, bench::Numbers, bench::Shape;

// The loop, without the middle row and column of odd sizes.
template <class T>
void radial(const T* src, T* dst, int step, HuxiSize size, bool hamming) {
  const int pitch = step / int(sizeof(T)), w = size.width, h = size.height;
  const double rx = w / 2.0, ry = h / 2.0, q = (ry / rx) * (ry / rx);
  for (int i = 0; i < h / 2; ++i)
    for (int j = 0; j < w / 2; ++j) {
      const double dx = rx - j, dy = ry - i, r = std::sqrt(dy * dy / q + dx * dx);
      const bool outside = r >= rx;
      const double weight = hamming   ? outside ? 0.08 : 0.54 - 0.46 * std::cos((rx - r) * (2 * std::numbers::pi / w))
                              : outside ? 0
                                      : 1 - r * (2.0 / w);
      for (const int y : {i, h - 1 - i})
        for (const int x : {j, w - 1 - j}) {
          const double product = src[std::int64_t(y) * pitch + x] * weight;
          dst[std::int64_t(y) * pitch + x] = std::is_integral_v<T> ? T(product + 0.5) : T(product);
        }
    }
}
#define LOOP(hamming) \
  bench::Side("plain loop", [](auto& o) { radial(o.src.data, o.dst.data, o.src.step, o.size, hamming); })

}  // namespace

void addCases() {
  add<Numbers<Hux8u, 1>, Numbers<Hux8u, 1>>("WinBartlett_8u_C1R", Shape::Same,
                                            RUN(huxiWinBartlett_8u_C1R(SRC, DST, ROI)), LOOP(false));
  add<Numbers<Hux32f, 1>, Numbers<Hux32f, 1>>("WinBartlett_32f_C1R", Shape::Same,
                                              RUN(huxiWinBartlett_32f_C1R(SRC, DST, ROI)), LOOP(false));
  add<Numbers<Hux8u, 1>, Numbers<Hux8u, 1>>("WinHamming_8u_C1R", Shape::Same, RUN(huxiWinHamming_8u_C1R(SRC, DST, ROI)),
                                            LOOP(true));
  add<Numbers<Hux32f, 1>, Numbers<Hux32f, 1>>("WinHamming_32f_C1R", Shape::Same,
                                              RUN(huxiWinHamming_32f_C1R(SRC, DST, ROI)), LOOP(true));
  add<Numbers<Hux8u, 1>, Numbers<Hux8u, 1>>("WinBartlettSep_8u_C1R", Shape::Same,
                                            RUN(huxiWinBartlettSep_8u_C1R(SRC, DST, ROI)), bench::noPeer());
  add<Numbers<Hux32f, 1>, Numbers<Hux32f, 1>>("WinBartlettSep_32f_C1R", Shape::Same,
                                              RUN(huxiWinBartlettSep_32f_C1R(SRC, DST, ROI)), bench::noPeer());
  add<Numbers<Hux8u, 1>, Numbers<Hux8u, 1>>("WinHammingSep_8u_C1R", Shape::Same,
                                            RUN(huxiWinHammingSep_8u_C1R(SRC, DST, ROI)), bench::noPeer());
  add<Numbers<Hux32f, 1>, Numbers<Hux32f, 1>>(
      "WinHammingSep_32f_C1R", Shape::Same, RUN(huxiWinHammingSep_32f_C1R(SRC, DST, ROI)),
      PEER("createHanningWindow, multiply", cv::Mat window; cv::createHanningWindow(window, o.src.mat.size(), CV_32F);
           cv::multiply(o.src.mat, window, o.dst.mat)));
}
