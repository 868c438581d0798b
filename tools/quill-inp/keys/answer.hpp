#ifndef KELP_INPUT_QUILL_TOOL_KEYS_ANSWER_HPP
#define KELP_INPUT_QUILL_TOOL_KEYS_ANSWER_HPP

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

/// Returns what `input` has under a key, one or more lines: the value of an assignment or
/// parameter, "flag" for a command or parameter without one, the list in parentheses for a
/// parameter list; for the special keys the number, the kind of geometry, the paths, or the atoms
/// with every digit. Nothing when there is no such thing.
std::optional<std::string> answer(const QuillInput& input, const Key& key);

/// What a key asks for and is not there.
struct MissingAnswer {
  enum class Kind {
    Section,    // there is no such section
    Command,    // no command has the name
    Number,     // there are commands of the name, but not so many
    Parameter,  // the command has no such parameter
  };

  std::string key_text = {};  // the key as it was typed
  Kind kind = Kind::Section;
  std::string name = {};                              // of the command or parameter
  std::uint64_t count = 0;                            // of the commands of the name
  std::optional<std::string> similar = std::nullopt;  // the nearest name that is there
};

/// Returns what is missing for an answer. There is no answer to the key.
MissingAnswer find_missing(const QuillInput& input, std::string_view key_text, const Key& key);

/// Returns the same in words for a person.
std::string words(const MissingAnswer& missing);

/// Returns the name that is there and like that of a key, for one that names nothing yet; nothing
/// for other keys.
std::optional<std::string> find_similar_name(const QuillInput& input, const CommandKey& key);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_KEYS_ANSWER_HPP
