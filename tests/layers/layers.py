#!/usr/bin/env python3
"""Checks every #include and QML import in a source tree against the dependency rules of its rooms.

Usage: layers.py SOURCE_DIRECTORY

A room is a directory; a file belongs to the row of ROOMS with the longest matching path prefix. What a row does not
allow is forbidden. Prints one line per violation, "file:line: what", and exits with 1 if there is any.
"""

import re
import sys
from dataclasses import dataclass
from pathlib import Path

# Families of headers that are not the project's own.
LIBRARIES = {
    "fmt": r"fmt/.*",
    "simdjson": r"simdjson\.h",
    # The compiler's, for instructions that only some processors have.
    "intrinsics": r"immintrin\.h",
    "utf8proc": r"utf8proc\.h",
    "netlink": r"libmnl/.*",
    "qt": r"Q(t\w*|[A-Z]\w*)(/.*)?|q[a-z]+\.h|qt\w+\.h",
    "xcb": r"xcb/.*|X11/.*",
    "system": r"(sys|linux|netinet|arpa|net|asm)/.*|"
    r"(unistd|fcntl|poll|signal|pwd|grp|dirent|dlfcn|errno|spawn|termios|pthread|sched|malloc|link|limits|time|"
    r"stdio|stdlib|string|strings|stdint|stddef|ctype|math|locale|assert)\.h",
}

STANDARD_HEADERS = set(
    """algorithm any array atomic bit bitset charconv chrono climits cctype cerrno cfloat cinttypes clocale cmath
    compare complex concepts condition_variable coroutine cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar
    cwchar cwctype deque exception execution filesystem format forward_list fstream functional future initializer_list
    iomanip ios iosfwd iostream istream iterator latch barrier limits list locale map memory memory_resource mutex new
    numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex
    source_location span sstream stack stdexcept stop_token streambuf string string_view syncstream system_error thread
    tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector version csignal
    csetjmp cassert cfenv""".split()
)

# Standard headers that reach past the seam: the disk, the clock and the environment are platform/api's.
MACHINE_HEADERS = {"filesystem", "fstream", "ctime", "csignal", "iostream"}


@dataclass(frozen=True)
class Room:
    """May include the rooms and libraries in `knows`; `machine`: may access the machine directly."""

    knows: frozenset
    libraries: frozenset
    machine: bool = False


def room(knows="", libraries="", machine=False):
    return Room(frozenset(knows.split()), frozenset(libraries.split()), machine)


DOMAIN = ("core", "classification", "projects", "analysis", "wellbeing", "claude", "system")


def rooms():
    """The dependency rules: each room with what it may include, always including itself."""
    plan = {
        "base": room(libraries="fmt utf8proc"),
        "platform/api": room("base"),
        "platform/fake": room("base platform/api", "fmt simdjson"),
        "platform/posix": room("base platform/api", "fmt qt system", machine=True),
        "platform/linux": room("base platform/api platform/posix", "fmt netlink system", machine=True),
        "platform/freedesktop": room("base platform/api platform/posix", "fmt qt system", machine=True),
        "platform/x11": room("base platform/api platform/posix platform/linux platform/freedesktop",
                             "fmt qt xcb system", machine=True),
        "platform/qt": room("base platform/api", "fmt qt system", machine=True),
        "native": room("base platform/api platform/posix platform/linux platform/freedesktop platform/x11 platform/qt",
                       "qt system", machine=True),
        "main.cpp": room("platform/api native app/desktop", "qt"),
        "shell/themes": room("base platform/api core"),
        "ui": room("base platform/api shell/themes", "fmt qt"),
    }
    below = "base platform/api"
    domain, domain_views = "", ""
    for name in DOMAIN:
        plan[name] = room(below, "fmt simdjson intrinsics" if name == "claude" else "fmt simdjson")
        plan[f"{name}/views"] = room(f"{below} {name} shell/themes ui", "fmt qt")
        below += f" {name}"
        domain += f" {name}"
        domain_views += f" {name}/views"
    plan["analysis/report"] = plan["analysis/views"]
    plan["wellbeing/games"] = room("base platform/api")
    plan["wellbeing/views"] = room(f"{' '.join(plan['wellbeing/views'].knows)} wellbeing/games", "fmt qt")
    toolkit_free = f"base platform/api shell/themes {domain}"
    plan["shell"] = room(toolkit_free, "fmt simdjson")
    plan["shell/icons"] = room("base shell shell/themes ui", "qt")
    plan["shell/views"] = room(f"{toolkit_free} {domain_views} shell ui", "fmt qt")
    plan["shell/windows"] = room("base platform/api core wellbeing/games shell shell/icons shell/themes shell/views ui",
                                 "fmt qt")
    plan["app"] = room(f"{toolkit_free} shell", "fmt")
    plan["app/desktop"] = room(
        f"{toolkit_free} {domain_views} analysis/report app shell shell/icons shell/views shell/windows ui", "fmt qt")
    return plan


