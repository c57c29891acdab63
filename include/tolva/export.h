// TOLVA_API marks what the shared library exports. Nothing else is visible outside it.
#pragma once

#if defined(_WIN32)
#if defined(TOLVA_BUILDING)
#define TOLVA_API __declspec(dllexport)
#elif defined(TOLVA_STATIC)
#define TOLVA_API
#else
#define TOLVA_API __declspec(dllimport)
#endif
#else
#define TOLVA_API __attribute__((visibility("default")))
#endif
