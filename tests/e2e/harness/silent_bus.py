"""An unresponsive fake session bus."""

import socket
import struct
import threading


def _field(code, kind, value):
    data = value.encode() + b"\0"
    head = bytes([code, 1]) + kind + b"\0"
    data = bytes([len(data) - 1]) + data if kind == b"g" else struct.pack("<I", len(data) - 1) + data
    return head + data


def _padded(data):
    return data + b"\0" * (-len(data) % 8)


def _answer_to_hello(serial):
    name = b":1.1\0"
    body = struct.pack("<I", len(name) - 1) + name
    fields = (
        bytes([5, 1]) + b"u\0" + struct.pack("<I", serial)
        + _padded(_field(7, b"s", "org.freedesktop.DBus"))
        + _field(8, b"g", "s")
    )
    return b"l\2\1\1" + struct.pack("<III", len(body), 1, len(fields)) + _padded(fields) + body


class SilentBus:
    """Accepts connections at `path` without responding or, with `says_hello`, responds to the handshake only."""

    def __init__(self, path, says_hello=False):
        self._says_hello = says_hello
        self._listener = socket.socket(socket.AF_UNIX)
        self._listener.bind(str(path))
        self._listener.listen(50)
        self._clients = []
        self.heard = 0
        threading.Thread(target=self._accept, daemon=True).start()

    def close(self):
        for connection in (self._listener, *self._clients):
            connection.close()

    def _accept(self):
        while True:
            try:
                client, _ = self._listener.accept()
            except OSError:
                return
            self._clients.append(client)
            threading.Thread(target=self._serve, args=(client,), daemon=True).start()

    def _serve(self, client):
        greeting = True
        pending = b""
        try:
            while piece := client.recv(65536):
                self.heard += len(piece)
                pending += piece
                if not self._says_hello:
                    continue
                while greeting and b"\r\n" in pending:
                    line, pending = pending.split(b"\r\n", 1)
                    if b"AUTH" in line:
                        client.sendall(b"OK 0123456789abcdef0123456789abcdef\r\n")
                    greeting = line != b"BEGIN"
                if not greeting and b"Hello" in pending:
                    client.sendall(_answer_to_hello(struct.unpack_from("<I", pending, 8)[0]))
                    pending = b""
        except OSError:
            pass  # the test is over
