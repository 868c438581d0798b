#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_EDIT_ARGUMENTS_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_EDIT_ARGUMENTS_HPP

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "properties/byte_source.hpp"

// Arguments of edits. Each is either a value of its own or a part of the document that is edited:
// copy() is the value, and in() refers to the part where there is one. Asking for it allocates
// nothing.

namespace kelp::input::quill {

inline constexpr std::size_t no_place = std::numeric_limits<std::size_t>::max();

enum class Symbols { Included, LeftOut };

/// A text of its own, or a piece of any string that the document holds.
class TextArgument {
 public:
  TextArgument(ByteSource& source, const QuillInput& document, Symbols symbols = Symbols::Included);

  const std::string& copy() const { return copy_; }
  std::string_view in(const QuillInput& document) const;

 private:
  std::size_t place_ = no_place;
  std::size_t offset_ = 0;
  std::string copy_;
};

/// A value of its own, or an element of a list of the document.
template <typename T>
class ElementArgument {
 public:
  ElementArgument(ByteSource& source, const std::vector<T>& list, T (*make)(ByteSource&)) {
    if (source.below(3) == 2 && !list.empty()) {
      place_ = source.below(256) % list.size();
      copy_ = list[place_];
    } else {
      copy_ = make(source);
    }
  }

  const T& copy() const { return copy_; }
  const T& in(const std::vector<T>& list) const {
    return place_ == no_place ? copy_ : list[place_];
  }

 private:
  std::size_t place_ = no_place;
  T copy_;
};

/// A list of its own, or one of the document's.
template <typename T>
class ListArgument {
 public:
  ListArgument(ByteSource& source, const std::vector<T>& list, std::vector<T> (*make)(ByteSource&))
      : is_stored_(source.below(3) == 2), copy_(is_stored_ ? list : make(source)) {}

  const std::vector<T>& copy() const { return copy_; }
  const std::vector<T>& in(const std::vector<T>& list) const { return is_stored_ ? list : copy_; }

 private:
  bool is_stored_;
  std::vector<T> copy_;
};

/// Atom numbers of their own, or those of a post-processing line.
class AtomNumbersArgument {
 public:
  AtomNumbersArgument(ByteSource& source, const QuillInput& document);

  const std::vector<std::int32_t>& copy() const { return copy_; }
  const std::vector<std::int32_t>& in(const QuillInput& document) const;

 private:
  std::size_t place_ = no_place;
  std::vector<std::int32_t> copy_;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_EDIT_ARGUMENTS_HPP
