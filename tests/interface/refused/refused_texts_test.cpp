// Calls with a null pointer or a number where a text belongs. Each line with "// error: deleted"
// must fail to compile for that reason, and no other line may; compile_errors.sh compares.

#include <cstddef>
#include <string>
#include <string_view>

#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {

void look_up(QuillInput input, const QuillInput& constant) {
  static_cast<void>(input.find_command(nullptr));     // error: deleted
  static_cast<void>(input.find_command(0));           // error: deleted
  static_cast<void>(input.find_command(NULL, 1));     // error: deleted
  static_cast<void>(constant.find_command(nullptr));  // error: deleted
  static_cast<void>(constant.find_command(0, 1));     // error: deleted
  static_cast<void>(input.has_command(nullptr));      // error: deleted
  static_cast<void>(constant.has_command(0));         // error: deleted
  input.upsert_command(nullptr);                      // error: deleted
  input.upsert_command(0);                            // error: deleted
  input.remove_command(nullptr);                      // error: deleted
  input.remove_command(0, 1);                         // error: deleted
  constant.write_file(nullptr);                       // error: deleted
  constant.write_file(0);                             // error: deleted
  static_cast<void>(input.has_command("opt"));
}

void edit(InputEditor editor, std::string_view text) {
  editor.write_file(nullptr);                                   // error: deleted
  editor.write_file(0);                                         // error: deleted
  static_cast<void>(editor.has_command(nullptr));               // error: deleted
  static_cast<void>(editor.has_command(0));                     // error: deleted
  static_cast<void>(editor.get_assignment(nullptr));            // error: deleted
  static_cast<void>(editor.get_assignment(0));                  // error: deleted
  static_cast<void>(editor.get_parameter(nullptr, "maxiter"));  // error: deleted
  static_cast<void>(editor.get_parameter(text, 0, 1));          // error: deleted
  editor.set_flag(nullptr);                                     // error: deleted
  editor.set_flag(0);                                           // error: deleted
  editor.set_flag(false);                                       // error: deleted
  editor.set_assignment(0, text);                               // error: deleted
  editor.set_assignment("model", nullptr);                      // error: deleted
  editor.set_model(nullptr);                                    // error: deleted
  editor.set_model(0);                                          // error: deleted
  editor.set_device(nullptr);                                   // error: deleted
  editor.set_device(0);                                         // error: deleted
  editor.set_task(nullptr);                                     // error: deleted
  editor.set_task(0, {{"maxiter", "50"}});                      // error: deleted
  editor.set_parameter(nullptr, "maxiter", "50");               // error: deleted
  editor.set_parameter("opt", 0, text);                         // error: deleted
  editor.set_parameter("opt", "symmetry", 0);                   // error: deleted
  editor.set_parameter(text, "symmetry", nullptr, 1);           // error: deleted
  editor.set_parameter("opt", "maxiter", 50);                   // error: deleted
  editor.set_parameter("opt", "step", 0.5);                     // error: deleted
  editor.remove_parameter(nullptr, "maxiter");                  // error: deleted
  editor.remove_parameter("opt", 0, 1);                         // error: deleted
  editor.remove_command(nullptr);                               // error: deleted
  editor.remove_command(0, 1);                                  // error: deleted
  editor.set_xyz_file(nullptr);                                 // error: deleted
  editor.set_xyz_file(0);                                       // error: deleted
  editor.set_xyz_trajectory(nullptr);                           // error: deleted
  editor.set_xyz_trajectory(0);                                 // error: deleted
  editor.set_post_file(nullptr);                                // error: deleted
  editor.set_post_file(0);                                      // error: deleted
  editor.set_parameter("opt", "symmetry", "0");
}

void build(InputBuilder builder, const std::string& text) {
  builder.write_file(nullptr);                       // error: deleted
  builder.write_file(0);                             // error: deleted
  builder.set_task(nullptr);                         // error: deleted
  builder.set_task(0, {{"maxiter", "50"}});          // error: deleted
  builder.set_task_parameter(0, "maxiter", "50");    // error: deleted
  builder.set_task_parameter("opt", nullptr, "50");  // error: deleted
  builder.set_task_parameter(text, "symmetry", 0);   // error: deleted
  builder.set_task_parameter("opt", "maxiter", 50);  // error: deleted
  builder.set_model(nullptr);                        // error: deleted
  builder.set_model(0);                              // error: deleted
  builder.set_device(nullptr);                       // error: deleted
  builder.set_device(0);                             // error: deleted
  builder.set_assignment(nullptr, "m1");             // error: deleted
  builder.set_assignment("model", 0);                // error: deleted
  builder.set_flag(nullptr);                         // error: deleted
  builder.set_flag(0);                               // error: deleted
  builder.set_xyz_file(nullptr);                     // error: deleted
  builder.set_xyz_file(0);                           // error: deleted
  builder.set_xyz_trajectory(nullptr);               // error: deleted
  builder.set_xyz_trajectory(0);                     // error: deleted
  builder.set_post_file(nullptr);                    // error: deleted
  builder.set_post_file(0);                          // error: deleted
  builder.set_task_parameter("opt", "symmetry", "0");
}

void make_parts() {
  static_cast<void>(CommandParameter{nullptr});                                 // error: deleted
  static_cast<void>(CommandParameter{0});                                       // error: deleted
  static_cast<void>(CommandParameter{"tight", nullptr});                        // error: deleted
  static_cast<void>(CommandParameter{"maxiter", 50});                           // error: deleted
  static_cast<void>(HeaderCommand{nullptr});                                    // error: deleted
  static_cast<void>(HeaderCommand{0});                                          // error: deleted
  static_cast<void>(HeaderCommand{"model", HeaderCommandKind::Flag, nullptr});  // error: deleted
  static_cast<void>(PostCommand{PostCommandKind::PostFile, {}, {}, {}, 0});     // error: deleted
  static_cast<void>(PostCommand{PostCommandKind::Raw, {}, {}, {}, "", 0});      // error: deleted
  static_cast<void>(PostCommand{PostCommandKind::Raw, {}, {}, {}, "", "#"});
}

}  // namespace kelp::input::quill
