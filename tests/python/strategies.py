"""Values of every kind, for hypothesis."""

from hypothesis import strategies as st

from quill_inp import (
    AtomRecord,
    CommandParameter,
    GeometryBlock,
    GeometryKind,
    HeaderCommand,
    HeaderCommandKind,
    PostCommand,
    PostCommandKind,
    QuillInput,
)

texts = st.binary(max_size=6).map(lambda data: data.decode("utf-8", "surrogateescape"))
numbers = st.floats()
int32 = st.integers(-(2**31), 2**31 - 1)
parameters = st.builds(CommandParameter, texts, st.none() | texts)
commands = st.builds(
    HeaderCommand,
    texts,
    st.sampled_from(HeaderCommandKind),
    st.none() | texts,
    st.lists(parameters, max_size=3),
)
atoms = st.builds(AtomRecord, texts, numbers, numbers, numbers)
geometries = st.builds(
    GeometryBlock,
    st.sampled_from(GeometryKind),
    int32,
    int32,
    st.booleans(),
    st.lists(atoms, max_size=3),
    st.lists(texts, max_size=2),
)
post_commands = st.builds(
    PostCommand,
    st.sampled_from(PostCommandKind),
    st.lists(int32, max_size=4),
    st.none() | numbers,
    st.none() | int32,
    texts,
    texts,
)
documents = st.builds(
    QuillInput, st.lists(commands, max_size=3), geometries, st.lists(post_commands, max_size=3)
)
values = st.one_of(parameters, commands, atoms, geometries, post_commands, documents)
