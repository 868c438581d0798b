#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "support/aliasing.hpp"
#include "support/comparison.hpp"
#include "support/file_content.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"

// A reference passed to an editor or a builder may refer to its own document: the result is the
// one that a copy of the argument would have given.

namespace kelp::input::quill {

namespace {

std::vector<const HeaderCommand*> each_command(const QuillInput& document) {
  std::vector<const HeaderCommand*> all;
  for (const HeaderCommand& command : document.commands) all.push_back(&command);
  return all;
}

std::vector<const AtomRecord*> each_atom(const QuillInput& document) {
  std::vector<const AtomRecord*> all;
  for (const AtomRecord& atom : document.geometry.atoms) all.push_back(&atom);
  return all;
}

std::vector<const PostCommand*> each_post_command(const QuillInput& document) {
  std::vector<const PostCommand*> all;
  for (const PostCommand& command : document.post_commands) all.push_back(&command);
  return all;
}

std::vector<const std::vector<int>*> each_index_list(const QuillInput& document) {
  std::vector<const std::vector<int>*> all;
  for (const PostCommand& command : document.post_commands) all.push_back(&command.atom_indices);
  return all;
}

std::vector<const std::vector<AtomRecord>*> the_atoms(const QuillInput& document) {
  return {&document.geometry.atoms};
}

std::vector<const std::vector<std::string>*> the_files(const QuillInput& document) {
  return {&document.geometry.xyz_files};
}

/// Makes the call with each of the arguments that `find` finds in the document, three times in a
/// row, so that one of the calls finds a list without spare room. Returns the number of arguments.
template <typename Make, typename Find, typename Call>
std::size_t expect_as_if_copied(Make make, Find find, Call call) {
  std::size_t count = 0;
  for (const Setting& setting : every_setting()) {
    const auto untouched = make(setting);
    for (std::size_t i = 0; i < find(untouched.document()).size(); ++i, ++count) {
      auto author = make(setting);
      auto other = make(setting);
      for (int time = 0; time < 3 && i < find(author.document()).size(); ++time) {
        const auto copy = *find(other.document())[i];
        call(author, *find(author.document())[i]);
        call(other, copy);
        EXPECT_EQ(author.document(), other.document())
            << "argument " << i << ", call " << time << ", " << to_text(setting);
      }
    }
  }
  return count;
}

const auto add_command = [](auto& author, const HeaderCommand& command) {
  author.add_command(command);
};
const auto add_atom = [](auto& author, const AtomRecord& atom) { author.add_atom(atom); };
const auto set_geometry = [](auto& author, const std::vector<AtomRecord>& atoms) {
  author.set_geometry(atoms);
};
const auto set_xyz_files = [](auto& author, const std::vector<std::string>& files) {
  author.set_xyz_files(files);
};
const auto add_post_command = [](auto& author, const PostCommand& command) {
  author.add_post_command(command);
};
const auto add_scan = [](auto& author, const std::vector<int>& indices) {
  author.add_scan(indices, 1.5, 10);
};

struct Row {
  std::string name;
  std::function<std::size_t()> try_every_argument;
  std::size_t arguments;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class OwnPart : public testing::TestWithParam<Row> {};

TEST_P(OwnPart, GivesWhatACopyGives) {
  EXPECT_EQ(GetParam().try_every_argument(), GetParam().arguments);
}

const Row editor_rows[] = {
    {"CommandCanBeAdded",
     [] { return expect_as_if_copied(make_editor, each_command, add_command); }, 16U * 4U},
    {"AtomCanBeAddedWhateverTheKind",
     [] { return expect_as_if_copied(make_editor, each_atom, add_atom); }, 16U * 2U},
    {"AtomsCanBeSetWhateverTheKind",
     [] { return expect_as_if_copied(make_editor, the_atoms, set_geometry); }, 16U},
    {"FilesCanBeSetWhateverTheKind",
     [] { return expect_as_if_copied(make_editor, the_files, set_xyz_files); }, 16U},
    {"PostCommandCanBeAdded",
     [] { return expect_as_if_copied(make_editor, each_post_command, add_post_command); },
     16U * 3U},
    {"AtomNumbersCanBeScanned",
     [] { return expect_as_if_copied(make_editor, each_index_list, add_scan); }, 16U * 3U},
};

const Row builder_rows[] = {
    {"CommandCanBeAdded",
     [] { return expect_as_if_copied(make_builder, each_command, add_command); }, 16U * 4U},
    {"AtomCanBeAdded", [] { return expect_as_if_copied(make_builder, each_atom, add_atom); },
     4U * 2U},
    {"AtomsCanBeSetWhateverTheKind",
     [] { return expect_as_if_copied(make_builder, the_atoms, set_geometry); }, 16U},
    {"FilesCanBeSetWhateverTheKind",
     [] { return expect_as_if_copied(make_builder, the_files, set_xyz_files); }, 16U},
    {"PostCommandCanBeAdded",
     [] { return expect_as_if_copied(make_builder, each_post_command, add_post_command); },
     16U * 3U},
    {"AtomNumbersCanBeScanned",
     [] { return expect_as_if_copied(make_builder, each_index_list, add_scan); }, 16U * 3U},
};

INSTANTIATE_TEST_SUITE_P(OfAnEditor, OwnPart, testing::ValuesIn(editor_rows),
                         [](const auto& row) { return row.param.name; });
INSTANTIATE_TEST_SUITE_P(OfABuilder, OwnPart, testing::ValuesIn(builder_rows),
                         [](const auto& row) { return row.param.name; });

TEST(AnEditorsOwn, TextCanBeThePathOfItsFile) {
  const TemporaryFolder folder;
  const std::string path = folder.path("out.qin");
  InputEditor editor{QuillInput()};
  editor.set_post_file(path);
  editor.write_file(editor.document().post_commands.front().post_file);
  EXPECT_EQ(file_content(path), "POST " + path + "\n");
}

}  // namespace

}  // namespace kelp::input::quill
