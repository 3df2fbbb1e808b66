#pragma once

// Tells how the standard library is built.
#include <cstddef>

// Records hold containers and texts of the standard library, so that both sides of the boundary
// must have them in the same form.
#if __cplusplus < 201703L
#error "radsel: its headers need C++17 or later (-std=c++17)"
#elif defined(_GLIBCXX_DEBUG)
#error "radsel: records hold plain containers; compile without _GLIBCXX_DEBUG"
#elif defined(_GLIBCXX_USE_CXX11_ABI) && !_GLIBCXX_USE_CXX11_ABI
#error "radsel: records hold texts of today; compile with _GLIBCXX_USE_CXX11_ABI=1"
#endif

/// Marks what the module exports: the thirteen functions of frame/entry_points.h and
/// frame/lumo_error.h. On Windows who calls them takes them from the library; who has the module
/// inside says so by RADSEL_INSIDE.
///
/// HOST_API marks what one of the host's libraries offers to others. On Windows its own sources are
/// compiled with RADSEL_BUILDS_HOST.
///
/// HOST_OPTIONAL marks a function that a host may leave out: its address is null then, and
/// HOST_HAS() tells so. On Windows, where a library takes each function from a library that it
/// names, there is none to leave out.
#ifndef _WIN32
#define HOST_OPTIONAL __attribute__((weak))
#define HOST_HAS(function) ((function) != nullptr)
#define RADSEL_API __attribute__((visibility("default")))
#define HOST_API __attribute__((visibility("default")))
#else
#define HOST_OPTIONAL
#define HOST_HAS(function) true
#ifdef RADSEL_INSIDE
#define RADSEL_API __declspec(dllexport)
#else
#define RADSEL_API __declspec(dllimport)
#endif
#ifdef RADSEL_BUILDS_HOST
#define HOST_API __declspec(dllexport)
#else
#define HOST_API
#endif
#endif
