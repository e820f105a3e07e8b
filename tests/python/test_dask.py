"""kavi.dask: what it refuses, and its parts."""

import os
import pathlib
import subprocess
import sys

import pytest

import kavi.dask


@pytest.fixture
def folder(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    pathlib.Path("in").write_text("".join(f"{i}</poem>\n" for i in range(1, 21)))
    pathlib.Path("lexicon").write_text("a\tb\n")
    pathlib.Path("a=b").write_text("a\tb\n")
    for name in "in", "lexicon":
        os.utime(name, ns=(5, 2 * 10**9 + 5))
    return tmp_path


@pytest.mark.parametrize("arguments, message", [
    (["--parts", "0", "OUT", "in"], 'argument --parts: takes a number from 1 to 99999, not "0"'),
    (["--workers", "100000", "OUT", "in"], 'argument --workers: takes a number from 1 to 99999, not "100000"'),
    (["OUT", "in", "--", "--plian"], "kavi-tn: no such option: --plian"),
    (["OUT", "missing"], "missing: cannot be read: No such file or directory"),
])
def test_main_with_wrong_arguments_says_so_in_a_line(folder, arguments, message, capsys):
    pytest.importorskip("distributed")
    with pytest.raises(SystemExit) as ended:
        kavi.dask.main(arguments)
    said = capsys.readouterr().err + str(ended.value.code)
    assert message in said and not pathlib.Path("OUT").exists()


def test_main_with_parts_and_options_hands_them_on(folder, monkeypatch):
    seen = []
    monkeypatch.setattr(kavi.dask, "_main", lambda wanted, options: seen.append((wanted.parts, wanted.files, options)))
    kavi.dask.main(["--parts", "12", "OUT", "in", "--", "--plain", "--"])
    assert seen == [(12, ["in"], ["--plain", "--"])]


def test_main_without_dask_names_it(folder, monkeypatch):
    monkeypatch.setitem(sys.modules, "dask.distributed", None)
    with pytest.raises(SystemExit, match="no dask.distributed: it comes with dask and distributed"):
        kavi.dask.main(["OUT", "in"])


def test_main_without_the_tool_names_it(folder, monkeypatch):
    pytest.importorskip("distributed")
    monkeypatch.delenv("KAVI_TN")
    monkeypatch.setenv("PATH", "")
    with pytest.raises(SystemExit, match="no kavi-tn: it is neither in PATH nor named by KAVI_TN"):
        kavi.dask.main(["OUT", "in"])


def test_convert_of_another_run_is_refused(folder):
    distributed = pytest.importorskip("distributed")
    options = ["--plain", "--lexicon", "lexicon"]
    with distributed.Client(processes=False, n_workers=1, threads_per_worker=2, dashboard_address=None) as client:
        names = kavi.dask.convert(client, ["in"], "OUT", 3, options)
        assert names == [f"{folder}/OUT/part-0000{i}" for i in (1, 2, 3)]
        version = subprocess.run([os.environ["KAVI_TN"], "--version"], stdout=subprocess.PIPE, text=True).stdout
        assert pathlib.Path("OUT/manifest").read_text() == (
            f"{version}parts 3\noption --plain\noption --lexicon\noption {folder}/lexicon\n"
            f"lexicon 4 2.000000005 {folder}/lexicon\ninput 191 2.000000005 {folder}/in\n")
        parts = [pathlib.Path(name).read_text() for name in names]
        assert "".join(parts).split("\n")[2:20:17] == ["three", "twenty"]
        assert sum(len(pathlib.Path(name + ".findings").read_text().splitlines()) for name in names) == 20
        pathlib.Path(names[0]).write_text("kept")
        pathlib.Path(names[1]).unlink()
        assert kavi.dask.convert(client, ["in"], "OUT", 3, options) == names
        assert [pathlib.Path(name).read_text() for name in names] == ["kept", *parts[1:]]
        for parts_now, options_now, there, now in (
                (4, options, "parts 3", "parts 4"), (3, ["--plain"], "option --lexicon", "input .*/in"),
                (3, ["--plain", "--lexicon=a=b"], "option --lexicon", f"option --lexicon={folder}/a=b")):
            with pytest.raises(RuntimeError, match=f'OUT is of another run: "{there}" there, "{now}" now'):
                kavi.dask.convert(client, ["in"], "OUT", parts_now, options_now)
        with pytest.raises(RuntimeError, match="parts is a number from 1, not 0"):
            kavi.dask.convert(client, ["in"], "OUT", 0)
        pathlib.Path("lexicon").write_text("a\tbb\n")
        with pytest.raises(RuntimeError, match='"lexicon 4 .*" there, "lexicon 5 .*" now'):
            kavi.dask.convert(client, ["in"], "OUT", 3, options)
        pathlib.Path("OUT/manifest").unlink()
        with pytest.raises(RuntimeError, match="OUT has parts, and no manifest"):
            kavi.dask.convert(client, ["in"], "OUT", 3, options)
        pathlib.Path("zip").write_bytes(b"PK\3\4")
        with pytest.raises(RuntimeError, match="kavi-tn ended with 1: kavi-tn: not all could be read"):
            kavi.dask.convert(client, ["zip"], "deep/BAD", 1)
        kavi.dask.main(["--scheduler", client.scheduler.address, "ALL", "in"])
        parts = sorted(pathlib.Path("ALL").glob("part-?????"))
        assert len(parts) == 16 and "".join(part.read_text() for part in parts).count('"sentence":1,') == 20


def test_bags_are_read_by_the_settings(monkeypatch):
    frames = pytest.importorskip("dask.dataframe")
    bag = pytest.importorskip("dask.bag").from_sequence(["5 km", "a 2"], npartitions=2)
    assert kavi.dask.normalize_bag(bag, everyday="units").compute(scheduler="sync") == ["five kilometres", "a two"]
    written = []
    monkeypatch.setattr(frames.DataFrame, "to_parquet",
                        lambda rows, folder, engine: written.append((rows.compute(scheduler="sync").values.tolist(), folder)))
    kavi.dask.to_parquet(bag, "OUT", everyday="units")
    assert written == [([["5 km", "five kilometres"], ["a 2", "a two"]], "OUT")]
