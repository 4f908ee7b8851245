"""The desktops that the end-to-end tests run on, a row each. Run as a program, it prints their names."""

from dataclasses import dataclass, field


@dataclass(frozen=True)
class Tray:
    """What shows the program's icon."""

    command: tuple
    window_class: str
    embeds: bool = True
    """Whether the icon is a window of the program; else the tray draws it, and may draw its menu too."""
    part: str = ""
    """The class of the last window that appears on it."""


@dataclass(frozen=True)
class Desktop:
    """A window manager and a tray, with what they need around them."""

    name: str
    window_manager: tuple = ()
    tray: Tray | None = None
    environment: dict = field(default_factory=dict)
    files: dict = field(default_factory=dict)
    """Their settings by path below the configuration folder."""
    workspaces: tuple = ((), ())
    """A command each that shows the first and another workspace; by default the window manager is asked as by a pager."""
    compositor: tuple = ()
    """A command each that switches its own compositor, which is on at first, off and on."""
    tiles: bool = False
    """Whether an ordinary window gets its place and size from the window manager alone."""


TRAYER = Tray(
    command=(
        "trayer", "--edge", "bottom", "--align", "right", "--widthtype", "request", "--height", "24",
        "--SetDockType", "true",
    ),
    window_class="trayer",
)

_XFCE_PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="true"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=8;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
"""

_MATE = """[org/mate/marco/general]
compositing-manager=true

[org/mate/panel/general]
toplevel-id-list=['bottom']
object-id-list=['tray']

[org/mate/panel/toplevels/bottom]
orientation='bottom'
size=28
expand=true

[org/mate/panel/objects/tray]
object-type='applet'
applet-iid='NotificationAreaAppletFactory::NotificationArea'
toplevel-id='bottom'
position=0
"""

_I3 = """# i3 config file (v4)
font pango:DejaVu Sans Mono 8
floating_modifier Mod1
bindsym Mod1+F4 kill
bar {
    id tray
    i3bar_command true
    position bottom
}
"""

# Programs on the toolkit of these desktops start services for accessibility otherwise, which nobody needs here.
_NO_ACCESSIBILITY = {"NO_AT_BRIDGE": "1", "GTK_A11Y": "none"}

OPENBOX = Desktop("openbox", ("openbox", "--sm-disable"), TRAYER)

DESKTOPS = {
    desktop.name: desktop
    for desktop in (
        OPENBOX,
        Desktop(
            "xfce",
            ("xfwm4", "--compositor=on", "--vblank=off"),
            Tray(("xfce4-panel", "--disable-wm-check"), "Xfce4-panel", embeds=False, part="Wrapper-2.0"),
            environment={"XDG_CURRENT_DESKTOP": "XFCE", **_NO_ACCESSIBILITY},
            files={"xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml": _XFCE_PANEL},
            compositor=tuple(
                ("xfconf-query", "--channel", "xfwm4", "--property", "/general/use_compositing",
                 "--create", "--type", "bool", "--set", value)
                for value in ("false", "true")
            ),
        ),
        Desktop(
            "kwin",
            ("kwin_x11",),
            TRAYER,
            environment={
                "XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "5",
                "QT_QUICK_BACKEND": "software", "LIBGL_ALWAYS_SOFTWARE": "1",
            },
            files={"kwinrc": "[Desktops]\nNumber=2\nRows=1\n"},
            compositor=tuple(
                ("gdbus", "call", "--session", "--dest", "org.kde.KWin", "--object-path", "/Compositor",
                 "--method", f"org.kde.kwin.Compositing.{command}")
                for command in ("suspend", "resume")
            ),
        ),
        Desktop(
            "mate",
            ("marco",),
            Tray(("mate-panel",), "Mate-panel", embeds=False, part="Notification-area-applet"),
            environment={"XDG_CURRENT_DESKTOP": "MATE", "GSETTINGS_BACKEND": "keyfile", **_NO_ACCESSIBILITY},
            files={"glib-2.0/settings/keyfile": _MATE},
            compositor=tuple(
                ("gsettings", "set", "org.mate.Marco.general", "compositing-manager", value)
                for value in ("false", "true")
            ),
        ),
        Desktop(
            "mutter",
            ("mutter", "--x11", "--sm-disable"),
            environment={"XDG_CURRENT_DESKTOP": "GNOME", "GSETTINGS_BACKEND": "memory", "LIBGL_ALWAYS_SOFTWARE": "1",
                         **_NO_ACCESSIBILITY},
        ),
        Desktop(
            "i3",
            ("i3",),
            Tray(("i3bar", "--bar_id=tray"), "i3bar"),
            files={"i3/config": _I3},
            workspaces=(("i3-msg", "workspace", "1"), ("i3-msg", "workspace", "2")),
            tiles=True,
        ),
        Desktop("none"),
    )
}

if __name__ == "__main__":
    print("\n".join(DESKTOPS))
