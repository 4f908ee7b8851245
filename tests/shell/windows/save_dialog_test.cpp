#include "shell/windows/save_dialog.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "shell/themes/theme_registry.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch {
namespace {

class SaveDialogTest : public testing::Test {
protected:
    void present(const SaveRequest& request) {
        dialog_ = presentSaveDialog(request, QString::fromStdString(folder_.path()),
                                    themes_.themes().front().dashboard,
                                    [this](const QString& path) { answers_.push_back(path.toStdString()); });
    }

    void type(const QString& name) const { dialog_->findChild<QLineEdit*>("fileNameEdit")->setText(name); }

    void press(QDialogButtonBox::StandardButton button) const {
        QTest::mouseClick(dialog_->findChild<QDialogButtonBox*>("buttonBox")->button(button), Qt::LeftButton);
    }

    /// Answers the question that is about to block the next press.
    static void answerNextQuestion(QMessageBox::StandardButton button) {
        QTimer::singleShot(0, [button] {
            auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(question, nullptr);
            QTest::mouseClick(question->button(button), Qt::LeftButton);
        });
    }

    [[nodiscard]] bool isGone() const {
        return QTest::qWaitFor([this] { return dialog_.isNull(); }, 60'000);
    }

    using Answers = std::vector<std::string>;

    test::TemporaryDirectory folder_;
    ThemeRegistry themes_;
    QPointer<QFileDialog> dialog_;
    Answers answers_;
    const SaveRequest csv_{"Exportar día", "tidewatch-2026-01-15.csv", SaveKind::csv};
};

TEST_F(SaveDialogTest, ProposesTheNameUnderTheTitleInTheFolder) {
    present(csv_);
    EXPECT_EQ(dialog_->windowTitle(), "Exportar día");
    EXPECT_EQ(dialog_->findChild<QLineEdit*>("fileNameEdit")->text(), "tidewatch-2026-01-15.csv");
    EXPECT_EQ(dialog_->directory().path().toStdString(), folder_.path());
    EXPECT_EQ(dialog_->nameFilters(), QStringList("Valores separados por comas (*.csv)"));
    dialog_->reject();
}

TEST_F(SaveDialogTest, GivesTheProposedPlaceAndGoes) {
    present(csv_);
    press(QDialogButtonBox::Save);
    EXPECT_EQ(answers_, Answers{folder_.path() + "/tidewatch-2026-01-15.csv"});
    EXPECT_TRUE(isGone());
}

TEST_F(SaveDialogTest, ANameWithoutAnExtensionGetsTheKindsOwn) {
    present({"Guardar reporte", "fathom-reporte.pdf", SaveKind::pdf});
    type("enero");
    press(QDialogButtonBox::Save);
    EXPECT_EQ(answers_, Answers{folder_.path() + "/enero.pdf"});
}

TEST_F(SaveDialogTest, CancellingGivesNothing) {
    present(csv_);
    press(QDialogButtonBox::Cancel);
    EXPECT_TRUE(isGone());
    EXPECT_EQ(answers_, Answers{});
}

TEST_F(SaveDialogTest, ClosingGivesNothing) {
    present(csv_);
    dialog_->close();
    EXPECT_TRUE(isGone());
    EXPECT_EQ(answers_, Answers{});
}

TEST_F(SaveDialogTest, AFileThatIsThereIsReplacedOnlyIfTheUserSaysSo) {
    folder_.write("tidewatch-2026-01-15.csv", "old");
    present(csv_);
    answerNextQuestion(QMessageBox::No);
    press(QDialogButtonBox::Save);
    EXPECT_EQ(answers_, Answers{});
    EXPECT_TRUE(dialog_->isVisible());
    answerNextQuestion(QMessageBox::Yes);
    press(QDialogButtonBox::Save);
    EXPECT_EQ(answers_.size(), 1U);
}

TEST_F(SaveDialogTest, IsReadableInEveryTheme) {
    for (const auto& theme : themes_.themes()) {
        const auto* dialog = presentSaveDialog(csv_, QString::fromStdString(folder_.path()), theme.dashboard,
                                               [](const auto&) {});
        const auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
        const auto contrast = qAbs(name->palette().color(QPalette::Text).lightnessF() -
                                   name->palette().color(QPalette::Base).lightnessF());
        EXPECT_GT(contrast, 0.4F) << theme.id;
        delete dialog;
    }
}

}  // namespace
}  // namespace tidewatch
