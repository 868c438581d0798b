"""A use of the modules for other packages in which mypy must find no doubt."""

import pathlib

import quill_inp
import quill_inp.ase
import quill_inp.pymatgen
import quill_inp.rdkit


def sizes(path: pathlib.Path) -> list[int]:
    document: quill_inp.QuillInput = quill_inp.read(path)
    one = quill_inp.ase.to_atoms(document, path.parent)
    frames = quill_inp.ase.to_atoms(document, base=path.parent, index=slice(None))
    return [len(one), *(len(frame) for frame in frames)]


def through_other_packages(document: quill_inp.QuillInput) -> list[quill_inp.QuillInput]:
    quill_inp.ase.register_format()
    return [
        quill_inp.ase.from_atoms(quill_inp.ase.to_atoms(document, index=0), 0, multiplicity=1),
        quill_inp.pymatgen.from_molecule(quill_inp.pymatgen.to_molecule(document)),
    ]
