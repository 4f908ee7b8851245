#include "shell/windows/question_dialog.h"

#include <QCursor>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "shell/windows/menu_style.h"

namespace tidewatch {

namespace {

constexpr int textWidth = 320;
constexpr int margin = 24;

}  // namespace

QuestionDialog::QuestionDialog(const QString& title, const QString& text, const DashboardStyle& style)
    : rows_(new QVBoxLayout(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    setWindowTitle(title);
    setAccessibleDescription(text);
    setStyleSheet(dialogStyleSheet(style));
    rows_->setContentsMargins(margin, margin, margin, margin);
    rows_->setSpacing(12);
    rows_->setSizeConstraint(QLayout::SetFixedSize);
    for (const auto& [name, words] : {std::pair("title", title), std::pair("text", text)}) {
        auto* label = new QLabel(words);
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setFixedWidth(textWidth);
        rows_->addWidget(label);
    }
}

QLineEdit* QuestionDialog::addField(double width, const QString& placeholder, const QString& initial) {
    auto* field = new QLineEdit(initial);
    field->setPlaceholderText(placeholder);
    field->setFixedWidth(static_cast<int>(width));
    field->setAccessibleName(windowTitle());
    field->selectAll();
    rows_->addWidget(field);
    field->setFocus();
    return field;
}

void QuestionDialog::addButtons(const QString& accept, Cancel cancel) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    if (cancel == Cancel::offered) {
        auto* refusing = new QPushButton("Cancelar");
        refusing->setAutoDefault(false);
        connect(refusing, &QPushButton::clicked, this, &QDialog::reject);
        row->addWidget(refusing);
    }
    auto* acting = new QPushButton(accept);
    acting->setDefault(true);
    connect(acting, &QPushButton::clicked, this, &QDialog::accept);
    row->addWidget(acting);
    rows_->addSpacing(8);
    rows_->addLayout(row);
}

void QuestionDialog::present() {
    adjustSize();
    if (const auto* screen = QGuiApplication::screenAt(QCursor::pos())) {
        move(screen->availableGeometry().center() - rect().center());
    }
    show();
    raise();
    activateWindow();
}

}  // namespace tidewatch
