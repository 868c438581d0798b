#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "kelp/input/quill/builder.hpp"
#include "kelp/input/quill/editor.hpp"

// Programs that do not use the core library's molecules need not include their header. So this file
// includes no header that defines these types, not even the one that compares documents.

namespace kelp::input::quill {

namespace {

template <typename T, typename = void>
struct IsComplete : std::false_type {};

template <typename T>
struct IsComplete<T, std::void_t<decltype(sizeof(T))>> : std::true_type {};

static_assert(!IsComplete<kelp::core::Atom>::value);
static_assert(!IsComplete<kelp::core::Geometry>::value);

const std::string hydrogen =
    "H        0.000000      0.000000      0.000000\nH        0.000000      0.000000      "
    "0.740000\n";

TEST(WithoutTheCoreTypes, AnEditorTakesAtoms) {
  InputEditor editor{QuillInput()};
  editor.set_geometry({{"H", 0.0, 0.0, 0.0}});
  editor.add_atom({"H", 0.0, 0.0, 0.74});
  EXPECT_EQ(editor.to_string(), hydrogen);
}

TEST(WithoutTheCoreTypes, ABuilderTakesAtoms) {
  InputBuilder builder;
  builder.set_geometry({{"H", 0.0, 0.0, 0.0}}).add_atom({"H", 0.0, 0.0, 0.74});
  EXPECT_EQ(builder.to_string(), hydrogen);
}

}  // namespace

}  // namespace kelp::input::quill
