// What MinGW-w64's headers and libc++ lack when Clang compiles for Microsoft's target, as
// tools/msvc.sh has it do. Included before everything else.
#pragma once

#include <_mingw.h>

// MinGW's headers spell attributes as GCC does, and mean functions that this target declares with
// other linkage.
#undef __attribute__
#undef __MINGW_ATTRIB_NORETURN
#define __MINGW_ATTRIB_NORETURN
#undef __MINGW_ATTRIB_DEPRECATED
#define __MINGW_ATTRIB_DEPRECATED
#undef __MINGW_NOTHROW
#define __MINGW_NOTHROW

#include <locale.h>
#include <stddef.h>
#include <time.h>

extern "C" {
int at_quick_exit(void (*function)());
[[noreturn]] void quick_exit(int status);
void* aligned_alloc(size_t alignment, size_t size);
int timespec_get(struct timespec* time, int base);
float _strtof_l(const char* text, char** end, _locale_t locale);
long double _strtold_l(const char* text, char** end, _locale_t locale);
}

#include <memory>

#if _LIBCPP_VERSION < 16000
namespace std {
template <class T>
requires is_unbounded_array_v<T> unique_ptr<T> make_unique_for_overwrite(size_t count) {
  return unique_ptr<T>(new remove_extent_t<T>[count]);
}
}  // namespace std
#endif

// Microsoft's header has the identifiers in the declarations, where `__uuidof` finds them.
struct __declspec(uuid("00000000-0000-0000-C000-000000000046")) IUnknown;
struct __declspec(uuid("0C733A30-2A1C-11CE-ADE5-00AA0044773D")) ISequentialStream;
struct __declspec(uuid("7279FC81-709D-4095-B63D-69FE4B0D9030")) IXmlReader;
struct __declspec(uuid("7279FC88-709D-4095-B63D-69FE4B0D9030")) IXmlWriter;
