#!/usr/bin/env python3
"""Draws the rooms, and one second's way through them, from the table of layers.py, as Mermaid text in a page.

Usage: diagrams.py [--write] SOURCE_DIRECTORY PAGE

Checks that the page has the two diagrams that the table gives, or with --write puts them there, between the comments that
name them. Exits with 1 if a diagram is missing or another, or if the table or the sources do not have what it shows.
"""

import re
import sys
from dataclasses import dataclass
from pathlib import Path

from layers import ROOMS, room_of

# What the diagram of the rooms shows together, from the top.
GROUPS = {
    "the program": ("main.cpp", "app/desktop", "app", "native"),
    "what is on the screen": (
        "shell/windows", "shell/views", "shell/icons", "shell", "analysis/report", "*/views", "ui", "shell/themes"),
    "the domain": ("system", "claude", "wellbeing", "wellbeing/games", "analysis", "projects", "classification", "core"),
    "the machine": ("platform/x11", "platform/freedesktop", "platform/linux", "platform/posix", "platform/qt", "platform/fake"),
    "below all": ("platform/api", "base"),
}


@dataclass(frozen=True)
class Step:
    """A call from one room to an operation `Class::function` of another.

    The caller knows the other room; or both know the room of the interface `through`, behind which either stands.
    """

    caller: str
    callee: str
    operation: str
    through: str = ""
    home: str = ""  # the room of `through`


# In the order of the calls.
SECOND = (
    Step("platform/qt", "core", "TimerEngine::tick", "MainLoop", "platform/api"),
    Step("core", "platform/qt", "QtClock::now", "Clock", "platform/api"),
    Step("core", "platform/x11", "X11InputActivity::secondsSinceLastInput", "InputActivity", "platform/api"),
    Step("core", "core", "DailyStore::set"),
    Step("core", "core", "AppUsageStore::incrementCurrentApp"),
    Step("core", "platform/x11", "X11ActiveApplication::current", "FrontmostApplication", "platform/api"),
    Step("core", "wellbeing", "GameGate::tickWorkSecond", "GameGateListener", "core"),
    Step("core", "wellbeing", "BreakReminder::tickActiveSecond", "BreakListener", "core"),
    Step("core", "projects", "ActiveProjectBooking::bookSecond", "ProjectTimeListener", "core"),
    Step("core", "shell/views", "ClockPresenter::syncEngine", "TimerEngine", "core"),
    Step("platform/qt", "shell", "AppDelegate::refreshTimerFired", "MainLoop", "platform/api"),
    Step("shell", "core", "DailyStore::set"),
    Step("shell", "shell/windows", "TrayStatusItem::setTitle", "StatusItem", "shell"),
    Step("shell", "wellbeing", "NotificationManager::checkDailyMilestones"),
)


def identifier(room):
    return re.sub(r"\W", "_", room)


def knows(room, other):
    return other == room or other in ROOMS[room].knows


def files_of(source_root, room):
    """The room's C++ files, without those of rooms in folders below."""
    start = source_root / room
    files = [start] if start.is_file() else start.rglob("*")
    return [
        file for file in files
        if file.suffix in (".h", ".cpp") and room_of(file.relative_to(source_root).as_posix()) == room
    ]


def text_of(source_root, room):
    return "\n".join(file.read_text(encoding="utf-8") for file in files_of(source_root, room))


def edges(rooms):
    """What each room knows, without what it also reaches by way of another."""
    known = {room: (ROOMS[room].knows & set(rooms)) - {room} for room in rooms}

    def below(room):
        return known[room].union(*(below(other) for other in known[room]))

    return {
        room: {other for other in known[room] if not any(other in below(way) for way in known[room] - {other})}
        for room in rooms
    }


def group_of(room):
    """The group that lists the room, or all rooms with its last name; None for a room in no group."""
    for wanted in (room, "*/" + room.split("/")[-1]):
        for group, members in GROUPS.items():
            if wanted in members:
                return group
    return None


def draw_rooms(source_root):
    """The diagram of the rooms that hold files; and the objections to it."""
    rooms = [room for room in ROOMS if files_of(source_root, room)]
    objections = [f"{room} is in no group of the diagram" for room in rooms if group_of(room) is None]
    lines = ["flowchart TD"]
    for group in GROUPS:
        lines.append(f'    subgraph {identifier(group)}["{group}"]')
        lines += [f'        {identifier(room)}["{room}"]' for room in sorted(rooms) if group_of(room) == group]
        lines.append("    end")
    for room, others in sorted(edges(rooms).items()):
        lines += [f"    {identifier(room)} --> {identifier(other)}" for other in sorted(others)]
    return lines, objections


def objections_to(source_root, step):
    name, function = step.operation.split("::")
    callee = text_of(source_root, step.callee)
    if not re.search(rf"\b(class|struct) {name}\b", callee) or not re.search(rf"\b{function}\(", callee):
        yield f"{step.callee} has no {step.operation}"
    if not step.through:
        if not knows(step.caller, step.callee):
            yield f"{step.caller} does not know {step.callee}"
        if not re.search(rf"\b{function}\(", text_of(source_root, step.caller)):
            yield f"{step.caller} does not call {step.operation}"
        return
    for room in {step.caller, step.callee}:
        if not knows(room, step.home):
            yield f"{room} does not know {step.home}, where {step.through} is"
        elif step.through not in text_of(source_root, room):
            yield f"{room} does not use {step.through}"


def draw_second(source_root):
    """The diagram of a second's way; and the objections to it."""
    objections = [objection for step in SECOND for objection in objections_to(source_root, step)]
    lines = ["sequenceDiagram"]
    rooms = dict.fromkeys(room for step in SECOND for room in (step.caller, step.callee))
    lines += [f"    participant {identifier(room)} as {room}" for room in rooms]
    for step in SECOND:
        arrow = "-->>" if step.through else "->>"
        through = f"<br/>({step.through})" if step.through else ""
        lines.append(f"    {identifier(step.caller)}{arrow}{identifier(step.callee)}: {step.operation}{through}")
    return lines, objections


DIAGRAMS = {"rooms": draw_rooms, "one second": draw_second}


def place_of(name):
    return re.compile(rf"(<!-- diagram: {name} -->\n)(.*?)(<!-- end of the diagram -->\n)", re.DOTALL)


def drawn(source_root, page):
    """The page with its diagrams as the table gives them, and the objections to them."""
    objections = []
    for name, draw in DIAGRAMS.items():
        lines, found = draw(source_root)
        objections += found
        block = "\n".join(["```mermaid", *lines, "```", ""])
        page, count = place_of(name).subn(lambda match: match[1] + block + match[3], page)
        if count != 1:
            objections.append(f"the page has {count} places for the diagram: {name}")
    return page, objections


def main():
    arguments = sys.argv[1:]
    write = "--write" in arguments
    paths = [Path(argument) for argument in arguments if argument != "--write"]
    if len(paths) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    source_root, file = paths
    before = file.read_text(encoding="utf-8")
    page, objections = drawn(source_root, before)
    if page != before and write:
        file.write_text(page, encoding="utf-8")
    elif page != before:
        objections.append(f"{file} has other diagrams; tests/layers/diagrams.py --write src {file} puts these there")
    for objection in objections:
        print(objection)
    return 1 if objections else 0


if __name__ == "__main__":
    sys.exit(main())
