"""Large texts on a Dask cluster.

python3 -m kavi.dask [--parts N] [--workers N] [--scheduler ADDRESS] FOLDER FILE... [-- OPTION...]
    reads FILEs, cut at line ends, with kavi-tn's OPTIONs (--format jsonl unless they say otherwise), and
    writes FOLDER/part-00001 and so on; those, in order, are the output of one run over all.
"""

from __future__ import annotations

import argparse
import importlib
import os
import pathlib
import subprocess
import sys
from typing import Any, Iterable, List, Optional, Sequence

import kavi

_RETRIES = 3


def _distributed() -> Any:
    # Imported where it is needed: it takes a second, and has no types.
    return importlib.import_module("dask.distributed")


def normalize_bag(bag: Any, **settings: Any) -> Any:
    """Returns the dask.bag of what kavi.normalize() returns for each text of a bag.

    settings: those of kavi.Reader; a lexicon is read where the work is done.
    """

    def partition(texts: Iterable[str]) -> List[str]:
        return list(kavi.Reader(**settings).normalize_many(texts))

    return bag.map_partitions(partition)


def to_parquet(bag: Any, folder: str, **settings: Any) -> None:
    """Writes a bag of texts as Parquet, columns "text" and "spoken". Needs pyarrow."""

    def partition(texts: Iterable[str]) -> List[dict[str, str]]:
        kept = list(texts)
        return [{"text": text, "spoken": spoken}
                for text, spoken in zip(kept, kavi.Reader(**settings).normalize_many(kept))]

    bag.map_partitions(partition).to_dataframe(meta={"text": str, "spoken": str}).to_parquet(folder, engine="pyarrow")


def _part(number: int, parts: int, files: Sequence[str], target: str, options: Sequence[str]) -> str:
    # The tool writes under another name and gives the file this one when it is whole, so that one that is
    # there is done, whatever was killed.
    if not os.path.exists(target):
        command = [sys.executable, "-m", "kavi", "--part", f"{number}/{parts}", *options, "-o", target, *files]
        status = subprocess.run(command, stderr=subprocess.DEVNULL, check=False).returncode
        if not os.path.exists(target):
            raise RuntimeError(f"{target}: kavi ended with {status}")
    return target


def convert(client: Any, files: Sequence[str], folder: str, parts: int,
            options: Sequence[str] = ("--format", "jsonl")) -> List[str]:
    """Reads files by the workers of a distributed.Client, which see the same file system; returns the parts' names.

    Parts that are there already are not read again. A worker that is killed, or a part that fails, is tried again,
    three times. Raises RuntimeError when that does not help.
    """
    pathlib.Path(folder).mkdir(parents=True, exist_ok=True)
    files = [os.path.abspath(file) for file in files]
    targets = [os.path.join(os.path.abspath(folder), f"part-{number:05}") for number in range(1, parts + 1)]
    waiting = [(number, parts, files, target, tuple(options)) for number, target in enumerate(targets, 1)]
    waiting.reverse()
    running = _distributed().as_completed()

    # As many at a time as there are processors: what is submitted is given to a worker at once, and stays with it
    # when another has nothing to do.
    def submit() -> None:
        while waiting and running.count() < max(1, sum(client.nthreads().values())):
            running.add(client.submit(_part, *waiting.pop(), retries=_RETRIES, pure=False))

    submit()
    for done, future in enumerate(running, 1):
        future.result()
        submit()
        if sys.stderr.isatty():
            print(f"\r{done} of {parts} parts", end="" if done < parts else "\n", file=sys.stderr)
    return targets


def main(arguments: Optional[Sequence[str]] = None) -> None:
    words = list(sys.argv[1:] if arguments is None else arguments)
    options = words[words.index("--") + 1:] if "--" in words else []
    words = words[:words.index("--")] if "--" in words else words
    parser = argparse.ArgumentParser(prog="python3 -m kavi.dask")
    parser.add_argument("--parts", type=int, default=16, help="how many pieces of work (16)")
    parser.add_argument("--workers", type=int, default=os.cpu_count(), help="processes on this machine (one a processor)")
    parser.add_argument("--scheduler", help="the address of a running scheduler, instead")
    parser.add_argument("folder")
    parser.add_argument("files", nargs="+")
    wanted = parser.parse_args(words)
    if wanted.scheduler:
        client = _distributed().Client(wanted.scheduler)
    else:
        # What a cluster looks at in itself, fifty times a second, takes a tenth of a processor from the filters.
        importlib.import_module("dask.config").set({"distributed.worker.profile.enabled": False,
                                                    "distributed.admin.tick.interval": "1s"})
        cluster = _distributed().LocalCluster(n_workers=wanted.workers, threads_per_worker=1, dashboard_address=None)
        client = _distributed().Client(cluster)
    with client:
        convert(client, wanted.files, wanted.folder, wanted.parts, options or ("--format", "jsonl"))


if __name__ == "__main__":
    main()
