"""Peers of kdqsh that know nothing of the library: written from docs/messages.md.

usage: greeting_peer.py KDQSH

Greets a listening kdqsh after peers that misbehave, then listens itself in several manners and has kdqsh greet it.
"""
import os
import re
import socket
import subprocess
import sys
import tempfile
import threading
import xml.etree.ElementTree as ET

KDQSH = sys.argv[1]
KEPT = tempfile.TemporaryDirectory(prefix="kdq-ipc-")
FOLDER = KEPT.name
ENVIRONMENT = dict(os.environ, TMPDIR=FOLDER, LOCALAPPDATA=FOLDER)


def path(product, pid):
    return f"{FOLDER}/7c496593ced3.kaldoran_{product}.{pid}"


def message(kind, text=None, **elements):
    root = ET.Element("Message", type=kind)
    root.text = text
    for name, value in elements.items():
        ET.SubElement(root, name).text = value
    return ET.tostring(root, encoding="utf-8", xml_declaration=True) + b"\0"


def receive(connection):
    document = b""
    while not document.endswith(b"\0"):
        received = connection.recv(1)
        assert received, f"closed after {document}"
        document += received
    return ET.fromstring(document[:-1].decode())


GREETING = message("Greeting", Pid="77", Mood="good", ProductVersion="1.2.3.4", ProductId="9")
SHOWN = "Greeting received: [PID=77] Kaldoran Welding 1.2.3.4\n"


def misbehave(name):
    half = GREETING[:60]
    for data in (b"", half, GREETING[:-1], b"\0" * 5000, os.urandom(5000), GREETING.replace(b"Message", b"message")):
        with socket.socket(socket.AF_UNIX) as peer:
            peer.connect(name)
            peer.sendall(data)
    silent = socket.socket(socket.AF_UNIX)
    silent.connect(name)
    silent.sendall(half)  # and stays, neither reading nor writing
    return silent


def test_client():
    shell = subprocess.Popen([KDQSH, "-c", "ipc listen material"], env=ENVIRONMENT, text=True, stdout=subprocess.PIPE)
    first = shell.stdout.readline()
    pid = int(re.search(r"\d+", first)[0])
    name = path("material", pid)
    assert os.stat(name).st_mode & 0o077 == 0, "open to other users"
    silent = misbehave(name)
    with socket.socket(socket.AF_UNIX) as peer:
        peer.settimeout(60)
        peer.connect(name)
        greeting = receive(peer)
        assert greeting.attrib == {"type": "Greeting"}
        version = subprocess.run([KDQSH, "--version"], capture_output=True, text=True).stdout.split()[1]
        content = [(element.tag, element.text) for element in greeting]
        assert content == [("ProductId", "8"), ("ProductVersion", f"{version}.0"), ("Pid", str(pid))], content
        peer.sendall(GREETING + message("Text", "Grüße & <more>"))
        assert receive(peer).text == "Grüße & <more>"
    assert shell.stdout.read() == SHOWN + "[PID=77] Kaldoran Welding 1.2.3.4: Grüße & <more>\n"
    assert shell.wait(60) == 0
    silent.close()


def serve(server, sent, echoes):
    connection, _ = server.accept()
    with connection:
        if sent is None:
            return
        connection.sendall(sent)
        receive(connection)  # the greeting
        if echoes:
            connection.sendall(message("Text", receive(connection).text))
        while connection.recv(4096):  # until the other side goes
            pass


def test_server(sent, echoes, output, error):
    with socket.socket(socket.AF_UNIX) as server:
        server.settimeout(60)
        name = path("additive", os.getpid())
        server.bind(name)
        server.listen()
        thread = threading.Thread(target=serve, args=(server, sent, echoes))
        thread.start()
        command = f"ipc greet additive {os.getpid()} say hello seconds {2 if 'within' in error else 60}"
        shell = subprocess.run([KDQSH, "-c", command], env=ENVIRONMENT, text=True, capture_output=True, timeout=60)
        thread.join()
    os.unlink(name)
    shown = re.sub(r"^ *\d+ % .*\n", "", shell.stdout, flags=re.M)  # progress, which comes with time
    assert (shown, error in shell.stderr, shell.returncode) == (output, True, 1 if error else 0), shell


test_client()
test_server(GREETING, True, SHOWN, "")
test_server(b"\0junk\0" + message("Unknown") + GREETING, True, SHOWN, "")
test_server(message("Greeting", ProductId="99"), True, "Greeting received: [PID=-1] Kaldoran 0.0.0.0\n", "")
test_server(GREETING, False, SHOWN, "No answer came within 2 s.")
test_server(GREETING[:-1], False, "", "No answer came within 2 s.")
test_server(None, False, "", "closed")
