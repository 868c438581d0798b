#ifndef KELP_INPUT_QUILL_TOOL_BATCH_TRANSCRIPT_HPP
#define KELP_INPUT_QUILL_TOOL_BATCH_TRANSCRIPT_HPP

#include <ostream>
#include <streambuf>
#include <string>
#include <vector>

namespace kelp::input::quill::tool {

/// What was written to standard output and standard error for one file, in the order in which it
/// was written, so that it can be written later in the same order.
class Transcript {
 public:
  Transcript();
  Transcript(const Transcript&) = delete;
  Transcript& operator=(const Transcript&) = delete;

  /// Streams that add to the transcript. They throw when memory runs out.
  std::ostream& out() { return out_stream_; }
  std::ostream& err() { return err_stream_; }

  /// A text that was written to one of the streams.
  struct Piece {
    bool is_output = false;  // or it is a message
    std::string text = {};
  };
  const std::vector<Piece>& pieces() const { return pieces_; }

 private:
  /// The buffer of one of the streams.
  class Buffer : public std::streambuf {
   public:
    Buffer(std::vector<Piece>& pieces, bool is_output) : pieces_(pieces), is_output_(is_output) {}

   private:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize size) override;

    std::vector<Piece>& pieces_;
    bool is_output_;
  };

  std::vector<Piece> pieces_ = {};
  Buffer out_buffer_;
  Buffer err_buffer_;
  std::ostream out_stream_;
  std::ostream err_stream_;
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_BATCH_TRANSCRIPT_HPP
