#include "tests/abi/load_recorder.h"

#include <dlfcn.h>

#include <array>
#include <cstdlib>
#include <new>

namespace {

/// A list that asks for no memory, since it is filled where memory is freed.
struct List {
  std::array<const void*, 4096> addresses;
  std::size_t size;

  void Add(const void* address) {
    if (size < addresses.size()) addresses[size++] = address;
  }
  std::vector<const void*> Copy() const {
    return std::vector<const void*>(addresses.begin(),
                                    addresses.begin() + size);
  }
};

bool recording = false;
List made;
List destroyed;
List freed;

using Destructor = void (*)(void*);

struct Registered {
  Destructor destroy;
  void* object;
};

void DestroyAndRecord(void* registered) {
  const auto [destroy, object] = *static_cast<Registered*>(registered);
  std::free(registered);
  if (recording) destroyed.Add(object);
  destroy(object);
}

void Free(void* memory) {
  if (recording) freed.Add(memory);
  std::free(memory);
}

}  // namespace

// The name is the C++ runtime's, and reserved for it: taking its place is the
// point.
#ifdef __clang__
#pragma clang diagnostic ignored "-Wreserved-identifier"
#endif
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" __attribute__((visibility("default"))) int __cxa_atexit(
    Destructor destroy, void* object, void* library) {
  static const auto real = reinterpret_cast<int (*)(Destructor, void*, void*)>(
      dlsym(RTLD_NEXT, "__cxa_atexit"));
  if (!recording) return real(destroy, object, library);
  made.Add(object);
  auto* registered = static_cast<Registered*>(std::malloc(sizeof(Registered)));
  *registered = {destroy, object};
  return real(&DestroyAndRecord, registered, library);
}

void* operator new(std::size_t size) {
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { Free(memory); }

void operator delete(void* memory, std::size_t) noexcept { Free(memory); }

namespace velmohelp::testing {

void StartRecording() {
  made.size = destroyed.size = freed.size = 0;
  recording = true;
}

Recording StopRecording() {
  recording = false;
  return {made.Copy(), destroyed.Copy(), freed.Copy()};
}

}  // namespace velmohelp::testing
