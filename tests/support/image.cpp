#include "support/image.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <map>
#include <stdexcept>

namespace hux::test {
namespace {

// Mappings of small images gone, by size, for those to come: system calls and first touches of pages would otherwise
// take more of a test's time than its comparisons.
thread_local std::map<std::size_t, std::vector<std::byte*>> spareMappings;

}  // namespace

Image::Image(Rng& rng, int width, int height, int pixelBytes, Place place)
    : width_(width), height_(height), pixelBytes_(pixelBytes), place_(place) {
  const int row = width * pixelBytes;
  // One time in four without padding, so that regions of one long row are met as well.
  step_ = row + (between(rng, 0, 3) == 0 ? 0 : between(rng, 1, 37));
  const std::size_t span = std::size_t(step_) * std::size_t(height - 1) + std::size_t(row);
  const std::size_t before = place == Place::kStart ? 0 : std::size_t(between(rng, 0, 70) + 2 * step_);
  const std::size_t after = place == Place::kEnd ? 0 : std::size_t(between(rng, 0, 70) + 2 * step_);
  bytes_ = before + span + after;
  offset_ = before;
  allocate();
  for (std::size_t at = 0; at < bytes_; at += sizeof(Rng::result_type)) {
    const Rng::result_type word = rng();
    std::memcpy(memory_ + at, &word, std::min(sizeof word, bytes_ - at));
  }
}

Image::Image(const Image& other)
    : width_(other.width_),
      height_(other.height_),
      pixelBytes_(other.pixelBytes_),
      step_(other.step_),
      place_(other.place_),
      bytes_(other.bytes_),
      offset_(other.offset_) {
  allocate();
  std::memcpy(memory_, other.memory_, bytes_);
}

Image::~Image() {
  constexpr std::size_t kLarge = 1 << 20;
  if (mapped_ < kLarge)
    spareMappings[mapped_].push_back(mapping_);
  else
    munmap(mapping_, mapped_);
}

// The bytes lie between two unreadable pages, against the one or the other.
void Image::allocate() {
  const std::size_t page = std::size_t(sysconf(_SC_PAGESIZE));
  const std::size_t usable = (bytes_ + page - 1) / page * page;
  mapped_ = usable + 2 * page;
  if (auto& spare = spareMappings[mapped_]; !spare.empty()) {
    mapping_ = spare.back();
    spare.pop_back();
  } else {
    void* mapping = mmap(nullptr, mapped_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapping == MAP_FAILED) throw std::runtime_error("mmap failed");
    mapping_ = static_cast<std::byte*>(mapping);
    if (mprotect(mapping_ + page, usable, PROT_READ | PROT_WRITE) != 0) throw std::runtime_error("mprotect failed");
  }
  memory_ = mapping_ + page + (place_ == Place::kStart ? 0 : usable - bytes_);
  region_ = memory_ + offset_;
}

testing::AssertionResult same(const Image& actual, const Image& expected) {
  if (actual.bytes_ != expected.bytes_) return testing::AssertionFailure() << "images of different make";
  if (std::memcmp(actual.memory_, expected.memory_, actual.bytes_) == 0) return testing::AssertionSuccess();
  const auto at =
      std::mismatch(actual.memory_, actual.memory_ + actual.bytes_, expected.memory_).first - actual.memory_;
  const std::ptrdiff_t from = at - std::ptrdiff_t(actual.offset_);
  const std::ptrdiff_t y = from >= 0 ? from / actual.step_ : -1 - (-from - 1) / actual.step_;
  const std::ptrdiff_t byte = from - y * actual.step_;
  const bool inside = y >= 0 && y < actual.height_ && byte < std::ptrdiff_t(actual.width_) * actual.pixelBytes_;
  return testing::AssertionFailure() << (inside ? "wrong result" : "write outside the region") << " at row " << y
                                     << ", pixel " << byte / actual.pixelBytes_ << ", byte "
                                     << byte % actual.pixelBytes_ << ": " << int(actual.memory_[at]) << ", expected "
                                     << int(expected.memory_[at]) << " (region " << actual.width_ << " x "
                                     << actual.height_ << ", step " << actual.step_ << ")";
}

}  // namespace hux::test
