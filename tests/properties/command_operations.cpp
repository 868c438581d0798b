#include "properties/command_operations.hpp"

#include <optional>
#include <utility>

#include "properties/edit_arguments.hpp"
#include "properties/edit_model.hpp"
#include "properties/made_document.hpp"

namespace kelp::input::quill {

namespace {

/// Often one that exists, sometimes any.
std::uint64_t made_occurrence(ByteSource& source) {
  const std::size_t choice = source.below(8);
  return choice == 7 ? ~std::uint64_t{0} : choice % 4;
}

std::function<void(QuillInput&)> leave_command(const std::string& name) {
  return [=](QuillInput& m) { model::upsert(m, name); };
}

}  // namespace

EditOperation make_set_flag(ByteSource& source, const QuillInput& document) {
  const TextArgument name(source, document);
  return change([=](InputEditor& e) { e.set_flag(name.in(e.document())); },
                [=](QuillInput& m) { model::set_flag(m, name.copy()); },
                [=](InputBuilder& b) { b.set_flag(name.copy()); }, leave_command(name.copy()));
}

EditOperation make_set_assignment(ByteSource& source, const QuillInput& document) {
  const TextArgument name(source, document);
  const TextArgument value(source, document);
  return change(
      [=](InputEditor& e) { e.set_assignment(name.in(e.document()), value.in(e.document())); },
      [=](QuillInput& m) { model::set_assignment(m, name.copy(), value.copy()); },
      [=](InputBuilder& b) { b.set_assignment(name.copy(), value.copy()); },
      leave_command(name.copy()));
}

EditOperation make_set_model(ByteSource& source, const QuillInput& document) {
  const TextArgument value(source, document);
  return change([=](InputEditor& e) { e.set_model(value.in(e.document())); },
                [=](QuillInput& m) { model::set_assignment(m, "model", value.copy()); },
                [=](InputBuilder& b) { b.set_model(value.copy()); }, leave_command("model"));
}

EditOperation make_set_device(ByteSource& source, const QuillInput& document) {
  const TextArgument value(source, document);
  return change([=](InputEditor& e) { e.set_device(value.in(e.document())); },
                [=](QuillInput& m) { model::set_assignment(m, "device", value.copy()); },
                [=](InputBuilder& b) { b.set_device(value.copy()); }, leave_command("device"));
}

EditOperation make_set_task(ByteSource& source, const QuillInput& document) {
  const TextArgument name(source, document);
  const std::vector<CommandParameter> parameters = made_parameters(source);
  return change([=](InputEditor& e) { e.set_task(name.in(e.document()), parameters); },
                [=](QuillInput& m) { model::set_task(m, name.copy(), parameters); },
                [=](InputBuilder& b) { b.set_task(name.copy(), parameters); },
                leave_command(name.copy()));
}

EditOperation make_set_parameter(ByteSource& source, const QuillInput& document) {
  const TextArgument command(source, document);
  const TextArgument parameter(source, document);
  const TextArgument value(source, document);
  const std::uint64_t occurrence = made_occurrence(source);
  return change(
      [=](InputEditor& e) {
        e.set_parameter(command.in(e.document()), parameter.in(e.document()),
                        value.in(e.document()), occurrence);
      },
      [=](QuillInput& m) {
        model::set_parameter(m, command.copy(), parameter.copy(), value.copy(), occurrence);
      },
      {}, leave_command(command.copy()));
}

EditOperation make_set_task_parameter(ByteSource& source, const QuillInput& document) {
  const TextArgument command(source, document);
  const TextArgument key(source, document);
  const TextArgument value(source, document);
  return change(
      [=](InputEditor& e) {
        e.set_parameter(command.in(e.document()), key.in(e.document()), value.in(e.document()));
      },
      [=](QuillInput& m) { model::set_parameter(m, command.copy(), key.copy(), value.copy(), 0); },
      [=](InputBuilder& b) { b.set_task_parameter(command.copy(), key.copy(), value.copy()); },
      leave_command(command.copy()));
}

EditOperation make_add_command(ByteSource& source, const QuillInput& document) {
  const ElementArgument<HeaderCommand> command(source, document.commands, made_command);
  return change([=](InputEditor& e) { e.add_command(command.in(e.document().commands)); },
                [=](QuillInput& m) { m.commands.push_back(command.copy()); },
                [=](InputBuilder& b) { b.add_command(command.in(b.document().commands)); });
}

EditOperation make_add_moved_command(ByteSource& source, const QuillInput& /*document*/) {
  const HeaderCommand command = made_command(source);
  return change([=](InputEditor& e) { e.add_command(HeaderCommand(command)); },
                [=](QuillInput& m) { m.commands.push_back(command); },
                [=](InputBuilder& b) { b.add_command(HeaderCommand(command)); });
}

EditOperation make_remove_parameter(ByteSource& source, const QuillInput& document) {
  const TextArgument command(source, document);
  const TextArgument parameter(source, document);
  const std::uint64_t occurrence = made_occurrence(source);
  return {[=](InputEditor& e) {
            return e.remove_parameter(command.in(e.document()), parameter.in(e.document()),
                                      occurrence);
          },
          [=](QuillInput& m) {
            return model::remove_parameter(m, command.copy(), parameter.copy(), occurrence);
          },
          {},
          {}};
}

EditOperation make_remove_command(ByteSource& source, const QuillInput& document) {
  const TextArgument name(source, document);
  std::optional<std::uint64_t> occurrence;
  if (source.flip()) occurrence = made_occurrence(source);
  return {[=](InputEditor& e) { return e.remove_command(name.in(e.document()), occurrence); },
          [=](QuillInput& m) { return model::remove_command(m, name.copy(), occurrence); },
          {},
          {}};
}

}  // namespace kelp::input::quill
