#pragma once

#include <qqmlregistration.h>
#include <QObject>

#include "ui/models/pane.h"

namespace tidewatch {

/// The base of all tab presenters: follows its model only while the tab is visible. Main thread only.
class TabPresenter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("What the presenters of the tabs are")

public:
    /// Initially not visible. Updates when it becomes visible.
    void setVisible(bool visible);
    [[nodiscard]] bool isVisible() const { return visible_; }

protected:
    /// Updates from the model.
    virtual void update() = 0;

    /// Called after the visibility has changed.
    virtual void visibilityChanged() {}

    /// Assigns `value` to `field` and emits `changed` if it differs.
    template <class Presenter, class Value>
    static void change(Presenter* presenter, Value& field, const Value& value, void (Presenter::*changed)()) {
        if (field == value) return;
        field = value;
        Q_EMIT(presenter->*changed)();
    }

    /// Must be called after each change of the model.
    void updateIfVisible();

private:
    bool visible_ = false;
};

/// Tells the presenter of `pane`, if it is a TabPresenter.
void setPaneVisible(const Pane& pane, bool visible);

}  // namespace tidewatch
