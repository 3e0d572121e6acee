// Contexts: records that open with a tag and hold what a family of calls shares, and the work memory that a caller may
// bring along.
//
// A record is planned before it is made: its routine takes the tables from an Arena, which counts, and gets their
// places as distances from the record. So one routine serves the sizes reported ahead, the caller's memory and our own,
// and a record in the caller's memory needs no more than was told, however wide a pointer is.
#pragma once

#include <cstdint>
#include <new>

#include "core/check.h"
#include "core/scratch.h"

namespace hux {

// Everything in a record, and work memory, starts at a multiple of this.
inline constexpr std::size_t kContextAlignment = 16;

constexpr std::size_t roundedUp(std::size_t bytes, std::size_t multiple = kContextAlignment) {
  return (bytes + multiple - 1) / multiple * multiple;
}
inline std::byte* roundedUp(void* memory) {
  return reinterpret_cast<std::byte*>(roundedUp(reinterpret_cast<std::uintptr_t>(memory)));
}

// A table of T by its distance from the record that it belongs to; false where there is none.
template <class T>
struct At {
  Hux32u sixteenths = 0;

  explicit operator bool() const { return sixteenths != 0; }
  T* in(void* record) const {
    return reinterpret_cast<T*>(static_cast<std::byte*>(record) + sixteenths * kContextAlignment);
  }
  const T* in(const void* record) const { return in(const_cast<void*>(record)); }
};

// The layout of a block that opens with a header. Tables are multiples of 32 bytes, so that in our own memory, and in
// any that is so aligned, vectors of tables lie within lines of the cache.
class Arena {
 public:
  explicit Arena(std::size_t header) : bytes_(roundedUp(header, kAlignment)) {}

  template <class T>
  At<T> take(Index count) {
    const At<T> at{Hux32u(bytes_ / kContextAlignment)};
    bytes_ += roundedUp(std::size_t(count) * sizeof(T), kAlignment);
    return at;
  }
  std::size_t bytes() const { return bytes_; }

 private:
  std::size_t bytes_;
};

// Makes a record in a block of ours. make(R*) builds it there and may fail; *pp is set on success only, and nothing
// remains otherwise.
template <class R, class Make>
HuxStatus create(R** pp, std::size_t bytes, Make make) {
  void* block = allocate(bytes);
  if (!block) return huxStsNoMem;
  R* record = static_cast<R*>(block);
  if (HuxStatus s = make(record)) {
    release(block);
    return s;
  }
  *elements(pp) = record;
  return huxStsOk;
}

// The same in the caller's memory, from its first multiple of 16 on.
template <class R, class Make>
HuxStatus place(R** pp, void* memory, Make make) {
  R* record = reinterpret_cast<R*>(roundedUp(memory));
  if (HuxStatus s = make(record)) return s;
  *elements(pp) = record;
  return huxStsOk;
}

// The test of a record's kind, behind that for null. The tag is the record's first word.
template <class R>
auto recordOf(const R* p, Hux32s tag) {
  return [=] { return failUnless(*reinterpret_cast<const Element<Hux32s>*>(p) == tag, huxStsBadContext); };
}

// Takes the tag away, so that the record is refused from now on, and frees the block if it is ours.
template <class R>
void retire(R* p, bool owned) {
  *reinterpret_cast<Element<Hux32s>*>(p) = 0;
  if (owned) release(p);
}

// Work memory of one call: the caller's, from its first multiple of 16 on, or where there is none a block of ours. It
// fails only where memory runs out; of 0 bytes it is empty and holds.
class WorkBuffer {
 public:
  WorkBuffer(void* callers, std::size_t bytes)
      : ours_(callers || bytes == 0 ? nullptr : allocate(bytes)),
        memory_(callers ? roundedUp(callers) : static_cast<std::byte*>(ours_)),
        holds_(memory_ || bytes == 0) {}
  ~WorkBuffer() { release(ours_); }
  WorkBuffer(const WorkBuffer&) = delete;
  WorkBuffer& operator=(const WorkBuffer&) = delete;

  explicit operator bool() const { return holds_; }
  std::byte* get() const { return memory_; }

 private:
  void* ours_;
  std::byte* memory_;
  bool holds_;
};

}  // namespace hux
