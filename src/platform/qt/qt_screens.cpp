#include "platform/qt/qt_screens.h"

#include <QGuiApplication>
#include <QScreen>

namespace tidewatch::platform {

namespace {

Rectangle rectangle(const QRect& rect) {
    return {static_cast<double>(rect.x()), static_cast<double>(rect.y()), static_cast<double>(rect.width()),
            static_cast<double>(rect.height())};
}

Screen screen(const QScreen& screen) {
    return {rectangle(screen.geometry()), rectangle(screen.availableGeometry())};
}

}  // namespace

std::vector<Screen> QtScreens::all() const {
    std::vector<Screen> screens;
    for (const auto* each : QGuiApplication::screens()) screens.push_back(screen(*each));
    return screens;
}

std::optional<Screen> QtScreens::main() const {
    const auto* primary = QGuiApplication::primaryScreen();
    return primary == nullptr ? std::nullopt : std::optional(screen(*primary));
}

}  // namespace tidewatch::platform
