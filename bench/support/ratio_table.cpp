#include "support/ratio_table.hpp"

#include <iomanip>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

namespace kelp::input::quill::bench {

namespace {

constexpr int what_width = 66;
constexpr int number_width = 7;

constexpr std::string_view not_met = "NOT MET";

std::string plain_verdict(double figure, double at_most) {
  return figure <= at_most ? "met" : std::string(not_met);
}

std::string floor_verdict(double floor) {
  std::ostringstream text;
  text << "at its floor, " << std::fixed << std::setprecision(2) << floor;
  return text.str();
}

std::string spread_text(const TimeRatio& ratio) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(3) << ratio.lower_quartile << " - "
       << ratio.upper_quartile;
  return text.str();
}

}  // namespace

RatioTable::RatioTable(std::ostream& out, int rounds, std::string only)
    : out_(out), rounds_(rounds), only_(std::move(only)) {
  out_ << std::left << std::setw(what_width) << "what" << std::right << std::setw(number_width)
       << "ratio"
       << "   half of rounds " << std::setw(number_width) << "at most"
       << "  verdict\n";
}

void RatioTable::compare(std::string_view what, const Work& subject, const Work& reference,
                         double at_most) {
  if (!is_wanted(what)) return;
  const TimeRatio ratio = time_ratio(subject, reference, rounds_);
  add_row(what, ratio.median, spread_text(ratio), at_most, plain_verdict(ratio.median, at_most));
}

void RatioTable::compare_elapsed(std::string_view what, const Work& subject, const Work& reference,
                                 double at_most) {
  if (!is_wanted(what)) return;
  const TimeRatio ratio = time_ratio(subject, reference, rounds_, Clock::Wall);
  add_row(what, ratio.median, spread_text(ratio), at_most, plain_verdict(ratio.median, at_most));
}

void RatioTable::compare_with_floor(std::string_view what, const Work& subject, const Work& floor,
                                    const Work& reference, double at_most) {
  constexpr double most_above_floor = 1.05;
  if (!is_wanted(what)) return;
  const TimeRatio ratio = time_ratio(subject, reference, rounds_);
  const double above_floor = time_ratio(subject, floor, rounds_).median;
  const bool is_at_floor = ratio.median > at_most && above_floor <= most_above_floor;
  add_row(what, ratio.median, spread_text(ratio), at_most,
          is_at_floor ? floor_verdict(ratio.median / above_floor)
                      : plain_verdict(ratio.median, at_most));
}

void RatioTable::record(std::string_view what, double figure, double at_most) {
  if (is_wanted(what)) add_row(what, figure, "exact", at_most, plain_verdict(figure, at_most));
}

bool RatioTable::is_wanted(std::string_view what) const {
  return what.find(only_) != std::string_view::npos;
}

void RatioTable::add_row(std::string_view what, double figure, std::string_view spread,
                         double at_most, std::string_view verdict) {
  constexpr int spread_width = 17;
  all_met_ = all_met_ && verdict != not_met;
  out_ << std::left << std::setw(what_width) << what << std::right << std::fixed
       << std::setprecision(3) << std::setw(number_width) << figure << std::setw(spread_width)
       << spread << std::setprecision(2) << std::setw(number_width + 1) << at_most << "  "
       << verdict << std::endl;
}

void require_same(bool are_same, std::string_view what) {
  if (!are_same) throw std::runtime_error("not the same result: " + std::string(what));
}

}  // namespace kelp::input::quill::bench
