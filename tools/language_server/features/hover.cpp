#include <cmath>
#include <optional>

#include "editing/phrases.hpp"
#include "kelp/chem/elements.hpp"
#include "kelp/input/quill/lossless/wording.hpp"
#include "language_server/facts/line_pieces.hpp"
#include "language_server/facts/mentions.hpp"
#include "language_server/facts/molecule.hpp"
#include "language_server/facts/source_of_text.hpp"
#include "language_server/features/features.hpp"
#include "language_server/features/markup.hpp"
#include "lint/header_line.hpp"
#include "lint/pages.hpp"
#include "model/post_line_shapes.hpp"
#include "model/task_names.hpp"
#include "quill-inp/formats/document_names.hpp"
#include "quill-inp/summary/part_words.hpp"

namespace kelp::input::quill::language_server {

namespace {

/// Returns a number with at most this many decimals, without zeros at the end.
std::string rounded(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  const double scaled = std::round(value * scale);
  return lossless::shortest_text(std::isfinite(scaled) ? scaled / scale + 0.0 : value);
}

void add_atom(Markup& text, std::int32_t number, const AtomRecord& atom) {
  text.begin_line().add("atom " + std::to_string(number) + ": ").add_code(atom.symbol);
  const std::optional<int> element = chem::elements::atomic_number_from_symbol(atom.symbol);
  text.add(element ? ", element " + std::to_string(*element) : ", which is not an element");
}

/// Adds the present distance, angle or dihedral angle of the atoms that a line names.
void add_measure(Markup& text, const Molecule& molecule, const std::vector<std::int32_t>& numbers) {
  const std::optional<double> value = molecule.measure(numbers);
  if (!value) return;
  text.begin_line().add("now ");
  if (numbers.size() == 2) {
    text.add_strong(rounded(*value, 4)).add(" in the unit of the coordinates");
  } else {
    text.add_strong(rounded(*value, 2)).add(" degrees");
  }
}

/// What the text under the pointer is, in lines for people.
class HoverText {
 public:
  HoverText(const lint::Source& source, const Molecule& molecule, bool is_markdown)
      : source_(source), molecule_(molecule), text_(is_markdown) {}

  /// Adds what the reader made of a line, and of the piece of it with the byte at `offset`.
  void add_line(std::size_t line, std::size_t offset) {
    const LineRecord& record = source_.lines()[line];
    if (record.role == LineRole::Blank) return;
    range_ = source_.range_of(source_.trimmed(line));
    text_.add_strong(lossless::describe({record.role, record.index}, source_.input()));
    if (record.role == LineRole::Command) add_command(*record.index, offset);
    if (record.role == LineRole::ChargeAndMultiplicity) add_charge();
    if (record.role == LineRole::Atom) add_atom_of_line(*record.index);
    if (record.role == LineRole::PostCommand) add_post_line(*record.index, offset);
    for (const LinePiece& piece : find_line_pieces(source_, line)) {
      if (piece.range.offset <= offset && offset < piece.range.end()) range_ = piece.range;
    }
  }

  /// Adds the page of a finding.
  void add_finding(const lint::Finding& finding) {
    if (text_.is_empty()) range_ = finding.range;
    text_.add_page(lint::page_of(finding.code));
  }

  bool is_empty() const { return text_.is_empty(); }
  const Markup& text() const { return text_; }
  const lint::Range& range() const { return range_; }

 private:
  void add_command(std::size_t index, std::size_t offset) {
    const HeaderCommand& command = source_.input().commands[index];
    if (is_task_name(normalize_command_name(command.name))) text_.add(", a task");
    text_.begin_line().add_code(command.name);
    if (command.value) text_.add(" has the value ").add_code(*command.value);
    if (command.kind == HeaderCommandKind::ParameterList) add_parameters(command, index, offset);
  }

  /// Adds the parameter under the pointer, or how many there are.
  void add_parameters(const HeaderCommand& command, std::size_t index, std::size_t offset) {
    const std::size_t count = command.parameters.size();
    text_.add(" has ").add(std::to_string(count)).add(count == 1 ? " parameter" : " parameters");
    std::size_t parameter = 0;
    lint::Entries entries(source_.header_pieces()[index]);
    while (const auto entry = entries.next()) {
      if (entry->name.empty()) continue;
      const std::string_view last = entry->value.value_or(entry->name);
      const std::size_t begin = source_.range_of(entry->name).offset;
      const std::size_t end =
          last.empty() ? source_.range_of(entry->name).end() + 1 : source_.range_of(last).end();
      if (begin <= offset && offset < end) add_parameter(command.parameters[parameter], parameter);
      ++parameter;
    }
  }

  void add_parameter(const CommandParameter& parameter, std::size_t index) {
    text_.begin_line().add("parameter " + std::to_string(index + 1) + ": ");
    text_.add_code(parameter.name);
    if (parameter.value) text_.add(" with the value ").add_code(*parameter.value);
  }

  void add_charge() {
    const GeometryBlock& geometry = source_.input().geometry;
    text_.begin_line().add("charge " + std::to_string(geometry.charge) + ", multiplicity " +
                           std::to_string(geometry.multiplicity));
  }

  void add_atom_of_line(std::size_t index) {
    add_atom(text_, static_cast<std::int32_t>(index + 1), source_.input().geometry.atoms[index]);
  }

  void add_post_line(std::size_t index, std::size_t offset) {
    const PostCommand& command = source_.input().post_commands[index];
    const PostLineShape* shape = find_post_line_shape(command.kind);
    if (shape == nullptr || shape->form.empty()) return;
    text_.begin_line().add_code(shape->form).add(": ").add(shape->help);
    if (command.kind == PostCommandKind::Scan) text_.begin_line().add(tool::content_words(command));
    add_measure(text_, molecule_, command.atom_indices);
    add_named_atoms(command, offset);
  }

  /// Adds the atom under the pointer, or all that the line names.
  void add_named_atoms(const PostCommand& command, std::size_t offset) {
    const std::optional<lint::AtomNumber> only = find_atom_number(source_, offset);
    for (const std::int32_t number : command.atom_indices) {
      const AtomRecord* atom = molecule_.find(number);
      const bool is_meant = !only || only->number == number;
      if (atom != nullptr && is_meant) add_atom(text_, number, *atom);
      if (only && is_meant) return;
    }
  }

  const lint::Source& source_;
  const Molecule& molecule_;
  Markup text_;
  lint::Range range_ = {};
};

/// Whether a finding is at a byte. One about something that the text does not have is nowhere.
bool is_at(const lint::Finding& finding, std::size_t offset) {
  const lint::Range& range = finding.range;
  const bool is_in = range.offset <= offset && offset < range.end();
  return range.end() > 0 && (is_in || (range.length == 0 && offset == range.offset));
}

}  // namespace

Json hover(const Snapshot& snapshot, std::size_t offset, const Surroundings& surroundings) {
  const SourceOfText source(snapshot.read(), surroundings.read_reference);
  const Molecule molecule(*source);
  HoverText text(*source, molecule, surroundings.client.has_markdown);
  const std::size_t line = snapshot.line_at(offset);
  if (line < snapshot.lines().size()) text.add_line(line, offset);
  if (surroundings.findings) {
    for (const lint::Finding& finding : surroundings.findings()) {
      if (is_at(finding, offset)) text.add_finding(finding);
    }
  }
  if (text.is_empty()) return nullptr;
  return {{"contents", text.text().json()},
          {"range", to_json(snapshot.position_range_of(text.range()))}};
}

}  // namespace kelp::input::quill::language_server
