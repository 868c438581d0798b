#include "support/aliasing.hpp"

#include <gtest/gtest.h>

#include <utility>

namespace kelp::input::quill {

namespace {

/// Spells a word so that its length is as wanted and equal words stay equal.
class Speller {
 public:
  explicit Speller(Length length) : length_(length) {}

  std::string operator()(std::string_view word) const {
    std::string text(word);
    if (length_ == Length::Long)
      text += ", and so on until it is too long for the inside of a string";
    return text;
  }

 private:
  Length length_;
};

std::vector<HeaderCommand> commands(const Speller& spell) {
  return {{spell("opt"),
           HeaderCommandKind::ParameterList,
           {},
           {{spell("tight"), spell("#OPT")}, {spell("Opt")}, {spell("fresh"), spell("new")}}},
          {spell("model"), HeaderCommandKind::Assignment, spell("OPT")},
          {spell("Opt"), HeaderCommandKind::ParameterList, {}, {{spell("tight"), spell("Model")}}},
          {spell("freq")}};
}

GeometryBlock geometry(const Speller& spell, GeometryKind kind) {
  return {kind,
          -1,
          2,
          true,
          {{spell("model"), 1.0, 2.0, 3.0}, {spell("H"), -0.0, 5.0, 6.0}},
          {spell("a.xyz"), spell("opt")}};
}

std::vector<PostCommand> post_commands(const Speller& spell) {
  return {{PostCommandKind::PostFile, {}, {}, {}, spell("freq")},
          {PostCommandKind::Raw, {}, {}, {}, {}, spell("x")},
          {PostCommandKind::Scan, {1, 2, 3, 4}, 1.5, 10, spell("TIGHT"), spell("fresh")}};
}

QuillInput document(const Setting& setting) {
  const Speller spell(setting.length);
  return {commands(spell), geometry(spell, setting.kind), post_commands(spell)};
}

void give_room(QuillInput& input) {
  input.commands.reserve(100);
  for (HeaderCommand& command : input.commands) command.parameters.reserve(100);
  input.geometry.atoms.reserve(100);
  input.geometry.xyz_files.reserve(100);
  input.post_commands.reserve(100);
}

template <typename T>
void expect_full(const std::vector<T>& list) {
  EXPECT_EQ(list.size(), list.capacity());
}

void expect_full(const QuillInput& input) {
  expect_full(input.commands);
  for (const HeaderCommand& command : input.commands) expect_full(command.parameters);
  expect_full(input.geometry.atoms);
  expect_full(input.geometry.xyz_files);
  expect_full(input.post_commands);
}

void add_views(std::string_view text, std::vector<std::string_view>& views) {
  views.push_back(text);
  if (text.size() > 1) views.push_back(text.substr(1));
}

}  // namespace

const std::vector<Setting>& every_setting() {
  static const std::vector<Setting> settings = [] {
    std::vector<Setting> all;
    for (const Length length : {Length::Short, Length::Long})
      for (const Room room : {Room::None, Room::Spare})
        for (const GeometryKind kind : {GeometryKind::None, GeometryKind::Atoms,
                                        GeometryKind::XyzFile, GeometryKind::XyzTrajectory})
          all.push_back({length, room, kind});
    return all;
  }();
  return settings;
}

std::string to_text(const Setting& setting) {
  return std::string(setting.length == Length::Short ? "short" : "long") + " strings, " +
         (setting.room == Room::None ? "no" : "spare") + " room, geometry kind " +
         std::to_string(static_cast<int>(setting.kind));
}

InputEditor make_editor(const Setting& setting) {
  QuillInput made = document(setting);
  if (setting.room == Room::Spare) {
    give_room(made);
    return InputEditor(std::move(made));
  }
  InputEditor editor(made);  // a copied vector has no more room than it needs
  expect_full(editor.document());
  return editor;
}

InputBuilder make_builder(const Setting& setting) {
  const QuillInput made = document(setting);
  InputBuilder builder;
  for (const HeaderCommand& command : made.commands) builder.add_command(command);
  for (const PostCommand& command : made.post_commands) builder.add_post_command(command);
  if (setting.kind == GeometryKind::Atoms) builder.set_geometry(made.geometry.atoms);
  if (setting.kind == GeometryKind::XyzFile) builder.set_xyz_files(made.geometry.xyz_files);
  if (setting.kind == GeometryKind::XyzTrajectory)
    builder.set_xyz_trajectory(made.geometry.xyz_files.front());
  if (setting.room == Room::Spare) return builder;
  InputBuilder copy = builder;
  expect_full(copy.document());
  return copy;
}

std::vector<std::string_view> views_of(const QuillInput& document, Symbols symbols) {
  std::vector<std::string_view> views;
  for (const HeaderCommand& command : document.commands) {
    add_views(command.name, views);
    if (command.value) add_views(*command.value, views);
    for (const CommandParameter& parameter : command.parameters) {
      add_views(parameter.name, views);
      if (parameter.value) add_views(*parameter.value, views);
    }
  }
  if (symbols == Symbols::Included)
    for (const AtomRecord& atom : document.geometry.atoms) add_views(atom.symbol, views);
  for (const std::string& path : document.geometry.xyz_files) add_views(path, views);
  for (const PostCommand& command : document.post_commands) {
    add_views(command.post_file, views);
    add_views(command.raw_text, views);
  }
  return views;
}

}  // namespace kelp::input::quill
