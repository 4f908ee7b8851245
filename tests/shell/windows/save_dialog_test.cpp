#include "shell/windows/save_dialog.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QIcon>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "shell/themes/theme_registry.h"
#include "shell/windows/safe_file_icons.h"
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

    [[nodiscard]] QLineEdit& nameField() const { return *dialog_->findChild<QLineEdit*>("fileNameEdit"); }

    void type(const QString& name) const { nameField().setText(name); }

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

TEST_F(SaveDialogTest, AnyProposedNameIsShownAndGivenLetterByLetter) {
    for (const std::string name : {
             "tidewatch-Pantalla 27\".csv",
             "tidewatch-\"Corto\".csv",
             "tidewatch-\"a\" \"b\".csv",
             "tidewatch-A-B.csv",
             "tidewatch-.oculto.csv",
             "tidewatch-...csv",
             "tidewatch-..csv",
             ".csv",
             "~corto.csv",
             "tidewatch-Uno\nDos\r\n.csv",
             "tidewatch-\u2028.csv",
             "tidewatch-ñandú e\u0301 映画 👨‍👩‍👧‍👦.csv",
             "tidewatch-\u202Eשלום.csv",
             "tidewatch- a\\b:c*d?e|f<g>h$i%20.csv",
         }) {
        present({"Exportar proyecto", name, SaveKind::csv});
        EXPECT_EQ(nameField().text().toStdString(), name);
        press(QDialogButtonBox::Save);
        EXPECT_EQ(answers_, Answers{folder_.path() + "/" + name});
        EXPECT_TRUE(isGone());
        answers_.clear();
    }
}

