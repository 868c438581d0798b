#ifndef KELP_INPUT_QUILL_TOOL_KEYS_AMBIGUITY_HPP
#define KELP_INPUT_QUILL_TOOL_KEYS_AMBIGUITY_HPP

#include <cstddef>
#include <string>
#include <vector>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

/// What a key fits besides the part of an input that it names, which is the first of its kind. An
/// engine may use another one. Either there are other commands with the name of the command, or
/// other parameters in it with the name of the parameter.
struct Ambiguity {
  std::size_t command = 0;  // the one that the key names, into the list of commands
  std::string name = {};    // of this command, as the input has it
  std::vector<std::size_t> other_commands = {};
  std::string parameter = {};        // that the key names, as the input has it
  std::size_t other_parameters = 0;  // the number of them
};

bool operator==(const Ambiguity& left, const Ambiguity& right);

/// Adds what else a key fits to a list in which each entry occurs once. A key with a number names
/// one command only.
void add_ambiguities(const QuillInput& input, const Key& key, std::vector<Ambiguity>& ambiguities);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_KEYS_AMBIGUITY_HPP
