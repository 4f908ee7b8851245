#include "platform/qt/qt_screens.h"

#include <QGuiApplication>
#include <QScreen>

namespace tidewatch::platform {

namespace {

/// The window manager and the panels react to a change too, one after the other.
constexpr int settlingMilliseconds = 500;

Rectangle rectangle(const QRect& rect) {
    return {static_cast<double>(rect.x()), static_cast<double>(rect.y()), static_cast<double>(rect.width()),
            static_cast<double>(rect.height())};
}

Screen screen(const QScreen& screen) {
    return {rectangle(screen.geometry()), rectangle(screen.availableGeometry())};
}

}  // namespace

QtScreens::QtScreens() {
    settling_.setSingleShot(true);
    settling_.setInterval(settlingMilliseconds);
    const auto restart = [this] { settling_.start(); };
    QObject::connect(&settling_, &QTimer::timeout, &settling_, [this] { changed_.emit(); });
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &settling_, [this](const QScreen* screen) {
        watch(*screen);
        settling_.start();
    });
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &settling_, restart);
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &settling_, restart);
    for (const auto* each : QGuiApplication::screens()) watch(*each);
}

std::vector<Screen> QtScreens::all() const {
    std::vector<Screen> screens;
    for (const auto* each : QGuiApplication::screens()) screens.push_back(screen(*each));
    return screens;
}

std::optional<Screen> QtScreens::main() const {
    const auto* primary = QGuiApplication::primaryScreen();
    return primary == nullptr ? std::nullopt : std::optional(screen(*primary));
}

Connection QtScreens::onChanged(std::function<void()> changed) {
    return changed_.connect(std::move(changed));
}

void QtScreens::watch(const QScreen& screen) {
    const auto restart = [this] { settling_.start(); };
    QObject::connect(&screen, &QScreen::geometryChanged, &settling_, restart);
    QObject::connect(&screen, &QScreen::availableGeometryChanged, &settling_, restart);
    QObject::connect(&screen, &QScreen::logicalDotsPerInchChanged, &settling_, restart);
}

}  // namespace tidewatch::platform
