// TOLVA_API marks what the shared library exports. Nothing else is visible outside it.
#pragma once

#if defined(TOLVA_API)
// The project's own programs contain the library: they define it as nothing.
#elif !defined(_WIN32)
#define TOLVA_API __attribute__((visibility("default")))
#elif defined(TOLVA_BUILDING)
#define TOLVA_API __declspec(dllexport)
#else
#define TOLVA_API __declspec(dllimport)
#endif
