#include "quill-inp/batch/each_file.hpp"
#include "quill-inp/batch/folder_walk.hpp"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <exception>
#include <memory>
#include <new>
#include <optional>
#include <utility>

#include "quill-inp/batch/ordered_work.hpp"
#include "quill-inp/batch/progress_line.hpp"
#include "quill-inp/batch/tally.hpp"
#include "quill-inp/batch/transcript.hpp"
#include "quill-inp/process/terminal.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/input_source.hpp"

namespace kelp::input::quill::tool {

namespace {

/// What one file of many does not share with the others. Everything that is written for it waits
/// here for its turn.
struct FileRun {
  Transcript transcript = {};
  Output output;
  Session session;
  ExitCode code = ExitCode::Done;
  std::exception_ptr error = nullptr;  // ends the call in the turn of this file

  explicit FileRun(Session& whole)
      : output(transcript.out(), whole.output().file()),
        session(whole.for_one_file(transcript.err(), output)) {}
};

constexpr std::size_t most_files_in_a_piece = 8;
constexpr std::size_t pieces_for_a_thread = 64;

/// Passing a small file from one thread to another takes about as long as the work on it, so many
/// files are passed in pieces. Few files may be large, and all threads should have work to the end.
std::size_t files_in_a_piece(std::size_t files, unsigned threads) {
  const std::size_t files_for_a_piece = files / (threads * pieces_for_a_thread);
  return std::clamp<std::size_t>(files_for_a_piece, 1, most_files_in_a_piece);
}

/// Writes what was written for a file.
void replay(Session& session, const FileRun& run) {
  if (run.output.has_begun_part()) session.output().begin_part();
  for (const Transcript::Piece& piece : run.transcript.pieces()) {
    if (piece.is_output) {
      session.output().write_shown(piece.text);
    } else {
      session.reporter().write(piece.text);
    }
  }
}

/// The files of one call, one after another or several at once.
class Batch {
 public:
  Batch(Session& session, const std::vector<std::string>& files, const BatchOptions& options,
        const NumberedAction& action)
      : session_(session),
        files_(files),
        options_(options),
        action_(action),
        progress_(session.reporter().stream(), files.size(), std::chrono::steady_clock::now()),
        shows_progress_(files.size() > 1 && session.is_watched()) {}

  ExitCode run() {
    // A progress line has to be removed before anything is written, so the file cannot write by
    // itself.
    if (files_.size() > 1 && (options_.threads > 1 || shows_progress_)) {
      run_side_by_side();
    } else {
      for (std::size_t i = 0; i < files_.size(); ++i) run_alone(i);
    }
    progress_.clear();
    if (files_.size() > 1 && (options_.counted != nullptr || progress_.was_shown())) {
      const char* const counted = options_.counted == nullptr ? "changed" : options_.counted;
      session_.reporter().note({"quill-inp"}, words(tally_, counted));
    }
    return worst_;
  }

 private:
  void run_alone(std::size_t number) {
    session_.forget_change();
    const ExitCode code =
        for_file(session_, files_[number], [&] { return action_(session_, number); });
    count(code, session_.has_noted_change());
  }

  void run_side_by_side() {
    find_reader_of_standard_input();
    const std::size_t length = files_in_a_piece(files_.size(), options_.threads);
    runs_.resize(window_of(options_.threads) * length);
    OrderedWork pieces;
    pieces.count = (files_.size() + length - 1) / length;
    pieces.work = [&](std::size_t piece) { for_piece(piece, length, &Batch::work); };
    pieces.deliver = [&](std::size_t piece) { for_piece(piece, length, &Batch::deliver); };
    pieces.pass_time = [&] { show_progress(); };
    do_in_order(pieces, options_.threads);
  }

  /// Does something with each file of a piece, in their order.
  void for_piece(std::size_t piece, std::size_t length, void (Batch::*act)(std::size_t)) {
    const std::size_t end = std::min(files_.size(), (piece + 1) * length);
    for (std::size_t number = piece * length; number < end; ++number) (this->*act)(number);
  }

