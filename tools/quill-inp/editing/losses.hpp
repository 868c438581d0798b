#ifndef KELP_INPUT_QUILL_TOOL_EDITING_LOSSES_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_LOSSES_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lossless/proof.hpp"
#include "kelp/input/quill/lossless/quoting.hpp"
#include "kelp/input/quill/lossless/read_text.hpp"
#include "kelp/input/quill/lossless/surgical_edit.hpp"

namespace kelp::input::quill::tool {

/// How much a number may change when a text is written again, unless the user says otherwise.
inline constexpr double accepted_change = 1e-6;

/// What a setting removes from a command or parameter without being asked to.
struct SettingLoss {
  enum class Kind { Parameters, Value, ParameterValue };

  Kind kind = Kind::Value;
  std::string name = {};   // of the command or parameter
  std::string value = {};  // that is lost
};

/// A line of the old text that says something that the document does not hold.
struct LineLoss {
  enum class Kind {
    WholeLine,    // all that the line says
    HeaderText,   // what a header line says besides its command
    Indentation,  // the blanks before raw text
    BlankLines,   // blank lines between lines of raw text
  };

  Kind kind = Kind::WholeLine;
  std::size_t number = 0;  // of the line, counted from 1
  std::string_view content = {};
  std::size_t last = 0;  // the number of the last line, of several blank ones
};

/// Returns what is lost, if anything, when line number `index`, counted from 0, is written again
/// from the document. The loss keeps a view of the text.
std::optional<LineLoss> find_line_loss(const lossless::ReadText& read, std::size_t index);

/// Returns what is lost when all lines are written again from the document: what each of them
/// loses, and the blank lines between lines of raw text, whose meaning only the author knows. Other
/// blank lines are layout. Blank lines in a row are one loss.
std::vector<LineLoss> list_line_losses(const lossless::ReadText& read);

/// Returns what changed or removed header lines say besides their commands. Other lines that change
/// contain only what they were read as.
std::vector<LineLoss> list_header_losses(const lossless::ReadText& read,
                                         const lossless::NewText& edited);

/// All that a new text would lose.
struct Losses {
  std::vector<SettingLoss> settings = {};
  std::vector<LineLoss> lines = {};
  std::vector<lossless::QuotingProblem> quoting = {};
  const lossless::Proof& proof;
  const QuillInput& wanted;  // the document that the proof is about

  std::size_t count() const;
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_LOSSES_HPP
