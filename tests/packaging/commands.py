"""Commands that the tests of the package run."""

import shlex
import subprocess
from pathlib import Path

SECONDS = 7200  # ends what hangs


def run(*command, **options):
    """The output of a command; one that fails fails the test."""
    words = [str(word) for word in command]
    done = subprocess.run(
        words, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, timeout=SECONDS, **options
    )
    if done.returncode != 0:
        raise AssertionError(f"{shlex.join(words)} ended with {done.returncode}:\n{done.stdout}{done.stderr}")
    return done.stdout


def built_package(root):
    """What ./package made in this clone."""
    (package,) = (Path(root) / "dist").glob("tidewatch_*.deb")
    return package
