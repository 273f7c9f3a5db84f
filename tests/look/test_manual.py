"""The manual pages, as those who format and judge such pages take them."""

import os
import pathlib
import re
import shutil
import subprocess

import pytest

PAGES = sorted(pathlib.Path(os.environ["TAVRIN_MANUAL"]).glob("*.1"))
TOOL = os.environ["TAVRIN_TOOL"]

if shutil.which("mandoc") is None or shutil.which("groff") is None:
    pytest.skip("mandoc or groff is not installed here", allow_module_level=True)


def without_breaks(text):
    """Without what the formatter puts in or takes away where it breaks lines."""
    return re.sub(r"[-\s]", "", text)


def test_there_is_one_of_each_command():
    commands = subprocess.run([TOOL, "__complete"], check=True, capture_output=True,
                              text=True).stdout
    names = re.findall(r"^(\S+)\t", commands, re.MULTILINE)
    assert "check" in names
    assert {page.stem for page in PAGES} == {"tavrin", *(f"tavrin-{name}" for name in names)}


@pytest.mark.parametrize("page", PAGES, ids=lambda page: page.stem)
def test_is_clean_and_says_what_the_help_says(page):
    groff = subprocess.run(["groff", "-man", "-ww", "-Tascii", "-P-cbou", page],
                           capture_output=True, text=True, check=True)
    assert groff.stderr == ""
    lint = subprocess.run(["mandoc", "-Tlint", page], capture_output=True, text=True, check=False)
    # Pages that are made have long lines, and no date but that of their release.
    remarks = [line for line in lint.stdout.splitlines()
               if "longer than 80 bytes" not in line and "missing date" not in line]
    assert remarks == []
    command = page.stem.partition("-")[2]
    help_text = subprocess.run([TOOL, "help", *([command] if command else [])],
                               capture_output=True, text=True, check=True).stdout
    options = re.findall(r"--[a-z-]+", help_text)
    examples = re.findall(r"^(?:Example:|\s{8}) (tavrin .*)$", help_text, re.MULTILINE)
    assert "--help" in options
    for text in options + examples:
        assert without_breaks(text) in without_breaks(groff.stdout), text
