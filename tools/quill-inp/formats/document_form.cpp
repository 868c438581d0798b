#include "quill-inp/formats/document_form.hpp"

#include <cmath>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

#include "quill-inp/formats/document_names.hpp"
#include "quill-inp/formats/json_text.hpp"

namespace kelp::input::quill::tool {

namespace {

using Kind = ValueForm::Kind;
using Store = bool (*)(QuillInput&, JsonScalar&);

// The part that was begun last is the one that is being filled.

HeaderCommand& command(QuillInput& document) { return document.commands.back(); }
CommandParameter& parameter(QuillInput& document) { return command(document).parameters.back(); }
AtomRecord& atom(QuillInput& document) { return document.geometry.atoms.back(); }
PostCommand& post_command(QuillInput& document) { return document.post_commands.back(); }

template <typename Target>
bool store_text(Target&& target, JsonScalar& scalar) {
  if (scalar.kind != JsonScalar::Kind::Text) return false;
  target = std::move(scalar.text);
  return true;
}

std::optional<double> find_number(const JsonScalar& scalar) {
  if (scalar.kind == JsonScalar::Kind::Number) return scalar.number;
  return scalar.kind == JsonScalar::Kind::Text ? find_special_number(scalar.text) : std::nullopt;
}

template <typename Target>
bool store_number(Target&& target, const JsonScalar& scalar) {
  const std::optional<double> number = find_number(scalar);
  if (number) target = *number;
  return number.has_value();
}

std::optional<std::int32_t> find_integer(const JsonScalar& scalar) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (scalar.kind != JsonScalar::Kind::Number) return std::nullopt;
  const double number = scalar.number;
  // A double holds every integer of this size exactly, and 2.0 is an integer in JSON.
  const bool is_integer =
      std::trunc(number) == number && Limits::min() <= number && number <= Limits::max();
  return is_integer ? std::optional(static_cast<std::int32_t>(number)) : std::nullopt;
}

template <typename Target>
bool store_integer(Target&& target, const JsonScalar& scalar) {
  const std::optional<std::int32_t> number = find_integer(scalar);
  if (number) target = *number;
  return number.has_value();
}

template <typename Target, typename Rows>
bool store_kind(Target& target, const Rows& rows, const JsonScalar& scalar) {
  for (const auto& row : rows) {
    if (scalar.kind != JsonScalar::Kind::Text || scalar.text != row.name) continue;
    target = row.kind;
    return true;
  }
  return false;
}

std::string object_words() { return "an object"; }
std::string list_words() { return "a list"; }
std::string text_words() { return R"(a string or {"bytes": "..."})"; }
std::string number_words() { return R"(a number, "inf", "-inf", "nan" or "-nan")"; }
std::string integer_words() { return "a 32-bit integer"; }
std::string truth_words() { return "true or false"; }

template <typename Rows>
std::string kind_words(const Rows& rows) {
  std::string words = "one of";
  const char* separator = " '";
  for (const auto& row : rows) {
    words += separator + std::string(row.name) + "'";
    separator = ", '";
  }
  return words;
}

constexpr ValueForm other(Store store, std::string (*expected)()) {
  ValueForm form;
  form.store = store;
  form.expected = expected;
  return form;
}

constexpr ValueForm text(Store store) {
  ValueForm form = other(store, text_words);
  form.kind = Kind::Text;
  return form;
}

constexpr ValueForm list_of(const ValueForm& entry) {
  ValueForm form = other(nullptr, list_words);
  form.kind = Kind::List;
  form.entry = &entry;
  return form;
}

template <std::size_t count>
constexpr ValueForm object(const MemberForm (&members)[count], void (*begin)(QuillInput&)) {
  ValueForm form = other(nullptr, object_words);
  form.kind = Kind::Object;
  form.members = members;
  form.member_count = count;
  form.begin = begin;
  return form;
}

constexpr bool required = true;

constexpr ValueForm parameter_name =
    text([](QuillInput& d, JsonScalar& s) { return store_text(parameter(d).name, s); });
constexpr ValueForm parameter_value =
    text([](QuillInput& d, JsonScalar& s) { return store_text(parameter(d).value, s); });
constexpr MemberForm parameter_members[] = {{"name", &parameter_name, required},
                                            {"value", &parameter_value}};
constexpr ValueForm parameter_form = object(
    parameter_members, [](QuillInput& d) { command(d).parameters.emplace_back(std::string()); });
constexpr ValueForm parameters = list_of(parameter_form);

constexpr ValueForm command_name =
    text([](QuillInput& d, JsonScalar& s) { return store_text(command(d).name, s); });
constexpr ValueForm command_kind = other(
    [](QuillInput& d, JsonScalar& s) { return store_kind(command(d).kind, command_kind_names, s); },
    [] { return kind_words(command_kind_names); });
constexpr ValueForm command_value =
    text([](QuillInput& d, JsonScalar& s) { return store_text(command(d).value, s); });
constexpr MemberForm command_members[] = {{"name", &command_name, required},
                                          {"kind", &command_kind, required},
                                          {"value", &command_value},
                                          {"parameters", &parameters}};
constexpr ValueForm command_form =
    object(command_members, [](QuillInput& d) { d.commands.emplace_back(); });
constexpr ValueForm commands = list_of(command_form);

constexpr ValueForm symbol =
    text([](QuillInput& d, JsonScalar& s) { return store_text(atom(d).symbol, s); });
constexpr ValueForm x =
    other([](QuillInput& d, JsonScalar& s) { return store_number(atom(d).x, s); }, number_words);
constexpr ValueForm y =
    other([](QuillInput& d, JsonScalar& s) { return store_number(atom(d).y, s); }, number_words);
constexpr ValueForm z =
    other([](QuillInput& d, JsonScalar& s) { return store_number(atom(d).z, s); }, number_words);
constexpr MemberForm atom_members[] = {
    {"symbol", &symbol, required}, {"x", &x, required}, {"y", &y, required}, {"z", &z, required}};
constexpr ValueForm atom_form =
    object(atom_members, [](QuillInput& d) { d.geometry.atoms.emplace_back(); });
constexpr ValueForm atoms = list_of(atom_form);

constexpr ValueForm path = text([](QuillInput& d, JsonScalar& s) {
  return store_text(d.geometry.xyz_files.emplace_back(), s);
});
constexpr ValueForm paths = list_of(path);

constexpr ValueForm geometry_kind =
    other([](QuillInput& d,
             JsonScalar& s) { return store_kind(d.geometry.kind, geometry_kind_names, s); },
          [] { return kind_words(geometry_kind_names); });
constexpr ValueForm charge =
    other([](QuillInput& d, JsonScalar& s) { return store_integer(d.geometry.charge, s); },
          integer_words);
constexpr ValueForm multiplicity =
    other([](QuillInput& d, JsonScalar& s) { return store_integer(d.geometry.multiplicity, s); },
          integer_words);
constexpr ValueForm has_charge_and_multiplicity = other(
    [](QuillInput& d, JsonScalar& s) {
      d.geometry.has_charge_and_multiplicity = s.truth;
      return s.kind == JsonScalar::Kind::Truth;
    },
    truth_words);
constexpr MemberForm geometry_members[] = {
    {"charge", &charge},
    {"multiplicity", &multiplicity},
    {"has_charge_and_multiplicity", &has_charge_and_multiplicity},
    {"kind", &geometry_kind, required},
    {"atoms", &atoms},
    {"xyz_files", &paths}};

/// If the numbers are given, the document has a line with them, unless a member says otherwise.
void end_geometry(QuillInput& document, std::uint32_t given) {
  const bool has_numbers = (given & 0b011U) != 0;
  const bool says_otherwise = (given & 0b100U) != 0;
  if (has_numbers && !says_otherwise) document.geometry.has_charge_and_multiplicity = true;
}

constexpr ValueForm geometry_form() {
  ValueForm form = object(geometry_members, nullptr);
  form.end = end_geometry;
  return form;
}
constexpr ValueForm geometry = geometry_form();

constexpr ValueForm post_kind =
    other([](QuillInput& d,
             JsonScalar& s) { return store_kind(post_command(d).kind, post_line_shapes, s); },
          [] { return kind_words(post_line_shapes); });
constexpr ValueForm atom_index = other(
    [](QuillInput& d, JsonScalar& s) {
      return store_integer(post_command(d).atom_indices.emplace_back(), s);
    },
    integer_words);
constexpr ValueForm atom_indices = list_of(atom_index);
constexpr ValueForm scan_value =
    other([](QuillInput& d, JsonScalar& s) { return store_number(post_command(d).scan_value, s); },
          number_words);
constexpr ValueForm scan_steps =
    other([](QuillInput& d, JsonScalar& s) { return store_integer(post_command(d).scan_steps, s); },
          integer_words);
constexpr ValueForm post_file =
    text([](QuillInput& d, JsonScalar& s) { return store_text(post_command(d).post_file, s); });
constexpr ValueForm raw_text =
    text([](QuillInput& d, JsonScalar& s) { return store_text(post_command(d).raw_text, s); });
constexpr MemberForm post_members[] = {
    {"kind", &post_kind, required}, {"atom_indices", &atom_indices}, {"scan_value", &scan_value},
    {"scan_steps", &scan_steps},    {"post_file", &post_file},       {"raw_text", &raw_text}};
constexpr ValueForm post_form =
    object(post_members, [](QuillInput& d) { d.post_commands.emplace_back(); });
constexpr ValueForm post_commands = list_of(post_form);

constexpr MemberForm document_members[] = {
    {"commands", &commands}, {"geometry", &geometry}, {"post_commands", &post_commands}};
constexpr ValueForm whole_document = object(document_members, nullptr);

}  // namespace

const ValueForm& document_form() { return whole_document; }

}  // namespace kelp::input::quill::tool
