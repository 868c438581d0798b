#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_EDIT_MODEL_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_EDIT_MODEL_HPP

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/quill.hpp"

// The operations that find something, once more, as plain work on vectors. Arguments are never part
// of the document. Operations that only append or assign are written out where they are needed.

namespace kelp::input::quill::model {

std::string canonical(std::string_view name);

/// The places of the commands whose names match, in order.
std::vector<std::size_t> matches(const QuillInput& document, std::string_view name);

/// The place of the first parameter of the name.
std::optional<std::size_t> parameter_place(const HeaderCommand& command, std::string_view name);

HeaderCommand& upsert(QuillInput& document, const std::string& name);

void set_flag(QuillInput& document, const std::string& name);
void set_assignment(QuillInput& document, const std::string& name, const std::string& value);
void set_task(QuillInput& document, const std::string& name,
              const std::vector<CommandParameter>& parameters);
void set_parameter(QuillInput& document, const std::string& command, const std::string& parameter,
                   const std::string& value, std::uint64_t occurrence);
bool remove_parameter(QuillInput& document, const std::string& command,
                      const std::string& parameter, std::uint64_t occurrence);
bool remove_command(QuillInput& document, const std::string& name,
                    std::optional<std::uint64_t> occurrence);

void set_atoms(QuillInput& document, const std::vector<AtomRecord>& atoms);
void set_paths(QuillInput& document, GeometryKind kind, const std::vector<std::string>& paths);
void add_atom(QuillInput& document, const AtomRecord& atom);

std::optional<std::string> get_assignment(const QuillInput& document, const std::string& name);
std::optional<std::string> get_parameter(const QuillInput& document, const std::string& command,
                                         const std::string& parameter, std::uint64_t occurrence);

}  // namespace kelp::input::quill::model

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_EDIT_MODEL_HPP