TEST_F(SaveDialogTest, AProposedNameThatIsTooLongIsShortenedSoThatTheFileCanBeWritten) {
    std::string letters;
    for (int i = 0; i < 200; ++i) letters += "ñ";
    for (const std::string& name : {letters, std::string(50'000, 'x')}) {
        present({"Exportar proyecto", "tidewatch-" + name + ".csv", SaveKind::csv});
        press(QDialogButtonBox::Save);
        ASSERT_EQ(answers_.size(), 1U);
        EXPECT_TRUE(answers_[0].starts_with(folder_.path() + "/tidewatch-" + name.substr(0, 200)));
        EXPECT_TRUE(answers_[0].ends_with(".csv"));
        QFile file(QString::fromStdString(answers_[0]));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << answers_[0].size();
        EXPECT_TRUE(isGone());
        answers_.clear();
    }
}

TEST_F(SaveDialogTest, ATypedNameWithQuotesIsOneName) {
    present(csv_);
    type("el \"bueno\"");
    press(QDialogButtonBox::Save);
    EXPECT_EQ(answers_, Answers{folder_.path() + "/el \"bueno\".csv"});
}

TEST_F(SaveDialogTest, ATypedNameWithADotGetsItsExtensionAndOneThatHasItKeepsIt) {
    for (const auto& [typed, file] : {std::pair("v1.2", "v1.2.csv"), std::pair("v1.CSV", "v1.CSV")}) {
        present(csv_);
        type(typed);
        press(QDialogButtonBox::Save);
        EXPECT_EQ(answers_, Answers{folder_.path() + "/" + file});
        EXPECT_TRUE(isGone());
        answers_.clear();
    }
}

TEST_F(SaveDialogTest, ATypedFolderIsEntered) {
    QDir(QString::fromStdString(folder_.path())).mkdir("años \"80\"");
    present(csv_);
    type("años \"80\"");
    press(QDialogButtonBox::Save);
    EXPECT_EQ(answers_, Answers{});
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(dialog_->directory().path().toStdString(), folder_.path() + "/años \"80\"");
    type("mine");
    press(QDialogButtonBox::Save);
    EXPECT_EQ(answers_, Answers{folder_.path() + "/años \"80\"/mine.csv"});
}

TEST_F(SaveDialogTest, ATypedPathIsTakenAsItIs) {
    present(csv_);
    type(QString::fromStdString(folder_.path() + "/sub/../mine"));
    press(QDialogButtonBox::Save);
    EXPECT_EQ(answers_, Answers{folder_.path() + "/mine.csv"});
    EXPECT_TRUE(isGone());
    present(csv_);
    type("~/mine");
    press(QDialogButtonBox::Save);
    EXPECT_EQ(answers_.back(), QDir::homePath().toStdString() + "/mine.csv");
}

TEST_F(SaveDialogTest, TheReturnKeyInTheFieldSaves) {
    present({"Exportar proyecto", "tidewatch-27\".csv", SaveKind::csv});
    QTest::keyClick(&nameField(), Qt::Key_Return);
    EXPECT_EQ(answers_, Answers{folder_.path() + "/tidewatch-27\".csv"});
}

TEST_F(SaveDialogTest, AFileWithQuotesThatIsThereIsAskedAboutToo) {
    folder_.write("27\".csv", "old");
    present({"Exportar proyecto", "27\".csv", SaveKind::csv});
    answerNextQuestion(QMessageBox::No);
    press(QDialogButtonBox::Save);
    EXPECT_EQ(answers_, Answers{});
    EXPECT_TRUE(dialog_->isVisible());
    dialog_->reject();
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

/// An icon theme that inherits from another, both in the test's directory.
struct IconThemeDialogTest : SaveDialogTest {
    IconThemeDialogTest() {
        theme("child", "Inherits=parent");
        theme("parent", "Comment=x");
        QIcon::setThemeSearchPaths({QString::fromStdString(folder_.path() + "/icons")});
        QIcon::setThemeName("child");
        QFile(QString::fromStdString(folder_.path() + "/a.csv")).open(QIODevice::WriteOnly);
    }
    ~IconThemeDialogTest() override {
        QIcon::setThemeSearchPaths(pathsBefore_);
        QIcon::setFallbackSearchPaths(fallbacksBefore_);
        QIcon::setThemeName(themeBefore_);
    }
    void theme(const std::string& name, const std::string& key) const {
        const auto place = QString::fromStdString(folder_.path() + "/icons/" + name);
        QDir().mkpath(place + "/16x16/any");
        QFile index(place + "/index.theme");
        EXPECT_TRUE(index.open(QIODevice::WriteOnly));
        index.write(
            ("[Icon Theme]\nName=x\n" + key + "\nDirectories=16x16/any\n[16x16/any]\nSize=16\n").c_str());
    }
    [[nodiscard]] std::string inParent(const std::string& name) const {
        return folder_.path() + "/icons/parent/16x16/any/" + name + ".png";
    }
    [[nodiscard]] QFileInfo aFile() const {
        return QFileInfo(QString::fromStdString(folder_.path() + "/a.csv"));
    }

    const QStringList pathsBefore_ = QIcon::themeSearchPaths();
    const QStringList fallbacksBefore_ = QIcon::fallbackSearchPaths();
    const QString themeBefore_ = QIcon::themeName();
};

TEST_F(IconThemeDialogTest, ANamedPipeInAParentThemeIsNoPictureOfAFile) {
    QImage picture(16, 16, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(QString::fromStdString(inParent("text-csv"))));
    EXPECT_TRUE(SafeFileIcons().isSafeFor(aFile()));
    ASSERT_EQ(::unlink(inParent("text-csv").c_str()), 0);
    ASSERT_EQ(::mkfifo(inParent("text-csv").c_str(), 0600), 0);
    EXPECT_FALSE(SafeFileIcons().isSafeFor(aFile()));
    present(csv_);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(dialog_));
    press(QDialogButtonBox::Cancel);
    EXPECT_TRUE(isGone());
}

TEST_F(IconThemeDialogTest, ANamedPipeAmongThePicturesOfTheDialogItselfTakesTheThemeAway) {
    ASSERT_EQ(::mkfifo(inParent("folder-new").c_str(), 0600), 0);
    ASSERT_EQ(::mkfifo(inParent("go-previous").c_str(), 0600), 0);
    present(csv_);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(dialog_));
    EXPECT_FALSE(QIcon::hasThemeIcon("folder-new"));
    press(QDialogButtonBox::Cancel);
    EXPECT_TRUE(isGone());
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
