#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_MADE_DOCUMENT_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_MADE_DOCUMENT_HPP

#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "properties/byte_source.hpp"

// Documents out of bytes: any document at all, but often enough one that makes sense. Where two
// values are made in one expression, braces keep their order the same for every compiler.

namespace kelp::input::quill {

CommandParameter made_parameter(ByteSource& source);
std::vector<CommandParameter> made_parameters(ByteSource& source);
HeaderCommand made_command(ByteSource& source);
AtomRecord made_atom(ByteSource& source);
std::vector<AtomRecord> made_atoms(ByteSource& source);
std::vector<std::string> made_paths(ByteSource& source);
PostCommand made_post_command(ByteSource& source);
std::vector<std::int32_t> made_atom_numbers(ByteSource& source);

QuillInput made_document(ByteSource& source);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_MADE_DOCUMENT_HPP
