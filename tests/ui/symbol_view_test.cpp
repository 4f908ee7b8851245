#include "ui/control_test.h"

#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>
#include <cmath>

#include "ui/symbols/app_icon_view.h"

namespace tidewatch {
namespace {

using SymbolTest = ControlTest;
using DonutRingTest = ControlTest;
using AppIconViewTest = ControlTest;

TEST_F(SymbolTest, ASymbolTurnsAroundItsMiddle) {
    show("Symbol { name: 'chevron.left'; side: 40; width: 60; height: 60; color: 'black' }");
    const auto upright = picture().copy(0, 0, 60, 60);
    const auto mirrored = upright.mirrored(true, true);
    view_->setProperty("turn", 180);
    const auto turned = picture().copy(0, 0, 60, 60);
    int different = 0;
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 60; ++x) {
            // The edges may be smoothed differently.
            if (std::abs(qGray(turned.pixel(x, y)) - qGray(mirrored.pixel(x, y))) > 64) ++different;
        }
    }
    EXPECT_EQ(different, 0);
    EXPECT_NE(turned, upright);
}

TEST_F(DonutRingTest, TheRingOfTheFilledPartStartsAtTwelveAndGoesClockwise) {
    show("DonutRing { width: 100; height: 100; thickness: 10; color: '#ff0000'; track: '#0000ff' }");
    const auto at = [this](double fraction, int x, int y) {
        view_->setProperty("fraction", fraction);
        return picture().pixelColor(x, y);
    };
    const QColor red(Qt::red);
    const QColor blue(Qt::blue);
    EXPECT_EQ(at(-1, 95, 50), blue);
    EXPECT_EQ(at(-1, 50, 5), blue);
    EXPECT_EQ(at(0, 50, 5), blue);
    EXPECT_EQ(at(0.5, 95, 50), red);
    EXPECT_EQ(at(0.5, 5, 50), blue);
    EXPECT_EQ(at(0.75, 50, 95), red);
    EXPECT_EQ(at(1, 5, 50), red);
    EXPECT_EQ(at(3, 5, 50), red);
    EXPECT_NE(at(1, 50, 50), red) << "hollow";
}

TEST_F(AppIconViewTest, AnIconComesFromItsFile) {
    const QTemporaryDir folder;
    const auto path = folder.filePath("icon.png");
    QImage icon(32, 32, QImage::Format_RGB32);
    icon.fill(Qt::red);
    ASSERT_TRUE(icon.save(path));
    show("AppIconView { side: 24; color: 'blue' }");
    auto& shown = *qobject_cast<AppIconView*>(view_.get());
    EXPECT_FALSE(shown.showsIcon());
    const auto symbol = picture();
    shown.setIconName(path);
    EXPECT_TRUE(shown.showsIcon());
    EXPECT_EQ(picture().pixelColor(12, 12), QColor(Qt::red));
    shown.setSymbolName("gamecontroller.fill");
    EXPECT_FALSE(shown.showsIcon()) << "a symbol comes first";
    shown.setSymbolName("");
    shown.setIconName("");
    EXPECT_EQ(picture(), symbol);
}

TEST_F(AppIconViewTest, AnIconMayBeAVectorDrawing) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("icon.svg"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16">
                  <rect width="16" height="16" fill="#00ff00"/></svg>)");
    file.close();
    show("AppIconView { side: 48 }");
    view_->setProperty("iconName", file.fileName());
    EXPECT_EQ(picture().pixelColor(2, 2), QColor(0, 255, 0));
    EXPECT_EQ(picture().pixelColor(45, 45), QColor(0, 255, 0));
}

TEST_F(AppIconViewTest, AnIconThatIsNoPictureButAPipeBlocksNobody) {
    const QTemporaryDir folder;
    const auto pipe = folder.filePath("icon.png");
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    show("AppIconView { side: 24 }");
    auto& shown = *qobject_cast<AppIconView*>(view_.get());
    for (const auto& name :
         {pipe, "file://" + pipe, "../../../../../../.." + pipe, "../../../../../../.." + pipe.chopped(4)}) {
        shown.setIconName(name);
        EXPECT_FALSE(shown.showsIcon()) << name.toStdString();
    }
}

TEST_F(AppIconViewTest, AnIconThatIsNotThereIsTheSymbolOfAnApplication) {
    show("AppIconView { side: 24; color: 'blue' }");
    auto& shown = *qobject_cast<AppIconView*>(view_.get());
    const auto symbol = picture();
    for (const QString name : {"no-such-icon", "/no/such/icon.png", "..", "/"}) {
        shown.setIconName(name);
        EXPECT_FALSE(shown.showsIcon()) << name.toStdString();
        EXPECT_EQ(picture(), symbol);
    }
}

}  // namespace
}  // namespace tidewatch
