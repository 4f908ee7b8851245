#pragma once

#include <QDialog>

#include "shell/surfaces.h"
#include "shell/themes/dashboard_style.h"

class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace tidewatch {

/// A small question in the colours of the active theme: a title, a text, perhaps a field, the button that
/// acts and perhaps one that does not. A name in its title or text takes one line, cut where it is longer.
/// Deletes itself when it is answered.
class QuestionDialog final : public QDialog {
public:
    QuestionDialog(const TextWithName& title, const TextWithName& text, const DashboardStyle& style);

    /// `width` in points. The field has the focus; the dialog owns it.
    QLineEdit* addField(double width, const QString& placeholder, const QString& initial);

    enum class Cancel { absent, offered };

    /// The first button acts; the return key chooses it. To be called last.
    void addButtons(const QString& accept, Cancel cancel);

    /// Shows it in the middle of the screen that has the mouse, above the others.
    void present();

private:
    QLabel* addText(const char* name, const TextWithName& text);

    QVBoxLayout* rows_;
};

}  // namespace tidewatch
