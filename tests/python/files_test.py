"""Files of users are changed and written so that nothing is lost."""

import multiprocessing
import os
import signal
import stat
import time

import pytest

import quill_inp
from quill_inp import FileEdit, FileWarning, InputBuilder, LossError

TEXT = b"#Opt( tight )\n#t = caf\xe9\n\n0  1\nO 0 0 .1\n"
CHANGED = b"#Opt(tight, maxiter=7)\n#t = caf\xe9\n\n0  1\nO 0 0 .1\n"


@pytest.fixture
def path(tmp_path):
    path = tmp_path / "job.qin"
    path.write_bytes(TEXT)
    return path


def set_parameter(editor):
    editor.set_parameter("opt", "maxiter", "7")


@pytest.mark.parametrize("form", [lambda path: path, str, os.fsencode])
def test_only_the_lines_of_a_file_that_have_to_change_are_changed(path, form):
    with quill_inp.edit_file(form(path)) as editor:
        set_parameter(editor)
        assert editor.command_names() == ["Opt", "t"]
        assert path.read_bytes() == TEXT
    assert path.read_bytes() == CHANGED == editor.text
    assert os.listdir(path.parent) == ["job.qin"]


def test_a_name_of_any_bytes_is_taken(path):
    other = os.fsencode(path.parent) + b"/\xff.qin"
    os.rename(path, other)
    with quill_inp.edit_file(other) as editor:
        set_parameter(editor)
    with open(other, "rb") as file:
        assert file.read() == CHANGED


def test_a_file_keeps_its_access_rights_and_a_link_its_target(path):
    path.chmod(0o640)
    link = path.parent / "link.qin"
    link.symlink_to("job.qin")
    with quill_inp.edit_file(link) as editor:
        set_parameter(editor)
    assert link.is_symlink() and path.read_bytes() == CHANGED
    assert stat.S_IMODE(path.stat().st_mode) == 0o640


def test_a_file_that_need_not_change_is_left_alone(path):
    before = path.stat()
    with quill_inp.edit_file(path) as editor:
        editor.set_flag("x")
        editor.remove_command("x")
    assert (path.stat().st_ino, path.stat().st_mtime_ns) == (before.st_ino, before.st_mtime_ns)


def test_an_exception_in_the_block_leaves_the_file_alone(path):
    before = path.stat()
    with pytest.raises(KeyError):
        with quill_inp.edit_file(path) as editor:
            set_parameter(editor)
            raise KeyError
    assert path.read_bytes() == TEXT
    assert path.stat().st_ino == before.st_ino
    with quill_inp.edit_file(path, lock_timeout=0) as editor:  # the lock is free again
        set_parameter(editor)
    assert path.read_bytes() == CHANGED


def test_a_loss_leaves_the_file_alone_and_can_be_allowed(path):
    def edit(**options):
        with quill_inp.edit_file(path, **options) as editor:
            editor.add_angle_constraint(1, 2, 3)

    with pytest.raises(LossError) as caught:
        edit()
    assert caught.value.line == 7
    assert path.read_bytes() == TEXT
    edit(allow_loss=True)
    assert path.read_bytes() == TEXT + b"\nA 1 2 3\n"


def test_a_backup_keeps_the_old_text(path):
    with quill_inp.edit_file(path, backup=".bak") as editor:
        set_parameter(editor)
    assert (path.parent / "job.qin.bak").read_bytes() == TEXT
    for suffix in ("", "/x"):
        with pytest.raises(ValueError, match="backup is a suffix"):
            quill_inp.edit_file(path, backup=suffix)


def test_a_file_with_several_names_is_replaced_only_if_that_is_allowed(path):
    os.link(path, path.parent / "other.qin")
    with pytest.raises(OSError):
        with quill_inp.edit_file(path) as editor:
            set_parameter(editor)
    assert path.read_bytes() == TEXT
    with quill_inp.edit_file(path, break_hard_links=True) as editor:
        set_parameter(editor)
    assert path.read_bytes() == CHANGED
    assert (path.parent / "other.qin").read_bytes() == TEXT


class FileOfAnother:
    """A file under edit that cannot keep its owner."""

    def text(self):
        return TEXT

    def replace(self, text, backup, break_hard_links):
        return ["the owner could not be kept", "the group could not be kept"]

    def close(self):
        pass


def test_what_a_file_cannot_keep_is_a_warning_for_the_line_of_the_caller(path, monkeypatch):
    monkeypatch.setattr(quill_inp._core, "open_file", lambda path, patience: FileOfAnother())
    monkeypatch.setattr(quill_inp._core, "write_file", lambda *_: (True, ["the owner could not be kept"]))
    with pytest.warns(FileWarning) as issued:
        with quill_inp.edit_file(path) as editor:
            set_parameter(editor)
        assert quill_inp.write_file(path, document()) is True
    assert [str(one.message) for one in issued] == [
        f"{path}: the owner could not be kept",
        f"{path}: the group could not be kept",
        f"{path}: the owner could not be kept",
    ]
    assert {one.filename for one in issued} == {__file__}


