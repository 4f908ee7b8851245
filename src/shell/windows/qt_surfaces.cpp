#include "shell/windows/qt_surfaces.h"

#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QQmlComponent>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "shell/windows/menu_style.h"
#include "shell/windows/menu_view.h"
#include "shell/windows/question_dialog.h"
#include "shell/windows/save_dialog.h"
#include "shell/windows/tray_status_item.h"
#include "ui/style/fonts.h"
#include "ui/style/style.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {

namespace {

constexpr int hintMilliseconds = 9000;
constexpr int hintWidth = 260;
constexpr int hintGap = 8;

}  // namespace

QtSurfaces::QtSurfaces(Dependencies dependencies) : dependencies_(std::move(dependencies)) {
    engine_.setNetworkAccessManagerFactory(&noNetwork_);
}

QtSurfaces::~QtSurfaces() = default;

void QtSurfaces::registerFonts() {
    tidewatch::registerFonts();
}

std::unique_ptr<FloatingWindow> QtSurfaces::makeClockWindow(PanelSize size) {
    auto view = makeView("ContentView", dependencies_.clock);
    // Without it the clock is blank, but time is counted.
    if (!view) view = std::make_unique<QQuickItem>();
    QuickFloatingWindow::Content content{
        .title = "Tidewatch",
        .item = std::move(view),
        .cornerRadius =
            [this](PanelSize panel) {
                const auto& theme = dependencies_.theme.active();
                return theme.cornerRadius * panel.width / theme.size.width;
            },
        .setTranslucent = [this](bool translucent) { dependencies_.clock.setTranslucent(translucent); },
        .setOnScreen = [this](bool onScreen) { dependencies_.clock.setOnScreen(onScreen); },
    };
    auto window = std::make_unique<QuickFloatingWindow>(dependencies_.windowSystem, WindowLayer::above,
                                                        std::move(content), size);
    clockWindow_ = window.get();
    return window;
}

std::unique_ptr<FloatingWindow> QtSurfaces::makeWidgetWindow(WidgetKind kind, PanelSize size) {
    return std::make_unique<QuickFloatingWindow>(dependencies_.windowSystem, WindowLayer::below,
                                                 dependencies_.widgetContent(kind), size);
}

std::unique_ptr<StatusItem> QtSurfaces::makeStatusItem() {
    return std::make_unique<TrayStatusItem>(dependencies_.theme);
}

std::unique_ptr<QQuickItem> QtSurfaces::makeView(const QByteArray& name, QObject& presenter,
                                                 const QByteArray& module) {
    QQmlComponent component(&engine_);
    component.setData("import " + module + "\n" + name + " {}", QUrl());
    if (!component.isReady()) return brokenView(name, component.errorString());
    // The style is available only once its module has been imported.
    Style::of(engine_)->follow(dependencies_.theme);
    const QVariantMap properties{{"presenter", QVariant::fromValue(&presenter)}};
    std::unique_ptr<QObject> object(component.createWithInitialProperties(properties));
    auto* item = qobject_cast<QQuickItem*>(object.get());
    if (item == nullptr) return brokenView(name, component.errorString());
    static_cast<void>(object.release());
    return std::unique_ptr<QQuickItem>(item);
}

std::unique_ptr<QQuickItem> QtSurfaces::brokenView(const QByteArray& name, const QString& errors) {
    dependencies_.log.warning("Tidewatch: failed to make the view " + name.toStdString() + ": " +
                              errors.simplified().toStdString());
    return nullptr;
}

void QtSurfaces::clearViewCache() {
    engine_.collectGarbage();
    engine_.trimComponentCache();
}

void QtSurfaces::popUpMenu(const MenuRows& rows, platform::Point at) {
    if (menu_) menu_->close();
    menu_ = new MenuView(rows, dependencies_.theme.active().dashboard);
    menu_->popup(QPointF(at.x, at.y).toPoint());
}

void QtSurfaces::showHint(const std::string& hint) {
    auto* label = new QLabel(text(hint), nullptr, Qt::ToolTip);
    label->setTextFormat(Qt::PlainText);
    label->setAttribute(Qt::WA_DeleteOnClose);
    label->setWordWrap(true);
    label->setFixedWidth(hintWidth);
    label->setStyleSheet(hintStyleSheet(dependencies_.theme.active().dashboard));
    label->adjustSize();
    if (clockWindow_ && clockWindow_->screen() != nullptr) {
        const auto free = clockWindow_->screen()->availableGeometry();
        const auto clock = clockWindow_->geometry();
        label->move(std::max(free.left(), clock.right() + 1 - label->width()),
                    std::min(clock.bottom() + hintGap, free.bottom() - label->height()));
    }
    label->show();
    QTimer::singleShot(hintMilliseconds, label, &QWidget::close);
}

void QtSurfaces::warn(const std::string& title, const std::string& message) {
    auto* dialog = new QuestionDialog({title}, {message}, dependencies_.theme.active().dashboard);
    dialog->addButtons("OK", QuestionDialog::Cancel::absent);
    dialog->present();
}

void QtSurfaces::ask(const TextPrompt& prompt, std::function<void(std::string)> accepted) {
    auto* dialog = new QuestionDialog({prompt.title}, prompt.text, dependencies_.theme.active().dashboard);
    auto* field = dialog->addField(prompt.fieldWidth, text(prompt.placeholder), text(prompt.initial));
    dialog->addButtons(text(prompt.accept), QuestionDialog::Cancel::offered);
    QObject::connect(dialog, &QDialog::accepted, field,
                     [field, accepted = std::move(accepted)] { accepted(field->text().toStdString()); });
    dialog->present();
}

void QtSurfaces::confirm(const Confirmation& question, std::function<void()> accepted) {
    auto* dialog = new QuestionDialog(question.title, question.text, dependencies_.theme.active().dashboard);
    dialog->addButtons(text(question.accept), QuestionDialog::Cancel::offered);
    QObject::connect(dialog, &QDialog::accepted, dialog, accepted);
    dialog->present();
}

void QtSurfaces::chooseSaveLocation(const SaveRequest& request, std::function<void(std::string)> accepted) {
    if (saveFolder_.isEmpty()) saveFolder_ = text(dependencies_.desktop.documentsDirectory());
    presentSaveDialog(request, saveFolder_, dependencies_.theme.active().dashboard,
                      [this, accepted = std::move(accepted)](const QString& path) {
                          saveFolder_ = QFileInfo(path).absolutePath();
                          accepted(path.toStdString());
                      });
}

}  // namespace tidewatch
