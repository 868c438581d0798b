#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/editing/format_input.hpp"
#include "quill-inp/editing/strictness.hpp"
#include "quill-inp/files/sha256.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp hash *.qin > hashes\n"
    "  quill-inp hash --check hashes\n"
    "\n"
    "The hash is the SHA-256 of the text that 'quill-inp fmt' prints. So inputs that differ only "
    "in\n"
    "layout have the same hash. The lines are those of sha256sum.";

constexpr Option files{"FILE", "", "The inputs, or with --check files with hashes"};
constexpr Option check{"--check", "", "Read hashes and check the inputs against them"};

constexpr std::size_t digits_of_hash = 64;

/// Returns the name as in a line of sha256sum, whose lines begin with a backslash if the name needs
/// one.
std::string escaped(std::string_view name) {
  std::string text;
  for (const char c : name) {
    if (c == '\\') text += "\\\\";
    if (c == '\n') text += "\\n";
    if (c == '\r') text += "\\r";
    if (c != '\\' && c != '\n' && c != '\r') text += c;
  }
  return text;
}

std::string unescaped(std::string_view name) {
  std::string text;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (name[i] != '\\' || i + 1 == name.size()) {
      text += name[i];
      continue;
    }
    const char c = name[++i];
    text += c == 'n' ? '\n' : c == 'r' ? '\r' : c;
  }
  return text;
}

std::optional<std::string> hash_of(Session& session, const std::string& argument,
                                   const LossPolicy& policy) {
  ReadInput input = read_input(session, argument);
  std::optional<std::string> text = make_canonical_text(session, input, policy, OldText::Forgotten);
  if (!text || !accept_findings(session, argument, *text, policy)) return std::nullopt;
  return sha256_of(*text);
}

ExitCode print_hash(Session& session, const std::string& argument, const LossPolicy& policy) {
  const std::optional<std::string> digest = hash_of(session, argument, policy);
  if (!digest) return ExitCode::Trouble;
  const std::string name = escaped(argument);
  session.output().write((name == argument ? "" : "\\") + *digest + "  " + name + "\n");
  return ExitCode::Done;
}

/// What a file with hashes says: inputs, and the hash of each.
struct Expected {
  std::vector<std::string> files = {};
  std::vector<std::string> hashes = {};
};

/// hash-line = [ "\" ] 64hexdigit " " ( " " / "*" ) name
void add_line(std::string_view line, std::size_t number, Expected& expected) {
  const bool is_escaped = line.substr(0, 1) == "\\";
  if (is_escaped) line.remove_prefix(1);
  const std::string_view digest = line.substr(0, digits_of_hash);
  const bool is_hash = digest.size() == digits_of_hash &&
                       digest.find_first_not_of("0123456789abcdef") == std::string_view::npos;
  const std::string_view mark = is_hash ? line.substr(digits_of_hash, 2) : std::string_view();
  if ((mark != "  " && mark != " *") || line.size() == digits_of_hash + mark.size())
    throw Trouble("expected a hash of 64 digits, two blanks and the name of an input", number);
  const std::string_view name = line.substr(digits_of_hash + mark.size());
  expected.files.push_back(is_escaped ? unescaped(name) : std::string(name));
  expected.hashes.emplace_back(digest);
}

void add_lines(std::string_view content, Expected& expected) {
  for (std::size_t number = 1; !content.empty(); ++number) {
    const std::size_t end = content.find('\n');
    if (const std::string_view line = content.substr(0, end); !line.empty())
      add_line(line, number, expected);
    content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
  }
}

ExitCode check_hash(Session& session, const std::string& argument, const std::string& expected,
                    const LossPolicy& policy) {
  const std::optional<std::string> digest = hash_of(session, argument, policy);
  if (!digest) return ExitCode::Trouble;
  session.output().write(escaped(argument) + (*digest == expected ? ": OK\n" : ": FAILED\n"));
  return *digest == expected ? ExitCode::Done : ExitCode::No;
}

ExitCode check_all(Session& session, const ChosenFiles& lists, const BatchOptions& options,
                   const LossPolicy& policy) {
  Expected expected;
  const ExitCode code =
      for_each_number(session, lists, BatchOptions(), [&](Session& one, std::size_t number) {
        add_lines(read_source(one, lists.files[number]).content, expected);
        return ExitCode::Done;
      });
  const ChosenFiles chosen{std::move(expected.files), code};
  return for_each_number(session, chosen, options, [&](Session& one, std::size_t number) {
    return check_hash(one, chosen.files[number], expected.hashes[number], policy);
  });
}

ExitCode hash(Session& session, const CLI::App& app) {
  const LossPolicy policy = read_loss_policy(app);
  const BatchOptions options = read_batch_options(app);
  const bool checks = is_given(app, check);
  const ChosenFiles chosen = choose_files(session, read_file_choice(app, values_of(app, files)));
  if (checks) return check_all(session, chosen, options, policy);
  return for_each_file(session, chosen, options, [&](Session& one, const std::string& argument) {
    return print_hash(one, argument, policy);
  });
}

}  // namespace

Verb add_hash(CLI::App& program) {
  CLI::App* app = add_verb(program, "hash", "Print or check hashes of inputs", example);
  add_files(*app, files);
  add_flag(*app, check);
  add_loss_options(*app);
  add_file_options(*app);
  add_common_options(*app);
  return {app, hash};
}

}  // namespace kelp::input::quill::tool
