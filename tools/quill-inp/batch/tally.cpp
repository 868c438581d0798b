#include "quill-inp/batch/tally.hpp"

namespace kelp::input::quill::tool {

void Tally::add(ExitCode code, bool was_changed) {
  ++files;
  if (was_changed) ++changed;
  if (code == ExitCode::No) ++without_match;
  if (code == ExitCode::Trouble) ++refused;
}

std::string words(const Tally& tally, std::string_view changed) {
  std::string text = grouped(tally.files) + (tally.files == 1 ? " file, " : " files, ") +
                     grouped(tally.changed) + " " + std::string(changed);
  if (tally.without_match > 0) text += ", " + grouped(tally.without_match) + " without a match";
  if (tally.refused > 0) text += ", " + grouped(tally.refused) + " refused";
  return text;
}

std::string grouped(std::size_t number) {
  std::string text = std::to_string(number);
  for (std::size_t end = text.size(); end > 3; end -= 3) text.insert(end - 3, 1, ',');
  return text;
}

}  // namespace kelp::input::quill::tool
