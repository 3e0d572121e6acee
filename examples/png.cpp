#include "png.h"

#include <png.h>

namespace tour {
namespace {

constexpr png_uint_32 formatOf(int channels) {
  return channels == 1 ? PNG_FORMAT_GRAY : channels == 3 ? PNG_FORMAT_RGB : PNG_FORMAT_RGBA;
}

// The library's view of one file, released with the object.
struct File : png_image {
  explicit File(std::string path) : png_image{}, path(std::move(path)) { version = PNG_IMAGE_VERSION; }
  ~File() { png_image_free(this); }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  void require(int done) const {
    if (!done) throw std::runtime_error(path + ": " + message);
  }

  std::string path;
};

}  // namespace

template <int Channels>
Image<Hux8u, Channels> loadPng(const std::string& path) {
  File file(path);
  file.require(png_image_begin_read_from_file(&file, path.c_str()));
  file.format = formatOf(Channels);
  Image<Hux8u, Channels> image({Hux32s(file.width), Hux32s(file.height)});
  file.require(png_image_finish_read(&file, nullptr, image.at(0, 0), image.step(), nullptr));
  return image;
}

template <int Channels>
void savePng(const std::string& path, const Image<Hux8u, Channels>& image) {
  File file(path);
  file.width = png_uint_32(image.size().width);
  file.height = png_uint_32(image.size().height);
  file.format = formatOf(Channels);
  file.require(png_image_write_to_file(&file, path.c_str(), 0, image.at(0, 0), image.step(), nullptr));
}

template Gray loadPng<1>(const std::string&);
template Colour loadPng<3>(const std::string&);
template void savePng<3>(const std::string&, const Colour&);

}  // namespace tour
