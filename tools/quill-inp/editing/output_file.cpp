#include "quill-inp/editing/output_file.hpp"

#include "quill-inp/files/written_files.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option output_option{"-o,--output", "FILE",
                               "Write to a new file, not to standard output"};
constexpr Option force{"--force", "", "With -o, replace an existing file"};

}  // namespace

void add_output_options(CLI::App& verb) {
  add_value(verb, output_option);
  add_flag(verb, force);
}

OutputFile read_output_file(const CLI::App& verb) {
  OutputFile output;
  output.path = value_of(verb, output_option);
  output.may_be_replaced = is_given(verb, force);
  if (output.may_be_replaced && !output.path) throw UsageError("--force needs --output");
  if (output.path == "-") output.path.reset();
  return output;
}

void write_output(Session& session, const OutputFile& output, std::string_view text) {
  if (!output.path) {
    session.output().write(text);
    return;
  }
  try {
    const WrittenFile written =
        write_file(*output.path, text,
                   output.may_be_replaced ? lossless::ExistingFile::IsReplaced
                                          : lossless::ExistingFile::IsRefused);
    for (const std::string& note : written.notes) session.reporter().note({*output.path}, note);
    if (written.is_written) session.note_change();
  } catch (const Trouble& trouble) {
    session.reporter().error({*output.path}, trouble.what());
    throw ReportedTrouble();
  }
}

}  // namespace kelp::input::quill::tool
