"""A user's home directory with the program's record and settings."""

import configparser
import json
import shutil
from pathlib import Path

from harness import local_time

# The counter files.
FILES = ("today.json", "apps.json", "hours.json", "minutes.json", "project_time.json")

# The setting that says that the first start's message has been shown.
WELCOMED = "notif-welcome"

# The settings with which a game waits to be played.
EARNED_GAME = {"gate.initialized": "true", "gate.workSeconds": 3600, "gate.ready": "true", "gate.lockedUntil": 0}


class Home:
    def __init__(self, path):
        self.path = Path(path)
        self.path.mkdir(parents=True, exist_ok=True)
        self.data = self.path / ".tidewatch"
        self.settings_file = self.path / ".config/brightlooms/tidewatch.conf"
        self.login_entry = self.path / ".config/autostart/com.brightlooms.tidewatch.desktop"
        if not self.settings_file.exists():
            self.write_settings()

    def write_settings(self, **values):
        """Writes settings before the program starts; it has been welcomed already."""
        lines = ["[General]", f"{WELCOMED}=true", *(f"{key}={value}" for key, value in values.items())]
        self.settings_file.parent.mkdir(parents=True, exist_ok=True)
        self.settings_file.write_text("\n".join(lines) + "\n", encoding="utf-8")

    def remove_record(self):
        """As if the program had never run; the settings stay."""
        shutil.rmtree(self.data, ignore_errors=True)

    def settings(self):
        """All settings as strings; {} without a file."""
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str
        parser.read(self.settings_file, encoding="utf-8")
        return dict(parser["General"]) if parser.has_section("General") else {}

    def setting(self, key):
        return self.settings().get(key)

    def read(self, name):
        """The content of a counter file; {} without one. Invalid JSON fails the test."""
        path = self.data / name
        return json.loads(path.read_text(encoding="utf-8")) if path.exists() else {}

    def write(self, name, content):
        self.data.mkdir(mode=0o700, exist_ok=True)
        (self.data / name).write_text(content, encoding="utf-8")

    def day_seconds(self):
        """The seconds of all days together: a test may run across midnight."""
        return sum(self.read("today.json").values())

    def application_seconds(self, application):
        return sum(day.get(application, 0) for day in self.read("apps.json").values())

    def all_application_seconds(self):
        return sum(sum(day.values()) for day in self.read("apps.json").values())


def leaves(content, path=()):
    """The numbers of a counter file by path (a tuple of keys)."""
    if not isinstance(content, dict):
        return {path: content}
    return {place: value for key, below in content.items() for place, value in leaves(below, (*path, key)).items()}


def today():
    """Today's key in a test's time zone."""
    return local_time.now().strftime("%Y-%m-%d")
