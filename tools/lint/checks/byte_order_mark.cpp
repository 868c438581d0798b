#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

}  // namespace

// The reader takes the mark for letters, so that the first line is not a header line.
void check_byte_order_mark(const Source& source, Collector& findings) {
  if (source.text().substr(0, byte_order_mark.size()) != byte_order_mark) return;
  const Range range{0, byte_order_mark.size()};
  findings.add({range, {}, {}, Mend{{{range, ""}}, true}});
}

}  // namespace kelp::input::quill::lint
