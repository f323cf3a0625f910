"""The animation renderer without its client: src/linux/renderer/Protocol.h tells what the two say to each other."""

import contextlib
import fcntl
import os
import socket
import struct
import subprocess

_PIXEL_BYTES = 64 * 1024 * 1024
_READY, _DRAWN = 0, 1
# Above the descriptors that the renderer expects, so that none is overwritten before it is moved.
_OUT_OF_THE_WAY = 10
_PATIENCE = 30.0


class NotDrawn(Exception):
    """The renderer has not started, or has drawn nothing."""


def first_frame(entering, document, edge):
    """The pixels of a document's first frame, `edge` wide and high, four bytes each.

    `entering` makes, of a shell's command line without the renderer's descriptors, the one that starts it.
    """
    with contextlib.ExitStack() as stack:
        ours, theirs = (stack.enter_context(end) for end in socket.socketpair(socket.AF_UNIX, socket.SOCK_SEQPACKET))
        ours.settimeout(_PATIENCE)
        pixels, file = (_in_memory(stack, name) for name in ("pixels", "document"))
        pixels.truncate(_PIXEL_BYTES)
        file.write(document)
        given = [fcntl.fcntl(each.fileno(), fcntl.F_DUPFD, _OUT_OF_THE_WAY) for each in (theirs, pixels, file)]
        try:
            moves = " ".join(f"{place}<&{descriptor} {descriptor}<&-" for place, descriptor in enumerate(given, 3))
            process = subprocess.Popen(entering(moves), pass_fds=given)
        finally:
            for descriptor in given:
                os.close(descriptor)
        theirs.close()
        try:
            _expect(ours, "start", _READY)
            ours.send(struct.pack("=3I", 0, edge, edge))
            _expect(ours, "first frame", _DRAWN)
            drawn = os.pread(pixels.fileno(), edge * edge * 4, 0)
            ours.close()
            if process.wait(_PATIENCE) != 0:
                raise NotDrawn(f"the renderer ended with status {process.returncode}")
            return drawn
        except subprocess.TimeoutExpired:
            raise NotDrawn("the renderer outlives its client") from None
        finally:
            process.kill()
            process.wait()


def _in_memory(stack, name):
    return stack.enter_context(open(os.memfd_create(name), "w+b", buffering=0))


def _expect(end, what, expected):
    try:
        answer = end.recv(4)
    except TimeoutError:
        answer = b""
    if answer != struct.pack("=I", expected):
        raise NotDrawn(f"the renderer's {what}: answer {answer!r}")
