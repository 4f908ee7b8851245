#include "ui/ui_scene.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QtTest/QTest>

#include "ui/style/style.h"

namespace tidewatch {
namespace {

/// Rows of a list have no QObject parent and are only found in the tree of visual items.
QQuickItem* findShown(QQuickItem& in, const QString& name) {
    if (in.objectName() == name) return &in;
    for (auto* child : in.childItems()) {
        if (auto* found = findShown(*child, name)) return found;
    }
    return nullptr;
}

}  // namespace

UiScene::UiScene() {
    QObject::connect(&engine_, &QQmlEngine::warnings, &engine_, [this](const QList<QQmlError>& errors) {
        for (const auto& error : errors) viewWarnings_.append(error.toString());
    });
}

UiScene::~UiScene() = default;

void UiScene::show(const QString& source, QSize size, const QVariantMap& properties) {
    view_.reset();
    QQmlComponent component(&engine_);
    component.setData(("import QtQuick\nimport Tidewatch.Ui\n" + source).toUtf8(), QUrl());
    std::unique_ptr<QObject> object(component.createWithInitialProperties(properties));
    auto* item = qobject_cast<QQuickItem*>(object.get());
    if (item == nullptr) qFatal("%s", qPrintable(component.errorString()));
    static_cast<void>(object.release());
    view_.reset(item);
    Style::of(engine_)->follow(theme_);
    view_->setParentItem(window_.contentItem());
    window_.resize(size);
    window_.show();
    window_.requestActivate();
    if (!QTest::qWaitForWindowActive(&window_, 60'000)) qFatal("the window does not become active");
}

QQuickItem* UiScene::item(const QString& name) const {
    return findShown(*view_, name);
}

void UiScene::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&window_, key, modifiers);
}

void UiScene::click(const QQuickItem& target) {
    click(target, {target.width() / 2, target.height() / 2});
}

void UiScene::click(const QQuickItem& target, QPointF place) {
    QTest::mouseClick(&window_, Qt::LeftButton, Qt::NoModifier, target.mapToScene(place).toPoint());
}

QRectF UiScene::placeOf(const QQuickItem& shown) {
    return shown.mapRectToScene({0, 0, shown.width(), shown.height()});
}

QImage UiScene::picture() {
    QCoreApplication::processEvents();
    return window_.grabWindow();
}

}  // namespace tidewatch
