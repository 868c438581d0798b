"""Objects live as long as they are needed, and no misuse reaches memory that is not theirs."""

import copyreg
import functools
import gc
import pickle
import sys
import threading

import pytest

import quill_inp
from quill_inp import (
    AtomRecord,
    CommandParameter,
    GeometryBlock,
    HeaderCommand,
    InputBuilder,
    InputEditor,
    PostCommand,
    QuillInput,
    _core,
)
from extent import THOROUGHLY

CORE_CLASSES = [one for one in vars(_core).values() if isinstance(one, type)]
CLASSES = [AtomRecord, CommandParameter, GeometryBlock, HeaderCommand, PostCommand, QuillInput]


def test_the_extension_has_the_classes_that_are_tested_here():
    assert len(CORE_CLASSES) == 15


@pytest.mark.parametrize("kind", CORE_CLASSES)
def test_only_cpp_makes_objects_of_its_classes(kind):
    for make in (
        kind,
        lambda: kind.__new__(kind),
        lambda: object.__new__(kind),
        lambda: copyreg._reconstructor(kind, object, None),
        lambda: copyreg.__newobj__(kind),
        lambda: type("Derived", (kind,), {}),
    ):
        with pytest.raises(TypeError):
            make()


@pytest.mark.parametrize("kind", [*CLASSES, InputEditor, InputBuilder])
def test_an_object_without_its_constructor_cannot_be_used(kind):
    made = kind.__new__(kind)
    for use in (str, lambda one: one.document(), lambda one: one.name, lambda one: one == one):
        try:
            use(made)
        except AttributeError:
            continue
        assert use in (str,) or kind in (InputEditor, InputBuilder)


@pytest.mark.parametrize("kind", CLASSES)
def test_parts_of_the_wrong_class_are_refused(kind):
    other = QuillInput() if kind is not QuillInput else AtomRecord()
    made = kind.__new__(kind)
    made._part = other._part
    with pytest.raises((TypeError, AttributeError)):
        repr(made)
    with pytest.raises((TypeError, AttributeError)):
        assert kind() == made
    made._part = None
    with pytest.raises((TypeError, AttributeError)):
        repr(made)


def test_classes_can_be_derived():
    class Labelled(AtomRecord):
        def __init__(self, label):
            super().__init__("H")
            self.label = label

    atom = Labelled("first")
    document = QuillInput()
    document.geometry.atoms.append(atom)
    assert atom.label == "first"
    assert document.geometry.atoms == [AtomRecord("H")]


def use_everything(text):
    result = quill_inp.parse_lines(text)
    document = result.result.input
    held = [
        *document.commands,
        *document.geometry.atoms,
        *document.post_commands,
        *document.commands[0].parameters,
    ]
    editor = InputEditor(document)
    editor.set_flag("opt")
    editor.set_geometry(["H"], [[0, 0, 0]])
    document.commands.clear()
    document.geometry = GeometryBlock()
    document.geometry.positions
    quill_inp.lint(text)
    pickle.loads(pickle.dumps(document))
    return len([str(one) for one in held])


def test_nothing_is_kept_after_use(water_text):
    def count_after(uses):
        for i in range(uses):
            use_everything(water_text)
        gc.collect()
        return sys.getallocatedblocks(), len(gc.get_objects())

    before = count_after(100)
    after = count_after(500)
    # One object for each use would be 500; the interpreter's own caches take a few.
    assert after[0] - before[0] < 400 and after[1] - before[1] < 20


def test_arguments_are_not_kept(water):
    name = "a name that is long enough to be an object of its own"
    value = [CommandParameter(name, name)]
    before = sys.getrefcount(name), sys.getrefcount(value[0])
    editor = InputEditor(water)
    editor.set_task(name, value)
    editor.get_parameter(name, name)
    assert (sys.getrefcount(name), sys.getrefcount(value[0])) == before


def resident_kilobytes():
    with open("/proc/self/status", encoding="ascii") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmRSS:"))


def test_memory_does_not_grow_with_the_number_of_parses(water_text):
    def parse(count):
        for i in range(count):
            quill_inp.parse_string(water_text).input.geometry.atoms[0].symbol

    parse(2000)
    before = resident_kilobytes()
    parse(1_000_000 if THOROUGHLY else 10_000)
    assert resident_kilobytes() - before < 2000


