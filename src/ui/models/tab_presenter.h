#pragma once

#include <qqmlregistration.h>
#include <QObject>

namespace tidewatch {

/// What the presenters of all tabs share: each follows its model only while its tab is on show, so that a
/// change costs what can be seen. Main thread only.
class TabPresenter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("What the presenters of the tabs are")

public:
    /// Whether the tab is on show; false at first. One that comes on show catches up at once.
    void setVisible(bool visible);
    [[nodiscard]] bool isVisible() const { return visible_; }

protected:
    /// Reads all that the model says.
    virtual void update() = 0;

    /// The tab has come on show, or has gone.
    virtual void visibilityChanged() {}

    /// Gives `value` to `field` and announces it, if it differs.
    template <class Presenter, class Value>
    static void change(Presenter* presenter, Value& field, const Value& value, void (Presenter::*changed)()) {
        if (field == value) return;
        field = value;
        Q_EMIT(presenter->*changed)();
    }

    /// To be called after each change of the model.
    void updateIfVisible();

private:
    bool visible_ = false;
};

}  // namespace tidewatch
