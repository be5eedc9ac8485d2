"""Many D-Bus calls at once.

Reading the accessibility tree takes four calls for each object, and a call through GLib's Python bindings costs more
time than the called program and the bus together. This module therefore writes and reads the messages itself. It
implements the part of the protocol that the tree needs: method calls, little-endian answers, and the types of their
bodies.
"""
import os
import select
import socket
import struct
import time
import urllib.parse

from .waiting import DriverError

RETURN = 2
PATH, INTERFACE, MEMBER, REPLY_SERIAL, DESTINATION, SIGNATURE = 1, 2, 3, 5, 6, 8
_U32 = struct.Struct("<I")
_PLACE = struct.Struct("<iiii")


def _padded(data, to=8):
    return data + b"\0" * (-len(data) % to)


def _string(text):
    return _U32.pack(len(text.encode())) + text.encode() + b"\0"


def _field(code, kind, text):
    """A field of a header: a code and a text of the type s, o or g."""
    value = bytes([len(text)]) + text.encode() + b"\0" if kind == "g" else _string(text)
    return bytes([code, 1]) + kind.encode() + b"\0" + value


def strings(*texts):
    """The body of a call whose arguments are texts."""
    return b"".join(_padded(_string(text), 4) for text in texts[:-1]) + _string(texts[-1])


class Call:
    """A method, the signature and bytes of its arguments, and the function that reads the body of its answer."""

    def __init__(self, interface, member, read, signature="", body=b""):
        self.read, self.body = read, body
        self.fields = _padded(_field(INTERFACE, "s", interface)) + _padded(_field(MEMBER, "s", member))
        if signature:
            self.fields += _padded(_field(SIGNATURE, "g", signature))

    def message(self, serial, bus, path):
        fields = self.fields + _padded(_field(DESTINATION, "s", bus)) + _field(PATH, "o", path)
        head = struct.pack("<cBBBIII", b"l", 1, 0, 1, len(self.body), serial, len(fields))
        return _padded(head + fields) + self.body


# Functions that read the body of an answer.
def text_at(body, at=0):
    """A text, with its length before it."""
    return body[at + 4:at + 4 + _U32.unpack_from(body, at)[0]].decode()


def variant_text(body):
    """A text in a variant."""
    return text_at(body, 4)


def numbers(body):
    """An array of 32-bit numbers."""
    return struct.unpack_from("<%dI" % (_U32.unpack_from(body)[0] // 4), body, 4)


def place(body):
    """Four numbers: x, y, width, height."""
    return _PLACE.unpack_from(body)


def addresses(body):
    """An array of (name on the bus, path) pairs."""
    found, at, end = [], 8, 8 + _U32.unpack_from(body)[0]
    while at < end:
        at += -at % 8
        name = text_at(body, at)
        at += 4 + _U32.unpack_from(body, at)[0] + 1
        at += -at % 4
        found.append((name, text_at(body, at)))
        at += 4 + _U32.unpack_from(body, at)[0] + 1
    return found


class Connection:
    """A connection to a bus, for batches of calls."""

    def __init__(self, address, timeout):
        """`timeout` is in seconds, for a whole batch."""
        self.timeout, self.serial, self.received = timeout, 0, bytearray()
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(timeout)
        self.socket.connect(_path_of(address))
        self.socket.sendall(b"\0AUTH EXTERNAL " + str(os.getuid()).encode().hex().encode() + b"\r\n")
        if not self.socket.recv(4096).startswith(b"OK"):
            raise DriverError("the bus refuses " + address)
        self.socket.sendall(b"BEGIN\r\n")
        self.socket.setblocking(False)
        self.batch([("org.freedesktop.DBus", "/org/freedesktop/DBus", Call("org.freedesktop.DBus", "Hello", text_at))])

    def close(self):
        self.socket.close()

    def batch(self, calls):
        """Sends all calls (bus, path, Call) at once; their answers in order, None for a failed one."""
        first, out, left = self.serial + 1, [None] * len(calls), len(calls)
        self.serial += len(calls)
        sending = memoryview(b"".join(call.message(first + i, bus, path) for i, (bus, path, call) in enumerate(calls)))
        end = time.monotonic() + self.timeout
        while left:
            readable, writable, _ = select.select([self.socket], [self.socket] if sending else [], [],
                                                  max(0, end - time.monotonic()))
            if not readable and not writable:
                return out
            if writable:
                sending = sending[self.socket.send(sending[:65536]):]
            for kind, serial, body in self._messages() if readable else ():
                if first <= serial < first + len(calls):
                    left -= 1
                    out[serial - first] = calls[serial - first][2].read(body) if kind == RETURN else None
        return out

    def _messages(self):
        """(kind, number of the call that it answers, body) of the messages received completely."""
        data = self.socket.recv(262144)
        if not data:
            raise DriverError("the bus has closed the connection")
        self.received += data
        whole, at = bytes(self.received), 0
        while len(whole) - at >= 16:
            length, _, fields = struct.unpack_from("<III", whole, at + 4)
            start = at + 16 + fields + (-fields % 8)
            if len(whole) < start + length:
                break
            # Values are aligned relative to the start of their message.
            yield whole[at + 1], _reply_serial(whole[at:start], 16 + fields), whole[start:start + length]
            at = start + length
        del self.received[:at]


def _reply_serial(data, end):
    """The number of the call that a message answers, from its header; 0 for a message that is no answer."""
    at = 16
    while at < end:
        code, kind = data[at], data[at + 2:at + 3]
        at += 4
        if code == REPLY_SERIAL:
            return _U32.unpack_from(data, at)[0]
        size = 4 if kind == b"u" else data[at] + 2 if kind == b"g" else 5 + _U32.unpack_from(data, at)[0]
        at += size + -(at + size) % 8
    return 0


def _path_of(address):
    """The socket of a bus's address."""
    for part in address.split(";"):
        values = dict(pair.split("=", 1) for pair in part.partition(":")[2].split(",") if "=" in pair)
        if part.startswith("unix:") and "path" in values:
            return urllib.parse.unquote(values["path"])
        if part.startswith("unix:") and "abstract" in values:
            return "\0" + urllib.parse.unquote(values["abstract"])
    raise DriverError("no socket in the address " + address)
