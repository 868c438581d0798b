#include "quill-inp/editing/delivery.hpp"

#include <string>

#include "kelp/core/text.hpp"

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/files/written_files.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/unified_diff.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option in_place{"-i,--in-place", "", "Write to the file instead of standard output"};
constexpr Option check_option{"--check", "",
                              "Only list files that would change; exit code 1 if any do"};
constexpr Option diff{"--diff", "", "Only print the changes; exit code 1 if there are any"};
constexpr Option backup{"--backup", "SUFFIX",
                        "With -i, keep a copy of the old text (default .bak)"};
constexpr Option break_hard_links{"--break-hard-links", "",
                                  "With -i, also write a file that has several hard links"};

constexpr Option lock_timeout{"--lock-timeout", "SECONDS",
                              "With -i, wait so long for other runs (default 60)"};

constexpr const char* default_suffix = ".bak";

std::string require_suffix(const std::string& suffix) {
  if (suffix.empty() || suffix.find('/') != std::string::npos)
    throw UsageError("--backup takes a suffix for the name of the file, such as '.bak', not '" +
                     suffix + "'");
  return suffix;
}

/// A year: longer than anybody waits, and small enough to be added to any time.
constexpr int most_seconds = 365 * 24 * 60 * 60;

std::chrono::seconds parse_patience(const std::string& text) {
  int seconds = 0;
  if (!core::text::try_parse_int(text, seconds) || seconds < 0 || seconds > most_seconds)
    throw UsageError("--lock-timeout takes a number of seconds, such as '60', not '" + text + "'");
  return std::chrono::seconds(seconds);
}

void show_difference(Session& session, const ReadInput& input, std::string_view new_text) {
  session.output().write_diff(unified_diff(input.name, input.read.text, new_text),
                              session.options().color);
  if (differ_only_in_line_ends(input.read.text, new_text))
    session.reporter().note({input.name}, "only line ends change");
}

ExitCode tell_difference(Session& session, const ReadInput& input, std::string_view new_text,
                         const Delivery& delivery) {
  if (input.read.text == new_text) return ExitCode::Done;
  if (delivery.as_check) session.output().write(input.name + "\n");
  if (delivery.as_diff) show_difference(session, input, new_text);
  return ExitCode::No;
}

}  // namespace

void add_delivery_options(CLI::App& verb, CheckOption check) {
  add_flag(verb, in_place);
  add_output_options(verb);
  if (check == CheckOption::Present) add_flag(verb, check_option);
  add_flag(verb, diff);
  add_attached_value(verb, backup);
  add_flag(verb, break_hard_links);
  add_value(verb, lock_timeout);
}

Delivery read_delivery(const CLI::App& verb, CheckOption check) {
  Delivery delivery;
  delivery.in_place = is_given(verb, in_place);
  delivery.as_diff = is_given(verb, diff);
  delivery.as_check = check == CheckOption::Present && is_given(verb, check_option);
  if (const auto suffix = attached_value_of(verb, backup, default_suffix))
    delivery.replace.backup_suffix = require_suffix(*suffix);
  delivery.replace.breaks_hard_links = is_given(verb, break_hard_links);
  const auto seconds = value_of(verb, lock_timeout);
  if (seconds) delivery.patience = parse_patience(*seconds);
  delivery.output = read_output_file(verb);

  if (delivery.in_place && (delivery.as_diff || delivery.as_check))
    throw UsageError("--check and --diff write no file and cannot be used with --in-place");
  if (delivery.output.path && (delivery.in_place || delivery.as_diff || delivery.as_check))
    throw UsageError("--output cannot be used with --in-place, --check and --diff");
  if (!delivery.in_place && delivery.replace.backup_suffix)
    throw UsageError("--backup needs --in-place");
  if (!delivery.in_place && delivery.replace.breaks_hard_links)
    throw UsageError("--break-hard-links needs --in-place");
  if (!delivery.in_place && seconds) throw UsageError("--lock-timeout needs --in-place");
  return delivery;
}

ReadInput read_for_delivery(Session& session, const std::string& argument,
                            const Delivery& delivery) {
  return delivery.in_place ? read_for_replacing(session, argument, delivery.patience)
                           : read_input(session, argument);
}

void require_one_text(const Delivery& delivery, const FileChoice& files) {
  const bool is_one = files.arguments.size() == 1 && !files.is_recursive && !files.list;
  if (delivery.output.path && !is_one) throw UsageError("--output takes the text of one FILE");
}

bool needs_old_text(const Delivery& delivery) {
  return delivery.as_diff || delivery.replace.backup_suffix;
}

ExitCode deliver(Session& session, ReadInput& input, std::string_view new_text,
                 const Delivery& delivery) {
  if (delivery.as_check || delivery.as_diff)
    return tell_difference(session, input, new_text, delivery);
  if (!delivery.in_place) {
    write_output(session, delivery.output, new_text);
    return ExitCode::Done;
  }
  if (new_text == input.read.text) return ExitCode::Done;
  for (const std::string& note : replace_text(input.file.value(), new_text, delivery.replace))
    session.reporter().note({input.name}, note);
  session.note_change();
  return ExitCode::Done;
}

}  // namespace kelp::input::quill::tool
