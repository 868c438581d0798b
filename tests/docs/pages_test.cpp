// Code in documentation that is never run becomes wrong. So every page has a row that says which
// kinds of code blocks it may have, and some test runs each of these kinds:
//
//   cpp              compiled and run (extract_code.cpp)
//   text, none       after cpp, what that prints; in README.md, the reader's diagnostics of an
//                    input; in other places a drawing
//   qin, diagnostics, written
//                    read and written (format_page_test.cpp)
//   console          carried out in a shell, with what it prints (tests/tools/quill_inp);
//                    on docs/traps.md with the input before it (qin, escaped)
//   cmake, meson, sh built and run (first_program.sh, projects_of_embedding.sh, tests/package,
//                    and the scripts of CI)
//   python           run, with what it prints (tests/python/documentation_test.py); on
//                    docs/python-reference.md, what the package says
//                    (tests/python/reference_test.py)
//   elisp, lua, vim  lines for the init file of an editor, with paths of the reader: not run
//   toml             read as the choices of a project (tests/tools/quill-inp/findings)
//   abnf             compared with the reader on many lines (grammar_test.cpp)

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "fenced_blocks.hpp"
#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {
namespace {

using Languages = std::set<std::string>;

const std::map<std::string, Languages> languages_tried = {
    {"CONTRIBUTING.md", {"sh"}},
    {"README.md", {"", "cmake", "console", "cpp", "python", "sh", "text"}},
    {"docs/architecture.md", {""}},
    {"docs/cheat-sheet.md", {"qin"}},
    {"docs/editing.md", {"cpp"}},
    {"docs/editors.md", {"elisp", "lua", "sh", "vim"}},
    {"docs/embedding.md", {"cmake", "cpp", "sh"}},
    {"docs/findings.md", {"toml"}},
    {"docs/format.md", {"abnf", "cpp", "diagnostics", "qin", "written"}},
    {"docs/getting-started.md", {"cmake", "console", "cpp", "sh", "text"}},
    {"docs/language-server.md", {}},
    {"docs/packaging.md", {"cmake", "cpp", "meson", "sh"}},
    {"docs/performance.md", {"text"}},
    {"docs/python-reference.md", {"python"}},
    {"docs/python.md", {"python", "text"}},
    {"docs/quill-inp.md", {"console", "text"}},
    {"docs/traps.md", {"console", "escaped", "qin"}},
    {"docs/writing-files.md", {}},
};

std::vector<std::string> pages() {
  const std::filesystem::path root = KELP_QUILL_INP_SOURCE_DIR;
  std::vector<std::string> names = {"README.md", "CONTRIBUTING.md"};
  for (const auto& entry : std::filesystem::directory_iterator(root / "docs")) {
    if (entry.path().extension() == ".md")
      names.push_back("docs/" + entry.path().filename().string());
  }
  return names;
}

TEST(Pages, HaveOnlyCodeThatIsTested) {
  for (const std::string& page : pages()) {
    const auto row = languages_tried.find(page);
    if (row == languages_tried.end()) {
      ADD_FAILURE() << page << " has no row here";
      continue;
    }
    for (const FencedBlock& block : find_fenced_blocks(content_of_page(page)))
      EXPECT_THAT(row->second, testing::Contains(block.language)) << page << ":" << block.line;
  }
}

/// What a pattern captures in the shell blocks of all pages.
std::set<std::string> names_in_shell_blocks(const std::string& pattern) {
  std::set<std::string> names;
  const std::regex name(pattern);
  for (const std::string& page : pages()) {
    for (const FencedBlock& block : find_fenced_blocks(content_of_page(page))) {
      if (block.language != "sh") continue;
      const std::string& text = block.text;
      for (std::sregex_iterator match(text.begin(), text.end(), name), end; match != end; ++match)
        names.insert((*match)[1]);
    }
  }
  return names;
}

TEST(Pages, NamePresetsThatExist) {
  const std::set<std::string> presets = names_in_shell_blocks("--preset ([\\w-]+)");
  EXPECT_THAT(presets, testing::Contains("dev"));
  const std::string known = content_of_page("CMakePresets.json");
  for (const std::string& preset : presets)
    EXPECT_THAT(known, testing::HasSubstr("\"name\": \"" + preset + "\"")) << preset;
}

/// "Line 7: message" of "a.qin" becomes "a.qin:7: warning: message".
std::string located(const std::string& path, const std::string& diagnostic) {
  return std::regex_replace(diagnostic, std::regex("^Line ([0-9]+): "), path + ":$1: warning: ") +
         "\n";
}

TEST(Pages, ShowWhatTheReaderSaysAboutTheCarelessInput) {
  const std::string path = "examples/inputs/careless.qin";
  std::string said;
  for (const std::string& warning : parse_string(content_of_page(path)).warnings)
    said += located(path, warning);
  EXPECT_THAT(content_of_page("README.md"), testing::HasSubstr("```\n" + said + "```\n"));
}

}  // namespace
}  // namespace kelp::input::quill
