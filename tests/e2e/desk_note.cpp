// A note on the desktop: only a floating window in the layer below, with a control in its corner. It stores
// its position in the file given as argument, "x y", and prints what the mouse does to it.

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QQuickPaintedItem>
#include <QQuickWindow>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#include "platform/qt/qt_screens.h"
#include "platform/x11/x11_window_system.h"
#include "shell/floating_panel.h"
#include "shell/windows/quick_floating_window.h"

namespace {

using tidewatch::PanelSize;
using tidewatch::platform::Point;

constexpr PanelSize noteSize{240, 160};
constexpr double cornerRadius = 20;

void say(const std::string& what) {
    std::cout << what << std::endl;
}

class Control final : public QQuickItem {
public:
    explicit Control(QQuickItem* parent) : QQuickItem(parent) {
        setSize({40, 40});
        setAcceptedMouseButtons(Qt::LeftButton);
    }

protected:
    void mousePressEvent(QMouseEvent*) override { say("control"); }
};

class Note final : public QQuickPaintedItem {
public:
    void setTranslucent(bool translucent) {
        ground_.setAlphaF(translucent ? 0.5F : 1.0F);
        update();
    }
    void paint(QPainter* painter) override {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(ground_);
        painter->drawRoundedRect(boundingRect(), cornerRadius, cornerRadius);
    }

private:
    QColor ground_{200, 30, 30};
    Control control_{this};
};

std::optional<Point> load(const std::string& path) {
    Point place;
    std::ifstream file(path);
    if (!(file >> place.x >> place.y)) return std::nullopt;
    return place;
}

}  // namespace

int main(int argc, char** argv) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QApplication application(argc, argv);
    const std::string path = argc > 1 ? argv[1] : "";
    tidewatch::platform::X11WindowSystem windowSystem;
    tidewatch::platform::QtScreens screens;
    auto item = std::make_unique<Note>();
    auto& note = *item;
    tidewatch::QuickFloatingWindow window(windowSystem, tidewatch::WindowLayer::below,
                                          {.title = "Nota",
                                           .item = std::move(item),
                                           .cornerRadius = [](PanelSize) { return cornerRadius; },
                                           .setTranslucent = [&](bool value) { note.setTranslucent(value); },
                                           .setOnScreen = [](bool) {}},
                                          noteSize);
    tidewatch::FloatingPanel panel(window, screens,
                                   {.place = {.load = [&] { return load(path); },
                                              .save =
                                                  [&](Point origin) {
                                                      std::ofstream(path) << origin.x << ' ' << origin.y;
                                                      say("place");
                                                  }},
                                    .defaultPlace =
                                        [](PanelSize) {
                                            return Point{60, 90};
                                        },
                                    .clicked = [] { say("click"); },
                                    .menuRequested = nullptr});
    panel.orderFrontRegardless();
    return QApplication::exec();
}
