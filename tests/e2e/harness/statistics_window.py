"""The statistics window, operated by input events and read through the accessibility bus."""

from harness.accessibility import wait_for_window
from harness.user_input import LEFT
from harness.waiting import wait_until
from harness.world import STATISTICS_TITLE

TABS = OVERVIEW, GOALS, DETAILS, TIMESHEET, PROJECTS, SYSTEM, DISK, CLAUDE = (
    "Overview", "Metas", "Detalle", "Timesheet", "Proyectos", "Sistema", "Disco", "Claude")


class StatisticsWindow:
    """Needs a world with an accessibility bus and a running program."""

    def __init__(self, world, program):
        self._world = world
        self._pid = program.pid

    def open(self):
        """Opens it by a second start of the program."""
        self._world.start_program(wait_for_clock=False).wait()
        window = wait_until(self._world.statistics, "the statistics window")
        wait_until(lambda: self._world.screen.active_window() == window.id, "the focus")
        self.wait_for(lambda read: read.find("page tab"), "the tabs")

    def wait_for(self, condition, what):
        """Waits for the accessible window to satisfy `condition(it)`."""
        return wait_for_window(self._world.accessibility, self._pid, STATISTICS_TITLE, condition, what)

    def wait_for_text(self, role, name):
        return self.wait_for(lambda read: read.find(role, name), f"the {role} {name!r}").find(role, name)[0]

    def tab(self, name):
        """Waits for this tab to be shown, and returns its pane."""
        return self.wait_for(lambda read: read.find("panel", name), f"the tab {name}").find("panel", name)[0]

    def select(self, name):
        self._world.input.key(f"ctrl+{TABS.index(name) + 1}")
        return self.tab(name)

    def click(self, role, name, button=LEFT):
        node = self.wait_for_text(role, name)
        self._world.input.click(*node.frame().centre, button)

    def focused(self):
        """(role, name) of the focused object, or None."""
        read = self.wait_for(lambda _: True, "the window")
        return next(((node.role, node.name) for node in read.all() if "focused" in node.states and node.role != "frame"), None)

    def tab_to(self, role, name):
        """Presses Tab until it is focused."""
        for _ in range(40):
            self._world.input.key("Tab")
            if self.focused() == (role, name):
                return
        raise AssertionError(f"the tabulator does not lead to the {role} {name!r}")
