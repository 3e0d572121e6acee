#include "geometry/warp.h"

namespace hux {
namespace {

template <class T>
void smooth(const Warp& w, const Quad& quad, int orientation) {
  const bool planar = w.format.planes > 1;
  Channels<T> channels{{}, planar ? w.format.planes : w.format.stride, w.format.stride, w.dst.step};
  for (int c = 0; c < channels.count; ++c) {
    std::byte* first = planar ? w.dst.plane[c] : w.dst.plane[0] + c * Index(sizeof(T));
    channels.first[c] = reinterpret_cast<Element<T>*>(first);
  }
  ownvi_SmoothBorder(channels, quad, w.destination(), orientation);
}

}  // namespace

void Warp::smoothEdges(const Quad& quad, int orientation) const {
  if (!(interpolation & huxiInterSmoothEdge)) return;
  switch (format.type) {
    case ElementType::u8:
      return smooth<Hux8u>(*this, quad, orientation);
    case ElementType::u16:
      return smooth<Hux16u>(*this, quad, orientation);
    case ElementType::f32:
      return smooth<Hux32f>(*this, quad, orientation);
  }
}

}  // namespace hux
