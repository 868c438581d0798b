#include "quill-inp/batch/transcript.hpp"

#include <cstddef>

namespace kelp::input::quill::tool {

Transcript::Transcript()
    : out_buffer_(pieces_, true),
      err_buffer_(pieces_, false),
      out_stream_(&out_buffer_),
      err_stream_(&err_buffer_) {
  // A stream treats an exception of its buffer as a failed write, unless it is set to pass it on.
  out_stream_.exceptions(std::ios_base::badbit);
  err_stream_.exceptions(std::ios_base::badbit);
}

Transcript::Buffer::int_type Transcript::Buffer::overflow(int_type character) {
  const char text = traits_type::to_char_type(character);
  xsputn(&text, 1);
  return traits_type::not_eof(character);
}

std::streamsize Transcript::Buffer::xsputn(const char* text, std::streamsize size) {
  if (pieces_.empty() || pieces_.back().is_output != is_output_) pieces_.push_back({is_output_});
  pieces_.back().text.append(text, static_cast<std::size_t>(size));
  return size;
}

}  // namespace kelp::input::quill::tool
