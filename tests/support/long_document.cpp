#include "support/long_document.hpp"

#include "support/edit_case.hpp"

namespace kelp::input::quill {

std::string longer(std::string_view word) {
  return std::string(word) + " (which is too long for the inside of a string)";
}

QuillInput long_document(GeometryKind kind) {
  return {{list(longer("opt"), {{longer("maxiter"), longer("50")}, {longer("tight")}}),
           assignment(longer("basis"), longer("b1")),
           list(longer("OPT"), {{longer("maxiter"), longer("60")}})},
          {kind,
           -1,
           2,
           true,
           {{longer("O"), 0.0, 0.0, 0.1}, {longer("H"), 0.0, 0.8, -0.5}},
           {longer("a.xyz"), longer("b.xyz")}},
          {{PostCommandKind::Scan, {1, 2, 3}, 1.5, 10, longer("p"), longer("r")},
           {PostCommandKind::Raw, {}, {}, {}, {}, longer("raw")}}};
}

}  // namespace kelp::input::quill
