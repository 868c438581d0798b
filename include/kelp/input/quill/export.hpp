#ifndef KELP_INPUT_QUILL_EXPORT_HPP
#define KELP_INPUT_QUILL_EXPORT_HPP

// KELP_QUILL_INP_EXPORT marks what the shared library offers; everything else in it is hidden.
// The build defines KELP_QUILL_INP_STATIC for a static library and for those who link it, and
// CMake defines kelp_quill_inp_EXPORTS while it compiles the shared one.
#if defined(KELP_QUILL_INP_STATIC)
#define KELP_QUILL_INP_EXPORT
#elif defined(_WIN32) && defined(kelp_quill_inp_EXPORTS)
#define KELP_QUILL_INP_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define KELP_QUILL_INP_EXPORT __declspec(dllimport)
#else
#define KELP_QUILL_INP_EXPORT __attribute__((visibility("default")))
#endif

#endif  // KELP_INPUT_QUILL_EXPORT_HPP
