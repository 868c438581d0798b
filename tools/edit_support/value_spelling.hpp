#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_VALUE_SPELLING_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_VALUE_SPELLING_HPP

// Spelling the values of header commands so that they read back as they are.
//
//   spell_assignment_value("b3lyp").text;   // b3lyp
//   spell_assignment_value(" b3 ").text;    // " b3 ", in double quotes
//   to_string(spell(command).command);      // a header line that reads back as `command`
//   spell(document).document.to_string();   // the canonical text, with quotes where they are
//   needed
//
// The library's writer quotes nothing, while its reader removes quotes, trims, and splits lists at
// commas. A value that would not survive that is put between quotes. Whether a spelling survives is
// decided by asking the reader, never by rules of its own; where no spelling does, the reason is
// given in words. Texts in reasons hold bytes of the document as they are: whoever shows them on a
// terminal escapes them.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::edit_support {

/// A spelling that reads back, or nothing and the reason why there is none.
struct Spelling {
  std::optional<std::string> text = std::nullopt;
  std::string reason = {};
};

/// Returns how to write `value` after "#name = ": as it is when that reads back, else in quotes:
/// first in the kind that does not occur in it, double quotes before single ones.
Spelling spell_assignment_value(std::string_view value);

/// Where a parameter stands in its list. An unclosed quote swallows the parameters after it, so the
/// last one has more freedom than the others.
enum class ParameterPlace { FollowedByOthers, Last };

/// Returns how to write the value of `parameter` after its name and "=". The name takes part in the
/// decision, since a quote in it changes what a quote in the value means. A parameter without value
/// gives the empty text when its name reads back.
Spelling spell_parameter_value(const CommandParameter& parameter,
                               ParameterPlace place = ParameterPlace::FollowedByOthers);

/// A command whose to_string() reads back as the one meant. Where that cannot be, `reasons` is not
/// empty and the pieces concerned stand as they are.
struct SpelledCommand {
  HeaderCommand command = {};
  std::vector<std::string> reasons = {};
};

/// Spells every value of a command. A name has one spelling only: one that does not read back (one
/// with outer blanks, a flag's with "=" or "(" in it) gives a reason. So do members that the kind
/// does not use and a kind outside its enumeration, which no text can keep.
SpelledCommand spell(const HeaderCommand& command);

/// A document whose to_string() is the canonical text with the values spelled. `reasons` speaks of
/// header commands only; whether the whole text reads back is for prove() to say.
struct SpelledDocument {
  QuillInput document = {};
  std::vector<std::string> reasons = {};
};

SpelledDocument spell(const QuillInput& input);

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_VALUE_SPELLING_HPP