ROOMS = rooms()

# What asks the clock, the disk or the environment behind the seam's back, in C++ and in QML.
BANNED_CPP = [
    (r"\b(system_clock|steady_clock|high_resolution_clock|utc_clock|file_clock)\b", "asks the time past platform::Clock"),
    (r"\bstd::(time|clock)\s*\(|(?<![\w.>])time\s*\(\s*(nullptr|NULL|0|&\w+)\s*\)", "asks the time past platform::Clock"),
    (r"\b(gettimeofday|clock_gettime|localtime|localtime_r|gmtime|gmtime_r|mktime|timegm|strftime|strptime)\s*\(",
     "asks the time past platform::Clock"),
    (r"\bQ(DateTime|Date|Time)::current\w*|\bQElapsedTimer\b|\bQDeadlineTimer\b", "asks the time past platform::Clock"),
    (r"\b(fopen|freopen|opendir|ifstream|ofstream)\b|\bstd::fstream\b|\bstd::filesystem\b",
     "reaches the disk past platform::FileSystem"),
    (r"\bQ(SaveFile|TemporaryFile|TemporaryDir|Settings|StandardPaths|LockFile)\b",
     "reaches the disk past platform::FileSystem and platform::Preferences"),
    (r"\b(getenv|secure_getenv|setenv|putenv|qgetenv|qputenv|qEnvironmentVariable\w*)\b|\bQProcessEnvironment\b",
     "reads the environment"),
    (r"\bQProcess\b|\b(popen|posix_spawn|execv\w*|execl\w*|fork)\s*\(|\bstd::system\b", "starts a process"),
    (r"\bQMessageBox::(about|critical|information|question|warning)\s*\(|\bQ(ToolTip|WhatsThis|TextEdit|TextBrowser|TextDocument)\b|\bset(Html|Markdown|WhatsThis)\b|"
     r"\bQt::(RichText|MarkdownText|AutoText)\b|\bsetToolTip\s*\((?!plainToolTip\()",
     "may take words for markup and fetch its pictures"),
]
# The speed test alone has a connection, and only the seam makes it. What refuses every request is no exception.
ROOM_THAT_CONNECTS = "system"
REFUSING_FILES = {"shell/windows/no_network.h", "shell/windows/no_network.cpp"}
BANNED_CONNECTIONS = [
    (r"\bQ(NetworkAccessManager|NetworkRequest|AbstractSocket|TcpSocket|TcpServer|UdpSocket|SslSocket|WebSocket)\b|"
     r"\bHttpClient\b", "reaches the network, as only the speed test does"),
]
# Who shows follows a model's signal, who acts observes a broadcast; the statistics as a whole (shell/views) do both.
ROOMS_THAT_ACT = re.compile(r"(app|app/desktop|shell|shell/windows)$")
BANNED_WHERE_ACTED = [
    (r"\bchanged\.connect\s*\(", "follows a model's signal where things are done, which observe the Broadcaster"),
]
ROOMS_THAT_SHOW = re.compile(r"(ui|(?!shell/).+/views|shell/icons|analysis/report)$")
BANNED_WHERE_SHOWN = [
    (r"\bBroadcaster\b", "observes broadcasts where things are only shown, which follow a model's signal"),
]
BANNED_QML = [
    (r"\btextFormat\s*[:=](?!\s*Text(Edit)?\.PlainText\b)", "lets words be markup, which fetches pictures"),
    (r"\bnew\s+Date\b|\bDate\.now\b", "asks the time past platform::Clock"),
    (r"\bXMLHttpRequest\b", "reaches files and the network"),
    (r"\bQt\.(openUrlExternally)\b", "reaches the desktop"),
]
QML_IMPORTS_ALLOWED = re.compile(r"Qt(Qml|Quick|Test)?(\..+)?$|Tidewatch(\.\w+)*$")
# Controls guess the format of their words; templates leave it to whoever draws them.
QML_IMPORTS_BANNED = re.compile(
    r"Qt\.labs\.|QtCore$|Qt\.core|QtQuick\.LocalStorage|QtQuick\.Controls|QtMultimedia|QtWebEngine"
)
# Left to themselves, these take for markup what looks like it.
GUESSING_TEXTS = re.compile(r"(?<![\w.])(?:\w+\.)?(Text|TextEdit|TextArea|Label)\s*\{")
PLAIN_TEXT = re.compile(r"\btextFormat:\s*Text(Edit)?\.PlainText\b")
GUESSING_LABEL = re.compile(
    r"\bnew\s+(?P<new>QLabel|QMessageBox)\b|\b(?P<own>QLabel|QMessageBox)\s+\w+\s*[({;=]|"
    r"\bmake_unique\s*<\s*(?P<unique>QLabel|QMessageBox)\s*>"
)
PLAIN_LABEL = re.compile(r"\bsetTextFormat\s*\(\s*Qt::PlainText\s*\)")

