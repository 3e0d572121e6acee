// The cosine transform of blocks, images and vectors beside dct. The peer differs from us in last places, so results
// are not compared.
#include <map>

#include "huxs.h"
#include "huxs_transform.h"
#include "numbers.h"

namespace {

using bench::add, bench::Image, bench::Numbers, bench::Shape;

// An image as blocks of 8 by 8 one behind the other.
template <class T>
struct Blocks : Numbers<T, 1> {
#ifdef HUX_BENCH_OPENCV
  std::vector<cv::Mat> blocks;
#endif
  Blocks() = default;
  explicit Blocks(HuxiSize s, int margin = 0) : Numbers<T, 1>(s, margin) {
#ifdef HUX_BENCH_OPENCV
    if constexpr (std::is_floating_point_v<T>)
      for (std::int64_t k = 0; k + 64 <= this->pixels(); k += 64) blocks.emplace_back(8, 8, CV_32F, this->data + k);
#endif
  }
};
#define BLOCKS(call) \
  RUN(for (std::int64_t k = 0; k + 64 <= o.src.pixels(); k += 64) call(o.src.data + k, o.dst.data + k))
#define PEER_BLOCKS(flags) \
  PEER("dct", for (std::size_t k = 0; k < o.src.blocks.size(); ++k) cv::dct(o.src.blocks[k], o.dst.blocks[k], flags))

HuxiDCTRecord* imageContext(HuxiSize size) {
  static std::map<std::pair<int, int>, HuxiDCTRecord*> made;
  HuxiDCTRecord*& record = made[{size.width, size.height}];
  if (!record) huxiDCTFwdInitAlloc_32f(&record, size, huxHintNone);
  return record;
}

// Vectors of n numbers that fill an image.
template <int N>
HuxsDCTRecord* vectorContext() {
  static HuxsDCTRecord* record = [] {
    HuxsDCTRecord* made = nullptr;
    huxsDCTFwdInitAlloc_32f(&made, N, huxHintNone);
    return made;
  }();
  return record;
}
template <int N>
struct Lines : Numbers<Hux32f, 1> {
#ifdef HUX_BENCH_OPENCV
  cv::Mat lines;
#endif
  Lines() = default;
  explicit Lines(HuxiSize s, int margin = 0) : Numbers<Hux32f, 1>(s, margin) {
#ifdef HUX_BENCH_OPENCV
    lines = cv::Mat(int(pixels() / N), N, CV_32F, data);
#endif
  }
};
template <int N>
void addVectors() {
  add<Lines<N>, Lines<N>>("huxsDCTFwd_32f " + std::to_string(N), Shape::Same,
                          RUN(static std::vector<Hux8u> buffer(1 << 20); const auto* record = vectorContext<N>();
                              for (std::int64_t i = 0; i + N <= o.src.pixels(); i += N)
                                  huxsDCTFwd_32f(o.src.data + i, o.dst.data + i, record, buffer.data())),
                          PEER("dct", cv::dct(o.src.lines, o.dst.lines, cv::DCT_ROWS)));
}

}  // namespace

void addCases() {
  using Floats = Blocks<Hux32f>;
  using Words = Blocks<Hux16s>;
  add<Floats, Floats>("DCT8x8Fwd_32f_C1", Shape::Same, BLOCKS(huxiDCT8x8Fwd_32f_C1), PEER_BLOCKS(0));
  add<Floats, Floats>("DCT8x8Inv_32f_C1", Shape::Same, BLOCKS(huxiDCT8x8Inv_32f_C1), PEER_BLOCKS(cv::DCT_INVERSE));
  // The peer has no integers: its floats stand for them.
  struct Both : Words {
    Floats floats;
#ifdef HUX_BENCH_OPENCV
    std::vector<cv::Mat>& blocks = floats.blocks;
#endif
    Both() = default;
    explicit Both(HuxiSize s, int margin = 0) : Words(s, margin), floats(s, margin) {}
    Both& operator=(const Both& other) {
      Words::operator=(other);
      floats = other.floats;
      return *this;
    }
    std::span<std::uint8_t> bytes() const { return {}; }
  };
  add<Both, Both>("DCT8x8Fwd_16s_C1", Shape::Same, BLOCKS(huxiDCT8x8Fwd_16s_C1), PEER_BLOCKS(0));
  add<Both, Both>("DCT8x8Inv_16s_C1", Shape::Same, BLOCKS(huxiDCT8x8Inv_16s_C1), PEER_BLOCKS(cv::DCT_INVERSE));
  add<Both, Both>("DCT8x8Inv_4x4_16s_C1", Shape::Same, BLOCKS(huxiDCT8x8Inv_4x4_16s_C1), PEER_BLOCKS(cv::DCT_INVERSE));
  add<Both, Both>("DCT8x8Inv_2x2_16s_C1", Shape::Same, BLOCKS(huxiDCT8x8Inv_2x2_16s_C1), PEER_BLOCKS(cv::DCT_INVERSE));
  add<Numbers<Hux32f, 1>, Numbers<Hux32f, 1>>("DCTFwd_32f_C1R", Shape::Same,
                                              RUN(huxiDCTFwd_32f_C1R(SRC, DST, imageContext(o.size), nullptr)),
                                              PEER("dct", cv::dct(o.src.mat, o.dst.mat)));
  addVectors<16>(), addVectors<64>(), addVectors<100>(), addVectors<256>(), addVectors<1000>(), addVectors<1024>(),
      addVectors<4096>();
}
