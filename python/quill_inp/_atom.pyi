from quill_inp._parts import Part

class AtomRecord(Part):
    def __init__(
        self, symbol: str = ..., x: float = ..., y: float = ..., z: float = ...
    ) -> None: ...
    symbol: str
    x: float
    y: float
    z: float
    def __reduce__(self) -> tuple[type[AtomRecord], tuple[str, float, float, float]]: ...
