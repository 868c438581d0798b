#include "quill-inp/command_line/file_options.hpp"

#include <algorithm>
#include <string_view>
#include <thread>
#include <utility>

#include "kelp/core/text.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option recursive{"-r,--recursive", "", "Take the files in folders, too"};
constexpr Option glob{"--glob", "PATTERN",
                      "With -r, take files that match PATTERN (default '*.qin')"};
constexpr Option files_from{"--files-from", "LIST", "Read names of files from LIST, one a line"};
constexpr Option null{"-0,--null", "", "The names in LIST end with NUL, not with a line end"};
constexpr Option jobs{"-j,--jobs", "NUMBER",
                      "Work on this number of files at once (default 1; 0: one per processor)"};

constexpr int most_threads = 256;

unsigned parse_jobs(const std::string& text) {
  int number = 0;
  if (!core::text::try_parse_int(text, number) || number < 0 || number > most_threads) {
    throw UsageError("--jobs takes a number from 0 to " + std::to_string(most_threads) + ", not '" +
                     text + "'");
  }
  if (number == 0) return std::max(1U, std::thread::hardware_concurrency());
  return static_cast<unsigned>(number);
}

void require(bool is_there, std::string_view option, std::string_view needed) {
  if (!is_there) throw UsageError(std::string(option) + " needs " + std::string(needed));
}

}  // namespace

void add_file_options(CLI::App& verb) {
  begin_group(verb, "Files");
  add_flag(verb, recursive);
  add_repeated(verb, glob);
  add_value(verb, files_from);
  add_flag(verb, null);
  add_jobs_option(verb);
}

void add_jobs_option(CLI::App& verb) { add_value(verb, jobs); }

bool has_file_list(const CLI::App& verb) { return value_of(verb, files_from).has_value(); }

bool has_other_files(const CLI::App& verb) {
  return has_file_list(verb) || is_given(verb, recursive);
}

FileChoice read_file_choice(const CLI::App& verb, std::vector<std::string> arguments) {
  FileChoice choice;
  choice.arguments = std::move(arguments);
  choice.is_recursive = is_given(verb, recursive);
  choice.patterns = values_of(verb, glob);
  choice.list = value_of(verb, files_from);
  choice.list_has_nul_ends = is_given(verb, null);
  require(choice.patterns.empty() || choice.is_recursive, "--glob", "--recursive");
  require(!choice.list_has_nul_ends || choice.list, "--null", "--files-from");
  if (choice.arguments.empty() && !choice.list) throw UsageError("FILE is required");
  return choice;
}

BatchOptions read_batch_options(const CLI::App& verb) {
  BatchOptions options;
  if (const auto number = value_of(verb, jobs)) options.threads = parse_jobs(*number);
  return options;
}

}  // namespace kelp::input::quill::tool
