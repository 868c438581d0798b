#ifndef KELP_INPUT_QUILL_BENCH_RATIOS_RATIOS_HPP
#define KELP_INPUT_QUILL_BENCH_RATIOS_RATIOS_HPP

#include "support/ratio_table.hpp"

// The rows of the table by subject. Each function checks that what it compares gives the same
// results, and throws std::runtime_error if not, before it times anything.

namespace kelp::input::quill::bench {

void add_reading_ratios(RatioTable& table);
void add_writing_ratios(RatioTable& table);
void add_heap_ratios(RatioTable& table);
void add_small_job_ratios(RatioTable& table);
void add_builder_ratios(RatioTable& table);
void add_start_ratios(RatioTable& table);
void add_tool_ratios(RatioTable& table);
void add_language_server_ratios(RatioTable& table);

}  // namespace kelp::input::quill::bench

#endif  // KELP_INPUT_QUILL_BENCH_RATIOS_RATIOS_HPP
