#include "properties/lookup.hpp"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "properties/edit_model.hpp"
#include "properties/violation.hpp"

namespace kelp::input::quill {

namespace {

bool has_a_task(const QuillInput& document) {
  const std::vector<std::string> tasks = {"sp", "opt", "ts", "freq", "irc", "scan"};
  return std::any_of(tasks.begin(), tasks.end(), [&](const std::string& task) {
    return !model::matches(document, task).empty();
  });
}

}  // namespace

void check_lookup(QuillInput& document, const QuillInput& stored, std::string_view name) {
  const QuillInput& constant = document;
  require(normalize_command_name(name) == model::canonical(name), "names have a canonical form",
          name);
  const std::vector<std::size_t> matches = model::matches(stored, name);
  require(constant.has_command(name) == !matches.empty(), "has_command() is right", name);
  for (std::size_t i = 0; i < matches.size(); ++i) {
    const HeaderCommand* const match = constant.commands.data() + matches[i];
    require(constant.find_command(name, i) == match, "find_command() finds every match", name);
    require(document.find_command(name, i) == match,
            "find_command() finds the same in a document that is not const", name);
  }
  require(constant.find_command(name, matches.size()) == nullptr &&
              document.find_command(name, matches.size()) == nullptr &&
              constant.find_command(name, ~std::uint64_t{0}) == nullptr,
          "find_command() finds nothing else", name);
}

void check_every_lookup(QuillInput document, const QuillInput& stored) {
  std::vector<std::string> names;
  for (const HeaderCommand& command : stored.commands) names.push_back(command.name);
  const std::string text = stored.to_string();
  require(document.command_names() == names, "command_names() gives the stored names", text);
  require(document.has_task_command() == has_a_task(stored), "has_task_command() is right", text);
  for (const std::string_view name : {"", "#", "opt", " #OPT ", "##opt", "model"})
    check_lookup(document, stored, name);
  for (const std::string& name : std::set<std::string>(names.begin(), names.end()))
    check_lookup(document, stored, name);
}

}  // namespace kelp::input::quill
