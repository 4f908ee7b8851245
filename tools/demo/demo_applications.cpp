#include "tools/demo/demo_applications.h"

#include <array>

namespace tidewatch::demo {

namespace {

constexpr std::array applications{
    DemoApplication{"code", "Visual Studio Code", "Development;IDE;", "Co", "#3B7BC4"},
    DemoApplication{"org.gnome.Terminal", "Terminal", "System;TerminalEmulator;", "›_", "#3D4450"},
    DemoApplication{"firefox", "Firefox", "Network;WebBrowser;", "Fx", "#E0703A"},
    DemoApplication{"org.libreoffice.libreoffice-writer", "LibreOffice Writer", "Office;WordProcessor;", "W",
                    "#2F8FB5"},
    DemoApplication{"org.libreoffice.libreoffice-calc", "LibreOffice Calc", "Office;Spreadsheet;", "X",
                    "#4A9B5B"},
    DemoApplication{"org.gimp.GIMP", "Editor de imágenes GIMP", "Graphics;2DGraphics;RasterGraphics;", "Gi",
                    "#8A7A63"},
    DemoApplication{"org.inkscape.Inkscape", "Inkscape", "Graphics;VectorGraphics;", "In", "#5B5F97"},
    DemoApplication{"thunderbird", "Thunderbird", "Network;Email;", "Tb", "#2C6DB2"},
    DemoApplication{"com.slack.Slack", "Slack", "Network;InstantMessaging;", "Sl", "#7A3B7E"},
    DemoApplication{"org.telegram.desktop", "Telegram", "Network;InstantMessaging;Chat;", "Te", "#3FA1D8"},
    DemoApplication{"us.zoom.Zoom", "Zoom", "Network;VideoConference;", "Zo", "#4A80E8"},
    DemoApplication{"org.gnome.Calendar", "Calendario", "Office;Calendar;", "21", "#B0483C"},
    DemoApplication{"org.gnome.Nautilus", "Archivos", "System;FileManager;", "Ar", "#6C8EAD"},
    DemoApplication{"org.gnome.Evince", "Visor de documentos", "Office;Viewer;", "Vi", "#9C5B52"},
    DemoApplication{"com.spotify.Client", "Spotify", "Audio;Music;Player;", "Sp", "#3FA35B"},
    DemoApplication{"org.videolan.VLC", "Reproductor multimedia VLC", "AudioVideo;Player;Video;", "VL",
                    "#D9822B"},
    DemoApplication{"steam", "Steam", "Game;", "St", "#33465C"},
};

}  // namespace

std::span<const DemoApplication> demoApplications() {
    return applications;
}

}  // namespace tidewatch::demo
