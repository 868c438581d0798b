// Real inputs draw nothing above info.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "kelp/chem/elements.hpp"
#include "kelp/core/text.hpp"
#include "kelp/input/quill/quill.hpp"
#include "lint/lint.hpp"
#include "properties/sample_files.hpp"
#include "support/file_content.hpp"
#include "tools/lint/marked_text.hpp"

namespace kelp::input::quill::lint {

namespace {

/// The text with marks for what is above info in it.
std::string with_alarms(const std::string& text, const Options& options) {
  const lossless::ReadText read = lossless::read_text(text);
  Findings findings = find_all(read, options);
  findings.erase(std::remove_if(findings.begin(), findings.end(),
                                [](const Finding& finding) {
                                  return find_rule(finding.code)->severity == Severity::Info;
                                }),
                 findings.end());
  return with_marks(text, findings);
}

/// Reads files from the folder of the examples.
Options options_of_examples() {
  Options options;
  options.read_reference = [](const std::string& path) {
    const std::string folder = std::string(KELP_QUILL_INP_SOURCE_DIR) + "/examples/inputs/";
    return ReferencedFile{ReferencedFile::State::Read, {}, file_content(folder + path).value()};
  };
  return options;
}

class ExampleInput : public testing::TestWithParam<SampleFile> {};

TEST_P(ExampleInput, DrawsAnAlarmOnlyIfItIsTheCarelessOne) {
  const SampleFile& file = GetParam();
  const bool is_careless = file.name.find("careless") != std::string::npos;
  EXPECT_EQ(with_alarms(file.content, options_of_examples()) != file.content, is_careless)
      << with_alarms(file.content, options_of_examples());
}

INSTANTIATE_TEST_SUITE_P(Files, ExampleInput, testing::ValuesIn(example_inputs()),
                         [](const auto& row) { return test_name(row.param); });

/// A number of unpaired electrons that the atoms allow.
int multiplicity_of(const std::vector<AtomRecord>& atoms) {
  int electrons = 0;
  for (const AtomRecord& atom : atoms)
    electrons += chem::elements::atomic_number_from_symbol(atom.symbol).value_or(0);
  return electrons % 2 == 0 ? 1 : 2;
}

/// The atoms of every frame of an XYZ file, as its lines have them.
std::vector<std::vector<AtomRecord>> frames_of(const std::string& content) {
  std::vector<std::vector<AtomRecord>> frames;
  const std::vector<std::string> lines = core::text::split_lines(content);
  for (std::size_t i = 0; i < lines.size();) {
    int count = 0;
    if (!core::text::try_parse_int(core::text::trim(lines[i]), count)) return frames;
    std::string atoms = "0 1\n";
    for (std::size_t k = i + 2; k < std::min(i + 2 + static_cast<std::size_t>(count), lines.size());
         ++k)
      atoms += lines[k] + "\n";
    frames.push_back(parse_string(atoms).input.geometry.atoms);
    i += 2 + static_cast<std::size_t>(count);
  }
  return frames;
}

/// The inputs that are made of a frame: canonical, and as somebody pastes it.
void expect_no_alarm(const std::vector<AtomRecord>& atoms, const std::string& name) {
  InputBuilder builder;
  builder.set_task("opt").set_model("general-organic");
  builder.set_charge_and_multiplicity(0, multiplicity_of(atoms)).set_geometry(atoms);
  EXPECT_EQ(with_alarms(builder.to_string(), Options()), builder.to_string()) << name;
  builder.clear_charge_and_multiplicity();
  EXPECT_EQ(with_alarms(builder.to_string(), Options()), builder.to_string()) << name;
}

TEST(InputsMadeFromGeometries, DrawNoAlarm) {
  expect_no_alarm({{"O", 0, 0, 0.1173}, {"H", 0, 0.7572, -0.4692}, {"H", 0, -0.7572, -0.4692}},
                  "water");
  const char* const folder = std::getenv("KELP_QUILL_INP_XYZ_DIR");
  if (folder == nullptr) return;
  std::size_t frames = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".xyz") continue;
    for (const std::vector<AtomRecord>& atoms :
         frames_of(file_content(entry.path().string()).value())) {
      if (atoms.empty()) continue;
      expect_no_alarm(atoms, entry.path().filename().string());
      ++frames;
    }
  }
  EXPECT_GT(frames, 0U);
}

}  // namespace

}  // namespace kelp::input::quill::lint
