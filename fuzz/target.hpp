#ifndef KELP_INPUT_QUILL_FUZZ_TARGET_HPP
#define KELP_INPUT_QUILL_FUZZ_TARGET_HPP

#include <cstddef>
#include <cstdint>
#include <string_view>

/// What every target defines: takes any bytes and returns 0. An exception or a signal is a finding.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace kelp::input::quill {

inline std::string_view as_text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_FUZZ_TARGET_HPP
