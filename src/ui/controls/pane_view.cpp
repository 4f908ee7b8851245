#include "ui/controls/pane_view.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlInfo>

namespace tidewatch {

PaneView::PaneView(QQuickItem* parent) : QQuickItem(parent) {}
PaneView::~PaneView() = default;

void PaneView::setPane(const Pane& pane) {
    if (pane == pane_) return;
    pane_ = pane;
    if (isComponentComplete()) makeView();
    Q_EMIT paneChanged();
}

void PaneView::componentComplete() {
    QQuickItem::componentComplete();
    makeView();
}

void PaneView::geometryChange(const QRectF& geometry, const QRectF& before) {
    QQuickItem::geometryChange(geometry, before);
    if (view_) view_->setSize(size());
}

void PaneView::makeView() {
    // This may be called from one of its own signals.
    if (view_) {
        view_->setVisible(false);
        view_->setParentItem(nullptr);
        view_.release()->deleteLater();
    }
    setImplicitSize(0, 0);
    if (pane_.view.isEmpty()) return;
    QQmlComponent component(qmlEngine(this), pane_.view);
    auto* object = component.beginCreate(qmlContext(this));
    view_.reset(qobject_cast<QQuickItem*>(object));
    if (!view_) {
        qmlWarning(this, component.errors()) << "no view for " << pane_.id;
        delete object;
        return;
    }
    QQmlEngine::setObjectOwnership(view_.get(), QQmlEngine::CppOwnership);
    component.setInitialProperties(
        view_.get(), {{"title", pane_.title}, {"presenter", QVariant::fromValue(pane_.presenter)}});
    view_->setParentItem(this);
    view_->setSize(size());
    component.completeCreate();
    for (const auto changed : {&QQuickItem::implicitWidthChanged, &QQuickItem::implicitHeightChanged}) {
        connect(view_.get(), changed, this, &PaneView::followImplicitSize);
    }
    followImplicitSize();
}

void PaneView::followImplicitSize() {
    if (view_) setImplicitSize(view_->implicitWidth(), view_->implicitHeight());
}

}  // namespace tidewatch
