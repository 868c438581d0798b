#include "quill-inp/command_line/post_options.hpp"

#include <string>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/post_argument.hpp"

namespace kelp::input::quill::tool {

namespace {

struct PostOption {
  const char* name;
  const char* placeholder;
  const char* help;
};

constexpr PostOption post_options[] = {
    {"--bond", "I,J", "Hold the distance of two atoms"},
    {"--angle", "I,J,K", "Hold the angle of three atoms"},
    {"--dihedral", "I,J,K,L", "Hold the dihedral of four atoms"},
    {"--atom", "I", "Hold the place of an atom"},
    {"--scan", "I,J[,K[,L]]:VALUE:STEPS", "Scan a distance, angle or dihedral"},
    {"--post", "PATH", "Name a post-processing file"},
    {"--raw", "TEXT", "Add a line of text as it is"},
};

}  // namespace

void add_post_options(CLI::App& verb) {
  for (const PostOption& option : post_options)
    add_repeated(verb, option.name, option.placeholder, option.help);
}

std::vector<PostCommand> read_post_commands(const CLI::App& verb) {
  std::vector<std::string> names;
  for (const PostOption& option : post_options) names.emplace_back(option.name);
  std::vector<PostCommand> commands;
  for (const OptionUse& use : uses_in_order(verb, names))
    commands.push_back(parse_post_argument(use.name, use.value));
  return commands;
}

}  // namespace kelp::input::quill::tool
