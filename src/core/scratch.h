// Work memory of one call.
#pragma once

#include <cstddef>

#include "core/layout.h"

namespace hux {

inline constexpr int kAlignment = 32;

// The body of huxsMalloc_* and huxsFree with the byte count in size_t: 32-byte aligned, null when memory runs out.
void* allocate(std::size_t bytes);
void release(void* block);

// A row or tile of work memory, gone at the end of the scope. Test it before use: a family that gets none returns
// huxStsNoMem.
template <class T>
class Scratch {
 public:
  explicit Scratch(Index count) : data_(static_cast<T*>(allocate(std::size_t(count) * sizeof(T)))) {}
  ~Scratch() { release(data_); }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  explicit operator bool() const { return data_ != nullptr; }
  T* get() const { return data_; }
  T& operator[](Index i) const { return data_[i]; }

 private:
  T* data_;
};

}  // namespace hux
