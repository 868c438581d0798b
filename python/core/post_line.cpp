#include <memory>

#include "core/arguments.hpp"
#include "core/bindings.hpp"
#include "core/handles.hpp"
#include "core/part_lists.hpp"
#include "core/sealed_class.hpp"
#include "kelp/input/quill/lossless/equality.hpp"
#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::python {

namespace {

std::shared_ptr<PostLine> new_post_line(Whole kind, const std::vector<Whole>& atom_indices,
                                        std::optional<Real> scan_value,
                                        std::optional<Whole> scan_steps, Text post_file,
                                        Text raw_text) {
  PostCommand line(static_cast<PostCommandKind>(kind.value), plain(atom_indices));
  if (scan_value) line.scan_value = scan_value->value;
  if (scan_steps) line.scan_steps = scan_steps->value;
  line.post_file = std::move(post_file.bytes);
  line.raw_text = std::move(raw_text.bytes);
  return std::make_shared<PostLine>(std::move(line));
}

template <std::string PostCommand::*Member>
Text text_member(const PostLine& self) {
  return {self.part().*Member};
}

template <std::string PostCommand::*Member>
void set_text_member(const PostLine& self, Text text) {
  const Change change(*self.tree());
  self.part().*Member = std::move(text.bytes);
}

}  // namespace

void bind_post_line(py::module_& module) {
  sealed_class<PostLine>(module, "PostLine")
      .def_property(
          "kind", [](const PostLine& self) { return static_cast<int>(self.part().kind); },
          [](const PostLine& self, Whole kind) {
            const Change change(*self.tree());
            self.part().kind = static_cast<PostCommandKind>(kind.value);
          })
      .def("atom_indices", [](const std::shared_ptr<PostLine>& self) { return NumberList{self}; })
      .def_property(
          "scan_value", [](const PostLine& self) { return self.part().scan_value; },
          [](const PostLine& self, std::optional<Real> value) {
            const Change change(*self.tree());
            self.part().scan_value = value ? std::optional<double>(value->value) : std::nullopt;
          })
      .def_property(
          "scan_steps", [](const PostLine& self) { return self.part().scan_steps; },
          [](const PostLine& self, std::optional<Whole> steps) {
            const Change change(*self.tree());
            self.part().scan_steps =
                steps ? std::optional<std::int32_t>(steps->value) : std::nullopt;
          })
      .def_property("post_file", &text_member<&PostCommand::post_file>,
                    &set_text_member<&PostCommand::post_file>)
      .def_property("raw_text", &text_member<&PostCommand::raw_text>,
                    &set_text_member<&PostCommand::raw_text>)
      .def("copy", [](const PostLine& self) { return std::make_shared<PostLine>(self.part()); })
      .def("is_same",
           [](const PostLine& self, const PostLine& other) {
             return lossless::is_equal(self.part(), other.part());
           })
      .def("text", [](const PostLine& self) { return Text{to_string(self.part())}; });
  bind_list<NumberList>(module, "NumberList");
  module.def("new_post_line", &new_post_line);
}

}  // namespace kelp::input::quill::python
