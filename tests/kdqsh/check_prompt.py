"""The prompt in a pseudo-terminal, used as a person does: keys go in, and each step waits for what shows.

usage: check_prompt.py COMMAND...
A command that ends with ".exe" runs under wine, whose console paints on the terminal.
"""
import contextlib
import os
import pathlib
import pty
import re
import select
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import termios
import time

program = sys.argv[1:]
on_wine = program[-1].endswith(".exe")
folder = pathlib.Path(tempfile.mkdtemp(prefix="kdqsh-prompt-"))
environment = dict(os.environ, LANGUAGE="en", LOCALAPPDATA=str(folder / "data"), TERM="xterm", HOME=str(folder))
environment.pop("NO_COLOR", None)
CTRL_C, CTRL_D, UP, TAB = "\x03", "\x04", "\033[A", "\t"
PROMPT, RED, WIDTH = "kdqsh> ", "\033[31m", 100
NEXT_PROMPT = "\n" + PROMPT  # wine's console paints the row of the cursor anew with every key
FOREVER = "lock hold . 500000"


def as_text(painted):
    """Wine's console paints blanks as moves of the cursor."""
    if not on_wine:
        return painted
    return re.sub(r"\x1b\[[?\d;]*[a-zA-Z]", "", re.sub(r"\x1b\[(\d*)C", lambda move: " " * int(move[1] or 1), painted))


class Shell:
    def __init__(self, *arguments, program=program, **variables):
        self.master, slave = pty.openpty()
        termios.tcsetwinsize(slave, (30, WIDTH))
        self.process = subprocess.Popen([*program, *arguments], cwd=folder, env=dict(environment, **variables),
                                        stdin=slave, stdout=slave, stderr=slave, start_new_session=True,
                                        preexec_fn=lambda: os.close(os.open(os.ttyname(0), os.O_RDWR)))
        os.close(slave)
        self.unread = b""
        self.seen = ""

    def read(self):
        data = self.unread + os.read(self.master, 65536)
        whole = re.search(rb"(\x1b[^a-zA-Z]*)?\Z", data).start() if on_wine else len(data)
        self.unread = data[whole:]
        self.seen += as_text(data[:whole].decode())

    def wait_for(self, text):
        """Everything up to the text, a pattern; what follows waits for the next call."""
        deadline = time.monotonic() + 30
        while not (found := re.search(text, self.seen)):
            ready, _, _ = select.select([self.master], [], [], max(0, deadline - time.monotonic()))
            assert ready, (text, self.seen)
            try:
                self.read()
            except OSError:
                raise EOFError((text, self.seen)) from None
        before, self.seen = self.seen[:found.end()], self.seen[found.end():]
        return before

    def look(self):
        if select.select([self.master], [], [], 0.1)[0]:
            self.read()

    def has_open(self, path):
        return any(os.path.realpath(file) == str(path)
                   for file in pathlib.Path(f"/proc/{self.process.pid}/fd").iterdir())

    def type(self, text):
        os.write(self.master, text.encode())

    def run(self, line):
        """What a line shows until the next prompt."""
        self.type(line + "\r")
        return self.wait_for(NEXT_PROMPT)

    def stop_when(self, text):
        self.wait_for(text)
        self.type(CTRL_C)
        return self.wait_for(NEXT_PROMPT)

    def end(self):
        with contextlib.suppress(AssertionError, EOFError):
            self.wait_for("never shown")
        os.close(self.master)
        return self.process.wait(10)


@contextlib.contextmanager
def session(status=0):
    shell = Shell("--color=never")
    try:
        shell.wait_for(NEXT_PROMPT)
        yield shell
        shell.type(CTRL_D)
        assert shell.end() == status, shell.seen
    finally:
        shell.process.kill()


def completion():
    with session() as shell:
        shell.run("formula tabulate x^2 over x from 0 to 4 points 5 as 'my square'")
        shell.type("tab" + TAB + "sh" + TAB + "my" + TAB)
        shell.wait_for('"my square" ')
        assert "16" in shell.run("")
        shell.type("table l" + TAB)
        assert "list  load  lookup" in shell.wait_for("lookup\r+\n") + shell.seen
        shell.type(CTRL_C)
        shell.wait_for(r"\^C\s+" + PROMPT)  # what comes before it is dropped, too


def history():
    with session() as shell:
        shell.run("parameter define first = 11")
        shell.run("parameter value")
    with session() as shell:
        shell.type(UP + UP)
        shell.wait_for("first = 11")
        shell.run("")
        assert "first = 11" in shell.run("parameter value")
    if on_wine:  # it has data folders of its own
        return
    kept = (folder / "data/kaldoran/kdqsh_history").read_text().splitlines()
    assert kept[-2:] == ["parameter define first = 11", "parameter value"], kept


def ctrl_c_drops_the_line():
    with session() as shell:
        shell.type("bogus words" + CTRL_C)
        assert "Unknown" not in shell.wait_for(r"\^C\s+" + PROMPT)
        shell.type("table \\\r")
        shell.wait_for(r"\.\.\.\.\.\. ")
        shell.type("show x" + CTRL_C)
        shell.wait_for(NEXT_PROMPT)
        assert "No tables." in shell.run("table list")


