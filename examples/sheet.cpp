#include "sheet.h"

#include <algorithm>
#include <string>

namespace tour {
namespace {

constexpr int kColumns = 4;
constexpr HuxiSize kTile = {312, 234};
constexpr int kGap = 24, kHead = 64, kLabel = 46;  // between tiles, above the first row, below each tile

constexpr Hux8u kPaper[3] = {24, 27, 32}, kMount[3] = {36, 40, 47}, kInk[3] = {240, 238, 230},
                kNote[3] = {150, 156, 166};

// 5 x 7 glyphs of the signs from space to Z: a byte for each column, the lowest bit on top.
constexpr Hux8u kGlyphs[][5] = {
    {0x00, 0x00, 0x00, 0x00, 0x00}, {0x00, 0x00, 0x5f, 0x00, 0x00}, {0x00, 0x07, 0x00, 0x07, 0x00},
    {0x14, 0x7f, 0x14, 0x7f, 0x14}, {0x24, 0x2a, 0x7f, 0x2a, 0x12}, {0x23, 0x13, 0x08, 0x64, 0x62},
    {0x36, 0x49, 0x55, 0x22, 0x50}, {0x00, 0x05, 0x03, 0x00, 0x00}, {0x00, 0x1c, 0x22, 0x41, 0x00},
    {0x00, 0x41, 0x22, 0x1c, 0x00}, {0x14, 0x08, 0x3e, 0x08, 0x14}, {0x08, 0x08, 0x3e, 0x08, 0x08},
    {0x00, 0x50, 0x30, 0x00, 0x00}, {0x08, 0x08, 0x08, 0x08, 0x08}, {0x00, 0x60, 0x60, 0x00, 0x00},
    {0x20, 0x10, 0x08, 0x04, 0x02},                                                                  // ... /
    {0x3e, 0x51, 0x49, 0x45, 0x3e}, {0x00, 0x42, 0x7f, 0x40, 0x00}, {0x42, 0x61, 0x51, 0x49, 0x46},  // 0 1 2
    {0x21, 0x41, 0x45, 0x4b, 0x31}, {0x18, 0x14, 0x12, 0x7f, 0x10}, {0x27, 0x45, 0x45, 0x45, 0x39},
    {0x3c, 0x4a, 0x49, 0x49, 0x30}, {0x01, 0x71, 0x09, 0x05, 0x03}, {0x36, 0x49, 0x49, 0x49, 0x36},
    {0x06, 0x49, 0x49, 0x29, 0x1e}, {0x00, 0x36, 0x36, 0x00, 0x00}, {0x00, 0x56, 0x36, 0x00, 0x00},  // 9 : ;
    {0x08, 0x14, 0x22, 0x41, 0x00}, {0x14, 0x14, 0x14, 0x14, 0x14}, {0x00, 0x41, 0x22, 0x14, 0x08},
    {0x02, 0x01, 0x51, 0x09, 0x06}, {0x32, 0x49, 0x79, 0x41, 0x3e}, {0x7e, 0x11, 0x11, 0x11, 0x7e},  // ? @ A
    {0x7f, 0x49, 0x49, 0x49, 0x36}, {0x3e, 0x41, 0x41, 0x41, 0x22}, {0x7f, 0x41, 0x41, 0x22, 0x1c},
    {0x7f, 0x49, 0x49, 0x49, 0x41}, {0x7f, 0x09, 0x09, 0x09, 0x01}, {0x3e, 0x41, 0x49, 0x49, 0x7a},
    {0x7f, 0x08, 0x08, 0x08, 0x7f}, {0x00, 0x41, 0x7f, 0x41, 0x00}, {0x20, 0x40, 0x41, 0x3f, 0x01},
    {0x7f, 0x08, 0x14, 0x22, 0x41}, {0x7f, 0x40, 0x40, 0x40, 0x40}, {0x7f, 0x02, 0x0c, 0x02, 0x7f},
    {0x7f, 0x04, 0x08, 0x10, 0x7f}, {0x3e, 0x41, 0x41, 0x41, 0x3e}, {0x7f, 0x09, 0x09, 0x09, 0x06},
    {0x3e, 0x41, 0x51, 0x21, 0x5e}, {0x7f, 0x09, 0x19, 0x29, 0x46}, {0x46, 0x49, 0x49, 0x49, 0x31},
    {0x01, 0x01, 0x7f, 0x01, 0x01}, {0x3f, 0x40, 0x40, 0x40, 0x3f}, {0x1f, 0x20, 0x40, 0x20, 0x1f},
    {0x3f, 0x40, 0x38, 0x40, 0x3f}, {0x63, 0x14, 0x08, 0x14, 0x63}, {0x07, 0x08, 0x70, 0x08, 0x07},
    {0x61, 0x51, 0x49, 0x45, 0x43},
};

// Writes one line of text in dots of `dot` pixels: the dots are set in a mask, and the ink goes through the mask.
void write(Colour& on, int x, int y, std::string_view text, int dot, const Hux8u ink[3]) {
  const int room = (on.size().width - x) / (6 * dot);
  text = text.substr(0, std::size_t(std::max(room, 0)));
  if (text.empty()) return;
  const HuxiSize line = {int(text.size()) * 6 * dot, 7 * dot};
  Gray mask(line);
  HUX_DO(huxiSet_8u_C1R(0, mask.at(0, 0), mask.step(), line));
  for (int i = 0; i < int(text.size()); ++i) {
    char sign = text[std::size_t(i)];
    if (sign >= 'a' && sign <= 'z') sign = char(sign - 'a' + 'A');
    if (sign < ' ' || sign > 'Z') sign = '?';
    for (int column = 0; column < 5; ++column)
      for (int row = 0; row < 7; ++row)
        if (kGlyphs[sign - ' '][column] >> row & 1)
          HUX_DO(huxiSet_8u_C1R(255, mask.at((i * 6 + column) * dot, row * dot), mask.step(), {dot, dot}));
  }
  HUX_DO(huxiSet_8u_C3MR(ink, on.at(x, y), on.step(), line, mask.at(0, 0), mask.step()));
}

// Reduces a picture: each pixel is the mean of the rectangle that it covers.
Colour reduced(const Colour& picture, HuxiSize size) {
  Colour result(size);
  const auto begin = [](int i, int from, int to) { return int(Hux64s(i) * from / to); };
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x) {
      const int x0 = begin(x, picture.size().width, size.width), y0 = begin(y, picture.size().height, size.height);
      const int x1 = std::max(x0 + 1, begin(x + 1, picture.size().width, size.width));
      const int y1 = std::max(y0 + 1, begin(y + 1, picture.size().height, size.height));
      int sum[3] = {};
      for (int v = y0; v < y1; ++v)
        for (int u = x0; u < x1; ++u)
          for (int c = 0; c < 3; ++c) sum[c] += picture.at(u, v)[c];
      const int count = (x1 - x0) * (y1 - y0);
      for (int c = 0; c < 3; ++c) result.at(x, y)[c] = Hux8u((sum[c] + count / 2) / count);
    }
  return result;
}

// The largest size of the picture's proportions that a tile holds.
HuxiSize fitted(HuxiSize picture) {
  if (Hux64s(picture.width) * kTile.height >= Hux64s(picture.height) * kTile.width)
    return {kTile.width, std::max(1, int(Hux64s(picture.height) * kTile.width / picture.width))};
  return {std::max(1, int(Hux64s(picture.width) * kTile.height / picture.height)), kTile.height};
}

HuxiSize sheetSize(int tiles) {
  const int rows = (tiles + kColumns - 1) / kColumns;
  return {kGap + kColumns * (kTile.width + kGap), kHead + rows * (kTile.height + kLabel + kGap)};
}

}  // namespace

Sheet::Sheet(std::string_view title, int tiles) : image_(sheetSize(tiles)) {
  HUX_DO(huxiSet_8u_C3R(kPaper, image_.at(0, 0), image_.step(), image_.size()));
  write(image_, kGap, (kHead - 7 * 3) / 2, title, 3, kInk);
}

void Sheet::add(std::string_view title, std::string_view note, const Colour& picture) {
  const int x = kGap + next_ % kColumns * (kTile.width + kGap);
  const int y = kHead + next_ / kColumns * (kTile.height + kLabel + kGap);
  ++next_;
  HUX_DO(huxiSet_8u_C3R(kMount, image_.at(x, y), image_.step(), kTile));
  const Colour tile = reduced(picture, fitted(picture.size()));
  const int left = (kTile.width - tile.size().width) / 2, top = (kTile.height - tile.size().height) / 2;
  HUX_DO(huxiCopy_8u_C3R(tile.at(0, 0), tile.step(), image_.at(x + left, y + top), image_.step(), tile.size()));
  write(image_, x, y + kTile.height + 10, title, 2, kInk);
  write(image_, x, y + kTile.height + 32, note.substr(0, kTile.width / 6), 1, kNote);
}

}  // namespace tour
