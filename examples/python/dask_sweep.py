#!/usr/bin/env python3
"""Writes an input for every structure and every value of a parameter, on Dask.

    dask_sweep.py water.qin out --parameter opt.maxiter --values 50 100 200 --structures *.xyz

The workers are processes of this computer; with `Client("tcp://...")` they are those of a cluster that
has the folder. Work of a worker that is lost is done by another one. As with sweep.py, the same command
continues a run that was interrupted.
"""

import pathlib
import tempfile

import quill_inp
from distributed import Client, LocalCluster, progress
from sweep import Change, read_arguments, write_input


def sweep(
    client: Client, folder: pathlib.Path, template: quill_inp.QuillInput, changes: list[Change]
) -> int:
    """Writes all inputs and returns how many were not there before."""
    folder.mkdir(exist_ok=True)
    sent = client.scatter(template, broadcast=True)
    # Whether there is something to do is in the folder, so no result of an earlier call is used.
    jobs = [client.submit(write_input, folder, sent, change, pure=False) for change in changes]
    progress(jobs, notebook=False)
    return sum(client.gather(jobs))


def main() -> None:
    given = read_arguments(
        "Writes an input for every structure and every value of a parameter, on Dask."
    )
    template = quill_inp.read(given.template)
    with (
        tempfile.TemporaryDirectory() as scratch,
        LocalCluster(
            n_workers=given.processes,
            threads_per_worker=1,
            dashboard_address=None,
            local_directory=scratch,
        ) as cluster,
        Client(cluster) as client,
    ):
        written = sweep(client, given.folder.resolve(), template, given.changes)
    print(f"\n{written} inputs written, {len(given.changes) - written} skipped")


if __name__ == "__main__":
    main()
