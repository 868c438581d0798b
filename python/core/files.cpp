#include <cerrno>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "core/arguments.hpp"
#include "core/bindings.hpp"
#include "core/sealed_class.hpp"
#include "kelp/input/quill/lossless/file_error.hpp"
#include "kelp/input/quill/lossless/file_replacement.hpp"
#include "kelp/input/quill/lossless/whole_file.hpp"
#include "kelp/input/quill/lossless/wording.hpp"

// Reading and writing the files of users, as safely as the library can. Paths are bytes.

namespace kelp::input::quill::python {

namespace {

using lossless::FileFailure;

/// A file that is locked until it is closed or replaced.
struct OpenFile {
  std::optional<lossless::FileToReplace> file;
};

/// Returns the errno that Python makes a subclass of OSError of: that of the system, or the one
/// that means the same.
int code_of(const FileFailure& failure) {
  if (failure.system_code != 0) return failure.system_code;
  switch (failure.kind) {
    case FileFailure::Kind::NotAName:
    case FileFailure::Kind::DanglingLink:
      return ENOENT;
    case FileFailure::Kind::NotRegular:
      return failure.type == lossless::FileType::Folder ? EISDIR : 0;
    case FileFailure::Kind::Exists:
    case FileFailure::Kind::ExistsNotRegular:
    case FileFailure::Kind::BackupExists:
      return EEXIST;
    case FileFailure::Kind::Locked:
      return ETIMEDOUT;
    default:
      return 0;
  }
}

void translate(std::exception_ptr thrown) {
  try {
    if (thrown) std::rethrow_exception(std::move(thrown));
  } catch (const lossless::FileError& error) {
    const int code = code_of(error.failure());
    const py::object number = code == 0 ? py::object(py::none()) : py::object(py::int_(code));
    const py::object kind = py::reinterpret_borrow<py::object>(PyExc_OSError);
    const py::object made =
        kind(number, to_python(lossless::words(error.failure())), to_python(error.path()));
    PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(made.ptr())), made.ptr());
  }
}

std::vector<Text> words_of(const std::vector<lossless::LostAttribute>& lost) {
  std::vector<Text> all;
  all.reserve(lost.size());
  for (const lossless::LostAttribute& one : lost) all.push_back({lossless::words(one)});
  return all;
}

std::shared_ptr<OpenFile> open_file(const std::string& path, Real patience) {
  lossless::OpenOptions options;
  options.patience = std::chrono::milliseconds(static_cast<std::int64_t>(patience.value * 1000.0));
  const py::gil_scoped_release release;
  return std::make_shared<OpenFile>(OpenFile{lossless::open_to_replace(path, options)});
}

/// Takes the file out of the object first, so that no other thread uses it meanwhile.
std::vector<Text> replace(OpenFile& self, const py::bytes& text,
                          const std::optional<std::string>& backup_suffix, bool breaks_hard_links) {
  if (!self.file) throw py::value_error("the file is closed");
  lossless::FileToReplace file = std::move(*self.file);
  self.file.reset();
  lossless::ReplaceOptions options;
  options.backup_suffix = backup_suffix;
  options.breaks_hard_links = breaks_hard_links;
  const std::string_view new_text = text;
  return words_of([&] {
    const py::gil_scoped_release release;
    lossless::FileToReplace owned = std::move(file);  // unlocked without the interpreter's lock
    return owned.replace(new_text, options);
  }());
}

py::tuple write_file(const std::string& path, const py::bytes& text, bool replaces) {
  lossless::WriteOptions options;
  options.existing =
      replaces ? lossless::ExistingFile::IsReplaced : lossless::ExistingFile::IsRefused;
  const std::string_view new_text = text;
  const lossless::WrittenFile written = [&] {
    const py::gil_scoped_release release;
    return lossless::write_whole_file(path, new_text, options);
  }();
  return py::make_tuple(written.is_written, words_of(written.lost));
}

}  // namespace

void bind_files(py::module_& module) {
  py::register_exception_translator(&translate);
  sealed_class<OpenFile>(module, "OpenFile")
      .def("text", [](const OpenFile& self) { return py::bytes(self.file.value().text()); })
      .def("replace", &replace)
      .def("close", [](OpenFile& self) { self.file.reset(); });
  module.def("open_file", &open_file);
  module.def("write_file", &write_file);
}

}  // namespace kelp::input::quill::python
