#include "shell/views/clock_scene.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QVariantMap>
#include <utility>

#include "ui/style/style.h"

namespace tidewatch {

ClockWorld::ClockWorld() {
    machine_.putAppInFront("org.example.Editor");
    startAt(Seconds(0));
}

void ClockWorld::startAt(Seconds today) {
    presenter_.reset();
    fixture_->days.set(today, fixture_->dayRule.today());
    fixture_->days.flush();
    fixture_ = std::make_unique<test::CoreFixture>(machine_);
    presenter_ =
        std::make_unique<ClockPresenter>(fixture_->engine, theme_, machine_.clock, [this] { return stars_; });
    fixture_->engine.start();
}

ClockScene::ClockScene() {
    window_.setColor(Qt::transparent);
    QObject::connect(&engineOfViews_, &QQmlEngine::warnings, &engineOfViews_,
                     [this](const QList<QQmlError>& errors) {
                         for (const auto& error : errors) viewWarnings_.append(error.toString());
                     });
}

ClockScene::~ClockScene() = default;

void ClockScene::show(double scale, int margin) {
    view_.reset();
    QQmlComponent component(&engineOfViews_);
    component.setData("import Tidewatch.Shell\nContentView {}", QUrl());
    const QVariantMap properties{{"presenter", QVariant::fromValue(presenter_.get())}};
    if (!component.isReady()) qFatal("%s", qPrintable(component.errorString()));
    std::unique_ptr<QObject> object(component.createWithInitialProperties(properties));
    auto* item = qobject_cast<QQuickItem*>(object.get());
    if (item == nullptr) qFatal("%s", qPrintable(component.errorString()));
    static_cast<void>(object.release());
    view_.reset(item);
    Style::of(engineOfViews_)->follow(theme_);
    const auto size = theme_.active().size;
    view_->setParentItem(window_.contentItem());
    view_->setSize({size.width * scale, size.height * scale});
    view_->setPosition({static_cast<double>(margin), static_cast<double>(margin)});
    window_.resize(static_cast<int>(std::ceil(size.width * scale)) + 2 * margin,
                   static_cast<int>(std::ceil(size.height * scale)) + 2 * margin);
    window_.show();
    QCoreApplication::processEvents();
}

QQuickItem* ClockScene::item(const QString& name) const {
    return view_->findChild<QQuickItem*>(name);
}

QImage ClockScene::picture() {
    QCoreApplication::processEvents();
    return window_.grabWindow();
}

}  // namespace tidewatch
