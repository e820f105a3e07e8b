"""kavi.dask: what it refuses, and its parts."""

import pathlib
import sys

import pytest

import kavi.dask


@pytest.fixture
def folder(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    pathlib.Path("in").write_text("".join(f"{i}</poem>\n" for i in range(1, 21)))
    pathlib.Path("lexicon").write_text("a\tb\n")
    return tmp_path


@pytest.mark.parametrize("arguments, message", [
    (["--parts", "0", "OUT", "in"], 'argument --parts: takes a number from 1 to 99999, not "0"'),
    (["--workers", "x", "OUT", "in"], 'argument --workers: takes a number from 1 to 99999, not "x"'),
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
        parts = [pathlib.Path(name).read_text() for name in names]
        assert "".join(parts).split("\n")[2:20:17] == ["three", "twenty"]
        assert sum(len(pathlib.Path(name + ".findings").read_text().splitlines()) for name in names) == 20
        pathlib.Path(names[0]).write_text("kept")
        pathlib.Path(names[1]).unlink()
        assert kavi.dask.convert(client, ["in"], "OUT", 3, options) == names
        assert [pathlib.Path(name).read_text() for name in names] == ["kept", *parts[1:]]
        for parts_now, options_now in ((4, options), (3, ["--plain"]), (3, ["--plain", "--lexicon=lexicon"])):
            with pytest.raises(RuntimeError, match='OUT is of another run: ".*" there, ".*" now'):
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
            kavi.dask.convert(client, ["zip"], "BAD", 1)
