// The source as a compiler without 128-bit integers sees it. The standard library, which takes the
// macro to describe the compiler, has to be included before the macro goes.

#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <string>

#undef __SIZEOF_INT128__

// The source itself, since it is to be compiled without the macro.
#include "writer/number_text.cpp"  // NOLINT(bugprone-suspicious-include): what the test is about
