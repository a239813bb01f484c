#!/usr/bin/env python3
"""Asks a unit as any client may: ask-unit.py PORT TYPE prints the body of its answer. See docs/protocol.md."""
import base64
import json
import os
import socket
import ssl
import struct
import sys


def read(stream, size):
    data = b""
    while len(data) < size:
        chunk = stream.recv(size - len(data))
        if not chunk:
            sys.exit("ask-unit.py: the unit closed the connection")
        data += chunk
    return data


def connect(port):
    # Its key is its own word: nothing vouches for it, and this is a simulated unit on this machine.
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_CLIENT)
    context.check_hostname = False
    context.verify_mode = ssl.CERT_NONE
    stream = context.wrap_socket(socket.create_connection(("127.0.0.1", port), timeout=10))
    key = base64.b64encode(os.urandom(16)).decode()
    stream.sendall(
        f"GET / HTTP/1.1\r\nHost: 127.0.0.1:{port}\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
        f"Sec-WebSocket-Key: {key}\r\nSec-WebSocket-Version: 13\r\n\r\n".encode()
    )
    head = b""
    while not head.endswith(b"\r\n\r\n"):
        head += read(stream, 1)
    if b" 101 " not in head.split(b"\r\n")[0]:
        sys.exit("ask-unit.py: the unit accepts no connection")
    return stream


def send(stream, text):
    # A client's frames are masked; a mask of zeros leaves them as they are.
    assert len(text) < 126
    stream.sendall(bytes([0x81, 0x80 | len(text)]) + bytes(4) + text)


def receive(stream):
    """The next text message."""
    message = b""
    while True:
        first, size = read(stream, 2)
        if size == 126:
            (size,) = struct.unpack(">H", read(stream, 2))
        elif size == 127:
            (size,) = struct.unpack(">Q", read(stream, 8))
        payload = read(stream, size)
        if first & 0x0F in (0, 1):
            message += payload
            if first & 0x80:
                return message


def main():
    port, kind = int(sys.argv[1]), sys.argv[2]
    stream = connect(port)
    send(stream, json.dumps({"kind": "request", "type": kind, "number": 7, "text": "1"}).encode() + b"\n")
    while True:
        header, _, body = receive(stream).partition(b"\n")
        header = json.loads(header)
        if header["kind"] in ("response", "error") and header.get("number") == 7:
            break
    if header["status"] != 0:
        sys.exit(f"ask-unit.py: the unit answers with error {header['status']}")
    print(body.decode())


main()
