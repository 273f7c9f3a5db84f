"""Completion as people meet it: each shell in a terminal, a line begun, the tab key pressed."""

import os
import pty
import select
import shutil
import time

import pytest

TOOL = os.environ["TAVRIN_TOOL"]
COMPLETIONS = os.environ["TAVRIN_COMPLETIONS"]

# How each shell starts without anything of the user's, and how it takes the completion in.
SHELLS = {
    "bash": (["bash", "--norc", "--noprofile", "-i"], f". {COMPLETIONS}/tavrin.bash"),
    "zsh": (["zsh", "-f", "-i"],
            f"fpath=({COMPLETIONS} $fpath); autoload -U compinit; compinit -u -D"),
    "fish": (["fish", "--no-config", "-i"], f". {COMPLETIONS}/tavrin.fish"),
}

# What is typed before the tab key and an X, and the words that the shell then takes it for.
LINES = [
    ("tavrin che", ["tavrin", "check", "X"]),
    ("tavrin help templ", ["tavrin", "help", "template", "X"]),
    ("tavrin check --thr", ["tavrin", "check", "--threshold=X"]),
    ("tavrin show --format=js", ["tavrin", "show", "--format=json", "X"]),
    ("tavrin show --format js", ["tavrin", "show", "--format", "json", "X"]),
    ("tavrin check --ignore=address,beyond", ["tavrin", "check", "--ignore=address,beyond-ascii", "X"]),
    ("tavrin keys HeadB", ["tavrin", "keys", "HeadBandSize", "X"]),
    ("tavrin keys Mode12Sl", ["tavrin", "keys", "Mode12SliceSize", "X"]),
    ("tavrin encipher 'a b' --for", ["tavrin", "encipher", "a b", "--force", "X"]),
    ("tavrin show defin", ["tavrin", "show", "definition.dat", "X"]),
    ("tavrin help no-such", ["tavrin", "help", "no-suchX"]),
]


class Terminal:
    """A shell in a directory that holds one file, definition.dat."""

    def __init__(self, command, setup, directory):
        (directory / "definition.dat").touch()
        self.pid, self.stream = pty.fork()
        if self.pid == 0:
            os.chdir(directory)
            path = os.path.dirname(TOOL) + ":" + os.environ["PATH"]
            os.execvpe(command[0], command, {"PATH": path, "TERM": "dumb", "LC_ALL": "C.UTF-8",
                                             "HOME": str(directory), "COLUMNS": "200"})
        self.type(setup + "; echo rea''dy\r")
        self.read_until("ready")

    def type(self, keys):
        os.write(self.stream, keys.encode())

    def read_until(self, mark):
        seen = ""
        end = time.monotonic() + 20
        while mark not in seen:
            assert time.monotonic() < end, seen
            if select.select([self.stream], [], [], 0.1)[0]:
                seen += os.read(self.stream, 4096).decode(errors="replace")
        return seen

    def close(self):
        os.close(self.stream)
        os.waitpid(self.pid, 0)


@pytest.fixture(params=SHELLS)
def terminal(request, tmp_path):
    command, setup = SHELLS[request.param]
    if shutil.which(command[0]) is None:
        pytest.skip(f"{command[0]} is not installed here")
    shell = Terminal(command, setup, tmp_path)
    yield shell
    shell.close()


def test_tab_completes_each_line(terminal):
    for begun, words in LINES:
        # At its begin the line becomes the arguments of a command that shows them.
        terminal.type(f"{begun}\tX\x01printf '<%s>' \x05 'end''ed'\r")
        seen = terminal.read_until("<ended>")
        assert "".join(f"<{word}>" for word in words) in seen, begun