def ctrl_c_stops_a_command():
    """Whatever was stopped is as it was before, and so is what can be undone."""
    with session(status=1) as shell:
        shell.run("formula tabulate x over x from 0 to 1 as a; deck open d.dat; deck comment kept")
        shell.type(FOREVER + "; deck comment left out\r")
        bar = shell.wait_for("Holding the lock")
        assert re.search(r"\[[.#]+\] +\d+ %", bar) and len(bar.splitlines()[-1]) < WIDTH, bar
        assert "lock hold: Stopped." in shell.stop_when("")
        assert "Undone: deck comment kept" in shell.run("undo")
        shell.run("redo; deck close")
        assert (folder / "d.dat").read_text() == "$ kept\n"
        assert "Table 'a': 11 rows" in shell.run("table list")

        if on_wine:
            return
        os.mkfifo(folder / "pipe") # a table that never ends
        writer = os.open(folder / "pipe", os.O_RDWR | os.O_NONBLOCK)
        shell.type("table import pipe as a\r")
        while not shell.has_open(folder / "pipe"):
            shell.look()
        shell.type(CTRL_C)
        while PROMPT not in shell.seen:
            with contextlib.suppress(BlockingIOError):
                os.write(writer, b"1;2\n" * 1000)
            shell.look()
        os.close(writer)
        assert "everything is as it was" in shell.wait_for(PROMPT)
        assert "Table 'a': 11 rows" in shell.run("table list")

        (folder / "big.csv").write_text("what was there")
        shell.run("formula tabulate x^2 over x from 0 to 1 points 5000000 as big")
        shell.type("table export text big big.csv\r" )
        assert "Stopped." in shell.stop_when("Writing 'big.csv'")
        assert (folder / "big.csv").read_text() == "what was there"
        assert not list(folder.glob("big.csv.*"))
        silent = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        silent.bind(("127.0.0.1", 0))
        for waiting in ("tcp serve timeout 5000", "ipc listen jes seconds 5000", "remote serve",
                        f"time ask server 127.0.0.1 port {silent.getsockname()[1]} timeout 5000"):
            shell.type(waiting + "\r")
            assert "Stopped." in shell.stop_when("Waiting|Listening|listens|Asking")


def ctrl_c_ends_the_plotter():
    copy = folder / "copy"
    copy.mkdir()
    shutil.copy(program[-1], copy)
    plotter = copy / "kdqplot"
    plotter.write_text("#!/bin/sh\ntrap '' INT\necho half >\"$4\"\nexec sleep 100\n")
    plotter.chmod(0o755)
    (copy / "p.svg").write_text("what was there")
    shell = Shell("-c", "plot formula x over x from 0 to 1 to copy/p.svg", program=[copy / pathlib.Path(program[-1]).name])
    shell.wait_for("Drawing")
    shell.type(CTRL_C)
    shell.wait_for("Stopped")
    assert shell.end() == 130
    assert (copy / "p.svg").read_text() == "what was there" and len(list(copy.iterdir())) == 3


def colours():
    for variables, arguments, is_red in (({}, [], True), ({"NO_COLOR": "1"}, [], False), ({"TERM": "dumb"}, [], False),
                                         ({"NO_COLOR": "1"}, ["--color=always"], True), ({}, ["--color=never"], False)):
        shell = Shell(*arguments, "-c", "bogus", **variables)
        assert (RED in shell.wait_for("bogus<!")) == is_red, (variables, arguments)
        assert shell.end() == 1


def exit_statuses():
    script = folder / "script.kdqsh"
    script.write_text(f"deck open e.dat\ndeck comment one\n{FOREVER}\ndeck comment two\n")
    stopped = Shell("script.kdqsh")
    stopped.wait_for("Holding")
    stopped.type(CTRL_C)
    stopped.wait_for("Stopped")
    assert stopped.end() == 130
    assert (folder / "e.dat").read_text() == "$ one\n" and not (folder / "kaldoran.lock").exists()
    hard = subprocess.Popen([*program, "-c", "time ask server 127.0.0.1 port 9 timeout 500; lock show ."], cwd=folder,
                            env=environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    while hard.poll() is None:
        with contextlib.suppress(subprocess.TimeoutExpired):
            hard.send_signal(signal.SIGINT)
            hard.wait(0.1)
    assert hard.returncode in (130, -signal.SIGINT), hard.returncode


def quiet():
    shell = Shell("--quiet", "-c", "lock take .; lock release .; formula evaluate 6*7")
    assert shell.wait_for("42") == "42"
    assert shell.end() == 0


try:
    checks = [completion, history, ctrl_c_drops_the_line, ctrl_c_stops_a_command,
              ctrl_c_ends_the_plotter, colours, exit_statuses, quiet]
    for check in checks[:4] if on_wine else checks:
        print(check.__name__, flush=True)
        check()
finally:
    shutil.rmtree(folder)
