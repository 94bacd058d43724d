"""Runs the example of every command as the help shows it.

usage: check_examples.py EXAMPLES_FOLDER COMMAND...
"""
import os
import pathlib
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import threading

examples, program = pathlib.Path(sys.argv[1]), sys.argv[2:]
folder = pathlib.Path(tempfile.mkdtemp(prefix="kdqsh-examples-"))
environment = dict(os.environ, LANGUAGE="en", LOCALAPPDATA=str(folder / "data"), XDG_CONFIG_HOME=str(folder / "config"))


def start(commands):
    return subprocess.Popen([*program, "-c", commands], cwd=folder, env=environment, text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE)


def run(commands):
    process = start(commands)
    output, errors = process.communicate(timeout=60)
    assert process.returncode == 0 and errors in ("", "log 4 Command          heard\n"), (commands, output, errors)
    return output


def shown(topic):
    return run("help " + topic).splitlines()


def example_of(command):
    lines = shown(command)
    assert "Example:" in lines, f"{command} has no example"
    example = "\n".join(line[4:] for line in lines[lines.index("Example:") + 1:])
    assert command in example, (command, example)
    return example


def time_server():
    server = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    server.bind(("127.0.0.1", 0))

    def answer():
        server.sendto(bytes([0xE1] * 48), server.recvfrom(1024)[1])
    threading.Thread(target=answer, daemon=True).start()
    return server.getsockname()[1]


def converse(first, second):
    """Both halves of a conversation; the number by which they find each other is told by the first."""
    serving = start(first.replace("4711", "0"))
    told = serving.stdout.readline()
    run(second.replace("4711", re.search(r"(?:port|Process) (\d+)", told).group(1)))
    output, errors = serving.communicate(timeout=60)
    assert serving.returncode == 0 and not errors, (first, output, errors)


def leave_stale_lock():
    owner = start("lock take .; lock hold . 600")
    assert "locked" in owner.stdout.readline()
    owner.kill()
    owner.communicate()


for file in [*(examples / "fire").iterdir(), *(examples / "case-hardening").iterdir()]:
    shutil.copy(file, folder)
try:
    words = [line.split()[0] for line in shown("") if line[0] not in ' "' and not line.endswith("...")]
    groups = [line.split()[0] for line in shown("") if line.endswith(" ...")]
    commands = words[:words.index("Statements")]
    for group in groups:
        usages = [line.split() for line in shown(group) if line[0] not in " E"]
        commands += [" ".join(words[:2]) if len(words) > 1 and words[1][0].islower() else group for words in usages]
    assert len(commands) > 90, commands
    servers = {"tcp": example_of("tcp serve"), "remote": example_of("remote serve"), "ipc": example_of("ipc listen")}
    for command in commands:
        example = example_of(command)
        if command.startswith("plot") and not pathlib.Path(program[-1]).with_name("kdqplot").exists():
            continue
        if command == "lock break":
            leave_stale_lock()
        if command.split()[0] not in servers:
            run(example.replace("4711", str(time_server()) if command == "time ask" else "4711"))
        elif example not in servers.values():
            converse(servers[command.split()[0]], example)
finally:
    shutil.rmtree(folder)
