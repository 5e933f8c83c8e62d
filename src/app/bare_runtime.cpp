// What the program takes of the C++ runtime, written for a program that neither throws nor catches.
// The library's own versions would bring exceptions along after all: an unwinder, a demangler for
// their names and strings for their texts, an eighth of the program. Whatever would throw ends the
// program, as it does where nobody catches. Where the linker names one of these twice, the library
// wants another function of that kind: it belongs here too.
#include <windows.h>

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <new>
#include <string>

void* operator new(std::size_t size) {
  if (void* const block = std::malloc(size)) return block;
  std::abort();
}

void* operator new(std::size_t size, const std::nothrow_t& /*nothrow*/) noexcept {
  return std::malloc(size);
}

void operator delete(void* block) noexcept {
  std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
  std::free(block);
}

namespace std {

void __throw_bad_alloc() {
  abort();
}

void __throw_bad_array_new_length() {
  abort();
}

void __throw_bad_function_call() {
  abort();
}

void __throw_length_error(const char* /*what*/) {
  abort();
}

void __throw_logic_error(const char* /*what*/) {
  abort();
}

void __throw_out_of_range_fmt(const char* /*format*/, ...) {
  abort();
}

}  // namespace std

// What a function with an array finds changed when it wrote beyond its end. The library's own would
// load the system's cryptography at each start; these are the sources of chance that Microsoft's
// runtime takes.
extern "C" {

std::uintptr_t __stack_chk_guard = 0;

[[gnu::constructor, gnu::no_stack_protector]] static void ChooseStackGuard() {
  LARGE_INTEGER counter;
  QueryPerformanceCounter(&counter);
  const auto onStack = reinterpret_cast<std::uintptr_t>(&counter);
  const auto ticks = static_cast<std::uintptr_t>(counter.QuadPart) << 16 ^ GetTickCount();
  __stack_chk_guard = onStack << 24 ^ ticks ^ GetCurrentProcessId() ^ GetCurrentThreadId() << 8;
}

[[noreturn]] void __stack_chk_fail() {
  std::abort();
}

}  // extern "C"
