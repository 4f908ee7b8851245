"""Waiting for something to become true, with an end to the patience."""

import time


class TimeOut(AssertionError):
    """What was waited for did not come."""


# How long something is waited for that is sure to come. No test is about it: a machine may be as slow and as busy
# as it likes.
PATIENCE = 120.0


def wait_until(condition, what, seconds=PATIENCE, every=0.05):
    """The first true result of `condition()`, or TimeOut, which names `what`, after `seconds`."""
    deadline = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() >= deadline:
            raise TimeOut(f"waited {seconds:g} s in vain for {what}")
        time.sleep(every)


def stays(condition, what, seconds=1.0, every=0.1):
    """Fails unless `condition()` holds at every look for `seconds`."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if not condition():
            raise AssertionError(f"{what} did not last")
        time.sleep(every)
