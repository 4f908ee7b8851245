#pragma once

#include <QDialog>

#include "shell/surfaces.h"
#include "shell/themes/dashboard_style.h"

class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace tidewatch {

/// A small dialog in the active theme's colours: a title, a text, optionally a field, an accept button and
/// optionally a cancel button. A name in its title or text is elided to one line. Deletes itself when
/// answered.
class QuestionDialog final : public QDialog {
public:
    QuestionDialog(const TextWithName& title, const TextWithName& text, const DashboardStyle& style);

    /// `width` in points. The field has the focus; the dialog owns it.
    QLineEdit* addField(double width, const QString& placeholder, const QString& initial);

    enum class Cancel { absent, offered };

    /// Adds the accept button, the default, and optionally the cancel button. Must be called last.
    void addButtons(const QString& accept, Cancel cancel);

    /// Shows it centred on the screen with the mouse, above other windows.
    void present();

private:
    QLabel* addText(const char* name, const TextWithName& text);

    QVBoxLayout* rows_;
};

}  // namespace tidewatch
