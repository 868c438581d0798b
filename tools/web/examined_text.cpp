#include "web/examined_text.hpp"

#include <cstddef>
#include <iterator>
#include <utility>

#include "kelp/input/quill/lossless/input_doubt.hpp"
#include "kelp/input/quill/lossless/proof.hpp"
#include "kelp/input/quill/lossless/wording.hpp"
#include "lint/mending.hpp"
#include "quill-inp/editing/canonical_text.hpp"
#include "quill-inp/editing/losses.hpp"
#include "quill-inp/findings/file_report.hpp"

namespace kelp::input::quill::web {

namespace {

constexpr std::size_t most_losses_told = 20;

std::vector<tool::LossWords> list_losses(const lossless::ReadText& read,
                                         tool::CanonicalText& canonical) {
  std::vector<tool::LossWords> words;
  if (const auto doubt = lossless::find_input_doubt(read))
    words.push_back({"the text " + lossless::words(*doubt), doubt->line});
  const QuillInput& document = read.result.input;
  const lossless::Proof proof = lossless::prove(canonical.text, document, tool::accepted_change);
  const tool::Losses losses{
      {}, tool::list_line_losses(read), std::move(canonical.problems), proof, document};
  std::vector<tool::LossWords> of_losses = tool::words(losses, most_losses_told);
  std::move(of_losses.begin(), of_losses.end(), std::back_inserter(words));
  return words;
}

}  // namespace

ExaminedText examine(std::string text) {
  ExaminedText examined;
  examined.read = lossless::read_text(std::move(text));
  examined.found = lint::find_first(examined.read, lint::Options(),
                                    {tool::most_of_a_rule, tool::most_of_a_rule});
  tool::CanonicalText canonical = tool::canonical_text(examined.read.result.input);
  examined.losses = list_losses(examined.read, canonical);
  examined.canonical_text = std::move(canonical.text);
  return examined;
}

std::string mended_text(const ExaminedText& examined) {
  const auto is_wanted = [](const lint::Finding&) { return true; };
  return lint::mend(examined.read, lint::Options(), is_wanted).read.text;
}

}  // namespace kelp::input::quill::web
