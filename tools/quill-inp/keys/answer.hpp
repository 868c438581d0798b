#ifndef KELP_INPUT_QUILL_TOOL_KEYS_ANSWER_HPP
#define KELP_INPUT_QUILL_TOOL_KEYS_ANSWER_HPP

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

/// Returns what `input` has under a key, as one or more lines: the value of an assignment or
/// parameter, "flag" for a command or parameter without a value, the list in parentheses for a
/// parameter list; for the special keys the number, the kind of geometry, the paths, the atoms with
/// all digits, or their formula or number, or the keys of the input; for post-processing lines what
/// comes after their keyword, with all digits. Returns nothing if the input does not have it.
std::optional<std::string> answer(const QuillInput& input, const Key& key);

/// Returns whether there is an answer, without making it: the answer for a long list takes much
/// memory.
bool has_answer(const QuillInput& input, const Key& key);

/// Returns the command that a key names, or that has the parameter it names; a null pointer if
/// there is none.
const HeaderCommand* find_command(const QuillInput& input, const CommandKey& key);

/// Returns the post-processing lines that a key names, by their indexes.
std::vector<std::size_t> find_post_commands(const QuillInput& input, const PostKey& key);

/// What a key asks for and the input does not have.
struct MissingAnswer {
  enum class Kind {
    Section,     // the input has no such section or line
    Position,    // there are commands, but the number among all is too large
    PostNumber,  // there are lines of the kind, but the number is too large
    Command,     // no command has the name
    Number,      // there are commands with the name, but the number is too large
    Parameter,   // the command has no such parameter
  };

  std::string key_text = {};  // the key as it was typed
  Kind kind = Kind::Section;
  std::string name = {};                              // of the command or parameter
  std::uint64_t count = 0;                            // of the commands or lines
  std::optional<std::string> similar = std::nullopt;  // the nearest name in the input
};

/// Returns why there is no answer to a key. To be called only for such a key.
MissingAnswer find_missing(const QuillInput& input, std::string_view key_text, const Key& key);

/// Returns the same in words.
std::string words(const MissingAnswer& missing);

/// Returns, for a key whose name is not in the input, a similar name that is; nothing for other
/// keys.
std::optional<std::string> find_similar_name(const QuillInput& input, const CommandKey& key);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_KEYS_ANSWER_HPP
