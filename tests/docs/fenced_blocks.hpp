#ifndef KELP_INPUT_QUILL_TESTS_DOCS_FENCED_BLOCKS_HPP
#define KELP_INPUT_QUILL_TESTS_DOCS_FENCED_BLOCKS_HPP

#include <cstddef>
#include <string>
#include <vector>

namespace kelp::input::quill {

/// A block of code on a Markdown page, between lines of three backticks.
struct FencedBlock {
  std::string language;
  std::string text = {};  // every line with its end
  std::string heading;    // the last one before the block, with its "#"s
  std::size_t line;       // of the first backticks, counted from 1
};

/// Returns the blocks of the page in their order.
std::vector<FencedBlock> find_fenced_blocks(const std::string& page);

/// Returns the content of a file of the tree. Fails the test when there is none.
std::string content_of_page(const std::string& path);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_DOCS_FENCED_BLOCKS_HPP
