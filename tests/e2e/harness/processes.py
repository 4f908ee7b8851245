"""Child processes that never outlive their test."""

import ctypes
import os
import signal
import subprocess
import time

from harness.waiting import DEFAULT_TIMEOUT

_libc = ctypes.CDLL(None, use_errno=True)
_PR_SET_PDEATHSIG = 1


def _die_with_parent():
    _libc.prctl(_PR_SET_PDEATHSIG, signal.SIGKILL)


class Process:
    """A child process in its own session; its output goes to `log_path`."""

    def __init__(self, arguments, env, log_path, pass_fds=()):
        self.name = os.path.basename(str(arguments[0]))
        self.log_path = log_path
        self.started = time.monotonic()
        with open(log_path, "ab") as log:
            self._popen = subprocess.Popen(
                [str(argument) for argument in arguments],
                env=env,
                stdin=subprocess.DEVNULL,
                stdout=log,
                stderr=log,
                pass_fds=pass_fds,
                start_new_session=True,
                preexec_fn=_die_with_parent,
            )

    @property
    def pid(self):
        return self._popen.pid

    def age(self):
        """Seconds since it was started."""
        return time.monotonic() - self.started

    def is_running(self):
        return self._popen.poll() is None

    def send(self, number):
        self._popen.send_signal(number)

    def wait(self, seconds=DEFAULT_TIMEOUT):
        """Waits for the exit status; a negative one is the terminating signal."""
        try:
            return self._popen.wait(seconds)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"{self.name} did not end within {seconds:g} s") from None

    def end(self, seconds=10.0):
        """Terminates it, and kills it if it does not exit."""
        if self.is_running():
            self.send(signal.SIGTERM)
            try:
                self._popen.wait(seconds)
            except subprocess.TimeoutExpired:
                self.kill()

    def kill(self):
        if self.is_running():
            self.send(signal.SIGKILL)
        self._popen.wait()

    def log(self):
        with open(self.log_path, encoding="utf-8", errors="replace") as log:
            return log.read()

    def private_memory_kilobytes(self):
        """What the machine would get back if the process ended: pages of its own that are on no disk."""
        return self._mapped_kilobytes("Private_Dirty")

    def resident_memory_kilobytes(self):
        """All pages that it has in memory, shared ones and those that can be read anew from a file included."""
        return self._mapped_kilobytes("Rss")

    def _mapped_kilobytes(self, field):
        with open(f"/proc/{self.pid}/smaps_rollup", encoding="ascii") as mappings:
            for line in mappings:
                if line.startswith(f"{field}:"):
                    return int(line.split()[1])
        raise AssertionError(f"no {field}")

    def written_bytes(self):
        """What it has made the disk take so far."""
        with open(f"/proc/{self.pid}/io", encoding="ascii") as counts:
            return next(int(line.split()[1]) for line in counts if line.startswith("write_bytes:"))

    def processor_seconds(self):
        """Processor time so far, all threads."""
        with open(f"/proc/{self.pid}/schedstat", encoding="ascii"):
            pass
        total = 0
        for thread in os.listdir(f"/proc/{self.pid}/task"):
            with open(f"/proc/{self.pid}/task/{thread}/schedstat", encoding="ascii") as schedule:
                total += int(schedule.read().split()[0])
        return total / 1e9