  /// Standard input can be read once, and the first file that asks for it gets it.
  void find_reader_of_standard_input() {
    for (std::size_t i = 0; i < files_.size() && !reader_; ++i) {
      if (files_[i] == "-") reader_ = i;
    }
  }

  /// Keeps no run if there is not even enough memory to report that memory ran out.
  void work(std::size_t number) {
    const std::string& file = files_[number];
    try {
      auto task = std::make_unique<FileRun>(session_);
      if (number != reader_) task->session.forbid_standard_input();
      try {
        task->code = for_file(task->session, file, [&] { return action_(task->session, number); });
      } catch (const UsageError&) {
        task->error = std::current_exception();
      }
      runs_[number % runs_.size()] = std::move(task);
    } catch (const std::bad_alloc&) {
    }
  }

  void deliver(std::size_t number) {
    const std::unique_ptr<FileRun> task = std::move(runs_[number % runs_.size()]);
    if (task && task->error) std::rethrow_exception(task->error);
    if (!task || !task->transcript.pieces().empty()) progress_.clear();
    if (task) {
      replay(session_, *task);
      count(task->code, task->session.has_noted_change());
    } else {
      session_.report(files_[number], Trouble(explain(std::bad_alloc())));
      count(ExitCode::Trouble, false);
    }
    show_progress();
  }

  void count(ExitCode code, bool was_changed) {
    tally_.add(code, was_changed);
    worst_ = worse_of(worst_, code);
  }

  void show_progress() {
    if (shows_progress_) progress_.show(tally_.files, std::chrono::steady_clock::now());
  }

  Session& session_;
  const std::vector<std::string>& files_;
  const BatchOptions& options_;
  const NumberedAction& action_;
  std::vector<std::unique_ptr<FileRun>> runs_ = {};  // by their numbers within the window
  ProgressLine progress_;
  bool shows_progress_;
  std::optional<std::size_t> reader_ = std::nullopt;
  Tally tally_ = {};
  ExitCode worst_ = ExitCode::Done;
};

/// The texts of the other files would be written into an input that is also the output.
ExitCode require_all_apart_from_output(Session& session, const std::vector<std::string>& files) {
  ExitCode code = ExitCode::Done;
  for (const std::string& file : files) {
    const auto require_apart = [&] {
      require_apart_from_output(session, file);
      return ExitCode::Done;
    };
    code = worse_of(code, for_file(session, file, require_apart));
  }
  return code;
}

}  // namespace

ExitCode for_file(Session& session, const std::string& argument,
                  const std::function<ExitCode()>& action) {
  try {
    return action();
  } catch (const UsageError&) {
    throw;
  } catch (const ReportedTrouble&) {
    return ExitCode::Trouble;
  } catch (const Trouble& trouble) {
    session.report(argument, trouble);
    return ExitCode::Trouble;
  } catch (const std::exception& error) {
    session.reporter().error({session.shown_name(argument)}, explain(error));
    return ExitCode::Trouble;
  }
}

ExitCode for_each_file(Session& session, const ChosenFiles& files, const BatchOptions& options,
                       const FileAction& action) {
  return for_each_number(session, files, options, [&](Session& one, std::size_t number) {
    const std::string& file = files.files[number];
    try {
      return action(one, file);
    } catch (const FolderTrouble&) {
      if (is_folder(file)) throw Trouble("is a folder; use --recursive to take the files in it");
      throw;
    }
  });
}

ExitCode for_each_number(Session& session, const ChosenFiles& files, const BatchOptions& options,
                         const NumberedAction& action) {
  if (session.output().goes_into_regular_file()) {
    const ExitCode code = require_all_apart_from_output(session, files.files);
    if (code != ExitCode::Done) return code;
  }
  return worse_of(files.code, Batch(session, files.files, options, action).run());
}

}  // namespace kelp::input::quill::tool
