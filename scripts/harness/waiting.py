"""Waiting for a condition instead of sleeping."""

import time


class NotReached(Exception):
    """A condition did not come true within its limit, or what should have brought it about has ended."""


def wait_for(what, condition, limit=60.0, guests=(), interval=0.02):
    """Returns the first true answer of `condition`; raises NotReached, naming `what`, after `limit` seconds.

    As soon as one of `guests` has ended without the condition, waiting longer is pointless, so that raises too.
    """
    deadline = time.monotonic() + limit
    while True:
        ended = [guest for guest in guests if guest.exit_status() is not None]
        answer = condition()
        if answer:
            return answer
        if ended:
            raise NotReached(f"{what}: {ended[0].describe_end()}")
        if time.monotonic() > deadline:
            raise NotReached(f"{what}: not within {limit:g} s")
        time.sleep(interval)
