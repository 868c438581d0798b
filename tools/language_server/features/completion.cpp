#include <algorithm>
#include <filesystem>
#include <map>
#include <string>

#include "kelp/chem/elements.hpp"
#include "language_server/facts/snippets.hpp"
#include "language_server/facts/typed_place.hpp"
#include "language_server/facts/used_names.hpp"
#include "language_server/facts/xyz_candidates.hpp"
#include "language_server/features/features.hpp"
#include "lint/header_line.hpp"
#include "model/post_line_shapes.hpp"
#include "reader/coordinate_lines.hpp"

namespace kelp::input::quill::language_server {

namespace {

/// Kinds of the protocol, by which editors choose a picture.
enum ItemKind {
  Function = 3,
  Property = 10,
  Keyword = 14,
  Snippet = 15,
  File = 17,
  Folder = 19,
  EnumMember = 20
};

// Of the protocol: a text with places to fill.
constexpr int snippet_format = 2;

/// The symbols of the elements, in the order of their numbers.
std::vector<std::string> element_symbols() {
  std::map<int, std::string> symbols;
  const auto add_if_known = [&](const std::string& symbol) {
    if (const auto number = chem::elements::atomic_number_from_symbol(symbol))
      symbols[*number] = symbol;
  };
  for (char first = 'A'; first <= 'Z'; ++first) {
    add_if_known({first});
    for (char second = 'a'; second <= 'z'; ++second) add_if_known({first, second});
  }
  std::vector<std::string> list;
  list.reserve(symbols.size());
  for (const auto& [number, symbol] : symbols) list.push_back(symbol);
  return list;
}

/// The offers for one place. Editors sort them by `sortText`, which keeps this order.
class Offers {
 public:
  Offers(const Snapshot& snapshot, const lint::Range& word, bool has_snippets)
      : range_(to_json(snapshot.position_range_of(word))), has_snippets_(has_snippets) {}

  Json& add(const std::string& label, ItemKind kind, const std::string& text) {
    Json item = {{"label", label},
                 {"kind", static_cast<int>(kind)},
                 {"sortText", sort_text()},
                 {"textEdit", {{"range", range_}, {"newText", text}}}};
    items_.push_back(std::move(item));
    return items_.back();
  }

  Json& add(const std::string& label, ItemKind kind) { return add(label, kind, label); }

  /// Adds a post-processing line: a snippet for each of its forms, or its keyword and a blank.
  void add_line(const PostLineShape& shape) {
    const std::string keyword(shape.keyword);
    if (!has_snippets_) describe(add(keyword, ItemKind::Keyword, keyword + " "), shape);
    for (const std::string& form : variants_of(shape.form)) {
      if (!has_snippets_) break;
      Json& item = add(form, ItemKind::Snippet, snippet_of(form));
      item["insertTextFormat"] = snippet_format;
      describe(item, shape);
    }
  }

  Json json() && { return {{"isIncomplete", false}, {"items", std::move(items_)}}; }

 private:
  static void describe(Json& item, const PostLineShape& shape) {
    item["detail"] = shape.noun;
    item["documentation"] = shape.help;
    item["filterText"] = shape.keyword;
  }

  std::string sort_text() const {
    const std::string number = std::to_string(items_.size());
    return std::string(5 - std::min<std::size_t>(5, number.size()), '0') + number;
  }

