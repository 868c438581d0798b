#include "properties/allocation_faults.hpp"

#include <new>
#include <optional>
#include <string>

#include "properties/everything.hpp"
#include "properties/made_document.hpp"
#include "properties/violation.hpp"
#include "support/comparison.hpp"
#include "support/failing_allocator.hpp"

namespace kelp::input::quill {

namespace {

struct Outcome {
  bool is_finished = false;
  bool met_the_fault = false;
};

/// Does the work while allocation number `failing` fails. Work that met the fault may finish all
/// the same, where memory was asked for that it can do without.
template <typename Work>
Outcome attempt(std::uint64_t failing, Work work) {
  Outcome outcome;
  try {
    const AllocationWindow window(failing);
    work();
    outcome.is_finished = true;
    outcome.met_the_fault = failing != 0 && window.allocations() >= failing;
  } catch (const std::bad_alloc&) {
    outcome.met_the_fault = true;
  }
  return outcome;
}

/// Throws unless as many blocks are allocated at its end as at its beginning.
class LeakCheck {
 public:
  explicit LeakCheck(std::string_view subject) : subject_(subject), live_(live_allocations()) {}

  void finish() const {
    static const bool frees_failed_copies = failed_copies_are_freed();
    require(live_allocations() == live_ || !frees_failed_copies, "no block is lost", subject_);
  }

 private:
  std::string_view subject_;
  std::int64_t live_;
};

bool made_edit_survives(std::string_view bytes, std::uint64_t failing) {
  ByteSource source(bytes);
  const QuillInput before = made_document(source);
  return edit_survives_fault(made_operation(source, before), before, failing, bytes);
}

bool building_survives(std::string_view bytes, std::uint64_t failing) {
  ByteSource source(bytes);
  InputBuilder start;
  for (std::size_t count = source.below(8); count > 0; --count)
    made_builder_operation(source, start.document()).build(start);
  const EditOperation operation = made_builder_operation(source, start.document());
  QuillInput after = start.document();
  operation.model(after);

  const LeakCheck leaks(bytes);
  Outcome outcome;
  {
    InputBuilder builder(start);
    outcome = attempt(failing, [&] { operation.build(builder); });
    require(!outcome.is_finished || builder.document() == after, "the builder is right", bytes);
    // The last step may run out of memory half-way; whatever is left is a document.
    check_document(builder.document());
  }
  leaks.finish();
  return !outcome.met_the_fault;
}

bool reading_survives(std::string_view bytes, std::uint64_t failing) {
  const ParseResult expected = parse_string(bytes);
  const LeakCheck leaks(bytes);
  Outcome outcome;
  {
    std::optional<ParseResult> result;
    outcome = attempt(failing, [&] { result = parse_string(bytes); });
    require(!outcome.is_finished || *result == expected, "what is read is right", bytes);
  }
  leaks.finish();
  return !outcome.met_the_fault;
}

bool writing_survives(std::string_view bytes, std::uint64_t failing) {
  ByteSource source(bytes);
  const QuillInput document = made_document(source);
  const std::string expected = document.to_string();
  const LeakCheck leaks(bytes);
  Outcome outcome;
  {
    std::string text;
    outcome = attempt(failing, [&] { text = QuillInput(document).to_string(); });
    require(!outcome.is_finished || text == expected, "what is written is right", bytes);
  }
  leaks.finish();
  return !outcome.met_the_fault;
}

}  // namespace

bool edit_survives_fault(const EditOperation& operation, const QuillInput& before,
                         std::uint64_t failing, std::string_view bytes) {
  QuillInput after = before;
  operation.model(after);
  QuillInput half_done = before;
  if (operation.leave_half_done) operation.leave_half_done(half_done);

  const LeakCheck leaks(bytes);
  Outcome outcome;
  {
    InputEditor editor(before);
    outcome = attempt(failing, [&] { operation.edit(editor); });
    const QuillInput& left = editor.document();
    require(outcome.is_finished ? left == after : left == before || left == half_done,
            "an edit that runs out of memory leaves what it may", bytes);
  }
  leaks.finish();
  return !outcome.met_the_fault;
}

bool survives_fault(std::string_view bytes, std::uint64_t failing) {
  const std::size_t kind = ByteSource(bytes).below(4);
  const std::string_view rest = bytes.substr(bytes.empty() ? 0 : 1);
  switch (kind) {
    case 0:
      return made_edit_survives(rest, failing);
    case 1:
      return building_survives(rest, failing);
    case 2:
      return reading_survives(rest, failing);
    default:
      return writing_survives(rest, failing);
  }
}

void check_allocation_fault(std::string_view bytes) {
  const std::uint64_t failing = std::uint64_t{ByteSource(bytes).byte()} + 1;
  const std::string_view rest = bytes.substr(bytes.empty() ? 0 : 1);
  survives_fault(rest, failing);
  require(survives_fault(rest, 0), "without a fault everything succeeds", bytes);
}

}  // namespace kelp::input::quill
