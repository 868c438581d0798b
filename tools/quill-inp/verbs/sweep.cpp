#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <unordered_map>
#include <utility>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/command_line/geometry_options.hpp"
#include "quill-inp/editing/apply_settings.hpp"
#include "quill-inp/editing/edit_file.hpp"
#include "quill-inp/editing/strictness.hpp"
#include "quill-inp/files/sha256.hpp"
#include "quill-inp/files/written_files.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/sweep/manifest.hpp"
#include "quill-inp/sweep/name_pattern.hpp"
#include "quill-inp/sweep/value_list.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp sweep water.qin opt.maxiter=[50,100] model=[m1,m2] \\\n"
    "    -o 'jobs/{name}-{model}-{opt.maxiter}.qin' --manifest jobs.tsv\n"
    "\n"
    "Writes an input for each combination of the values. The fields of PATTERN are {name}, the "
    "name\n"
    "of the template or structure without its ending, {number}, {frame} and every KEY. A file "
    "that\n"
    "is there already with the same text is left alone.";

constexpr Option template_file{"TEMPLATE", "", "The input that the new ones are made of"};
constexpr Option lists{"KEY=[VALUES]", "", "The values of a key, with commas between them"};
constexpr Option output{"-o,--output", "PATTERN", "The names of the new inputs"};
constexpr Option zip{"--zip", "", "Combine the first values, the second values and so on"};
constexpr Option structures{"--atoms", "FILE.xyz",
                            "Make every input with each of these structures"};
constexpr Option frames{"--frames", "", "With --atoms, take every frame of a trajectory"};
constexpr Option force{"--force", "", "Replace files that hold another text"};
constexpr Option manifest{"--manifest", "FILE", "List names, SHA-256 and values: TSV, or .jsonl"};

/// A structure, and where it comes from.
struct Structure {
  std::string file = {};
  std::size_t frame = 1;
  std::size_t frames = 1;
  std::vector<AtomRecord> atoms = {};
};

/// What the command line asks for.
struct Request {
  std::string pattern = {};
  std::vector<ValueList> lists = {};
  Combination combination = Combination::Product;
  std::vector<std::string> structure_files = {};
  bool has_frames = false;
  lossless::ExistingFile existing = lossless::ExistingFile::IsRefused;
  std::optional<std::string> manifest = std::nullopt;
  LossPolicy policy = {};
  BatchOptions batch = {};
};

Request read_request(const CLI::App& app) {
  Request request;
  const auto pattern = value_of(app, output);
  if (!pattern) throw UsageError("--output is required");
  request.pattern = *pattern;
  for (const std::string& text : values_of(app, lists))
    request.lists.push_back(parse_value_list(text));
  if (is_given(app, zip)) request.combination = Combination::Zip;
  request.structure_files = values_of(app, structures);
  for (const std::string& path : request.structure_files) require_path(structures, path);
  request.has_frames = is_given(app, frames);
  if (request.has_frames && request.structure_files.empty())
    throw UsageError("--frames needs --atoms");
  if (request.lists.empty() && request.structure_files.empty()) throw UsageError("nothing to vary");
  if (is_given(app, force)) request.existing = lossless::ExistingFile::IsReplaced;
  request.manifest = value_of(app, manifest);
  request.policy = read_loss_policy(app);
  request.batch = read_batch_options(app);
  request.batch.counted = "written";
  return request;
}

std::vector<Structure> read_all_structures(Session& session, const Request& request) {
  std::vector<Structure> all;
  for (const std::string& file : request.structure_files) {
    std::size_t frame = 0;
    auto found = read_structures(session, file, request.has_frames);
    for (lossless::XyzFrame& structure : found)
      all.push_back({file, ++frame, found.size(), std::move(structure.atoms)});
  }
  return all;
}

/// All inputs of a sweep, by their numbers from 0. The structure changes slowest.
class Plan {
 public:
  Plan(const Request& request, std::vector<Structure> all, const std::string& template_name)
      : request_(request), structures_(std::move(all)), template_name_(template_name) {
    for (const ValueList& list : request.lists) lengths_.push_back(list.values.size());
    combinations_ = count_combinations(lengths_, request.combination);
    count_ = count_combinations({combinations_, std::max<std::size_t>(structures_.size(), 1)},
                                Combination::Product);
  }

  std::size_t count() const { return count_; }

  const Structure* structure_of(std::size_t number) const {
    return structures_.empty() ? nullptr : &structures_[number / combinations_];
  }

  std::vector<std::string> values_of_number(std::size_t number) const {
    const auto indices = indices_of(number % combinations_, lengths_, request_.combination);
    std::vector<std::string> values;
    for (std::size_t i = 0; i < indices.size(); ++i)
      values.push_back(request_.lists[i].values[indices[i]]);
    return values;
  }

  std::string name_of_number(std::size_t number) const {
    const Structure* structure = structure_of(number);
    NameFields fields = {{"name", stem_of(structure == nullptr ? template_name_ : structure->file)},
                         {"number", padded_number(number + 1, count_)}};
    if (structure != nullptr)
      fields.emplace_back("frame", padded_number(structure->frame, structure->frames));
    const std::vector<std::string> values = values_of_number(number);
    for (std::size_t i = 0; i < values.size(); ++i)
      fields.emplace_back(request_.lists[i].key_text, values[i]);
    return make_name(request_.pattern, fields);
  }

