#include "support/time_ratio.hpp"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <utility>
#include <vector>

namespace kelp::input::quill::bench {

namespace {

/// Long compared with the clock's step of a microsecond, short compared with changes of the
/// machine's load.
constexpr double seconds_per_run = 0.01;

double now(Clock clock) {
  if (clock == Clock::Processor) return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
  const auto time = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double>(time).count();
}

double seconds(const Work& work, int repeats, Clock clock) {
  const double start = now(clock);
  for (int i = 0; i < repeats; ++i) work();
  return now(clock) - start;
}

int repeats_for_one_run(const Work& work, Clock clock) {
  int repeats = 1;
  while (seconds(work, repeats, clock) < seconds_per_run) repeats *= 2;
  return repeats;
}

}  // namespace

TimeRatio time_ratio(const Work& subject, const Work& reference, int rounds, Clock clock) {
  const int repeats =
      std::max(repeats_for_one_run(subject, clock), repeats_for_one_run(reference, clock));
  std::vector<double> ratios;
  for (int round = 0; round < rounds; ++round) {
    // The second one finds the caches as the first has left them, so they take turns in being
    // first.
    std::pair<double, double> times;
    if (round % 2 == 0) {
      times.first = seconds(subject, repeats, clock);
      times.second = seconds(reference, repeats, clock);
    } else {
      times.second = seconds(reference, repeats, clock);
      times.first = seconds(subject, repeats, clock);
    }
    ratios.push_back(times.first / times.second);
  }
  std::sort(ratios.begin(), ratios.end());
  const std::size_t count = ratios.size();
  return {ratios[count / 2], ratios[count / 4], ratios[count - 1 - count / 4]};
}

double median_time(const Work& work, int rounds) {
  const int repeats = repeats_for_one_run(work, Clock::Processor);
  std::vector<double> times;
  for (int round = 0; round < rounds; ++round)
    times.push_back(seconds(work, repeats, Clock::Processor) / repeats);
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

}  // namespace kelp::input::quill::bench