def test_a_change_by_another_program_is_not_overwritten(path):
    with pytest.raises(OSError, match="chang"):
        with quill_inp.edit_file(path) as editor:
            set_parameter(editor)
            path.write_bytes(b"#sp\n")
    assert path.read_bytes() == b"#sp\n"


ERRORS = [
    ("none.qin", FileNotFoundError),
    (".", IsADirectoryError),
    ("job.qin/x", NotADirectoryError),
    ("dangling.qin", FileNotFoundError),
]


@pytest.mark.parametrize("name, error", ERRORS)
def test_a_file_that_cannot_be_read_raises_the_error_of_open(path, name, error):
    (path.parent / "dangling.qin").symlink_to("nowhere")
    full = path.parent / name
    with pytest.raises(error) as caught:
        with quill_inp.edit_file(full):
            pass
    assert caught.value.filename == str(full)
    assert caught.value.strerror


def test_another_edit_of_the_same_file_waits(path):
    with quill_inp.edit_file(path):
        with pytest.raises(TimeoutError) as caught:
            with quill_inp.edit_file(path, lock_timeout=0.05):
                pass
    assert caught.value.filename == str(path)
    with quill_inp.edit_file(path, lock_timeout=0):
        pass


def test_an_edit_can_be_made_again(path):
    edit = quill_inp.edit_file(path)
    assert isinstance(edit, FileEdit)
    for value in ("7", "8"):
        with edit as editor:
            editor.set_parameter("opt", "maxiter", value)
    assert path.read_bytes() == CHANGED.replace(b"7", b"8")


def write_with_open(path):
    for i in range(200):
        with quill_inp.edit_file(path) as editor:
            editor.set_parameter("opt", "maxiter", str(i))


def test_a_killed_program_leaves_a_whole_file(path):
    for delay in (0.05, 0.1, 0.15):
        child = multiprocessing.get_context("spawn").Process(target=write_with_open, args=(path,))
        child.start()
        before = path.read_bytes()
        while path.read_bytes() == before and child.is_alive():
            time.sleep(0.005)
        time.sleep(delay)
        os.kill(child.pid, signal.SIGKILL)
        child.join()
        document = quill_inp.parse_string(path.read_bytes()).input
        assert document.command_names() == ["Opt", "t"]
        assert len(document.geometry.atoms) == 1


def document():
    return InputBuilder().set_assignment("title", "a, b").set_flag("sp").document()


WRITTEN = "#title = a, b\n#sp\n"


def test_a_new_file_has_the_canonical_text(tmp_path):
    path = tmp_path / "new.qin"
    assert quill_inp.write_file(path, document()) is True
    assert path.read_text() == WRITTEN
    assert quill_inp.write_file(path, document()) is False
    assert os.listdir(tmp_path) == ["new.qin"]


def test_values_are_quoted_that_would_not_read_back(tmp_path):
    quoted = InputBuilder().set_assignment("title", " a ").document()
    quill_inp.write_file(tmp_path / "new.qin", quoted)
    assert (tmp_path / "new.qin").read_text() == '#title = " a "\n'
    again = quill_inp.parse_file(tmp_path / "new.qin").input
    assert again.find_command("title").value == " a "


def test_an_old_file_is_replaced_only_if_that_is_asked_for(path):
    with pytest.raises(FileExistsError) as caught:
        quill_inp.write_file(path, document())
    assert caught.value.filename == str(path)
    assert path.read_bytes() == TEXT
    assert quill_inp.write_file(path, document(), replace=True) is True
    assert path.read_text() == WRITTEN


def test_a_document_that_no_text_says_is_not_written(tmp_path):
    wrong = InputBuilder().add_angle_constraint(1, 2, 3).document()
    path = tmp_path / "new.qin"
    with pytest.raises(LossError, match="would be read as an atom"):
        quill_inp.write_file(path, wrong)
    assert not path.exists()
    quill_inp.write_file(path, wrong, allow_loss=True)
    assert path.read_text() == "A 1 2 3\n"


def test_a_folder_that_is_not_there_is_an_error(tmp_path):
    with pytest.raises(FileNotFoundError):
        quill_inp.write_file(tmp_path / "none" / "new.qin", document())
    with pytest.raises(FileExistsError):
        quill_inp.write_file(tmp_path, document())
    with pytest.raises(TypeError, match="expected QuillInput, not str"):
        quill_inp.write_file(tmp_path / "new.qin", "#sp\n")
