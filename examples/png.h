// PNG files from and to 8-bit images of 1 (gray), 3 (RGB) or 4 (RGBA) channels. Failures are exceptions.
#pragma once

#include <string>

#include "image.h"

namespace tour {

template <int Channels>
Image<Hux8u, Channels> loadPng(const std::string& path);

template <int Channels>
void savePng(const std::string& path, const Image<Hux8u, Channels>& image);

}  // namespace tour
