#ifndef KELP_INPUT_QUILL_BENCH_SUPPORT_RATIO_TABLE_HPP
#define KELP_INPUT_QUILL_BENCH_SUPPORT_RATIO_TABLE_HPP

#include <iosfwd>
#include <string>
#include <string_view>

#include "support/time_ratio.hpp"

namespace kelp::input::quill::bench {

/// Prints one row for each figure as soon as it is known, with its upper limit.
class RatioTable {
 public:
  /// Prints the head of the table. Times are compared over `rounds` rounds. Rows whose text does
  /// not contain `only` are left out.
  RatioTable(std::ostream& out, int rounds, std::string only);

  /// Adds the ratio of the times that `subject` and `reference` take.
  void compare(std::string_view what, const Work& subject, const Work& reference, double at_most);

  /// The same for the time that passes, where several threads work. Other programs on the machine
  /// lengthen it.
  void compare_elapsed(std::string_view what, const Work& subject, const Work& reference,
                       double at_most);

  /// The same as compare() where the subject does some work that no code can avoid. `floor` does
  /// only that work: a ratio above `at_most` is also accepted if it is not above that of `floor`.
  void compare_with_floor(std::string_view what, const Work& subject, const Work& floor,
                          const Work& reference, double at_most);

  /// Adds a figure that is the same in every run.
  void record(std::string_view what, double figure, double at_most);

  /// Whether no figure so far was above its limit.
  bool all_met() const { return all_met_; }

 private:
  void add_row(std::string_view what, double figure, std::string_view spread, double at_most,
               std::string_view verdict);

  bool is_wanted(std::string_view what) const;

  std::ostream& out_;
  int rounds_;
  std::string only_;
  bool all_met_ = true;
};

/// Throws std::runtime_error when two ways to compute something have not given the same.
void require_same(bool are_same, std::string_view what);

}  // namespace kelp::input::quill::bench

#endif  // KELP_INPUT_QUILL_BENCH_SUPPORT_RATIO_TABLE_HPP