CPP_SUFFIXES = {".h", ".cpp", ".hpp", ".cc"}
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"]+)"|<([^>]+)>)', re.MULTILINE)
QML_IMPORT = re.compile(r'^[ \t]*import[ \t]+("[^"]*"|[\w.]+)', re.MULTILINE)
TOKENS = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"([^()\s\\]{0,16})\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])*\'', re.DOTALL
)


@dataclass(frozen=True)
class Violation:
    file: str
    line: int
    text: str

    def __str__(self):
        return f"{self.file}:{self.line}: {self.text}"


def blanked(source, keep_strings):
    """The source with comments, and optionally literals, replaced by spaces; line numbers are kept."""

    def blank(match):
        text = match.group(0)
        if keep_strings and not text.startswith("/"):
            return text
        return re.sub(r"[^\n]", " ", text)

    return TOKENS.sub(blank, source)


def room_of(path):
    """The room of a path relative to the source tree, or ""."""
    best = ""
    for name in ROOMS:
        if (path == name or path.startswith(name + "/")) and len(name) > len(best):
            best = name
    return best


def line_of(source, position):
    return source.count("\n", 0, position) + 1


def library_of(header):
    for name, pattern in LIBRARIES.items():
        if re.fullmatch(pattern, header):
            return name
    return None


def objection_to_include(source_root, own_room, header, quoted):
    """Why a file of `own_room` must not include `header`; None if it may."""
    plan = ROOMS[own_room]
    if quoted:
        target = room_of(header)
        if not target:
            return f'includes "{header}", which is in no room'
        if not (source_root / header).is_file() and "_autogen" not in header:
            return None  # a generated or missing file is the compiler's business
        if target != own_room and target not in plan.knows:
            return f'{own_room} must not know {target} ("{header}")'
        return None
    if header in STANDARD_HEADERS:
        if header in MACHINE_HEADERS and not plan.machine:
            return f"<{header}> reaches past platform/api"
        return None
    library = library_of(header)
    if library is None:
        return f"<{header}> is no library of the plan"
    if library not in plan.libraries:
        return f"{own_room} must not know {library} (<{header}>)"
    return None


def check_cpp(source_root, path, own_room):
    """The violations of one C++ file, and the rooms that it includes."""
    source = (source_root / path).read_text(encoding="utf-8")
    violations, neighbours = [], set()
    code = blanked(source, keep_strings=True)
    for match in INCLUDE.finditer(code):
        header = match.group(1) or match.group(2)
        quoted = match.group(1) is not None
        # A header of a library may stand in quotes, and one of ours between angle brackets: both are read.
        if not quoted and room_of(header) and (source_root / header).is_file():
            quoted = True
        objection = objection_to_include(source_root, own_room, header, quoted)
        if objection:
            violations.append(Violation(path, line_of(code, match.start()), objection))
        elif quoted and room_of(header) != own_room:
            neighbours.add(room_of(header))
    if not ROOMS[own_room].machine:
        words = blanked(source, keep_strings=False)
        violations += check_bans(path, words, BANNED_CPP) + check_labels(path, words)
        if own_room not in (ROOM_THAT_CONNECTS, "platform/api", "platform/fake") and path not in REFUSING_FILES:
            violations += check_bans(path, words, BANNED_CONNECTIONS)
        if ROOMS_THAT_ACT.match(own_room):
            violations += check_bans(path, words, BANNED_WHERE_ACTED)
        if ROOMS_THAT_SHOW.match(own_room):
            violations += check_bans(path, words, BANNED_WHERE_SHOWN)
    return violations, neighbours


