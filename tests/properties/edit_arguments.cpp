#include "properties/edit_arguments.hpp"

#include "properties/made_document.hpp"

namespace kelp::input::quill {

namespace {

/// Calls `visit` with every string of the document; symbols come last.
template <typename Visit>
void visit_strings(const QuillInput& document, Visit visit) {
  for (const HeaderCommand& command : document.commands) {
    visit(command.name);
    if (command.value) visit(*command.value);
    for (const CommandParameter& parameter : command.parameters) {
      visit(parameter.name);
      if (parameter.value) visit(*parameter.value);
    }
  }
  for (const std::string& path : document.geometry.xyz_files) visit(path);
  for (const PostCommand& command : document.post_commands) {
    visit(command.post_file);
    visit(command.raw_text);
  }
  for (const AtomRecord& atom : document.geometry.atoms) visit(atom.symbol);
}

std::size_t count_strings(const QuillInput& document, Symbols symbols) {
  std::size_t count = 0;
  visit_strings(document, [&count](const std::string&) { ++count; });
  return symbols == Symbols::Included ? count : count - document.geometry.atoms.size();
}

std::string_view string_at(const QuillInput& document, std::size_t place) {
  std::string_view found;
  std::size_t at = 0;
  visit_strings(document, [&](const std::string& text) {
    if (at == place) found = text;
    ++at;
  });
  return found;
}

}  // namespace

TextArgument::TextArgument(ByteSource& source, const QuillInput& document, Symbols symbols) {
  const std::size_t count = count_strings(document, symbols);
  if (source.below(3) != 2 || count == 0) {
    copy_ = source.text();
    return;
  }
  place_ = source.below(256) % count;
  const std::string_view stored = string_at(document, place_);
  offset_ = source.below(4) % (stored.size() + 1);
  const std::size_t length = stored.size() - offset_;
  const std::size_t cut = source.below(2) % (length + 1);
  copy_ = stored.substr(offset_, length - cut);
}

std::string_view TextArgument::in(const QuillInput& document) const {
  if (place_ == no_place) return copy_;
  return string_at(document, place_).substr(offset_, copy_.size());
}

AtomNumbersArgument::AtomNumbersArgument(ByteSource& source, const QuillInput& document) {
  const auto& commands = document.post_commands;
  if (source.below(3) == 2 && !commands.empty()) {
    place_ = source.below(256) % commands.size();
    copy_ = commands[place_].atom_indices;
  } else {
    copy_ = made_atom_numbers(source);
  }
}

const std::vector<std::int32_t>& AtomNumbersArgument::in(const QuillInput& document) const {
  return place_ == no_place ? copy_ : document.post_commands[place_].atom_indices;
}

}  // namespace kelp::input::quill
