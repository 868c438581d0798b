#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "quill-inp/formats/document_form.hpp"
#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/formats/json_reading.hpp"
#include "quill-inp/formats/json_text.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::tool {

namespace {

/// The value before the first entry of a list, so that adding 1 gives the first index.
constexpr std::size_t before_first = std::numeric_limits<std::size_t>::max();

/// Puts the pieces of a JSON text into a document, each when it comes.
class DocumentReader : public JsonListener {
 public:
  void begin_object() override {
    const ValueForm& form = next_form();
    if (form.kind == ValueForm::Kind::Text) {
      is_in_bytes_ = true;
      return;
    }
    require_kind(form, ValueForm::Kind::Object);
    if (form.begin != nullptr) form.begin(document_);
    levels_.push_back({&form, before_first, 0});
  }

  void begin_member(const std::string& name) override {
    if (is_in_bytes_) {
      // The bytes are the only member: with any other member, the object is something else.
      if (name != bytes_member || has_bytes_) throw_expected(text_form());
      return;
    }
    Level& level = levels_.back();
    const std::size_t member = find_member(name);
    const std::uint32_t bit = std::uint32_t{1} << member;
    if ((level.given & bit) != 0) throw Trouble("two members '" + name + "' in one JSON object");
    level.given |= bit;
    level.at = member;
  }

  void end_object() override {
    if (is_in_bytes_) {
      end_bytes();
      return;
    }
    const Level level = levels_.back();
    for (std::size_t i = 0; i < level.form->member_count; ++i) {
      const MemberForm& member = level.form->members[i];
      if (member.is_required && (level.given >> i & 1U) == 0)
        throw Trouble(place_of(levels_.size() - 1) + ": expected a member '" +
                      std::string(member.name) + "'");
    }
    if (level.form->end != nullptr) level.form->end(document_, level.given);
    levels_.pop_back();
  }

  void begin_list() override {
    const ValueForm& form = next_form();
    require_kind(form, ValueForm::Kind::List);
    levels_.push_back({&form, before_first, 0});
  }

  void end_list() override { levels_.pop_back(); }

  void take(JsonScalar scalar) override {
    if (is_in_bytes_) {
      take_bytes(scalar);
      return;
    }
    const ValueForm& form = next_form();
    if (form.store == nullptr || !form.store(document_, scalar)) throw_expected(form);
  }

  QuillInput take_document() { return std::move(document_); }

 private:
  /// A list or an object that has not ended yet, and the entry or member of it that was begun last.
  struct Level {
    const ValueForm* form;
    std::size_t at;
    std::uint32_t given;  // the members of an object, a bit for each
  };

  /// Returns the form of the value that begins now.
  const ValueForm& next_form() {
    if (is_in_bytes_) throw_expected(text_form());
    if (levels_.empty()) return document_form();
    Level& level = levels_.back();
    if (level.form->kind == ValueForm::Kind::Object) return *level.form->members[level.at].value;
    ++level.at;
    return *level.form->entry;
  }

  /// Returns the form of the text whose bytes are being read.
  const ValueForm& text_form() const {
    const Level& level = levels_.back();
    return level.form->kind == ValueForm::Kind::Object ? *level.form->members[level.at].value
                                                       : *level.form->entry;
  }

  void take_bytes(JsonScalar& scalar) {
    if (scalar.kind != JsonScalar::Kind::Text) throw_expected(text_form());
    auto bytes = bytes_from_hexadecimal(scalar.text);
    if (!bytes)
      throw Trouble(place_of(levels_.size()) +
                    ": expected pairs of hexadecimal digits in lower case");
    bytes_ = {JsonScalar::Kind::Text, false, 0.0, std::move(*bytes)};
    has_bytes_ = true;
  }

  void end_bytes() {
    if (!has_bytes_) throw_expected(text_form());
    is_in_bytes_ = false;
    has_bytes_ = false;
    text_form().store(document_, bytes_);
  }

  std::size_t find_member(const std::string& name) const {
    const ValueForm& form = *levels_.back().form;
    for (std::size_t i = 0; i < form.member_count; ++i) {
      if (form.members[i].name == name) return i;
    }
    std::vector<std::string> names;
    for (std::size_t i = 0; i < form.member_count; ++i) names.emplace_back(form.members[i].name);
    throw Trouble(place_of(levels_.size() - 1) + ": unknown member '" + name + "'" +
                  suggestion(name, names));
  }

  void require_kind(const ValueForm& form, ValueForm::Kind kind) const {
    if (form.kind != kind) throw_expected(form);
  }

  [[noreturn]] void throw_expected(const ValueForm& form) const {
    throw Trouble(place_of(levels_.size()) + ": expected " + form.expected());
  }

  /// Returns the path of the value inside so many levels, for messages: "/commands/0/name".
  std::string place_of(std::size_t depth) const {
    std::string path;
    for (std::size_t i = 0; i < depth; ++i) {
      const Level& level = levels_[i];
      const bool is_object = level.form->kind == ValueForm::Kind::Object;
      path += '/';
      path +=
          is_object ? std::string(level.form->members[level.at].name) : std::to_string(level.at);
    }
    return path.empty() ? "the outermost value" : path;
  }

  QuillInput document_;
  std::vector<Level> levels_;
  bool is_in_bytes_ = false;
  bool has_bytes_ = false;
  JsonScalar bytes_;
};

}  // namespace

QuillInput document_from_json(std::string_view text) {
  DocumentReader reader;
  read_json(text, reader);
  QuillInput document = reader.take_document();
  // A list that grew entry by entry has room for up to twice as many.
  document.commands.shrink_to_fit();
  document.geometry.atoms.shrink_to_fit();
  document.post_commands.shrink_to_fit();
  return document;
}

}  // namespace kelp::input::quill::tool
