#include "fenced_blocks.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace kelp::input::quill {

std::vector<FencedBlock> find_fenced_blocks(const std::string& page) {
  std::vector<FencedBlock> blocks;
  bool is_inside = false;
  std::string heading;
  std::istringstream lines(page);
  std::string line;
  for (std::size_t number = 1; std::getline(lines, line); ++number) {
    if (line.compare(0, 3, "```") == 0) {
      is_inside = !is_inside;
      if (is_inside) blocks.push_back({line.substr(3), "", heading, number});
    } else if (is_inside) {
      blocks.back().text += line + "\n";
    } else if (line.compare(0, 1, "#") == 0) {
      heading = line;
    }
  }
  return blocks;
}

std::string content_of_page(const std::string& path) {
  std::ifstream file(std::string(KELP_QUILL_INP_SOURCE_DIR) + "/" + path);
  EXPECT_TRUE(file.is_open()) << path;
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

}  // namespace kelp::input::quill
