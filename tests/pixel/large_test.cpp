// Regions too large for a cache are written past it. Whatever the way, the result is that of the same call made band by
// band, which the other tests compare with the definitions.
#include "huxi_pixel.h"

#include "support/forms.h"

namespace hux::test {
namespace {

struct Large {
  const char* name;
  int srcBytes, dstBytes;  // of a pixel
  std::function<HuxStatus(const View& src, const View& dst, HuxiSize roi)> run;
  bool transposes = false;
};

#define MOVE(name, t, srcPixel, dstPixel, ...)                                                            \
  Large {                                                                                                 \
#name, srcPixel * int(sizeof(Hux##t)), dstPixel * int(sizeof(Hux##t)),                                  \
        [](const View& src, const View& dst, HuxiSize roi) {                                                \
          return name(reinterpret_cast<const Hux##t*>(src.first), src.step, reinterpret_cast<Hux##t*>(dst.first), \
                      dst.step, roi __VA_OPT__(, ) __VA_ARGS__);                                            \
        } \
  }

constexpr int kSwap[3] = {2, 0, 1};
const Hux8u kPixel8u[4] = {9, 8, 7, 6};
const Hux32s kPixel32s[4] = {-9, 8, -7, 6};

std::vector<Large> largeCalls() {
  std::vector<Large> calls = {
      MOVE(huxiCopy_8u_C1R, 8u, 1, 1),
      MOVE(huxiCopy_16s_C3R, 16s, 3, 3),
      MOVE(huxiCopy_8u_AC4C3R, 8u, 4, 3),
      MOVE(huxiCopy_16s_C3C1R, 16s, 3, 1),
      MOVE(huxiCopy_8u_AC4R, 8u, 4, 4),
      MOVE(huxiDup_8u_C1C3R, 8u, 1, 3),
      MOVE(huxiSwapChannels_8u_C3R, 8u, 3, 3, kSwap),
      MOVE(huxiSwapChannels_16u_AC4R, 16u, 4, 4, kSwap),
      MOVE(huxiMirror_8u_C1R, 8u, 1, 1, huxAxsVertical),
      MOVE(huxiMirror_16u_C3R, 16u, 3, 3, huxAxsVertical),
      MOVE(huxiMirror_32s_C4R, 32s, 4, 4, huxAxsVertical),
      {"huxiSet_8u_C3R", 3, 3,
       [](const View&, const View& dst, HuxiSize roi) {
         return huxiSet_8u_C3R(kPixel8u, reinterpret_cast<Hux8u*>(dst.first), dst.step, roi);
       }},
      {"huxiSet_32s_C3R", 12, 12,
       [](const View&, const View& dst, HuxiSize roi) {
         return huxiSet_32s_C3R(kPixel32s, reinterpret_cast<Hux32s*>(dst.first), dst.step, roi);
       }},
  };
  std::vector<Large> transposes = {MOVE(huxiTranspose_8u_C1R, 8u, 1, 1), MOVE(huxiTranspose_8u_C3R, 8u, 3, 3),
                                   MOVE(huxiTranspose_16u_C1R, 16u, 1, 1), MOVE(huxiTranspose_32s_C3R, 32s, 3, 3)};
  for (Large& t : transposes) {
    t.transposes = true;
    calls.push_back(t);
  }
  return calls;
}

// Source and destination together of some 60 MB, and a destination that starts at any address, or, so that whole
// vectors are written, at that of its elements.
TEST(Large, BandsAndWholeAgree) {
  Rng rng(1);
  for (const Large& call : largeCalls())
    for (bool aligned : {true, false}) {
      SCOPED_TRACE(std::string(call.name) + (aligned ? ", aligned" : ""));
      const int width = 2500 + between(rng, 0, 70), height = 60'000'000 / (call.srcBytes + call.dstBytes) / width;
      const HuxiSize dstSize = call.transposes ? HuxiSize{height, width} : HuxiSize{width, height};
      // A destination wider than the region, whose rows and whose region may be moved to any boundary.
      const int step = (dstSize.width * call.dstBytes + 200) / 192 * 192 + (aligned ? 0 : 1);
      const Image src(rng, width, height, call.srcBytes);
      const Image dst(rng, step, dstSize.height + 1, 1), banded = dst;
      const auto region = [&](const Image& image) {
        View view(image, Walk::kDown);
        view.pixelBytes = call.dstBytes;
        const auto past = std::size_t(reinterpret_cast<std::uintptr_t>(view.first) % 64);
        view.first += aligned ? (64 - past) % 64 + 16 * call.dstBytes : 5;
        return view;
      };
      const View whole = region(dst), reference = region(banded);
      ASSERT_EQ(call.run(View(src, Walk::kDown), whole, {width, height}), huxStsOk);
      for (int y = 0; y < height; y += 50) {
        View from(src, Walk::kDown), to = reference;
        from.first = from.at(0, y);
        to.first = call.transposes ? to.at(y, 0) : to.at(0, y);
        ASSERT_EQ(call.run(from, to, {width, std::min(50, height - y)}), huxStsOk);
      }
      ASSERT_TRUE(same(dst, banded));
    }
}

// The frame of a large image, in rows that are streamed and read again.
TEST(Large, BorderOfALargeImageIsThatOfItsRows) {
  Rng rng(2);
  const HuxiSize size = {5001, 4001}, full = {5040, 4015};
  const Image src(rng, size.width, size.height, 1), image(rng, full.width, full.height, 1), framed = image;
  ASSERT_EQ(huxiCopyReplicateBorder_8u_C1R(src.data<Hux8u>(), src.step(), size, image.data<Hux8u>(), image.step(), full,
                                           7, 20),
            huxStsOk);
  for (int y = 0; y < full.height; ++y) {
    const int from = std::clamp(y - 7, 0, size.height - 1);
    ASSERT_EQ(huxiCopyReplicateBorder_8u_C1R(reinterpret_cast<const Hux8u*>(src.bytes(0, from)), src.step(),
                                             {size.width, 1}, reinterpret_cast<Hux8u*>(framed.bytes(0, y)),
                                             framed.step(), {full.width, 1}, 0, 20),
              huxStsOk);
  }
  ASSERT_TRUE(same(image, framed));
}

}  // namespace
}  // namespace hux::test
