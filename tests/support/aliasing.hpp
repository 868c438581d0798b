#ifndef KELP_INPUT_QUILL_TESTS_SUPPORT_ALIASING_HPP
#define KELP_INPUT_QUILL_TESTS_SUPPORT_ALIASING_HPP

#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/quill.hpp"

// Documents for calls whose arguments refer to the very document that they change.

namespace kelp::input::quill {

/// Whether a string is stored inside its object, and moves with it, or on the heap.
enum class Length { Short, Long };

/// Whether the document's vectors must move their elements for one more, or have room for it.
enum class Room { None, Spare };

struct Setting {
  Length length;
  Room room;
  GeometryKind kind;
};

/// Every combination of the above.
const std::vector<Setting>& every_setting();

std::string to_text(const Setting& setting);

/// An editor of a document with several entries in every list, those of kinds not in force
/// included. Several strings are names of commands or parameters, so that most of them find one
/// when they are passed as a name.
InputEditor make_editor(const Setting& setting);

/// A builder of a document with several entries in every list that its kind knows.
InputBuilder make_builder(const Setting& setting);

/// Every string that the document holds, whole and without its first byte; atom symbols are left
/// out on demand.
enum class Symbols { Included, LeftOut };
std::vector<std::string_view> views_of(const QuillInput& document, Symbols symbols);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SUPPORT_ALIASING_HPP
