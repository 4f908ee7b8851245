#pragma once

#include <qqmlregistration.h>
#include <QQuickItem>
#include <memory>

#include "ui/models/pane.h"

namespace tidewatch {

/// Shows a pane: creates its view, as large as itself, and destroys the previous one. Its implicit size is
/// that of the view. Not the toolkit's
/// Loader, which is a focus scope and would keep the focus of a destroyed view.
class PaneView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tidewatch::Pane pane READ pane WRITE setPane NOTIFY paneChanged FINAL)
    /// The pane's view; null if there is none.
    Q_PROPERTY(QQuickItem* view READ view NOTIFY paneChanged FINAL)

public:
    explicit PaneView(QQuickItem* parent = nullptr);
    ~PaneView() override;

    [[nodiscard]] Pane pane() const { return pane_; }
    /// A view that cannot be created is an engine warning, and nothing is shown.
    void setPane(const Pane& pane);
    [[nodiscard]] QQuickItem* view() const { return view_.get(); }

Q_SIGNALS:
    void paneChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF& geometry, const QRectF& before) override;

private:
    void makeView();
    void followImplicitSize();

    Pane pane_;
    std::unique_ptr<QQuickItem> view_;
};

}  // namespace tidewatch
