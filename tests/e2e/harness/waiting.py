"""Waiting for a condition, with a timeout."""

import time


class TimeOut(AssertionError):
    """The condition did not become true in time."""


# In seconds, for what is certain to happen; generous, so that no test fails on a slow or busy machine.
DEFAULT_TIMEOUT = 120.0

# In seconds: long enough for a busy machine to show the effect of a key or click.
PATIENCE = 20.0


def wait_until(condition, what, seconds=DEFAULT_TIMEOUT, every=0.05):
    """Returns the first true result of `condition()`; raises TimeOut, with `what`, after `seconds`."""
    deadline = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() >= deadline:
            raise TimeOut(f"waited {seconds:g} s in vain for {what}")
        time.sleep(every)


def becomes_true(condition, seconds, every=0.05):
    """Whether `condition()` becomes true within `seconds`."""
    try:
        wait_until(condition, "it", seconds, every)
    except TimeOut:
        return False
    return True


def repeat_until(action, condition, what):
    """Like a user whose key or click had no effect: repeats `action()` until `condition()` is true; returns that."""
    deadline = time.monotonic() + DEFAULT_TIMEOUT
    while True:
        action()
        if becomes_true(condition, PATIENCE):
            return condition()
        if time.monotonic() >= deadline:
            raise TimeOut(f"tried {DEFAULT_TIMEOUT:g} s in vain for {what}")


def stays(condition, what, seconds=1.0, every=0.1):
    """Fails unless `condition()` holds at every check for `seconds`."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if not condition():
            raise AssertionError(f"{what} did not last")
        time.sleep(every)
