#include "properties/edit_model.hpp"

#include "properties/obvious_text.hpp"

namespace kelp::input::quill::model {

namespace {

/// The place of one of the matches, if there are so many.
std::optional<std::size_t> place_of(const QuillInput& document, std::string_view name,
                                    std::uint64_t occurrence) {
  const std::vector<std::size_t> places = matches(document, name);
  if (occurrence >= places.size()) return std::nullopt;
  return places[occurrence];
}

template <typename T>
void erase_at(std::vector<T>& list, std::size_t place) {
  std::vector<T> kept;
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (i != place) kept.push_back(list[i]);
  }
  list = kept;
}

}  // namespace

std::string canonical(std::string_view name) {
  std::string trimmed = obvious::trim(name);
  if (trimmed.substr(0, 1) == "#") trimmed = obvious::trim(trimmed.substr(1));
  return obvious::lower(trimmed);
}

std::vector<std::size_t> matches(const QuillInput& document, std::string_view name) {
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < document.commands.size(); ++i) {
    if (canonical(document.commands[i].name) == canonical(name)) places.push_back(i);
  }
  return places;
}

std::optional<std::size_t> parameter_place(const HeaderCommand& command, std::string_view name) {
  for (std::size_t i = 0; i < command.parameters.size(); ++i) {
    if (obvious::lower(obvious::trim(command.parameters[i].name)) ==
        obvious::lower(obvious::trim(name)))
      return i;
  }
  return std::nullopt;
}

HeaderCommand& upsert(QuillInput& document, const std::string& name) {
  const auto place = place_of(document, name, 0);
  if (place) return document.commands[*place];
  document.commands.push_back(HeaderCommand{name});
  return document.commands.back();
}

void set_flag(QuillInput& document, const std::string& name) {
  HeaderCommand& command = upsert(document, name);
  command = HeaderCommand{command.name};
}

void set_assignment(QuillInput& document, const std::string& name, const std::string& value) {
  HeaderCommand& command = upsert(document, name);
  command = HeaderCommand{command.name, HeaderCommandKind::Assignment, value};
}

void set_task(QuillInput& document, const std::string& name,
              const std::vector<CommandParameter>& parameters) {
  HeaderCommand& command = upsert(document, name);
  const auto kind = parameters.empty() ? HeaderCommandKind::Flag : HeaderCommandKind::ParameterList;
  command = HeaderCommand{command.name, kind, std::nullopt, parameters};
}

void set_parameter(QuillInput& document, const std::string& command, const std::string& parameter,
                   const std::string& value, std::uint64_t occurrence) {
  const auto place = place_of(document, command, occurrence);
  HeaderCommand& changed = place ? document.commands[*place] : upsert(document, command);
  changed.kind = HeaderCommandKind::ParameterList;
  changed.value = std::nullopt;
  const auto existing = place ? parameter_place(changed, parameter) : std::nullopt;
  if (existing)
    changed.parameters[*existing].value = value;
  else
    changed.parameters.push_back(CommandParameter{parameter, value});
}

bool remove_parameter(QuillInput& document, const std::string& command,
                      const std::string& parameter, std::uint64_t occurrence) {
  const auto place = place_of(document, command, occurrence);
  if (!place) return false;
  HeaderCommand& changed = document.commands[*place];
  const auto existing = parameter_place(changed, parameter);
  if (!existing) return false;
  erase_at(changed.parameters, *existing);
  if (changed.parameters.empty() && changed.kind == HeaderCommandKind::ParameterList)
    changed.kind = HeaderCommandKind::Flag;
  return true;
}

bool remove_command(QuillInput& document, const std::string& name,
                    std::optional<std::uint64_t> occurrence) {
  std::vector<std::size_t> places = matches(document, name);
  if (occurrence) {
    const auto place = place_of(document, name, *occurrence);
    places = place ? std::vector<std::size_t>{*place} : std::vector<std::size_t>{};
  }
  // From the back, so that the places before stay what they are.
  for (std::size_t i = places.size(); i > 0; --i) erase_at(document.commands, places[i - 1]);
  return !places.empty();
}

void set_atoms(QuillInput& document, const std::vector<AtomRecord>& atoms) {
  document.geometry.kind = GeometryKind::Atoms;
  document.geometry.atoms = atoms;
  document.geometry.xyz_files = {};
}

void set_paths(QuillInput& document, GeometryKind kind, const std::vector<std::string>& paths) {
  document.geometry.kind = kind;
  document.geometry.atoms = {};
  document.geometry.xyz_files = paths;
}

void add_atom(QuillInput& document, const AtomRecord& atom) {
  if (document.geometry.kind != GeometryKind::Atoms) {
    set_atoms(document, {atom});
  } else {
    document.geometry.atoms.push_back(atom);
  }
}

std::optional<std::string> get_assignment(const QuillInput& document, const std::string& name) {
  const auto place = place_of(document, name, 0);
  if (!place || document.commands[*place].kind != HeaderCommandKind::Assignment)
    return std::nullopt;
  return document.commands[*place].value;
}

std::optional<std::string> get_parameter(const QuillInput& document, const std::string& command,
                                         const std::string& parameter, std::uint64_t occurrence) {
  const auto place = place_of(document, command, occurrence);
  if (!place) return std::nullopt;
  const HeaderCommand& found = document.commands[*place];
  const auto index = parameter_place(found, parameter);
  if (!index) return std::nullopt;
  return found.parameters[*index].value;
}

}  // namespace kelp::input::quill::model
