#include "properties/editing.hpp"

#include <string>

#include "properties/edit_model.hpp"
#include "properties/lookup.hpp"
#include "properties/made_document.hpp"
#include "properties/violation.hpp"
#include "properties/writing.hpp"
#include "support/comparison.hpp"

namespace kelp::input::quill {

namespace {

constexpr int most_operations = 64;

void check_questions(const InputEditor& editor, QuillInput& expected, ByteSource& source) {
  const std::string name = source.text();
  const std::string parameter = source.text();
  const std::uint64_t occurrence = source.below(3);
  require(editor.get_assignment(name) == model::get_assignment(expected, name),
          "get_assignment() is right", name);
  require(editor.get_parameter(name, parameter, occurrence) ==
              model::get_parameter(expected, name, parameter, occurrence),
          "get_parameter() is right", name);
  require(editor.model() == model::get_assignment(expected, "model"), "model() is right", "");
  require(editor.device() == model::get_assignment(expected, "device"), "device() is right", "");
  require(editor.has_task_command() == expected.has_task_command() &&
              editor.command_names() == expected.command_names(),
          "the editor answers as its document does", expected.to_string());
  check_lookup(expected, expected, name);
}

}  // namespace

void check_operation(const EditOperation& operation, InputEditor& editor, QuillInput& expected,
                     std::string_view bytes) {
  const bool removed = operation.edit(editor);
  require(removed == operation.model(expected), "a removal tells its success", bytes);
  require(editor.document() == expected, "the editor does what its operations say", bytes);
}

void check_building(const EditOperation& operation, InputBuilder& builder,
                    const QuillInput& expected, std::string_view bytes) {
  operation.build(builder);
  require(builder.document() == expected, "the builder does what the editor does", bytes);
}

void check_edits(std::string_view bytes) {
  ByteSource source(bytes);
  const bool has_builder = source.flip();
  QuillInput expected = has_builder ? QuillInput() : made_document(source);
  InputEditor editor(expected);
  InputBuilder builder;
  for (int i = 0; i < most_operations && !source.is_at_end(); ++i) {
    const EditOperation operation =
        has_builder ? made_builder_operation(source, expected) : made_operation(source, expected);
    check_operation(operation, editor, expected, bytes);
    if (has_builder) check_building(operation, builder, expected, bytes);
  }
  check_questions(editor, expected, source);
  check_every_lookup(editor.document(), expected);
  const std::string text = expected.to_string();
  check_writing(expected, text);
  require(editor.to_string() == text, "the editor writes its document", bytes);
}

}  // namespace kelp::input::quill
