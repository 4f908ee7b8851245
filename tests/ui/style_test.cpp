#include "ui/style/style.h"

#include <gtest/gtest.h>

#include <QQmlComponent>
#include <memory>

#include "platform/fake/memory_preferences.h"
#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

class StyleTest : public testing::Test {
protected:
    StyleTest() {
        QQmlComponent component(&engine_);
        component.setData(
            "import QtQuick\nimport Tidewatch.Ui\n"
            "QtObject { property color bg: Style.palette.bg; property bool dark: Style.dark\n"
            "property int decoration: Style.decoration; property real radius: Style.metrics.cardRadius\n"
            "property font title: Style.serif(7.5, Style.Medium)\n"
            "property int pieces: Style.palette.gamePieces.length }",
            QUrl());
        view_.reset(component.create());
        EXPECT_TRUE(view_) << component.errorString().toStdString();
    }

    [[nodiscard]] QVariant seen(const char* property) const { return view_->property(property); }

    platform::MemoryPreferences preferences_;
    Settings settings_{preferences_};
    Broadcaster broadcaster_;
    ThemeRegistry registry_;
    ThemeController controller_{registry_, settings_, broadcaster_};
    QQmlEngine engine_;
    std::unique_ptr<QObject> view_;
};

TEST_F(StyleTest, AppliesOchreUntilToldOtherwise) {
    EXPECT_EQ(seen("bg").value<QColor>(), toQColor(fathom::ink));
    EXPECT_TRUE(seen("dark").toBool());
    EXPECT_EQ(seen("pieces").toInt(), 7);
}

TEST_F(StyleTest, ViewsFollowTheController) {
    Style::of(engine_)->follow(controller_);
    controller_.switchTo("editorial");
    EXPECT_EQ(seen("bg").value<QColor>(), toQColor(fathom::paper));
    EXPECT_FALSE(seen("dark").toBool());
    EXPECT_EQ(seen("decoration").toInt(), Style::PaperGrain);
    controller_.switchTo("hacker");
    EXPECT_EQ(seen("bg").value<QColor>(), QColor(Qt::black));
    EXPECT_EQ(seen("decoration").toInt(), Style::Scanlines);
}

TEST_F(StyleTest, MeasuresAndFontsReachTheViews) {
    EXPECT_EQ(seen("radius").toReal(), Metrics().cardRadius);
    EXPECT_EQ(seen("title").value<QFont>().weight(), QFont::Medium);
}

TEST_F(StyleTest, EveryColourOfThePaletteIsTheThemes) {
    const auto style = registry_.theme("liquid").dashboard;
    const Palette palette(style);
    EXPECT_EQ(palette.bg, toQColor(style.bg));
    EXPECT_EQ(palette.card, toQColor(style.card));
    EXPECT_EQ(palette.cardSubtle, toQColor(style.cardSubtle));
    EXPECT_EQ(palette.stroke, toQColor(style.stroke));
    EXPECT_EQ(palette.strongMute, toQColor(style.strongMute));
    EXPECT_EQ(palette.mute, toQColor(style.mute));
    EXPECT_EQ(palette.muteSoft, toQColor(style.muteSoft));
    EXPECT_EQ(palette.primaryText, toQColor(style.primaryText));
    EXPECT_EQ(palette.secondaryText, toQColor(style.secondaryText));
    EXPECT_EQ(palette.windowBackground, toQColor(style.nsBackground));
    EXPECT_EQ(palette.tierProductive, toQColor({0.482, 0.847, 0.561}));
    EXPECT_EQ(palette.tierNeutral, toQColor({0.42, 0.62, 0.831}));
    EXPECT_EQ(palette.tierDistracting, toQColor({0.819, 0.341, 0.341}));
    EXPECT_EQ(palette.amber, toQColor({0.91, 0.769, 0.345}));
    ASSERT_EQ(palette.gamePieces.size(), 7);
    EXPECT_EQ(palette.gamePieces[6], toQColor(style.gamePieces[6]));
}

}  // namespace
}  // namespace tidewatch
