"""A bare Debian 12 in a folder, in which packages are installed and programs started.

Needs root, a network, and a mount namespace of its own, with which every mount ends (`unshare --mount`).
"""

import os
from pathlib import Path

from commands import run

RELEASE = "bookworm"
NO_QUESTIONS = {"DEBIAN_FRONTEND": "noninteractive", "LC_ALL": "C.UTF-8", "PATH": "/usr/sbin:/usr/bin:/sbin:/bin"}


def mounts_below(folder):
    with open("/proc/self/mountinfo", encoding="utf-8") as mounts:
        points = [row.split()[4] for row in mounts]
    return [point for point in points if Path(point).is_relative_to(folder)]


class BareSystem:
    def __init__(self, folder):
        """A new one; what an earlier run left in `folder` is removed."""
        self.root = Path(folder).resolve()
        if mounts_below(self.root):
            raise AssertionError(f"something is still mounted below {self.root}")
        run("rm", "-rf", "--one-file-system", self.root)
        self.root.parent.mkdir(parents=True, exist_ok=True)
        run("debootstrap", "--variant=minbase", RELEASE, self.root, self._mirror(), env={**os.environ, **NO_QUESTIONS})
        (self.root / "etc/apt/apt.conf.d/as-outside").write_text(run("apt-config", "dump", "Acquire"), encoding="utf-8")
        self._mount_points = []
        for name in ("dev", "proc"):
            self._mount("--rbind", f"/{name}")

    @staticmethod
    def _mirror():
        """Where the packages of the system outside come from."""
        rows = run("apt-get", "indextargets", "--format", "$(REPO_URI) $(RELEASE)", "Created-By: Packages").splitlines()
        return next(row.split()[0] for row in rows if row.endswith(f" {RELEASE}"))

    def share(self, folder):
        """Makes a folder of the system outside the same folder inside."""
        self._mount("--bind", folder)

    def _mount(self, how, folder):
        inside = self.root / Path(folder).relative_to("/")
        inside.mkdir(parents=True, exist_ok=True)
        run("mount", how, folder, inside)
        self._mount_points.append(inside)

    def files_named(self, pattern):
        """The system's own files with such a name, without the packages that were brought in."""
        others = [part for folder in (*self._mount_points, self.root / "root") for part in ("-path", folder, "-prune", "-o")]
        return run("find", self.root, *others, "-iname", pattern, "-print").splitlines()

    def run(self, *command):
        return run("chroot", self.root, *command, env=NO_QUESTIONS)

    def install(self, *packages):
        """Installs packages by name, or a file outside, with what they depend on."""
        names = []
        for package in packages:
            if isinstance(package, Path):
                copy = self.root / "root" / package.name
                copy.write_bytes(package.read_bytes())
                names.append(f"/root/{package.name}")
            else:
                names.append(package)
        self.run("apt-get", "install", "--yes", "--quiet", "--no-install-recommends", *names)
