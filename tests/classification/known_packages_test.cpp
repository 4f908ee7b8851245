#include "classification/registered_category.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace tidewatch {
namespace {

struct Package {
    const char* name;
    const char* desktopId;
    const char* categories;  // in its desktop entry in Debian 12
    Category expected;       // as a user would classify it
};

const std::vector<Package>& packages() {
    using enum Category;
    static const std::vector<Package> rows{
        // clang-format off
        {"firefox-esr", "firefox-esr", "Network;WebBrowser;", browser},
        {"epiphany-browser", "org.gnome.Epiphany", "Network;GNOME;GTK;WebBrowser;", browser},
        {"falkon", "org.kde.falkon", "Network;WebBrowser;", browser},
        {"evolution", "org.gnome.Evolution", "GNOME;GTK;Office;Email;Calendar;ContactManagement;X-Red-Hat-Base;", communication},
        {"kmail", "org.kde.kmail2", "Qt;KDE;Office;Network;Email;", communication},
        {"pidgin", "pidgin", "GTK;Network;InstantMessaging;", communication},
        {"gajim", "org.gajim.Gajim", "Network;InstantMessaging;GTK;Chat;", communication},
        {"hexchat", "io.github.Hexchat", "GTK;Network;IRCClient;", communication},
        {"konversation", "org.kde.konversation", "Qt;KDE;Network;IRCClient;", communication},
        {"mumble", "mumble", "Network;Chat;Qt;", communication},
        {"nheko", "nheko", "Network;InstantMessaging;Qt;", communication},
        {"telegram-desktop", "org.telegram.desktop", "Chat;Network;InstantMessaging;Qt;", communication},
        {"jami", "jami", "Network;Telephony;", communication},
        {"quassel-client", "quasselclient", "Qt;Network;Chat;IRCClient;", communication},
        {"gnome-contacts", "org.gnome.Contacts", "GNOME;GTK;Office;ContactManagement;", communication},
        {"gnome-calendar", "org.gnome.Calendar", "GNOME;GTK;Office;Calendar;Core;", meetings},
        {"korganizer", "org.kde.korganizer", "Qt;KDE;Office;Calendar;", meetings},
        {"libreoffice-writer", "libreoffice-writer", "Office;WordProcessor;", documents},
        {"libreoffice-calc", "libreoffice-calc", "Office;Spreadsheet;", documents},
        {"libreoffice-impress", "libreoffice-impress", "Office;Presentation;", documents},
        {"libreoffice-draw", "libreoffice-draw", "Office;FlowChart;Graphics;2DGraphics;VectorGraphics;", documents},
        {"libreoffice-math", "libreoffice-math", "Office;Math;", documents},
        {"abiword", "abiword", "Office;WordProcessor;GNOME;GTK;X-Red-Hat-Base;", documents},
        {"gnumeric", "gnumeric", "Office;Spreadsheet;Science;Math;GNOME;GTK;", documents},
        {"gnome-text-editor", "org.gnome.TextEditor", "GNOME;GTK;Utility;TextEditor;", documents},
        {"mousepad", "org.xfce.mousepad", "Utility;TextEditor;GTK;", documents},
        {"xournalpp", "com.github.xournalpp.xournalpp", "Office;GNOME;GTK;", documents},
        {"gnucash", "gnucash", "Office;Finance;", documents},
        {"qgis", "org.qgis.qgis", "Qt;Education;Science;Geography;", documents},
        {"kate", "org.kde.kate", "Qt;KDE;Utility;TextEditor;Development;", development},
        {"emacs-common", "emacsclient", "Development;TextEditor;", development},
        {"geany", "geany", "GTK;Development;IDE;TextEditor;", development},
        {"qtcreator", "org.qt-project.qtcreator", "Development;IDE;Qt;", development},
        {"gnome-builder", "org.gnome.Builder", "GNOME;GTK;Development;IDE;", development},
        {"git-cola", "git-cola", "Development;RevisionControl;", development},
        {"meld", "org.gnome.Meld", "GTK;Development;", development},
        {"gnome-terminal", "org.gnome.Terminal", "GNOME;GTK;System;TerminalEmulator;", development},
        {"terminator", "terminator", "GNOME;GTK;Utility;TerminalEmulator;System;", development},
        {"xterm", "debian-xterm", "System;TerminalEmulator;", development},
        {"gimp", "gimp", "Graphics;2DGraphics;RasterGraphics;GTK;", design},
        {"inkscape", "org.inkscape.Inkscape", "Graphics;VectorGraphics;GTK;", design},
        {"krita", "org.kde.krita", "Qt;KDE;Graphics;2DGraphics;RasterGraphics;", design},
        {"scribus", "scribus", "Qt;Graphics;Publishing;", design},
        {"openscad", "openscad", "Graphics;3DGraphics;Engineering;", design},
        {"freecad", "org.freecadweb.FreeCAD", "Graphics;Science;Education;Engineering;", design},
        {"kicad", "org.kicad.kicad", "Science;Electronics;", design},
        {"darktable", "org.darktable.darktable", "Graphics;Photography;GTK;", audioVideo},
        {"digikam", "org.kde.digikam", "Qt;Graphics;Photography;", audioVideo},
        {"audacity", "audacity", "AudioVideo;Audio;AudioVideoEditing;", audioVideo},
        {"ardour", "ardour", "AudioVideo;X-AudioEditing;Audio;Recorder;", audioVideo},
        {"obs-studio", "com.obsproject.Studio", "AudioVideo;Recorder;", audioVideo},
        {"kdenlive", "org.kde.kdenlive", "Qt;KDE;AudioVideo;AudioVideoEditing;", audioVideo},
        {"handbrake", "fr.handbrake.ghb", "GTK;AudioVideo;Video;", audioVideo},
        {"vlc", "vlc", "AudioVideo;Player;Recorder;", entertainment},
        {"mpv", "mpv", "AudioVideo;Audio;Video;Player;TV;", entertainment},
        {"totem", "org.gnome.Totem", "GTK;GNOME;AudioVideo;Player;Video;", entertainment},
        {"akregator", "org.kde.akregator", "Qt;KDE;Network;News;Feed;", entertainment},
        {"liferea", "net.sourceforge.liferea", "Network;News;", entertainment},
        {"rhythmbox", "org.gnome.Rhythmbox3", "GNOME;GTK;AudioVideo;Audio;Player;", music},
        {"clementine", "org.clementine_player.Clementine", "AudioVideo;Player;Qt;Audio;", music},
        {"lmms", "lmms", "Qt;AudioVideo;Audio;Midi;", music},
        {"nautilus", "org.gnome.Nautilus", "GNOME;GTK;Utility;Core;FileManager;", Category::system},
        {"thunar", "thunar", "System;Core;GTK;FileTools;FileManager;", Category::system},
        {"dolphin", "org.kde.dolphin", "Qt;KDE;System;FileTools;FileManager;", Category::system},
        {"gnome-system-monitor", "gnome-system-monitor", "GNOME;GTK;System;Monitor;", Category::system},
        {"htop", "htop", "System;Monitor;ConsoleOnly;", Category::system},
        {"gparted", "gparted", "GNOME;System;Filesystem;", Category::system},
        {"synaptic", "synaptic", "PackageManager;GTK;System;Settings;", Category::system},
        {"virt-manager", "virt-manager", "System;", Category::system},
        {"evince", "org.gnome.Evince", "GNOME;GTK;Office;Viewer;Graphics;2DGraphics;VectorGraphics;", utilities},
        {"okular", "org.kde.okular", "Qt;KDE;Graphics;Office;Viewer;", utilities},
        {"zathura", "org.pwmt.zathura", "Office;Viewer;", utilities},
        {"gnome-calculator", "org.gnome.Calculator", "GNOME;GTK;Utility;Calculator;", utilities},
        {"file-roller", "org.gnome.FileRoller", "GTK;GNOME;Utility;Archiving;Compression;X-GNOME-Utilities;", utilities},
        {"brasero", "brasero", "GTK;GNOME;AudioVideo;Audio;Video;DiscBurning;", utilities},
        {"keepassxc", "org.keepassxc.KeePassXC", "Utility;Security;Qt;", utilities},
        {"filezilla", "filezilla", "Network;FileTransfer;", utilities},
        {"transmission-gtk", "transmission-gtk", "Network;FileTransfer;P2P;GTK;", utilities},
        {"remmina", "org.remmina.Remmina", "GTK;GNOME;X-GNOME-NetworkSettings;Network;", utilities},
        {"dino-im", "im.dino.Dino", "GTK;Network;Chat;InstantMessaging;", communication},
        {"sqlitebrowser", "sqlitebrowser", "Development;Utility;Database;", development},
        {"gthumb", "org.gnome.gThumb", "GNOME;GTK;Graphics;Viewer;RasterGraphics;2DGraphics;Photography;", audioVideo},
        {"gnome-chess", "org.gnome.Chess", "GNOME;GTK;Game;BoardGame;", games},
        {"gnome-mines", "org.gnome.Mines", "GNOME;GTK;Game;LogicGame;", games},
        {"kpat", "org.kde.kpat", "Qt;KDE;Game;CardGame;", games},
        {"pavucontrol", "pavucontrol", "AudioVideo;Audio;Mixer;GTK;Settings;X-XFCE-SettingsDialog;X-XFCE-HardwareSettings;", Category::system},
        {"gnome-tweaks", "org.gnome.tweaks", "GNOME;GTK;Settings;", Category::system},
        {"eog", "org.gnome.eog", "GNOME;GTK;Graphics;2DGraphics;RasterGraphics;Viewer;", utilities},
        {"simple-scan", "simple-scan", "GNOME;GTK;Graphics;Scanning;", utilities},
        // clang-format on
    };
    return rows;
}

std::vector<std::string> words(const std::string& categories) {
    std::vector<std::string> result;
    std::istringstream text(categories);
    for (std::string word; std::getline(text, word, ';');) result.push_back(word);
    return result;
}

TEST(KnownPackagesTest, EachHasTheExpectedCategory) {
    for (const auto& package : packages()) {
        const auto category = categoryOfRegistered(words(package.categories));
        ASSERT_TRUE(category) << package.name;
        EXPECT_EQ(rawValue(*category), rawValue(package.expected))
            << package.name << " " << package.desktopId;
    }
}

TEST(KnownPackagesTest, AreAtLeastFifty) {
    EXPECT_GE(packages().size(), 50u);
}

}  // namespace
}  // namespace tidewatch
