#ifndef KELP_INPUT_QUILL_BENCH_SUPPORT_TIME_RATIO_HPP
#define KELP_INPUT_QUILL_BENCH_SUPPORT_TIME_RATIO_HPP

#include <functional>

namespace kelp::input::quill::bench {

using Work = std::function<void()>;

/// How long one work takes, as a multiple of another: the median over all rounds, and the two
/// values between which half of the rounds are.
struct TimeRatio {
  double median;
  double lower_quartile;
  double upper_quartile;
};

/// What counts as time: that of the processor, for all threads together, or that which passes.
enum class Clock { Processor, Wall };

/// Times both in turns, so that other programs on the machine affect both in the same way, and
/// compares only what was timed in the same round. So that the work is not optimised away, pass its
/// result to benchmark::DoNotOptimize.
TimeRatio time_ratio(const Work& subject, const Work& reference, int rounds,
                     Clock clock = Clock::Processor);

/// How many seconds of the processor one work takes: the median over all rounds.
double median_time(const Work& work, int rounds);

}  // namespace kelp::input::quill::bench

#endif  // KELP_INPUT_QUILL_BENCH_SUPPORT_TIME_RATIO_HPP
