"""Runs one benchmark program: judge.py PROGRAM SCRATCH

A trial run by default. With TIDEWATCH_BENCH=judge its limits are checked: time and memory in one run, instructions of
pure computation in another one under callgrind.
"""

import os
import subprocess
import sys
from pathlib import Path


def count(program, scratch):
    for old in scratch.glob(f"{program.name}.counts*"):
        old.unlink()
    counts = scratch / f"{program.name}.counts"
    return subprocess.run(
        [
            "valgrind", "--quiet", "--tool=callgrind", "--instr-atstart=no", f"--callgrind-out-file={counts}",
            str(program),
        ],
        env=os.environ | {"TIDEWATCH_COUNTS": str(counts)},
    ).returncode


def main():
    program, scratch = Path(sys.argv[1]), Path(sys.argv[2])
    status = subprocess.run([str(program)]).returncode
    if os.environ.get("TIDEWATCH_BENCH") == "judge":
        scratch.mkdir(parents=True, exist_ok=True)
        status = count(program, scratch) or status
    return 1 if status else 0


if __name__ == "__main__":
    sys.exit(main())
