#include "shell/windows/question_dialog.h"

#include <QCursor>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStringList>
#include <QTextBoundaryFinder>
#include <QVBoxLayout>
#include <limits>

#include "shell/windows/elided_text.h"
#include "shell/windows/menu_style.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {

namespace {

constexpr int textWidth = 320;
constexpr int margin = 24;

constexpr int maxLines = 24;

/// The text wrapped at `textWidth`, after a slash where possible. The middle is left out of text that would
/// take more than `maxLines` lines.
QString wrapped(const QString& text, const QFontMetricsF& metrics) {
    const auto rest = metrics.elidedText(text, Qt::ElideMiddle, double{textWidth} * (maxLines - 1));
    QStringList lines;
    QString line;
    QTextBoundaryFinder ends(QTextBoundaryFinder::Grapheme, rest);
    for (qsizetype at = 0; at < rest.size();) {
        const auto end = ends.toNextBoundary();
        const auto character = rest.mid(at, end - at);
        if (metrics.horizontalAdvance(line + character) > textWidth && !line.isEmpty()) {
            const auto afterSlash = line.lastIndexOf(u'/') + 1;
            const auto kept = afterSlash > line.size() / 2 ? afterSlash : line.size();
            lines += line.left(kept);
            line.remove(0, kept);
        }
        line += character;
        at = end;
    }
    return (lines << line).join(u'\n');
}

/// The text as it fits into lines of `textWidth`: its name elided to the rest of its line, and too long a
/// word elided to a line. What follows a line break is wrapped, not elided.
QString fitted(const TextWithName& text, const QFont& font) {
    const QFontMetricsF metrics(font);
    const auto before = tidewatch::text(text.before);
    const auto after = tidewatch::text(text.after);
    const double free =
        textWidth - metrics.horizontalAdvance(before) - metrics.horizontalAdvance(after.section(u'\n', 0, 0));
    if (!text.name.empty()) return before + elidedLine(text.name, font, free) + after;
    auto paragraphs = (before + after).split(u'\n');
    auto words = paragraphs.front().split(u' ');
    for (auto& word : words) word = metrics.elidedText(word, Qt::ElideMiddle, textWidth);
    paragraphs.front() = words.join(u' ');
    for (qsizetype i = 1; i < paragraphs.size(); ++i) paragraphs[i] = wrapped(paragraphs[i], metrics);
    return paragraphs.join(u'\n');
}

/// The text as a screen reader gets it: a name as elided, a path without the line breaks of wrapping.
QString accessibleText(const TextWithName& text, const QLabel& shown) {
    return text.name.empty() ? tidewatch::text(text.whole()) : shown.text();
}

}  // namespace

QuestionDialog::QuestionDialog(const TextWithName& title, const TextWithName& text,
                               const DashboardStyle& style)
    : rows_(new QVBoxLayout(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    setStyleSheet(dialogStyleSheet(style));
    rows_->setContentsMargins(margin, margin, margin, margin);
    rows_->setSpacing(12);
    rows_->setSizeConstraint(QLayout::SetFixedSize);
    setWindowTitle(addText("title", title)->text());
    setAccessibleDescription(accessibleText(text, *addText("text", text)));
}

QLabel* QuestionDialog::addText(const char* name, const TextWithName& text) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFixedWidth(textWidth);
    label->ensurePolished();
    label->setText(fitted(text, label->font()));
    if (const auto whole = accessibleText(text, *label); whole != label->text())
        label->setAccessibleName(whole);
    rows_->addWidget(label);
    return label;
}

QLineEdit* QuestionDialog::addField(double width, const QString& placeholder, const QString& initial) {
    auto* field = new QLineEdit;
    // The toolkit's own limit would truncate a name that is only to be confirmed.
    field->setMaxLength(std::numeric_limits<int>::max());
    field->setText(initial);
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
        auto* cancelButton = new QPushButton("Cancelar");
        cancelButton->setAutoDefault(false);
        connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
        row->addWidget(cancelButton);
    }
    auto* acceptButton = new QPushButton(accept);
    acceptButton->setDefault(true);
    connect(acceptButton, &QPushButton::clicked, this, &QDialog::accept);
    row->addWidget(acceptButton);
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
