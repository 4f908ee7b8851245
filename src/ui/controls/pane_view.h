#pragma once

#include <qqmlregistration.h>
#include <QQuickItem>
#include <memory>

#include "ui/models/pane.h"

namespace tidewatch {

/// The place where a pane is on show: makes the view of the one that it is given, as large as itself, and
/// lets go of the one before. Not the toolkit's loader, which is a focus scope, and would keep the focus of a
/// view that is gone.
class PaneView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tidewatch::Pane pane READ pane WRITE setPane NOTIFY paneChanged FINAL)

public:
    explicit PaneView(QQuickItem* parent = nullptr);
    ~PaneView() override;

    [[nodiscard]] Pane pane() const { return pane_; }
    /// A view that cannot be made is a warning of the engine, and nothing on show.
    void setPane(const Pane& pane);

Q_SIGNALS:
    void paneChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF& geometry, const QRectF& before) override;

private:
    void makeView();

    Pane pane_;
    std::unique_ptr<QQuickItem> view_;
};

}  // namespace tidewatch
