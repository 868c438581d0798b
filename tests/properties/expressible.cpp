#include "properties/expressible.hpp"

#include <algorithm>
#include <cstddef>
#include <string>

#include "properties/obvious_elements.hpp"
#include "properties/obvious_reader.hpp"
#include "properties/obvious_text.hpp"
#include "properties/obvious_writer.hpp"

namespace kelp::input::quill {

namespace {

template <typename List, typename Predicate>
bool any(const List& list, Predicate predicate) {
  return std::any_of(list.begin(), list.end(), predicate);
}

template <typename Predicate>
bool any_parameter(const QuillInput& document, Predicate predicate) {
  return any(document.commands,
             [&](const HeaderCommand& command) { return any(command.parameters, predicate); });
}

bool is_trimmed(const std::string& text) { return obvious::trim(text) == text; }

bool contains(const std::string& text, std::string_view characters) {
  return text.find_first_of(characters) != std::string::npos;
}

std::string text_of(const CommandParameter& parameter) {
  return parameter.name + (parameter.value ? "=" + *parameter.value : "");
}

// The header.

bool breaks_a_header_line(const QuillInput& document) {
  return any(document.commands, [](const HeaderCommand& command) {
    return contains(obvious::written(command), "\n");
  });
}

bool has_blanks_around_a_name(const QuillInput& document) {
  return any(document.commands,
             [](const HeaderCommand& command) { return !is_trimmed(command.name); });
}

bool has_a_name_with_an_end_inside(const QuillInput& document) {
  return any(document.commands,
             [](const HeaderCommand& command) { return contains(command.name, "(="); });
}

bool has_a_value_that_changes(const QuillInput& document) {
  const auto changes = [](const auto& holder) {
    return holder.value && obvious::unquoted(*holder.value) != *holder.value;
  };
  return any(document.commands, changes) || any_parameter(document, changes);
}

bool has_a_parameter_without_a_name(const QuillInput& document) {
  return any_parameter(document, [](const CommandParameter& parameter) {
    return parameter.name.empty() || contains(parameter.name, "=") || !is_trimmed(parameter.name);
  });
}

/// Whether the text ends within quotes, or holds a comma outside them.
struct QuoteScan {
  bool has_separator = false;
  bool ends_in_quotes = false;
};

QuoteScan scan_quotes(const std::string& text) {
  constexpr char none = '\0';
  QuoteScan scan;
  char open_quote = none;
  for (const char c : text) {
    if (c == ',' && open_quote == none) scan.has_separator = true;
    if (c != '\'' && c != '"') continue;
    if (open_quote == none)
      open_quote = c;
    else if (open_quote == c)
      open_quote = none;
  }
  scan.ends_in_quotes = open_quote != none;
  return scan;
}

bool has_a_parameter_that_ends_elsewhere(const QuillInput& document) {
  return any(document.commands, [](const HeaderCommand& command) {
    const auto& list = command.parameters;
    for (std::size_t i = 0; i < list.size(); ++i) {
      const QuoteScan scan = scan_quotes(text_of(list[i]));
      if (scan.has_separator || (scan.ends_in_quotes && i + 1 < list.size())) return true;
    }
    return false;
  });
}

// The coordinate section.

bool has_no_line_for_its_kind(const QuillInput& document) {
  const GeometryBlock& geometry = document.geometry;
  switch (geometry.kind) {
    case GeometryKind::None:
    case GeometryKind::XyzTrajectory:
      return false;
    case GeometryKind::Atoms:
      return geometry.atoms.empty();
    case GeometryKind::XyzFile:
      return geometry.xyz_files.empty();
  }
  return true;
}

bool has_a_path_that_changes(const QuillInput& document) {
  return any(document.geometry.xyz_files, [](const std::string& path) {
    return path.empty() || !is_trimmed(path) || contains(path, "\n");
  });
}

bool has_a_symbol_that_changes(const QuillInput& document) {
  return any(document.geometry.atoms, [](const AtomRecord& atom) {
    return atom.symbol.empty() ||
           !std::all_of(atom.symbol.begin(), atom.symbol.end(), obvious::is_letter) ||
           atom.symbol != obvious::normal_symbol(atom.symbol);
  });
}

bool has_a_keyword_for_its_first_symbol(const QuillInput& document) {
  const auto& atoms = document.geometry.atoms;
  return !atoms.empty() && obvious::reference_line(atoms.front().symbol);
}

bool fills_its_field(double coordinate) { return obvious::six_decimals(coordinate).size() >= 14; }

bool has_a_coordinate_that_touches(const QuillInput& document) {
  return any(document.geometry.atoms, [](const AtomRecord& atom) {
    const bool symbol_ends_in_a_blank = atom.symbol.size() < 3;
    return (!symbol_ends_in_a_blank && fills_its_field(atom.x)) || fills_its_field(atom.y) ||
           fills_its_field(atom.z);
  });
}

// The post-processing section.

bool has_an_unknown_kind(const PostCommand& command) {
  return command.kind < PostCommandKind::AtomConstraint || command.kind > PostCommandKind::Raw;
}

bool is_text(const PostCommand& command) {
  return command.kind == PostCommandKind::Raw || command.kind == PostCommandKind::PostFile;
}

bool has_an_empty_post_line(const QuillInput& document) {
  return any(document.post_commands, [](const PostCommand& command) {
    return has_an_unknown_kind(command) || obvious::trim(obvious::written(command)).empty();
  });
}

bool has_post_text_that_changes(const QuillInput& document) {
  return any(document.post_commands, [](const PostCommand& command) {
    return is_text(command) && (!is_trimmed(command.raw_text) || !is_trimmed(command.post_file) ||
                                contains(command.raw_text, "\n"));
  });
}

bool has_a_post_line_of_another_kind(const QuillInput& document) {
  return any(document.post_commands, [](const PostCommand& command) {
    const bool has_parts = obvious::is_post_line_with_keyword(obvious::written(command));
    return !has_an_unknown_kind(command) && has_parts == (command.kind == PostCommandKind::Raw);
  });
}

bool has_a_scan_without_settings(const QuillInput& document) {
  return any(document.post_commands, [](const PostCommand& command) {
    return command.kind == PostCommandKind::Scan && !(command.scan_value && command.scan_steps);
  });
}

/// Whether the section before the post-processing lines would take the first of them.
bool has_an_ambiguous_first_post_line(const QuillInput& document) {
  if (document.post_commands.empty()) return false;
  const std::string line = obvious::trim(obvious::written(document.post_commands.front()));
  const GeometryBlock& geometry = document.geometry;
  if (geometry.kind == GeometryKind::XyzTrajectory) return false;
  const auto reference = obvious::reference_line(line);
  if (geometry.kind == GeometryKind::XyzFile) return reference && reference->first == "XYZ";
  if (geometry.kind == GeometryKind::Atoms) return obvious::atom_line(line).has_value();
  if (reference || obvious::atom_line(line)) return true;
  return !geometry.has_charge_and_multiplicity &&
         (line.substr(0, 1) == "#" || obvious::charge_line(line));
}

}  // namespace

const std::array<Exception, 16>& exceptions() {
  static constexpr std::array<Exception, 16> all = {{
      {"a line break in a header command ends its line", breaks_a_header_line},
      {"blanks around a command's name are trimmed", has_blanks_around_a_name},
      {"a command's name ends at the first parenthesis or equals sign",
       has_a_name_with_an_end_inside},
      {"blanks and quotes around a value are removed", has_a_value_that_changes},
      {"a parameter's name ends at the first equals sign and is trimmed, and must not be empty",
       has_a_parameter_without_a_name},
      {"a comma ends a parameter unless it is after an open quote",
       has_a_parameter_that_ends_elsewhere},
      {"a section without a line is not there", has_no_line_for_its_kind},
      {"a path ends with its line, is trimmed, and must not be empty", has_a_path_that_changes},
      {"a symbol is a word of letters and gets the spelling of an element's",
       has_a_symbol_that_changes},
      {"a first atom with the symbol XYZ or XYZTRAJ is a reference",
       has_a_keyword_for_its_first_symbol},
      {"a coordinate that fills its field touches what is before it",
       has_a_coordinate_that_touches},
      {"an empty post-processing line is not there", has_an_empty_post_line},
      {"text in the post-processing section ends with its line and is trimmed",
       has_post_text_that_changes},
      {"the keyword and the number of tokens decide on the kind of a post-processing line",
       has_a_post_line_of_another_kind},
      {"a scan without a value or steps is read with the numbers before in their place",
       has_a_scan_without_settings},
      {"the first post-processing line may belong to the section before it",
       has_an_ambiguous_first_post_line},
  }};
  return all;
}

std::optional<std::string_view> reason_not_to_read_back(const QuillInput& written) {
  for (const Exception& exception : exceptions()) {
    if (exception.applies(written)) return exception.reason;
  }
  return std::nullopt;
}

}  // namespace kelp::input::quill
