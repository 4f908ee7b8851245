#include "app/desktop/widget_views.h"

#include <QTimer>
#include <utility>

#include "ui/style/metrics.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {

namespace {

GamesPresenter::Sources withKeys(GamesPresenter::Sources games, KeyMonitor& keys) {
    return {.mainLoop = games.mainLoop,
            .preferences = games.preferences,
            .randomness = games.randomness,
            .keys = keys,
            .gate = games.gate};
}

}  // namespace

WidgetViews::WidgetViews(WidgetHub& hub, GamesPresenter::Sources games, MakeView makeView,
                         std::function<void()> lastGone)
    : makeView_(std::move(makeView)), lastGone_(std::move(lastGone)), gadgets_(hub, withKeys(games, keys_)) {}

QuickFloatingWindow::Content WidgetViews::content(WidgetKind kind) {
    auto& gadget = gadgets_.presenter(kind);
    auto view = makeView_(gadget);
    // Without it the widget is blank.
    if (!view) view = std::make_unique<QQuickItem>();
    ++views_;
    QObject::connect(view.get(), &QObject::destroyed, &context_, [this, &gadget] { viewDestroyed(gadget); });
    return {
        .title = text(title(kind)),
        .item = std::move(view),
        .cornerRadius =
            [kind](PanelSize panel) {
                return Metrics().widgetRadius * panel.width / defaultSize(kind).width;
            },
        .setTranslucent = [&gadget](bool translucent) { gadget.setTranslucent(translucent); },
        .setOnScreen =
            [&gadget, kind](bool onScreen) {
                // A game that is covered for a moment goes on.
                if (onScreen || kind != WidgetKind::arcade) gadget.setVisible(onScreen);
            },
    };
}

void WidgetViews::viewDestroyed(GadgetPresenter& gadget) {
    gadget.setVisible(false);
    if (--views_ > 0) return;
    QTimer::singleShot(0, &context_, [this] {
        if (views_ == 0) lastGone_();
    });
}

}  // namespace tidewatch
