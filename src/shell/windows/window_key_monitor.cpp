#include "shell/windows/window_key_monitor.h"

#include <QApplication>
#include <QInputMethodQueryEvent>
#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace tidewatch {
namespace {

struct KeyRow {
    int toolkit;
    GameKey key;
};

constexpr std::array gameKeys{
    KeyRow{Qt::Key_Left, GameKey::left},   KeyRow{Qt::Key_Right, GameKey::right},
    KeyRow{Qt::Key_Up, GameKey::up},       KeyRow{Qt::Key_Down, GameKey::down},
    KeyRow{Qt::Key_Space, GameKey::space}, KeyRow{Qt::Key_P, GameKey::p},
};

std::optional<GameKey> gameKeyOf(int toolkit) {
    const auto row = std::ranges::find(gameKeys, toolkit, &KeyRow::toolkit);
    if (row == gameKeys.end()) return std::nullopt;
    return row->key;
}

/// Whether keys are typed into a text.
bool isTyping() {
    auto* focus = QGuiApplication::focusObject();
    if (focus == nullptr) return false;
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QCoreApplication::sendEvent(focus, &query);
    return query.value(Qt::ImEnabled).toBool();
}

class Observation final : public KeyObservation {
public:
    explicit Observation(std::shared_ptr<KeyMonitor::Handler> handler) : handler_(std::move(handler)) {}

private:
    std::shared_ptr<KeyMonitor::Handler> handler_;
};

}  // namespace

WindowKeyMonitor::WindowKeyMonitor() {
    qApp->installEventFilter(this);
}

std::unique_ptr<KeyObservation> WindowKeyMonitor::observe(Handler handler) {
    auto shared = std::make_shared<Handler>(std::move(handler));
    handlers_.push_back(shared);
    return std::make_unique<Observation>(std::move(shared));
}

bool WindowKeyMonitor::eventFilter(QObject* watched, QEvent* event) {
    // The windows see a press first; it then goes on to the control with the focus.
    if (event->type() != QEvent::KeyPress || !watched->isWindowType()) return false;
    const auto key = gameKeyOf(static_cast<QKeyEvent*>(event)->key());
    if (!key || handlers_.empty() || QApplication::activePopupWidget() != nullptr || isTyping()) return false;
    return isConsumed(*key);
}

bool WindowKeyMonitor::isConsumed(GameKey key) {
    std::erase_if(handlers_, [](const auto& handler) { return handler.expired(); });
    // A handler may end its observation, or begin another.
    return std::ranges::any_of(std::vector(handlers_), [key](const auto& each) {
        const auto handler = each.lock();
        return handler && (*handler)(key) == KeyPress::consumed;
    });
}

}  // namespace tidewatch
