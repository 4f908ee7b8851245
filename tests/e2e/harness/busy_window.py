"""A program that keeps a processor busy until its window is asked to close: busy_window.py NAME [hidden]

Its process has this name. A hidden one has no window, and never ends by itself.
"""

import sys

from Xlib import X, display

name = sys.argv[1]
with open("/proc/self/comm", "w", encoding="ascii") as comm:
    comm.write(name)
server = display.Display()
if "hidden" not in sys.argv:
    screen = server.screen()
    window = screen.root.create_window(700, 500, 200, 100, 0, screen.root_depth, background_pixel=screen.white_pixel)
    window.set_wm_class(name, "BusyWindow")
    window.set_wm_protocols([server.intern_atom("WM_DELETE_WINDOW")])
    window.map()
    server.flush()
while True:
    while server.pending_events():
        if server.next_event().type == X.ClientMessage:
            sys.exit(0)
    for _ in range(100_000):
        pass
