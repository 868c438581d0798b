#ifndef KELP_INPUT_QUILL_LOSSLESS_EXPORT_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EXPORT_HPP

/// @file
/// What makes a function part of the interface of the shared library for front ends. The build
/// defines KELP_QUILL_LOSSLESS_STATIC for a static library and for the programs that link it, and
/// CMake defines kelp_quill_lossless_EXPORTS while it compiles the shared one.

/// Marks what the shared library offers; everything else in it is hidden.
#if defined(KELP_QUILL_LOSSLESS_STATIC)
#define KELP_QUILL_LOSSLESS_EXPORT
#elif defined(_WIN32) && defined(kelp_quill_lossless_EXPORTS)
#define KELP_QUILL_LOSSLESS_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define KELP_QUILL_LOSSLESS_EXPORT __declspec(dllimport)
#else
#define KELP_QUILL_LOSSLESS_EXPORT __attribute__((visibility("default")))
#endif

#endif  // KELP_INPUT_QUILL_LOSSLESS_EXPORT_HPP
