#pragma once

#include <qqmlregistration.h>
#include <QString>
#include <QUrl>

#include "base/signal.h"
#include "shell/widgets/widget_kind.h"
#include "ui/models/tab_presenter.h"

namespace tidewatch {

/// The base of the presenters of gadgets, the content of the desktop's widgets: follows its model only while
/// its widget is shown, and notifies only of what has changed. Main thread only.
class GadgetPresenter : public tidewatch::TabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("What the presenters of the gadgets are")
    /// Of the gadget within the widget's container; has a property `presenter`.
    Q_PROPERTY(QUrl view READ view CONSTANT FINAL)
    /// Of the container at scale 1, in points; the views scale with it.
    Q_PROPERTY(double panelWidth READ panelWidth CONSTANT FINAL)
    Q_PROPERTY(double panelHeight READ panelHeight CONSTANT FINAL)
    Q_PROPERTY(QString symbol READ symbol CONSTANT FINAL)
    Q_PROPERTY(QString heading READ heading CONSTANT FINAL)
    Q_PROPERTY(QString accessibleName READ accessibleName CONSTANT FINAL)
    Q_PROPERTY(bool translucent READ translucent NOTIFY translucentChanged FINAL)

public:
    [[nodiscard]] WidgetKind kind() const { return kind_; }
    [[nodiscard]] QUrl view() const;
    [[nodiscard]] double panelWidth() const { return defaultSize(kind_).width; }
    [[nodiscard]] double panelHeight() const { return defaultSize(kind_).height; }
    [[nodiscard]] QString symbol() const;
    /// Empty if the gadget has a header of its own.
    [[nodiscard]] QString heading() const;
    [[nodiscard]] QString accessibleName() const;
    [[nodiscard]] bool translucent() const { return translucent_; }

    /// Whether the desktop may show through the container; initially true.
    void setTranslucent(bool translucent);

Q_SIGNALS:
    void translucentChanged();

protected:
    explicit GadgetPresenter(WidgetKind kind) : kind_(kind) {}
    /// Updates whenever `changes` is emitted.
    GadgetPresenter(WidgetKind kind, Signal<>& changes);

private:
    const WidgetKind kind_;
    bool translucent_ = true;
    Connection changes_;
};

}  // namespace tidewatch
