// Loads a plugin, calls it and unloads it:
//
//   plugin_host PLUGIN
//
// Ends with 0 when the plugin gave the right answer and is out of memory afterwards.

#include <dlfcn.h>

#include <iostream>

namespace {

int fail(const char* what) {
  const char* reason = dlerror();
  std::cerr << what << ": " << (reason == nullptr ? "for no reason" : reason) << "\n";
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  void* plugin = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
  if (plugin == nullptr) return fail("the plugin is not loaded");
  auto* answer = reinterpret_cast<int (*)()>(dlsym(plugin, "plugin_answer"));
  if (answer == nullptr) return fail("the plugin has no answer");
  if (answer() != 42) return fail("the plugin has another answer");
  if (dlclose(plugin) != 0) return fail("the plugin is not closed");
  if (dlopen(argv[1], RTLD_NOW | RTLD_NOLOAD) != nullptr) return fail("the plugin stays in memory");
  return 0;
}
