#include "quill-inp/command_line/post_options.hpp"

#include "model/post_line_shapes.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/post_argument.hpp"

namespace kelp::input::quill::tool {

namespace {

std::vector<Option> post_options() {
  std::vector<Option> options;
  for (const PostLineShape& shape : post_line_shapes)
    options.push_back({shape.option, shape.placeholder, shape.help});
  options.push_back({raw_line_shape.option, raw_line_shape.placeholder, raw_line_shape.help});
  return options;
}

}  // namespace

void add_post_options(CLI::App& verb) {
  for (const Option& option : post_options()) add_repeated(verb, option);
}

std::vector<PostCommand> read_post_commands(const CLI::App& verb) {
  std::vector<PostCommand> commands;
  for (const OptionUse& use : uses_in_order(verb, post_options()))
    commands.push_back(parse_post_argument(use.name, use.value));
  return commands;
}

}  // namespace kelp::input::quill::tool
