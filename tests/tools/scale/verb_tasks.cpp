// What the verbs do with large inputs and large JSON texts.

#include <cstddef>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "scale/tasks.hpp"
#include "support/temporary_folder.hpp"
#include "tools/scale/in_memory_call.hpp"

namespace kelp::input::quill {

namespace {

std::string repeated(std::string_view piece, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += piece;
  return text;
}

std::string atoms(std::size_t n) {
  return "#opt\n#model = m1\n\n0 1\n" +
         repeated("C      -0.729000     -2.609047      2.312980\n", n);
}

std::string xyz_atoms(std::size_t n) {
  return std::to_string(n) + "\n\n" + repeated("C -0.729000 -2.609047 2.312980\n", n);
}

std::string commands(std::size_t n) { return repeated("#opt(maxiter=50, tight)\n", n) + "0 1\n"; }

std::string post_lines(std::size_t n) { return "0 1\n" + repeated("S 1 2 1.5 10\n", n); }

std::string parameters(std::size_t n) { return "#opt(" + repeated("maxiter=50, ", n) + "x)\n"; }

std::string different_commands(std::size_t n) {
  std::string text;
  for (std::size_t i = 0; i < n; ++i) text += "#name" + std::to_string(i) + " = 1\n";
  return text;
}

/// A line ends the atoms too early, and all others are raw text.
std::string lost_atoms(std::size_t n) { return "0 1\nH 0 0 1,5\n" + repeated("C 0 0 1.5\n", n); }

std::string moved_atoms(std::size_t n) {
  return "#opt\n#model = m1\n\n0 1\n" + repeated("C -0.729 -2.609 2.313\n", n);
}

std::string other_parameters(std::size_t n) {
  return "#opt(" + repeated("maxiter=60, ", n) + "x)\n";
}

/// The same commands as different_commands() has, in the opposite order.
std::string commands_in_reverse(std::size_t n) {
  std::string text;
  for (std::size_t i = n; i-- > 0;) text += "#name" + std::to_string(i) + " = 2\n";
  return text;
}

/// Post-processing lines of which no two are equal, and none is one of the other list.
std::string even_post_lines(std::size_t n) {
  std::string text = "0 1\n";
  for (std::size_t i = 1; i <= n; ++i) text += "B 1 " + std::to_string(2 * i) + "\n";
  return text;
}

std::string odd_post_lines(std::size_t n) {
  std::string text = "0 1\n";
  for (std::size_t i = 1; i <= n; ++i) text += "B 1 " + std::to_string(2 * i + 1) + "\n";
  return text;
}

std::string small_input(std::size_t /*size*/) { return "#opt\n#model = m1\n\n0 1\nHe 0 0 0\n"; }

std::string structures(std::size_t n) { return repeated("1\n\nHe 0 0 1\n", n); }

/// Values of an option that no input has.
std::string values(std::size_t n) {
  std::string list = "opt.a=[0";
  for (std::size_t i = 1; i < n; ++i) list += "," + std::to_string(i);
  return list + "]";
}

std::string lone_carriage_returns(std::size_t n) { return "#sp\n" + repeated("0 1\r", n); }

/// A list as JSON has it, in an object that begins with `begin`.
std::string json_list(std::string_view begin, std::string_view entry, std::size_t n,
                      std::string_view end) {
  std::string text(begin);
  for (std::size_t i = 0; i < n; ++i) {
    text += i == 0 ? "\n" : ",\n";
    text += entry;
  }
  text += end;
  return text;
}

std::string json_atoms(std::size_t n) {
  return json_list(R"({"geometry": {"kind": "atoms", "charge": 0, "atoms": [)",
                   R"({"symbol": "C", "x": -0.729, "y": -2.609047, "z": 2.31298})", n, "]}}");
}

std::string json_parameters(std::size_t n) {
  return json_list(R"({"commands": [{"name": "a", "kind": "parameter_list", "parameters": [)",
                   R"({"name": "b", "value": "c"})", n, R"(]}], "geometry": {"kind": "none"}})");
}

struct Verb {
  std::string_view name;
  std::vector<std::string> arguments;  // "./" is the folder of the call
  std::string (*input)(std::size_t size);
  std::size_t size;
  int code = 0;
  std::string (*second_file)(std::size_t size) = nullptr;  // which is "./b"
  std::string (*last_argument)(std::size_t size) = nullptr;
};

// Large enough for a quadratic cost to show, small enough for callgrind to count in a minute.
constexpr std::size_t hundred = 100;

const Verb verbs[] = {
    {"ShowOfAtoms", {"show", "-"}, atoms, 5 * hundred},
    {"ShowOfPostLinesAsJson", {"show", "--json", "-"}, post_lines, 5 * hundred},
    {"ShowOfCommandsAsJson", {"show", "--json", "-"}, commands, 3 * hundred},
    {"ShowOfLines", {"show", "--lines", "-"}, atoms, 5 * hundred},
    {"FmtOfAtoms", {"fmt", "-"}, atoms, 5 * hundred},
    {"FmtOfCommands", {"fmt", "-"}, commands, 3 * hundred},
    {"GetOfAtoms", {"get", "-", "@atoms"}, atoms, 5 * hundred},
    {"GetOfAtomsAsJson", {"get", "--json", "-", "@atoms"}, atoms, 5 * hundred},
    {"GetOfPostLines", {"get", "-", "@scans"}, post_lines, 5 * hundred},
    {"GetOfEveryKey", {"get", "-", "@keys"}, commands, 3 * hundred},
    {"SetInAtoms", {"set", "-", "opt.maxiter=50", "@charge=1"}, atoms, 5 * hundred},
    {"UnsetOfEveryCommand", {"unset", "-", "opt"}, commands, 3 * hundred},
    {"UnsetOfEveryPostLine", {"unset", "-", "@scans"}, post_lines, 5 * hundred},
    {"AddToAtoms", {"add", "-", "--bond", "1,2"}, atoms, 5 * hundred},
    {"NewOfAtoms", {"new", "--charge", "0", "--atoms", "-"}, xyz_atoms, 5 * hundred},
    {"HashOfAtoms", {"hash", "-"}, atoms, 5 * hundred},
    {"LintOfCommands", {"lint", "--fail-on=never", "-"}, commands, 3 * hundred},
    {"LintOfPostLines", {"lint", "--fail-on=never", "-"}, post_lines, 3 * hundred},
    {"JsonOfAtoms", {"json", "-"}, atoms, 5 * hundred},
    {"JsonOfCommands", {"json", "-"}, commands, 3 * hundred},
    {"FromJsonOfAtoms", {"from-json", "-"}, json_atoms, 5 * hundred},
    {"FromJsonOfParameters", {"from-json", "-"}, json_parameters, 3 * hundred},
    {"LintOfAtoms", {"lint", "--fail-on=never", "-"}, atoms, 5 * hundred},
    {"LintOfLostAtoms", {"lint", "--fail-on=never", "-"}, lost_atoms, 5 * hundred},
    {"LintOfDifferentCommands",
     {"lint", "--fail-on=never", "--format=json", "-"},
     different_commands,
     3 * hundred},
    {"LintOfParameters",
     {"lint", "--fail-on=never", "--format=sarif", "-"},
     parameters,
     3 * hundred},
    {"LintOfCarriageReturns", {"lint", "--fail-on=never", "-"}, lone_carriage_returns, 3 * hundred},
    {"DiffOfAtoms", {"diff", "-", "./b"}, atoms, 5 * hundred, 1, moved_atoms},
    {"DiffOfAtomsAsJson", {"diff", "--json", "-", "./b"}, atoms, 5 * hundred, 1, moved_atoms},
    {"DiffOfCommands", {"diff", "-", "./b"}, commands, 3 * hundred, 1, small_input},
    {"DiffOfDifferentCommands",
     {"diff", "-", "./b"},
     different_commands,
     3 * hundred,
     1,
     commands_in_reverse},
    {"DiffOfParameters", {"diff", "-", "./b"}, parameters, 5 * hundred, 1, other_parameters},
    {"DiffOfPostLines", {"diff", "-", "./b"}, post_lines, 5 * hundred, 1, small_input},
    // Up to a thousand lines, the search for the fewest differences may take their square.
    {"DiffOfDifferentPostLines",
     {"diff", "-", "./b"},
     even_post_lines,
     10 * hundred,
     1,
     odd_post_lines},
    {"SweepOfValues",
     {"sweep", "-q", "-", "-o", "./{number}.qin", "--manifest", "./list.tsv"},
     small_input,
     hundred,
     0,
     nullptr,
     values},
    {"SweepOfStructures",
     {"sweep", "-q", "-", "-o", "./{frame}.qin", "--frames", "--atoms", "./b"},
     small_input,
     hundred,
     0,
     structures},
    {"SweepOfAtoms", {"sweep", "-q", "-", "@charge=1", "-o", "./a.qin"}, atoms, 5 * hundred},
};

/// What one call needs: its folder is there as long as this is.
struct Prepared {
  TemporaryFolder folder = {};
  std::vector<std::string> arguments = {};
  std::string input = {};
};

std::string in_folder(const TemporaryFolder& folder, const std::string& argument) {
  return argument.substr(0, 2) == "./" ? folder.path(argument.substr(2)) : argument;
}

std::shared_ptr<const Prepared> prepare(const Verb& verb, std::size_t size) {
  auto call = std::make_shared<Prepared>();
  for (const std::string& argument : verb.arguments)
    call->arguments.push_back(in_folder(call->folder, argument));
  if (verb.last_argument != nullptr) call->arguments.push_back(verb.last_argument(size));
  if (verb.second_file != nullptr) call->folder.write("b", verb.second_file(size));
  call->input = verb.input(size);
  return call;
}

Task task_of(const Verb& verb) {
  return {std::string(verb.name), verb.size, [&verb](std::size_t size) {
            return [&verb, call = prepare(verb, size)] {
              return tool::call_in_memory(call->arguments, call->input).code == verb.code;
            };
          }};
}

std::vector<Task> all_tasks() {
  std::vector<Task> all;
  for (const Verb& verb : verbs) all.push_back(task_of(verb));
  return all;
}

}  // namespace

void PrintTo(const Task& task, std::ostream* out) { *out << task.name; }

const std::vector<Task>& tasks() {
  static const std::vector<Task> all = all_tasks();
  return all;
}

}  // namespace kelp::input::quill
