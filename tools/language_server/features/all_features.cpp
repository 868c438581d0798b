#include "language_server/features/features.hpp"

namespace kelp::input::quill::language_server {

const std::vector<Feature>& all_features() {
  static const std::vector<Feature> features = {
      {"textDocument/foldingRange", folding_ranges, "foldingRangeProvider", true},
  };
  return features;
}

}  // namespace kelp::input::quill::language_server
