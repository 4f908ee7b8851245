#include "shell/windows/question_dialog.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include "shell/themes/theme_registry.h"

namespace tidewatch {
namespace {

class QuestionDialogTest : public testing::Test {
protected:
    ~QuestionDialogTest() override { delete dialog_; }

    QuestionDialog& make(const TextWithName& title, const TextWithName& text) {
        dialog_ = new QuestionDialog(title, text, themes_.themes().front().dashboard);
        return *dialog_;
    }

    [[nodiscard]] QLabel& label(const char* name) const { return *dialog_->findChild<QLabel*>(name); }

    [[nodiscard]] QPushButton& button(const char* words) const {
        for (auto* each : dialog_->findChildren<QPushButton*>()) {
            if (each->text() == words) return *each;
        }
        throw std::out_of_range(std::string("no button ") + words);
    }

    [[nodiscard]] bool isGone() const {
        return QTest::qWaitFor([this] { return dialog_.isNull(); });
    }

    ThemeRegistry themes_;
    QPointer<QuestionDialog> dialog_;
};

TEST_F(QuestionDialogTest, TheFieldIsAsWideAsAskedAndHasTheFocusWithItsTextSelected) {
    for (const double width : {240.0, 280.0}) {
        auto& dialog = make({"Renombrar proyecto"}, {"Nuevo nombre para \"", "Corto", "\":"});
        auto* field = dialog.addField(width, "p.ej. LMN Juvenil", "Corto");
        dialog.addButtons("Cambiar", QuestionDialog::Cancel::offered);
        dialog.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        EXPECT_EQ(field->width(), static_cast<int>(width));
        EXPECT_TRUE(field->hasFocus());
        EXPECT_EQ(field->selectedText(), "Corto");
        EXPECT_EQ(field->placeholderText(), "p.ej. LMN Juvenil");
        delete dialog_;
    }
}

TEST_F(QuestionDialogTest, CancellingRefusesAndGoes) {
    auto& dialog = make({"Nuevo proyecto"}, {"Nombre del proyecto:"});
    dialog.addButtons("Crear", QuestionDialog::Cancel::offered);
    int accepted = 0;
    QObject::connect(&dialog, &QDialog::accepted, &dialog, [&] { ++accepted; });
    dialog.present();
    EXPECT_EQ(dialog.findChildren<QPushButton*>().size(), 2);
    QTest::mouseClick(&button("Cancelar"), Qt::LeftButton);
    EXPECT_TRUE(isGone());
    EXPECT_EQ(accepted, 0);
}

TEST_F(QuestionDialogTest, EscapeRefusesAndReturnInTheFieldAccepts) {
    int accepted = 0;
    for (const auto key : {Qt::Key_Escape, Qt::Key_Return}) {
        auto& dialog = make({"Nuevo proyecto"}, {"Nombre del proyecto:"});
        auto* field = dialog.addField(240, "", "");
        dialog.addButtons("Crear", QuestionDialog::Cancel::offered);
        QObject::connect(&dialog, &QDialog::accepted, &dialog, [&] { ++accepted; });
        dialog.present();
        QTest::keyClick(field, key);
        EXPECT_TRUE(isGone());
        EXPECT_EQ(accepted, key == Qt::Key_Return ? 1 : 0);
    }
}

TEST_F(QuestionDialogTest, AMessageHasOneButton) {
    auto& dialog = make({"No se pudo escribir el archivo"}, {"No space left on device"});
    dialog.addButtons("OK", QuestionDialog::Cancel::absent);
    dialog.present();
    ASSERT_EQ(dialog.findChildren<QPushButton*>().size(), 1);
    QTest::mouseClick(&button("OK"), Qt::LeftButton);
    EXPECT_TRUE(isGone());
}

TEST_F(QuestionDialogTest, AShortNameIsShownWhole) {
    make({"Borrar \"", "Corto de verano", "\""}, {"Esto elimina el proyecto."});
    EXPECT_EQ(label("title").text(), "Borrar \"Corto de verano\"");
    EXPECT_EQ(dialog_->windowTitle(), "Borrar \"Corto de verano\"");
    EXPECT_EQ(label("text").text(), "Esto elimina el proyecto.");
}

TEST_F(QuestionDialogTest, ANameOf50000LettersOrWithLineBreaksIsOneLineBetweenItsQuotes) {
    for (const auto& name :
         {std::string(50'000, 'W'), "Uno\n" + std::string(50'000, '\n') + std::string(300, 'W')}) {
        make({"Borrar \"", name, "\""}, {"Nuevo nombre para \"", name, "\":"});
        EXPECT_TRUE(label("title").text().startsWith("Borrar \"")) << label("title").text().toStdString();
        EXPECT_TRUE(label("title").text().endsWith("…\""));
        EXPECT_TRUE(label("text").text().endsWith("…\":"));
        for (const auto* each : {&label("title"), &label("text")}) {
            EXPECT_LE(QFontMetricsF(each->font()).horizontalAdvance(each->text()), each->width());
            EXPECT_FALSE(each->text().contains(u'\n'));
        }
        EXPECT_LT(dialog_->sizeHint().height(), 200);
        delete dialog_;
    }
}

TEST_F(QuestionDialogTest, AWordThatIsWiderThanTheDialogIsCutInItsMiddle) {
    make({"No se pudo escribir el archivo"},
         {"/home/user/" + std::string(255, 'x') + ": No space left on device"});
    EXPECT_TRUE(label("text").text().startsWith("/home/user/"));
    EXPECT_TRUE(label("text").text().endsWith(" No space left on device"));
    EXPECT_LT(label("text").text().size(), 120);
}

TEST_F(QuestionDialogTest, APathOnLinesOfItsOwnIsShownWholeHoweverLongItIs) {
    const QString words = "El archivo está aquí:";
    for (const auto& path :
         {QString("/home/user/.tidewatch/today.json"), "/home/" + QString(250, 'W') + "/today.json",
          "/home/" + QString("una carpeta con un nombre largo/").repeated(12) + "today.json",
          "/home/" + QString("\u00e1").repeated(200)}) {
        make({"No se pudo mostrar"}, {(words + "\n" + path).toStdString()});
        auto lines = label("text").text().split(u'\n');
        EXPECT_EQ(lines.takeFirst(), words);
        EXPECT_EQ(lines.join(""), path);
        const QFontMetricsF metrics(label("text").font());
        for (const auto& line : lines) EXPECT_LE(metrics.horizontalAdvance(line), label("text").width());
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&label("text"))->text(QAccessible::Name),
                  words + "\n" + path);
        EXPECT_EQ(dialog_->accessibleDescription(), words + "\n" + path);
        EXPECT_GT(dialog_->sizeHint().height(), metrics.height() * static_cast<double>(1 + lines.size()));
        delete dialog_;
    }
}

TEST_F(QuestionDialogTest, APathAsLongAsTheKernelTakesLeavesTheDialogOnTheScreen) {
    make({"No se pudo mostrar"}, {"Está aquí:\n/" + std::string(4094, 'x') + "z"});
    EXPECT_TRUE(label("text").text().endsWith("z"));
    EXPECT_LT(dialog_->sizeHint().height(), 620);
}

TEST_F(QuestionDialogTest, TheFieldHoldsTheWholeOfAnyName) {
    auto& dialog = make({"Renombrar proyecto"}, {""});
    const auto letters = QString(50'000, 'x');
    EXPECT_EQ(dialog.addField(280, "", letters)->text(), letters);
    EXPECT_EQ(dialog.addField(280, "", "Uno\nDos")->text(), "Uno\nDos");
}

}  // namespace
}  // namespace tidewatch
