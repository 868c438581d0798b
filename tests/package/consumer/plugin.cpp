// A plugin of some other program. It offers one function.

#include <kelp/input/quill/quill.hpp>

extern "C" __attribute__((visibility("default"))) int plugin_answer() {
  using namespace kelp::input::quill;
  InputEditor editor(parse_string("#opt(maxiter=50)\n").input);
  editor.set_parameter("opt", "maxiter", "100");
  return editor.to_string() == "#opt(maxiter=100)\n" ? 42 : 0;
}
