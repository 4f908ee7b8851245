"""A record of yesterday and today, small enough to verify every figure by hand."""

import datetime
import json

from harness import local_time

EDITOR, BROWSER, MUSIC, CHAT, UNKNOWN = (
    "com.microsoft.VSCode", "org.mozilla.firefox", "com.spotify.client", "com.hnc.Discord", "mystery",
)
NAMES = {
    EDITOR: "Visual Studio Code",
    BROWSER: "Firefox",
    MUSIC: "Spotify",
    CHAT: "Discord",
    UNKNOWN: "mystery",
}
CATEGORIES = {
    EDITOR: "Desarrollo",
    BROWSER: "Navegador",
    MUSIC: "Música",
    CHAT: "Social",
    UNKNOWN: "Sin categorizar",
}
TIERS = {
    EDITOR: "Productivo",
    BROWSER: "Productivo",
    MUSIC: "Neutral",
    CHAT: "Distrayendo",
    UNKNOWN: "Sin categorizar",
}

# Seconds of a day by (hour, minute of the ten minutes) and application.
TODAY = {
    (9, 0): {EDITOR: 600},
    (9, 10): {EDITOR: 420, BROWSER: 150},
    (10, 30): {BROWSER: 330, MUSIC: 183, UNKNOWN: 42},
    (13, 20): {CHAT: 250, EDITOR: 130},
}
YESTERDAY = {
    (15, 0): {EDITOR: 580},
    (15, 10): {EDITOR: 570},
    (15, 20): {EDITOR: 600},
    (22, 40): {CHAT: 590},
}
PROJECT, PROJECT_ID, PROJECT_COLOUR = "Catálogo", "0A0B0C0D-0000-4000-8000-000000000001", "#7BD88F"
PROJECT_SECONDS = {EDITOR: 900, BROWSER: 120}


def day_key(days_ago=0):
    moment = local_time.now() - datetime.timedelta(days=days_ago)
    return moment.strftime("%Y-%m-%d")


def short_date(days_ago=0):
    """As displayed: "sáb 21 nov"."""
    moment = local_time.now() - datetime.timedelta(days=days_ago)
    weekday = ("lun", "mar", "mié", "jue", "vie", "sáb", "dom")[moment.weekday()]
    month = ("ene", "feb", "mar", "abr", "may", "jun", "jul", "ago", "sep", "oct", "nov", "dic")[moment.month - 1]
    return f"{weekday} {moment.day} {month}"


def duration(seconds):
    """As displayed in the tabs: "1h 14m", "35m", "42s"."""
    if seconds >= 3600:
        return f"{seconds // 3600}h {seconds % 3600 // 60}m"
    return f"{seconds // 60}m" if seconds >= 60 else f"{seconds}s"


def by_application(cells, hour=None):
    """Seconds of a day, or of one hour of it, by application, the greatest first."""
    sums = {}
    for (its_hour, _), seconds in cells.items():
        if hour is None or hour == its_hour:
            for application, number in seconds.items():
                sums[application] = sums.get(application, 0) + number
    return dict(sorted(sums.items(), key=lambda item: -item[1]))


def by_hour(cells):
    return {hour: sum(by_application(cells, hour).values()) for hour in sorted({hour for hour, _ in cells})}


def total(cells):
    return sum(by_application(cells).values())


def write(home, today=None, yesterday=None):
    """Puts the record, or these cells in the place of its own, into a home, with the applications' desktop entries."""
    days = {day_key(): today or TODAY, day_key(1): yesterday or YESTERDAY}
    files = {
        "today.json": {day: total(cells) for day, cells in days.items()},
        "apps.json": {day: by_application(cells) for day, cells in days.items()},
        "hours.json": {
            f"{day} {hour:02}": by_application(cells, hour) for day, cells in days.items() for hour in by_hour(cells)
        },
        "minutes.json": {
            f"{day} {hour:02}:{minute:02}": seconds
            for day, cells in days.items()
            for (hour, minute), seconds in cells.items()
        },
        "projects.json": {
            "projects": [{"id": PROJECT_ID, "name": PROJECT, "colorHex": PROJECT_COLOUR, "archived": False}]
        },
        "project_time.json": {day_key(): {PROJECT_ID: PROJECT_SECONDS}},
    }
    for name, content in files.items():
        home.write(name, json.dumps(content))
    entries = home.path / ".local/share/applications"
    entries.mkdir(parents=True)
    for application, name in NAMES.items():
        if application != UNKNOWN:
            entry = f"[Desktop Entry]\nType=Application\nName={name}\nExec=true\n"
            (entries / f"{application}.desktop").write_text(entry, encoding="utf-8")


def same_week(days_ago):
    """Whether that day is in today's week, which starts on Monday."""
    return local_time.now().weekday() >= days_ago


def same_month(days_ago):
    return day_key(days_ago)[:7] == day_key()[:7]
