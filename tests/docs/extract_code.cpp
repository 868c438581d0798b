// Turns the C++ code blocks of a Markdown page into one program, so that documentation which does
// not compile, or asserts something wrong, fails the tests.
//
//   extract_code PAGE.md PROGRAM.cpp
//   extract_code HEADER.hpp PROGRAM.cpp INCLUDED.hpp...
//
// Include lines and using directives of the page are gathered at the top; nothing else is included
// before its code, so that code which needs a header that the page does not show does not compile.
// Each block becomes a function, or, if it defines main, a namespace whose main is called; one that
// defines functions for other languages is compiled as it is. Compiler messages name the page and
// its lines.
//
// A block of "text", or of no language, right after a C++ block is what that block prints.
//
// Blocks of a header are the indented lines of its comments. In "EXPRESSION;  // VALUE" the comment
// is the value of the expression. The program includes the headers that are named, and needs no
// qualified names.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Block {
  std::size_t first_line;
  std::vector<std::string> lines = {};
  std::string printed = {};
};

bool starts_with(const std::string& line, const std::string& prefix) {
  return line.compare(0, prefix.size(), prefix) == 0;
}

std::vector<Block> find_blocks(std::istream& page) {
  std::vector<Block> blocks;
  std::string language;
  std::string language_before;
  std::string line;
  bool is_inside = false;
  for (std::size_t number = 1; std::getline(page, line); ++number) {
    if (starts_with(line, "```")) {
      is_inside = !is_inside;
      if (!is_inside) continue;
      language_before = language;
      language = line.substr(3);
      if (language == "cpp") blocks.push_back({number + 1});
    } else if (is_inside && language == "cpp") {
      blocks.back().lines.push_back(line);
    } else if (is_inside && language_before == "cpp" && (language.empty() || language == "text")) {
      blocks.back().printed += line + "\n";
    }
  }
  return blocks;
}

/// Makes a line of a header assert what its comment says.
std::string with_assertion(const std::string& line) {
  const std::size_t comment = line.find("  // ");
  const std::size_t end = line.find(';');
  if (comment == std::string::npos || end > comment) return line;
  return "assert((" + line.substr(0, end) + ") == (" + line.substr(comment + 5) + "));";
}

std::vector<Block> find_blocks_of_header(std::istream& header) {
  const std::string prefix = "///     ";
  std::vector<Block> blocks;
  bool is_inside = false;
  std::string line;
  for (std::size_t number = 1; std::getline(header, line); ++number) {
    // The headers of the sister libraries begin with an ordinary comment.
    if (starts_with(line, "//") && !starts_with(line, "///")) line.insert(0, "/");
    const bool is_code = starts_with(line, prefix);
    if (is_code && !is_inside) blocks.push_back({number});
    if (is_code) blocks.back().lines.push_back(with_assertion(line.substr(prefix.size())));
    is_inside = is_code || (is_inside && line == "///");
  }
  return blocks;
}

bool belongs_on_top(const std::string& line) {
  return starts_with(line, "#include") || starts_with(line, "using namespace");
}

bool has_line(const Block& block, const std::string& beginning) {
  return std::any_of(block.lines.begin(), block.lines.end(),
                     [&](const auto& line) { return starts_with(line, beginning); });
}

bool defines_main(const Block& block) { return has_line(block, "int main("); }

bool is_for_other_languages(const Block& block) { return has_line(block, "extern \"C\""); }

void write_lines(std::ostream& out, const Block& block, const std::string& page) {
  out << "#line " << block.first_line << " \"" << page << "\"\n";
  for (const std::string& line : block.lines) out << (belongs_on_top(line) ? "" : line) << "\n";
}

void write_block(std::ostream& out, const Block& block, const std::string& page,
                 const std::string& name) {
  if (is_for_other_languages(block)) {
    write_lines(out, block, page);
    return;
  }
  const bool is_program = defines_main(block);
  out << (is_program ? "namespace " : "void ") << name << (is_program ? " {\n" : "() {\n");
  write_lines(out, block, page);
  out << "}\n";
}

/// Calls a block; if the page says what that prints, compares.
void write_call(std::ostream& out, const Block& block, const std::string& name) {
  if (is_for_other_languages(block)) return;
  const std::string call = name + (defines_main(block) ? "::main_of_block();" : "();");
  if (block.printed.empty()) {
    out << "  " << call << "\n";
    return;
  }
  out << "  {\n    std::ostringstream printed;\n"
      << "    std::streambuf* const before = std::cout.rdbuf(printed.rdbuf());\n"
      << "    " << call << "\n    std::cout.rdbuf(before);\n"
      << "    std::cout << printed.str();\n"
      << "    assert(printed.str() == R\"printed(" << block.printed << ")printed\");\n  }\n";
}

void write_program(std::ostream& out, const std::vector<Block>& blocks, const std::string& page) {
  for (const Block& block : blocks) {
    for (const std::string& line : block.lines) {
      if (belongs_on_top(line)) out << line << "\n";
    }
  }
  out << "#define main main_of_block\n";
  std::ostringstream calls;
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    const std::string name = "block_" + std::to_string(i + 1);
    write_block(out, blocks[i], page, name);
    write_call(calls, blocks[i], name);
  }
  out << "#undef main\n#include <cassert>\n#include <iostream>\n#include <sstream>\n"
      << "int main() {\n"
      << calls.str() << "}\n";
}

void write_top_for_header(std::ostream& out, const std::vector<std::string>& included) {
  for (const std::string standard : {"cassert", "iostream", "stdexcept"})
    out << "#include <" << standard << ">\n";
  for (const std::string& header : included) out << "#include \"" << header << "\"\n";
  for (const std::string name : {"kelp::input::quill", "kelp::input::quill::lossless", "kelp::core",
                                 "kelp::core::text", "kelp::chem::elements"})
    out << "namespace " << name << " {}\nusing namespace " << name << ";\n";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: extract_code PAGE.md|HEADER.hpp PROGRAM.cpp [INCLUDED.hpp...]\n";
    return 2;
  }
  std::ifstream page(argv[1]);
  const bool is_header = std::string(argv[1]).find(".hpp") != std::string::npos;
  const std::vector<Block> blocks = is_header ? find_blocks_of_header(page) : find_blocks(page);
  if (blocks.empty()) {
    std::cerr << argv[1] << ": no C++ code block found\n";
    return 1;
  }
  std::ofstream program(argv[2]);
  program << "#undef NDEBUG\n";
  if (is_header) write_top_for_header(program, {argv + 3, argv + argc});
  write_program(program, blocks, argv[1]);
  program.close();
  return program ? 0 : 1;
}
