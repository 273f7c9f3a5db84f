"""The Python package over the real library. The environment names the tool (TAVRIN_TOOL) that makes
definitions and answers beside it, and the example definitions (TAVRIN_EXAMPLES)."""

import json
import locale
import os
import pickle
import subprocess
import sys
import threading
from dataclasses import FrozenInstanceError
from pathlib import Path

import pytest
import tavrinlib

TOOL = os.environ["TAVRIN_TOOL"]
EXAMPLES = Path(os.environ["TAVRIN_EXAMPLES"])
HEAD = b"[printer]\nVersion=1\n"
LONG = b"x" * 129

DEFINITIONS = {
    **{ini.stem: ini.read_bytes() for ini in EXAMPLES.glob("*.ini")},
    "name-too-long": HEAD + b"ModelName=" + LONG,
    "version-too-long": b"[printer]\nModelName=a\nVersion=" + LONG,
    "full-field": HEAD + b"ModelName=" + LONG[1:] + b"\nIPAddress=1",
    "no-text": HEAD + b"ModelName=a\xffb\xc3\x28\x07",
    "umlaut": HEAD + "ModelName=Drücker 日本".encode(),
    "numbers": HEAD + b"PrinterSize=-1,5000000,1e300\nPrintMargin=-3\nHeadBandSize=nan\n"
    b"SupportSizeSetting=-2\nWhite_White=0\nMode=7\nMode7=1,-2\nMode7SliceSize=0\n"
    b"Mode7ColorThickness=1\nMode7LimitedContinuous=3\n",
    "unknown-ink": HEAD + b"PrinterInkSlotNum=1\nColorCodeInkSlot1=999\nInkTypeCodeInkSlot1=113\n",
    "no-version": b"[printer]\nModelName=a",
}


def python(*arguments, **environment):
    """Runs the interpreter with changes to the environment, None taking a variable out."""
    variables = {**os.environ, **environment}
    kept = {name: value for name, value in variables.items() if value is not None}
    return subprocess.run([sys.executable, *arguments], capture_output=True, text=True, env=kept)


@pytest.fixture
def make(tmp_path):
    """Makes a definition: of one of the names above, at a path in the test's own directory."""

    def make(name, file="printer.dat"):
        ini, definition = tmp_path / "plain.ini", tmp_path / file
        ini.write_bytes(DEFINITIONS[name])
        definition.parent.mkdir(exist_ok=True)
        subprocess.run([TOOL, "encipher", "--force", ini, definition], check=True)
        return definition

    return make


@pytest.mark.parametrize("name, environment", [
    *((name, "C.UTF-8") for name in [*DEFINITIONS, None]),
    *((name, other) for name in ("umlaut", "no-text") for other in ("C", "en_US.CP1252")),
])  # fmt: skip
def test_prints_what_the_tool_shows(make, name, environment):
    path = make(name) if name else "missing.dat"
    shown = subprocess.run([TOOL, "show", "--format=json", path], capture_output=True,
                           env={**os.environ, "LC_ALL": environment})  # fmt: skip
    printed = python("-m", "tavrinlib", str(path), LC_ALL=environment)
    assert printed.returncode == shown.returncode, printed.stderr
    assert bool(printed.stdout) == bool(shown.stdout)
    assert bool(printed.stderr) == bool(shown.stderr) and "Traceback" not in printed.stderr
    if shown.stdout:
        assert json.loads(printed.stdout) == json.loads(shown.stdout)


def test_a_mistake_in_the_command_line_has_the_status_of_the_tool():
    printed = python("-m", "tavrinlib", "--mistake")
    assert printed.returncode == subprocess.run([TOOL, "show", "--mistake"]).returncode == 4
    assert printed.stderr.startswith("usage: ")


def test_answers_in_values(make):
    with tavrinlib.Session(make("full-colour")) as printer:
        assert printer.identity == tavrinlib.PrinterIdentity("Tavrin FC-500", "2.4.1", "192.0.2.50")
        assert printer.build_volume == tavrinlib.BuildVolume(500_000, 480_000, 300_000)
        assert printer.head_band_mm == 53.7
        assert (printer.print_margin, printer.default_mode) == (5000, 2)
        assert printer.support == tavrinlib.Support(150, 3500, 2)
        assert printer.side_support(10_000) == 2476
        assert printer.modes[0] == tavrinlib.PrintMode(2, 32, 600, 4, False, 9375, None)
        assert printer.modes[4].limited and printer.modes[4].limited_continuous == 4
        slots, categories = printer.slots, printer.categories
    assert slots[4] == tavrinlib.Slot(5, 1, 201, "201001", "MB-100 Cyan", True)
    assert [category.slot_numbers for category in categories[:3]] == [(1, 2), (3,), (4,)]
    with pytest.raises(FrozenInstanceError):
        slots[0].number = 2
    with pytest.raises(tavrinlib.NotOpenError):
        printer.identity


