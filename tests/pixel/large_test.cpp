// Regions too large for a cache are written past it. Whatever the way, the result is that of the same call made band by
// band, which the other tests compare with the definitions.
#include "huxi_pixel.h"

#include "support/forms.h"

namespace hux::test {
namespace {

// An axis, an order of channels or a value comes through a pointer.
using MoveFn = HuxStatus(const void*, int, void*, int, HuxiSize, const void* how);
struct Large {
  int srcBytes, dstBytes;  // of a pixel; Set has no source
  MoveFn* run;
  const char* name;
  const void* how;
  bool transposes = false;
};
constexpr int kSwap[3] = {2, 0, 1}, kAxis = huxAxsVertical;
const Hux8u kPixel8u[4] = {9, 8, 7, 6};
const Hux32s kPixel32s[4] = {-9, 8, -7, 6};
#define MOVE(name, srcBytes, dstBytes, ...) \
  Large { srcBytes, dstBytes, as<MoveFn, huxi##name>, #name, __VA_ARGS__ }
const Large kLarge[] = {MOVE(Copy_8u_C1R, 1, 1, nullptr),
                        MOVE(Copy_16s_C3R, 6, 6, nullptr),
                        MOVE(Copy_8u_AC4C3R, 4, 3, nullptr),
                        MOVE(Copy_16s_C3C1R, 6, 2, nullptr),
                        MOVE(Copy_8u_AC4R, 4, 4, nullptr),
                        MOVE(Dup_8u_C1C3R, 1, 3, nullptr),
                        MOVE(SwapChannels_8u_C3R, 3, 3, kSwap),
                        MOVE(SwapChannels_16u_AC4R, 8, 8, kSwap),
                        MOVE(Mirror_8u_C1R, 1, 1, &kAxis),
                        MOVE(Mirror_16u_C3R, 6, 6, &kAxis),
                        MOVE(Mirror_32s_C4R, 16, 16, &kAxis),
                        MOVE(Transpose_8u_C1R, 1, 1, nullptr, true),
                        MOVE(Transpose_8u_C3R, 3, 3, nullptr, true),
                        MOVE(Transpose_16u_C1R, 2, 2, nullptr, true),
                        MOVE(Transpose_32s_C3R, 12, 12, nullptr, true),
                        {0, 3, as<MoveFn, huxiSet_8u_C3R, 5, 2, 3, 4>, "Set_8u_C3R", kPixel8u},
                        {0, 12, as<MoveFn, huxiSet_32s_C3R, 5, 2, 3, 4>, "Set_32s_C3R", kPixel32s}};

// A little more than the 40 MiB from which on rows are written past the cache, and a destination that starts at any
// address, or, so that whole vectors are written, at that of its elements.
TEST(Large, BandsAndWholeAgree) {
  Rng rng(1);
  for (const Large& call : kLarge)
    for (bool aligned : {true, false}) {
      SCOPED_TRACE(std::string(call.name) + (aligned ? ", aligned" : ""));
      const int width = 2500 + between(rng, 0, 70), height = 44'000'000 / (call.srcBytes + call.dstBytes) / width;
      const HuxiSize dstSize = call.transposes ? HuxiSize{height, width} : HuxiSize{width, height};
      // A destination wider than the region, whose rows and whose region may be moved to any boundary.
      const int step = (dstSize.width * call.dstBytes + 200) / 192 * 192 + (aligned ? 0 : 1);
      const Image src(rng, width, height, std::max(call.srcBytes, 1));
      const Image dst(rng, step, dstSize.height + 1, 1), banded = dst;
      const auto region = [&](const Image& image) {
        View view(image, Walk::kDown);
        view.pixelBytes = call.dstBytes;
        const auto past = std::size_t(reinterpret_cast<std::uintptr_t>(view.first) % 64);
        view.first += aligned ? (64 - past) % 64 + 16 * call.dstBytes : 5;
        return view;
      };
      const View whole = region(dst), reference = region(banded);
      const auto run = [&](std::byte* from, std::byte* to, int rows) {
        ASSERT_EQ(call.run(from, src.step(), to, whole.step, {width, rows}, call.how), huxStsOk);
      };
      run(src.bytes(), whole.first, height);
      for (int y = 0; y < height; y += 50)
        run(src.bytes(0, y), call.transposes ? reference.at(y, 0) : reference.at(0, y), std::min(50, height - y));
      ASSERT_TRUE(same(dst, banded));
    }
}

// The frame of a large image, in rows that are streamed and read again.
TEST(Large, BorderOfALargeImageIsThatOfItsRows) {
  Rng rng(2);
  const HuxiSize size = {5201, 4101}, full = {5240, 4115};
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