def check_qml(source_root, path, own_room):
    source = (source_root / path).read_text(encoding="utf-8")
    words = blanked(source, keep_strings=False)
    violations = check_bans(path, words, BANNED_QML) + check_texts(path, words)
    if "qt" not in ROOMS[own_room].libraries:
        violations.append(Violation(path, 1, f"{own_room} holds no views"))
    code = blanked(source, keep_strings=True)
    for match in QML_IMPORT.finditer(code):
        module = match.group(1)
        if module.startswith('"'):
            continue  # a relative import stays in its room
        if QML_IMPORTS_BANNED.match(module) or not QML_IMPORTS_ALLOWED.match(module):
            violations.append(Violation(path, line_of(code, match.start()), f"imports {module}"))
    return violations


def check_bans(path, code, bans):
    found = []
    for pattern, reason in bans:
        for match in re.finditer(pattern, code):
            found.append(Violation(path, line_of(code, match.start()), f"{match.group(0).strip()} {reason}"))
    return found


def own_properties(code, opening):
    """What stands between the brace at `opening` and its counterpart, without what stands in further braces."""
    depth, own = 0, []
    for letter in code[opening:]:
        if letter == "}":
            depth -= 1
            if depth == 0:
                break
        if depth == 1:
            own.append(letter)
        if letter == "{":
            depth += 1
    return "".join(own)


def check_texts(path, code):
    """Every text of a view that does not say by itself that its words are words."""
    return [
        Violation(path, line_of(code, match.start()), f"{match.group(1)} may take words for markup and fetch its pictures")
        for match in GUESSING_TEXTS.finditer(code)
        if not PLAIN_TEXT.search(own_properties(code, match.end() - 1))
    ]


def check_labels(path, code):
    """The last label or question of a file that makes more of them than it tells that their words are words."""
    labels = list(GUESSING_LABEL.finditer(code))
    if len(labels) <= len(PLAIN_LABEL.findall(code)):
        return []
    last = labels[-1]
    what = last["new"] or last["own"] or last["unique"]
    return [Violation(path, line_of(code, last.start()), f"{what} may take words for markup and fetch its pictures")]


def cycle_in(graph):
    """A dependency cycle as a list of rooms; empty if there is none."""
    done, trail = set(), []

    def visit(node):
        if node in trail:
            return trail[trail.index(node):] + [node]
        if node in done:
            return []
        trail.append(node)
        for neighbour in sorted(graph.get(node, ())):
            circle = visit(neighbour)
            if circle:
                return circle
        trail.pop()
        done.add(node)
        return []

    for node in sorted(graph):
        circle = visit(node)
        if circle:
            return circle
    return []


def check_tree(source_root):
    """All violations under `source_root`, and the number of files read."""
    violations, graph, count = [], {}, 0
    for file in sorted(source_root.rglob("*")):
        if not file.is_file() or file.suffix not in CPP_SUFFIXES | {".qml"}:
            continue
        path = file.relative_to(source_root).as_posix()
        own_room = room_of(path)
        count += 1
        if not own_room:
            violations.append(Violation(path, 1, "is in no room"))
        elif file.suffix == ".qml":
            violations += check_qml(source_root, path, own_room)
        else:
            found, neighbours = check_cpp(source_root, path, own_room)
            violations += found
            graph.setdefault(own_room, set()).update(neighbours)
    circle = cycle_in(graph)
    if circle:
        violations.append(Violation(".", 0, "rooms in a circle: " + " -> ".join(circle)))
    return violations, count


def main():
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    source_root = Path(sys.argv[1])
    violations, count = check_tree(source_root)
    for violation in violations:
        print(violation)
    if count == 0:
        print(f"No source under {source_root}")
        return 1
    print(f"{count} files, {len(violations)} violations")
    return 1 if violations else 0


if __name__ == "__main__":
    sys.exit(main())
