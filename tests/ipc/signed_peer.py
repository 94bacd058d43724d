"""A peer for signed lines that knows nothing of the library: written from docs/messages.md.

Prints its port, serves one connection on loopback, checks every line and sends each payload back, turned
around, in pieces of changing size. Ends with status 0 once the other side has closed and all lines were good.
"""
import hashlib
import random
import socket
import sys

KEY = (0x9E3779B9, 0x7F4A7C15, 0xF39CC060, 0x5CEDC834)  # l2, l1, l0, k0
DIGITS = "0123456789ABCDEFGHIJKLMNOPQRSTUV"
WORD = 0xFFFFFFFF


def right(x, n):
    return (x >> n | x << (32 - n)) & WORD


def left(x, n):
    return right(x, 32 - n)


def round_keys(key):
    l, k = [key[2], key[1], key[0]], [key[3]]
    for i in range(26):
        l.append((k[i] + right(l[i], 8) & WORD) ^ i)
        k.append(left(k[i], 3) ^ l[-1])
    return k


def encrypt(block, key):
    x, y = block >> 32, block & WORD
    for k in round_keys(key):
        x = (right(x, 8) + y & WORD) ^ k
        y = left(y, 3) ^ x
    return x << 32 | y


def signature(part):
    digest = hashlib.sha1(part).digest()
    number = encrypt(int.from_bytes(digest[0:19:3], "big"), KEY)
    return "".join(DIGITS[number >> 5 * i & 31] for i in reversed(range(13))).encode()


def encode(payload, session):
    part = (payload + b":%6X" % session)[:2048]
    return part + b"#" + signature(part) + b"\n"


def decode(line):
    part, _, digits = line.rpartition(b"#")
    assert digits.upper() == signature(part) + b"\n", line
    payload, _, session = part.rpartition(b":")
    return payload, int(session, 16)


def main():
    rng = random.Random(20261121)
    with socket.create_server(("127.0.0.1", 0)) as server:
        print(server.getsockname()[1], flush=True)
        server.settimeout(60)
        connection, _ = server.accept()
    connection.settimeout(60)
    connection.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
    for line in connection.makefile("rb"):
        payload, session = decode(line)
        answer = encode(payload[::-1], session)
        while answer:
            count = rng.randrange(1, 200)
            connection.sendall(answer[:count])
            answer = answer[count:]


if __name__ == "__main__":
    assert encrypt(0x3B7265747475432D, (0x1B1A1918, 0x13121110, 0x0B0A0908, 0x03020100)) == 0x8C6FA548454E028B
    sys.exit(main())