  /// The same edit as that of 'set' with these values.
  EditReport edit(std::size_t number, lossless::TrackedDocument& document) const {
    const std::vector<std::string> values = values_of_number(number);
    std::vector<Setting> settings;
    for (std::size_t i = 0; i < values.size(); ++i)
      settings.push_back({request_.lists[i].key_text, request_.lists[i].key, values[i], {}});
    EditReport report = apply_settings(settings, document, NewNames::Created);
    if (const Structure* structure = structure_of(number)) document.set_geometry(structure->atoms);
    return report;
  }

  std::vector<std::string> manifest_keys() const {
    std::vector<std::string> keys;
    for (const ValueList& list : request_.lists) keys.push_back(list.key_text);
    if (!structures_.empty()) keys.insert(keys.end(), {"atoms", "frame"});
    return keys;
  }

  std::vector<std::string> manifest_values(std::size_t number) const {
    std::vector<std::string> values = values_of_number(number);
    if (const Structure* structure = structure_of(number))
      values.insert(values.end(), {structure->file, std::to_string(structure->frame)});
    return values;
  }

 private:
  const Request& request_;
  std::vector<Structure> structures_;
  std::string template_name_;
  std::vector<std::size_t> lengths_ = {};
  std::size_t combinations_ = 1;
  std::size_t count_ = 1;
};

/// Returns the names of all inputs. Throws UsageError if two of them would be the same.
std::vector<std::string> list_names(const Plan& plan) {
  std::vector<std::string> names;
  std::unordered_map<std::string, std::size_t> numbers;
  for (std::size_t i = 0; i < plan.count(); ++i) {
    names.push_back(plan.name_of_number(i));
    const auto [entry, is_new] = numbers.emplace(names.back(), i);
    if (!is_new) {
      throw UsageError("inputs " + std::to_string(entry->second + 1) + " and " +
                       std::to_string(i + 1) + " would both be '" + names.back() +
                       "'; name them by more fields, or by {number}");
    }
  }
  return names;
}

std::set<std::string> make_folders(const std::vector<std::string>& names) {
  std::set<std::string> folders;
  for (const std::string& name : names) folders.insert(lossless::folder_of_path(name));
  for (const std::string& folder : folders) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) throw Trouble("the folder '" + folder + "' cannot be created: " + error.message());
  }
  return folders;
}

/// Makes and writes the input with this number. The template is read for each input, since to keep
/// what the reader makes of it takes several times the memory of its text.
ExitCode write_one(Session& session, const InputSource& source, const Plan& plan,
                   const Request& request, std::size_t number, ManifestEntry& entry) {
  const auto edit = [&](lossless::TrackedDocument& document) {
    return plan.edit(number, document);
  };
  const EditNotes notes = number == 0 ? EditNotes::Told : EditNotes::Untold;
  ReadInput input{source.name, lossless::read_text(source.content)};
  MadeEdit made = make_edit(session, entry.file, input, edit, request.policy, notes);
  if (made.code != ExitCode::Done) return made.code;
  forget_all_but_texts(input, made);
  if (made.line_losses.empty()) forget_text(input);
  std::string& text = made.text.text;
  if (!accept_edit(session, entry.file, made, request.policy, notes)) return ExitCode::Trouble;
  made.document = lossless::TrackedDocument(QuillInput());
  if (!accept_findings(session, entry.file, text, request.policy)) return ExitCode::Trouble;
  const WrittenFile written =
      write_file(entry.file, text, request.existing, lossless::FolderFlush::ByCaller);
  for (const std::string& note : written.notes) session.reporter().note({entry.file}, note);
  if (written.is_written) session.note_change();
  entry.sha256 = sha256_of(text);
  return ExitCode::Done;
}

ExitCode write_all(Session& session, const InputSource& source, const Plan& plan,
                   const Request& request) {
  ChosenFiles files;
  files.files = list_names(plan);
  const std::set<std::string> folders = make_folders(files.files);
  std::vector<ManifestEntry> entries(plan.count());
  for (std::size_t i = 0; i < entries.size(); ++i)
    entries[i] = {files.files[i], {}, plan.manifest_values(i)};
  const ExitCode code =
      for_each_number(session, files, request.batch, [&](Session& one, std::size_t number) {
        return write_one(one, source, plan, request, number, entries[number]);
      });
  for (const std::string& folder : folders) flush_folder(folder);
  // The list names only files that contain what it says. So it is written last, and only if nothing
  // failed.
  if (code == ExitCode::Done && request.manifest) {
    write_file(*request.manifest, manifest_text(*request.manifest, plan.manifest_keys(), entries),
               lossless::ExistingFile::IsReplaced);
  }
  return code;
}

ExitCode sweep(Session& session, const CLI::App& app) {
  const Request request = read_request(app);
  const std::string argument = *value_of(app, template_file);
  return for_file(session, argument, [&] {
    ReadInput input = read_input(session, argument);
    if (!accept_as_input(session, input, request.policy)) return ExitCode::Trouble;
    report_warnings(session.reporter(), input.name, input.read.result);
    const Plan plan(request, read_all_structures(session, request), input.name);
    const InputSource source{std::move(input.name), std::move(input.read.text)};
    input = ReadInput();
    return write_all(session, source, plan, request);
  });
}

}  // namespace

Verb add_sweep(CLI::App& program) {
  CLI::App* app =
      add_verb(program, "sweep", "Write inputs for all combinations of values", example);
  add_argument(*app, template_file);
  add_optional_arguments(*app, lists);
  add_value(*app, output);
  add_flag(*app, zip);
  add_values(*app, structures);
  add_flag(*app, frames);
  add_value(*app, manifest);
  add_flag(*app, force);
  add_jobs_option(*app);
  add_loss_options(*app);
  add_common_options(*app);
  return {app, sweep};
}

}  // namespace kelp::input::quill::tool
