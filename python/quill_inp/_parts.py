"""What the classes of documents and their parts have in common."""

from collections.abc import MutableSequence


class Part:
    """A document or a part of one, which C++ holds as `_part`."""

    __slots__ = ("_part",)
    __hash__ = None

    @classmethod
    def _of(cls, part):
        made = cls.__new__(cls)
        made._part = part
        return made

    def __eq__(self, other):
        if not isinstance(other, type(self)) and not isinstance(self, type(other)):
            return NotImplemented
        return self._part.is_same(other._part)

    def __copy__(self):
        return self._of(self._part.copy())

    def __deepcopy__(self, memo):
        return self._of(self._part.copy())

    def __str__(self):
        return self._part.text()


def part_of(kind, value):
    """Returns what C++ holds of a value that has to be of this class."""
    if not isinstance(value, kind):
        raise TypeError(f"expected {kind.__name__}, not {type(value).__name__}")
    return value._part


def member(name, doc):
    """Makes a property of a member that is the same in C++."""

    def get(self):
        return getattr(self._part, name)

    def set_(self, value):
        setattr(self._part, name, value)

    return property(get, set_, doc=doc)


def kind_member(kind, number_of, doc):
    """Makes the property `kind`, an enumeration."""

    def get(self):
        return kind(self._part.kind)

    def set_(self, value):
        self._part.kind = number_of(kind, value)

    return property(get, set_, doc=doc)


def list_member(name, show, take, doc):
    """Makes a property of a list, whose entries `show` makes and `take` takes apart."""

    def get(self):
        return PartList(getattr(self._part, name)(), show, take)

    def set_(self, values):
        get(self)[:] = values

    return property(get, set_, doc=doc)


class PartList(MutableSequence):
    """A list of a document, with the methods of `list`. A change of it changes the document."""

    __module__ = "quill_inp"
    __slots__ = ("_list", "_show", "_take")
    __hash__ = None

    def __init__(self, list_, show, take):
        self._list = list_
        self._show = show
        self._take = take

    def _index(self, index):
        return range(len(self))[index]  # raises IndexError and TypeError as lists do

    def __len__(self):
        return self._list.size()

    def __getitem__(self, index):
        if isinstance(index, slice):
            return [self._show(self._list.entry(i)) for i in range(len(self))[index]]
        return self._show(self._list.entry(self._index(index)))

    def __setitem__(self, index, value):
        if not isinstance(index, slice):
            at = self._index(index)
            self._list.replace(at, at + 1, [self._take(value)])
            return
        values = [self._take(one) for one in value]
        places = range(len(self))[index]
        if places.step == 1:
            first = places.start
            self._list.replace(first, max(first, places.stop), values)
            return
        if len(values) != len(places):
            raise ValueError(
                f"attempt to assign sequence of size {len(values)} "
                f"to extended slice of size {len(places)}"
            )
        for i, one in zip(places, values):
            self._list.replace(i, i + 1, [one])

    def __delitem__(self, index):
        if not isinstance(index, slice):
            at = self._index(index)
            self._list.replace(at, at + 1, [])
            return
        for i in sorted(range(len(self))[index], reverse=True):
            self._list.replace(i, i + 1, [])

    def insert(self, index, value):
        """Inserts a copy of a value before an entry."""
        size = len(self)
        at = max(0, size + index) if index < 0 else min(index, size)
        self._list.replace(at, at, [self._take(value)])

    def extend(self, values):
        """Appends copies of values."""
        self._list.replace(len(self), len(self), [self._take(one) for one in values])

    def __eq__(self, other):
        if not isinstance(other, (PartList, list)):
            return NotImplemented
        return len(self) == len(other) and all(a == b for a, b in zip(self, other))

    def __repr__(self):
        return repr(list(self))
