#ifndef KELP_INPUT_QUILL_TESTS_SUPPORT_EDIT_CASE_HPP
#define KELP_INPUT_QUILL_TESTS_SUPPORT_EDIT_CASE_HPP

#include <gtest/gtest.h>

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/quill.hpp"

// Rows of tables of edits: a whole document before, an operation, the whole document after.

namespace kelp::input::quill {

struct EditCase {
  std::string_view name;
  QuillInput before;
  std::function<void(InputEditor&)> edit;
  QuillInput after;
};

/// An operation that says whether it removed something.
struct RemovalCase {
  std::string_view name;
  QuillInput before;
  std::function<bool(InputEditor&)> remove;
  bool removed;
  QuillInput after;
};

void PrintTo(const EditCase& row, std::ostream* out);
void PrintTo(const RemovalCase& row, std::ostream* out);

/// Applies the operation to an editor of the document before, and expects the document after.
void expect_edit(const EditCase& row);
void expect_removal(const RemovalCase& row);

template <typename Row>
std::string row_name(const testing::TestParamInfo<Row>& info) {
  return std::string(info.param.name);
}

HeaderCommand flag(std::string name);
HeaderCommand assignment(std::string name, std::string value);
HeaderCommand list(std::string name, std::vector<CommandParameter> parameters);

/// Documents of which the given section is the subject. The other two are filled, so that a row
/// shows as well that the operation leaves them alone.
QuillInput with_commands(std::vector<HeaderCommand> commands);
QuillInput with_geometry(GeometryBlock geometry);
QuillInput with_post_commands(std::vector<PostCommand> post_commands);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SUPPORT_EDIT_CASE_HPP
