// Calls whose result nobody looks at, which are mistakes, and calls that are made for their effect.
// Each line with "// error: ignoring return value" must fail to compile for that reason, and no
// other line may; compile_errors.sh compares.

#include <utility>

#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {

void ask_a_document(QuillInput& input, const QuillInput& constant) {
  input.find_command("opt");                   // error: ignoring return value
  constant.find_command("opt");                // error: ignoring return value
  input.has_command("opt");                    // error: ignoring return value
  input.has_task_command();                    // error: ignoring return value
  input.command_names();                       // error: ignoring return value
  input.to_string();                           // error: ignoring return value
  normalize_command_name(" #OPT ");            // error: ignoring return value
  find_parameter_index(HeaderCommand{}, "x");  // error: ignoring return value
  input.upsert_command("opt");
  input.remove_command("opt");
}

void read_and_write() {
  parse_string("0 1");         // error: ignoring return value
  parse_file("water.qin");     // error: ignoring return value
  parse_lines("0 1");          // error: ignoring return value
  to_string(HeaderCommand{});  // error: ignoring return value
  to_string(PostCommand{});    // error: ignoring return value
  to_string(GeometryBlock{});  // error: ignoring return value
}

void ask_an_editor(InputEditor& editor) {
  editor.document();                       // error: ignoring return value
  std::move(editor).document();            // error: ignoring return value
  editor.to_string();                      // error: ignoring return value
  editor.has_command("opt");               // error: ignoring return value
  editor.has_task_command();               // error: ignoring return value
  editor.command_names();                  // error: ignoring return value
  editor.get_assignment("model");          // error: ignoring return value
  editor.model();                          // error: ignoring return value
  editor.device();                         // error: ignoring return value
  editor.get_parameter("opt", "maxiter");  // error: ignoring return value
  editor.remove_parameter("opt", "maxiter");
  editor.remove_command("opt");
}

void ask_a_builder(InputBuilder& builder) {
  builder.document();             // error: ignoring return value
  std::move(builder).document();  // error: ignoring return value
  builder.to_string();            // error: ignoring return value
  builder.set_flag("opt");
}

}  // namespace kelp::input::quill