def test_a_second_session_ends_the_first(make):
    compact, minimal = make("compact"), make("minimal", "other.dat")
    first = tavrinlib.Session(compact)
    with tavrinlib.Session(minimal) as second:
        first.close()
        assert second.identity.version and second.is_open and not first.is_open
        with pytest.raises(tavrinlib.LoadError) as caught:
            tavrinlib.Session("missing.dat")
        assert caught.value.code == tavrinlib.ErrorCode.FAILED
        assert "No such file" in caught.value.reason
        assert str(pickle.loads(pickle.dumps(caught.value))) == str(caught.value)
        with pytest.raises(tavrinlib.NotOpenError):
            second.slots


def test_writes_modeling_conditions_to_any_path(make, tmp_path):
    definition = make("compact", "Drücker 日本.dat")
    with tavrinlib.Session(definition) as printer:
        printer.write_modeling_conditions(tmp_path / "Bedingungen ü")
        with pytest.raises(tavrinlib.WriteError):
            printer.write_modeling_conditions(tmp_path)
        with pytest.raises(ValueError):
            printer.write_modeling_conditions("a\0b")
    assert (tmp_path / "Bedingungen ü").read_bytes() == definition.read_bytes()


def test_reads_numbers_in_a_locale_with_a_decimal_comma(make):
    previous = locale.setlocale(locale.LC_NUMERIC)
    locale.setlocale(locale.LC_NUMERIC, "de_DE.CP1252")
    try:
        with tavrinlib.Session(make("full-colour")) as printer:
            assert (printer.modes[0].slice_height, printer.head_band_mm) == (32, 53.7)
        assert locale.localeconv()["decimal_point"] == ","
    finally:
        locale.setlocale(locale.LC_NUMERIC, previous)


def test_threads_take_turns(make):
    """Each thread gets what it asked for, or hears that another one took the definition away."""
    definitions = {"Tavrin FC-500": make("full-colour"), "Tavrin Compact 150": make("compact", "b")}
    faults = []

    def ask(model, path):
        for _ in range(300):
            try:
                with tavrinlib.Session(path) as printer:
                    if printer.identity.model_name != model or not printer.slots:
                        faults.append(model)
            except tavrinlib.NotOpenError:
                pass
            except Exception as error:
                faults.append(error)

    threads = [threading.Thread(target=ask, args=item) for item in definitions.items()]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not faults


LOAD_OFTEN = """
import sys, tavrinlib
for _ in range(2000):
    with tavrinlib.Session(sys.argv[1]) as printer:
        assert printer.identity.model_name == sys.argv[2], printer.identity
"""


def test_processes_load_definitions_of_one_name(make):
    models = {"full-colour": "Tavrin FC-500", "compact": "Tavrin Compact 150"}
    processes = [
        subprocess.Popen([sys.executable, "-c", LOAD_OFTEN, make(name, f"{name}/printer.dat"), model])
        for name, model in models.items()
    ]
    assert [process.wait() for process in processes] == [0, 0]


GROWTH = """
import gc, sys, tavrinlib
def kilobytes_after(sessions):
    for _ in range(sessions):
        with tavrinlib.Session(sys.argv[1]) as printer:
            assert len(printer.slots) == 8 and printer.categories
    gc.collect()
    return int(open("/proc/self/statm").read().split()[1]) * 4
print(-kilobytes_after(2000) + kilobytes_after(10_000))
"""


def test_sessions_leave_nothing_behind(make):
    # glibc itself leaks where it searches LOCPATH.
    grown = python("-c", GROWTH, str(make("full-colour")), LOCPATH=None)
    assert int(grown.stdout) < 200, grown.stderr


@pytest.mark.parametrize("contents, message", [
    (None, "cannot be loaded"),
    (b"no library", "cannot be loaded"),
    ("libm.so.6", "it has no Tavrin"),
    (b"libTavrinLib.so.2\0", "is TavrinLib 2, this package needs TavrinLib 1"),
])  # fmt: skip
@pytest.mark.skipif("TAVRINLIB_LIBRARY" not in os.environ, reason="the wheel brings its own")
def test_refuses_what_is_not_the_library(make, tmp_path, contents, message):
    library = tmp_path / "library.so"
    if isinstance(contents, str):
        library = contents
    elif contents and contents.startswith(b"lib"):
        own = Path(os.environ["TAVRINLIB_LIBRARY"]).read_bytes()
        library.write_bytes(own.replace(b"libTavrinLib.so.1\0", contents))
    elif contents:
        library.write_bytes(contents)
    printed = python("-m", "tavrinlib", str(make("minimal")), TAVRINLIB_LIBRARY=str(library))
    assert (printed.returncode, printed.stdout) == (2, "")
    assert printed.stderr.startswith("tavrinlib: ") and message in printed.stderr