  Json range_;
  bool has_snippets_;
  Json items_ = Json::array();
};

void offer_post_lines(Offers& offers) {
  for (const PostLineShape& shape : post_line_shapes) {
    if (!shape.form.empty()) offers.add_line(shape);
  }
}

void offer_first_words(const TypedPlace& place, Offers& offers) {
  if (place.allows_reference) {
    for (const std::string_view keyword : {xyz_keyword, trajectory_keyword})
      offers.add(std::string(keyword), ItemKind::Keyword, std::string(keyword) + " ");
  }
  offer_post_lines(offers);
  if (!place.allows_atom) return;
  for (const std::string& symbol : element_symbols()) offers.add(symbol, ItemKind::EnumMember);
}

/// Returns the names in the text and in its neighbours, without those on the line of the place,
/// which is not finished.
UsedNames names_in_reach(const Snapshot& snapshot, const TypedPlace& place,
                         const Surroundings& surroundings) {
  UsedNames names;
  const LineRecord& unfinished = snapshot.lines()[snapshot.line_at(place.word.offset)];
  std::vector<HeaderCommand> commands = snapshot.input().commands;
  if (unfinished.role == LineRole::Command)
    commands.erase(commands.begin() + static_cast<std::ptrdiff_t>(*unfinished.index));
  names.add(commands);
  if (!surroundings.path.empty()) names.add_neighbours(surroundings.path);
  return names;
}

void offer_commands(const Snapshot& snapshot, const TypedPlace& place,
                    const Surroundings& surroundings, Offers& offers) {
  UsedNames names = names_in_reach(snapshot, place, surroundings);
  lint::Options options;
  options.known_commands = surroundings.known_commands;
  for (const std::string& name : lint::known_names(options)) names.add_command(name);
  for (const std::string& name : names.commands()) offers.add(name, ItemKind::Function);
}

void offer_parameters(const Snapshot& snapshot, const TypedPlace& place,
                      const Surroundings& surroundings, Offers& offers) {
  const UsedNames names = names_in_reach(snapshot, place, surroundings);
  for (const std::string& name : names.parameters_of(place.command))
    offers.add(name, ItemKind::Property);
}

/// Offers the last segment of a path of which `typed` is there already.
void offer_paths(std::string_view typed, const Surroundings& surroundings, Offers& offers) {
  if (surroundings.path.empty()) return;
  const std::string before(typed.substr(0, typed.rfind('/') + 1));
  const auto folder = std::filesystem::path(surroundings.path).parent_path() / before;
  for (const XyzCandidate& candidate : find_xyz_candidates(folder.string())) {
    const std::string text = candidate.name + (candidate.is_folder ? "/" : "");
    offers.add(text, candidate.is_folder ? ItemKind::Folder : ItemKind::File);
  }
}

/// Returns the part of the word at a place that an offer replaces.
lint::Range replaced_by_offers(const Snapshot& snapshot, const TypedPlace& place) {
  if (place.kind != TypedPlace::Kind::XyzPath) return place.word;
  const std::string_view typed = snapshot.text().substr(place.word.offset, place.word.length);
  const std::size_t kept = typed.rfind('/') + 1;
  return {place.word.offset + kept, place.word.length - kept};
}

/// Whether a range is on one line of the editor. An editor refuses completions over several lines.
/// A CR alone ends a line for it, but not for the reader.
bool is_on_one_line(const lint::Range& range, const Snapshot& snapshot) {
  const PositionRange positions = snapshot.position_range_of(range);
  return positions.start.line == positions.end.line;
}

/// Returns what can be typed at a place and then replaced.
TypedPlace replaceable_place(const Snapshot& snapshot, std::size_t offset) {
  TypedPlace place = find_typed_place(snapshot.read(), offset);
  return is_on_one_line(place.word, snapshot) ? place : TypedPlace();
}

}  // namespace

Json completion_options() { return {{"triggerCharacters", Json::array({"#", "(", ",", "/"})}}; }

Json completion(const Snapshot& snapshot, std::size_t offset, const Surroundings& surroundings) {
  const TypedPlace place = replaceable_place(snapshot, offset);
  Offers offers(snapshot, replaced_by_offers(snapshot, place), surroundings.client.has_snippets);
  switch (place.kind) {
    case TypedPlace::Kind::CommandName:
      offer_commands(snapshot, place, surroundings, offers);
      break;
    case TypedPlace::Kind::ParameterName:
      offer_parameters(snapshot, place, surroundings, offers);
      break;
    case TypedPlace::Kind::XyzPath:
      offer_paths(snapshot.text().substr(place.word.offset, place.word.length), surroundings,
                  offers);
      break;
    case TypedPlace::Kind::FirstWord:
      offer_first_words(place, offers);
      break;
    case TypedPlace::Kind::Nothing:
      break;
  }
  return std::move(offers).json();
}

}  // namespace kelp::input::quill::language_server
