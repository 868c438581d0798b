// Nothing in the library needs much stack, however large its input: a thread of 128 KiB does.

#include <gtest/gtest.h>
#include <pthread.h>

#include <cstddef>
#include <string>

#include "kelp/input/quill/quill.hpp"
#include "properties/sample_files.hpp"

namespace kelp::input::quill {
namespace {

struct Work {
  std::string text;
  QuillInput document;
  std::string written;
};

/// Everything that the library does to a text.
void* do_work(void* argument) {
  Work& work = *static_cast<Work*>(argument);
  InputEditor editor(parse_string(work.text).input);
  editor.set_parameter("opt", "maxiter", "100");
  editor.add_scan({1, 2}, 1e300, 3);
  editor.add_atom(AtomRecord{"H", 1e300, 1e-300, 0.5});
  work.document = std::move(editor).document();
  work.written = work.document.to_string();
  return nullptr;
}

void run_on_small_stack(Work& work) {
  constexpr std::size_t stack_size = std::size_t{128} * 1024;
  pthread_attr_t attributes;
  pthread_t thread;
  ASSERT_EQ(pthread_attr_init(&attributes), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, stack_size), 0);
  ASSERT_EQ(pthread_create(&thread, &attributes, do_work, &work), 0);
  ASSERT_EQ(pthread_join(thread, nullptr), 0);
  ASSERT_EQ(pthread_attr_destroy(&attributes), 0);
}

void expect_that_it_suffices(const std::string& text) {
  Work small{text, {}, {}};
  ASSERT_NO_FATAL_FAILURE(run_on_small_stack(small));
  Work large{text, {}, {}};
  do_work(&large);
  EXPECT_TRUE(small.written == large.written);
}

TEST(ASmallStack, SufficesForTheExamples) {
  for (const SampleFile& input : example_inputs())
    ASSERT_NO_FATAL_FAILURE(expect_that_it_suffices(input.content)) << input.name;
}

TEST(ASmallStack, SufficesForLinesThatAreLongOrNested) {
  constexpr std::size_t size = std::size_t{1024} * 1024;
  for (const char c : {'#', '(', ')', '\'', ',', '=', ' ', '9', 'x'})
    ASSERT_NO_FATAL_FAILURE(expect_that_it_suffices("#a(" + std::string(size, c))) << c;
  expect_that_it_suffices("H 0 0 ." + std::string(size, '9'));
  expect_that_it_suffices("0 1\nS 1 2 " + std::string(size, '9') + " 3\n");
}

}  // namespace
}  // namespace kelp::input::quill
