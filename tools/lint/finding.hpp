#ifndef KELP_INPUT_QUILL_LINT_FINDING_HPP
#define KELP_INPUT_QUILL_LINT_FINDING_HPP

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kelp::input::quill::lint {

/// A place in a text, in bytes.
struct Range {
  std::size_t offset = 0;
  std::size_t length = 0;

  std::size_t end() const { return offset + length; }
  bool operator==(const Range& other) const {
    return offset == other.offset && length == other.length;
  }
};

/// The facts of a finding, by the names that its message uses for them.
struct Fact {
  std::string_view name;
  std::variant<std::int64_t, double, std::string> value;
};

inline Fact count_fact(std::string_view name, std::size_t count) {
  return {name, static_cast<std::int64_t>(count)};
}

inline Fact text_fact(std::string_view name, std::string_view text) {
  return {name, std::string(text)};
}

/// Another place that a finding is about, and what it is: "the first of them".
struct RelatedPlace {
  Range range;
  std::string_view role;
};

/// Bytes of the text, and those that replace them.
struct ByteEdit {
  Range range;
  std::string replacement;
};

/// How to mend a text. A safe mend has one meaning and can be made without asking; any other one
/// may change what the author meant, and is only offered.
struct Mend {
  std::vector<ByteEdit> edits;
  bool is_safe = false;
};

/// Something that a text says and its author probably did not mean. words_of() makes its message
/// from the row of the code in the table of rules and from the facts.
struct Finding {
  Range range = {};
  std::vector<Fact> facts = {};
  std::vector<RelatedPlace> related = {};
  std::optional<Mend> mend = std::nullopt;
  std::string_view code = {};  // set by the code that runs the checks
};

using Findings = std::vector<Finding>;

/// How many findings of a rule are kept, and how many edits a mend may have.
struct Limits {
  std::size_t findings = 0;
  std::size_t edits = 0;
};

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_FINDING_HPP
