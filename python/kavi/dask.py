"""Large texts on a Dask cluster.

python3 -m kavi.dask [--parts N] [--workers N] [--scheduler ADDRESS] FOLDER FILE... [-- OPTION...]
    reads FILEs, cut at line ends, with kavi-tn's OPTIONs (--format jsonl unless they say otherwise), and
    writes FOLDER/part-00001 and so on; those, in order, are the output of one run over all. Beside each are its
    findings, part-00001.findings. FOLDER/manifest says what they are parts of; another run is refused there.
"""

from __future__ import annotations

import argparse
import importlib
import itertools
import os
import pathlib
import re
import subprocess
import sys
from typing import Any, Iterable, List, Optional, Sequence

import kavi
from kavi._tool import find_tool

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


class _Work:
    """Files, cut into parts, that are read with options into a folder.

    Raises RuntimeError when the options are none of kavi-tn's, a file cannot be read, or the folder is of other work.
    """

    def __init__(self, files: Sequence[str], folder: str, parts: int, options: Sequence[str]) -> None:
        if parts < 1:
            raise RuntimeError(f"parts is a number from 1, not {parts}")
        self.files = [os.path.realpath(file) for file in files]
        self.folder = os.path.realpath(folder)
        self.parts = parts
        self.options = list(options)
        self._check_options()
        lexicons = self._find_lexicons()
        manifest = "".join([
            _run(["--version"]).stdout.decode(), f"parts {parts}\n", *(f"option {option}\n" for option in self.options),
            *(f"{kind} {_size_and_time(name)} {name}\n"
              for kind, names in (("lexicon", lexicons), ("input", self.files)) for name in names)])
        self._claim_folder(manifest)

    def target(self, number: int) -> str:
        return os.path.join(self.folder, f"part-{number:05}")

    def _check_options(self) -> None:
        done = _run([*self.options, "--part", "1/1", "-o", os.devnull, "--", os.devnull])
        if done.returncode != 0:
            raise RuntimeError(done.stderr.decode(errors="replace").split("\n")[0])

    def _find_lexicons(self) -> List[str]:
        # Under names that are the same wherever a part is read.
        found = []
        for i, option in enumerate(self.options):
            if option == "--lexicon":
                self.options[i + 1] = os.path.realpath(self.options[i + 1])
                found.append(self.options[i + 1])
            elif option.startswith("--lexicon="):
                found.append(os.path.realpath(option.split("=", 1)[1]))
                self.options[i] = "--lexicon=" + found[-1]
        return found

    def _claim_folder(self, manifest: str) -> None:
        pathlib.Path(self.folder).mkdir(parents=True, exist_ok=True)
        path = pathlib.Path(self.folder, "manifest")
        if path.exists():
            there = path.read_text(errors="surrogateescape")
            if there != manifest:
                pairs = itertools.zip_longest(there.splitlines(), manifest.splitlines(), fillvalue="")
                old, new = next(pair for pair in pairs if pair[0] != pair[1])
                raise RuntimeError(f'{self.folder} is of another run: "{old}" there, "{new}" now')
        elif any(pathlib.Path(self.folder).glob("part-*")):
            raise RuntimeError(f"{self.folder} has parts, and no manifest that says of what")
        else:
            new_path = path.with_name("manifest.new")
            new_path.write_text(manifest, errors="surrogateescape")
            new_path.rename(path)


def _run(arguments: Sequence[str]) -> subprocess.CompletedProcess[bytes]:
    tool = find_tool()
    if tool is None:
        raise RuntimeError("no kavi-tn: it is neither in PATH nor named by KAVI_TN")
    return subprocess.run([tool, *arguments], capture_output=True, check=False)


def _size_and_time(name: str) -> str:
    try:
        status = os.stat(name)
    except OSError as error:
        raise RuntimeError(f"{name}: cannot be read: {error.strerror}") from None
    return f"{status.st_size} {status.st_mtime_ns // 10**9}.{status.st_mtime_ns % 10**9:09}"


def _part(number: int, parts: int, files: Sequence[str], target: str, options: Sequence[str]) -> str:
    # The tool writes under another name and gives the file this one when it is whole, so that one that is
    # there is done, whatever was killed.
    if not os.path.exists(target):
        done = _run([*options, "--part", f"{number}/{parts}", "-o", target, "--findings", target + ".findings", "--",
                     *files])
        if not os.path.exists(target):
            said = done.stderr.decode(errors="replace").strip().split("\n")[-1]
            raise RuntimeError(f"{target}: kavi-tn ended with {done.returncode}: {said}")
    return target


def convert(client: Any, files: Sequence[str], folder: str, parts: int,
            options: Sequence[str] = ("--format", "jsonl")) -> List[str]:
    """Reads files by the workers of a distributed.Client, which see the same file system; returns the parts' names.

    Parts that are there already are not read again; beside each are its findings, as kavi-tn --findings writes them. A
    worker that is killed, or a part that fails, is tried again, three times. Raises RuntimeError when that does not
    help, when options or files are wrong, and when the folder is of another run, which its manifest tells.
    """
    return _convert(client, _Work(files, folder, parts, options))


def _convert(client: Any, work: _Work) -> List[str]:
    parts = work.parts
    targets = [work.target(number) for number in range(1, parts + 1)]
    waiting = [(number, parts, work.files, target, tuple(work.options)) for number, target in enumerate(targets, 1)]
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


def _number(text: str) -> int:
    if not re.fullmatch("[1-9][0-9]{0,4}", text):
        raise argparse.ArgumentTypeError(f'takes a number from 1 to 99999, not "{text}"')
    return int(text)


def main(arguments: Optional[Sequence[str]] = None) -> None:
    words = list(sys.argv[1:] if arguments is None else arguments)
    options = words[words.index("--") + 1:] if "--" in words else []
    words = words[:words.index("--")] if "--" in words else words
    parser = argparse.ArgumentParser(prog="python3 -m kavi.dask")
    parser.add_argument("--parts", type=_number, default=16, help="how many pieces of work (16)")
    parser.add_argument("--workers", type=_number, default=os.cpu_count(), help="processes on this machine (one a processor)")
    parser.add_argument("--scheduler", help="the address of a running scheduler, instead")
    parser.add_argument("folder")
    parser.add_argument("files", nargs="+")
    wanted = parser.parse_args(words)
    try:
        _main(wanted, options)
    except ModuleNotFoundError as error:
        sys.exit(f"{parser.prog}: no {error.name}: it comes with dask and distributed")
    except RuntimeError as error:
        sys.exit(f"{parser.prog}: {error}")


def _main(wanted: argparse.Namespace, options: Sequence[str]) -> None:
    _distributed()
    work = _Work(wanted.files, wanted.folder, wanted.parts, options or ("--format", "jsonl"))
    if wanted.scheduler:
        client = _distributed().Client(wanted.scheduler)
    else:
        # What a cluster looks at in itself, fifty times a second, takes a tenth of a processor from the filters.
        importlib.import_module("dask.config").set({"distributed.worker.profile.enabled": False,
                                                    "distributed.admin.tick.interval": "1s"})
        cluster = _distributed().LocalCluster(n_workers=wanted.workers, threads_per_worker=1, dashboard_address=None)
        client = _distributed().Client(cluster)
    with client:
        _convert(client, work)


if __name__ == "__main__":
    main()