def test_distinct_documents_are_used_in_distinct_threads(water_text):
    failures = []

    def work():
        try:
            for i in range(100):
                document = quill_inp.parse_string(water_text).input
                document.geometry.atoms.append(AtomRecord("He", float(i)))
                assert quill_inp.parse_string(str(document)).input == document
        except BaseException as error:
            failures.append(error)

    threads = [threading.Thread(target=work) for i in range(8)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert failures == []


def test_a_document_that_is_changed_while_it_is_written_is_written_whole(water_text):
    document = quill_inp.parse_string(water_text).input
    document.geometry.atoms.extend([AtomRecord("He")] * 2000)
    done = threading.Event()

    def change():
        while not done.is_set():
            document.geometry.atoms.append(AtomRecord("Ne"))
            document.geometry.atoms.pop()

    thread = threading.Thread(target=change)
    thread.start()
    try:
        texts = [str(document) for i in range(100)]
    finally:
        done.set()
        thread.join()
    for text in texts:
        assert text.count("He ") == 2000 and text.count("Ne ") <= 1


LONG_TEXT = "#sp\n\n0 1\n" + "".join(f"H {i} 0 0\n" for i in range(100_000))


def edited(text):
    edit = quill_inp.edit(text)
    edit.set_flag("freq")
    return edit


def wait_for_the_lock(path):
    with quill_inp.edit_file(path):
        with pytest.raises(TimeoutError):
            quill_inp.edit_file(path, lock_timeout=0.2).__enter__()


# Each makes a call that takes long, of a text, the document that it says and the path of a file with it.
LONG_CALLS = {
    "parse_string": lambda text, document, path: lambda: quill_inp.parse_string(text),
    "parse_lines": lambda text, document, path: lambda: quill_inp.parse_lines(text),
    "parse_file": lambda text, document, path: lambda: quill_inp.parse_file(path),
    "lint": lambda text, document, path: lambda: quill_inp.lint(text),
    "to_string": lambda text, document, path: document.to_string,
    "text of a geometry": lambda text, document, path: document.geometry.__str__,
    "write_file": lambda text, document, path: lambda: document.write_file(path),
    "proof": lambda text, document, path: lambda: _core.proved_text(document._part, 1e-6, False),
    "to_dict": lambda text, document, path: lambda: _core.json_of(document._part),
    "from_dict": lambda text, document, path: functools.partial(
        _core.document_from_json, _core.json_of(document._part)
    ),
    "edit": lambda text, document, path: lambda: quill_inp.edit(text),
    "text of an edit": lambda text, document, path: lambda edit=edited(text): edit.text,
    "lock of a file": lambda text, document, path: lambda: wait_for_the_lock(path),
}


def others_run_during(call):
    """Returns whether another thread ran while a function was called. No thread that holds the
    interpreter's lock is asked to give it up meanwhile.
    """
    wanted = threading.Event()
    ran = threading.Event()

    def answer():
        wanted.wait()
        ran.set()

    interval = sys.getswitchinterval()
    sys.setswitchinterval(1000)
    thread = threading.Thread(target=answer)
    try:
        thread.start()
        wanted.set()
        assert not ran.is_set()
        call()
        return ran.is_set()
    finally:
        sys.setswitchinterval(interval)
        thread.join()


@pytest.fixture(scope="module")
def long_document():
    return quill_inp.parse_string(LONG_TEXT).input


@pytest.mark.parametrize("name", LONG_CALLS)
def test_other_threads_run_during_a_call_that_takes_long(name, long_document, tmp_path):
    path = tmp_path / "long.qin"
    path.write_text(LONG_TEXT)
    call = LONG_CALLS[name](LONG_TEXT, long_document, path)
    assert others_run_during(call)


def test_the_lock_of_the_interpreter_is_seen(long_document):
    assert not others_run_during(lambda: long_document.geometry.symbols)


def test_a_text_is_edited_while_its_new_text_is_made(water_text):
    edit = quill_inp.edit(water_text + "free text\n" * 2000)
    done = threading.Event()

    def change():
        while not done.is_set():
            edit.set_parameter("opt", "maxiter", "7")
            edit.remove_parameter("opt", "maxiter")
            edit.remove_command("freq")

    thread = threading.Thread(target=change)
    thread.start()
    try:
        texts = [edit.text for i in range(50)]
    finally:
        done.set()
        thread.join()
    commands = {text.splitlines()[0] for text in texts}
    values = ["maxiter=50, tight", "maxiter=7, tight", "tight", "tight, maxiter=7"]
    assert commands <= {f"#opt({value})" for value in values}
