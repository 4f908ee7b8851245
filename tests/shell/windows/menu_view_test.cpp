#include "shell/windows/menu_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QStyleOptionMenuItem>
#include <QTest>

#include "shell/themes/theme_registry.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

/// Records what the menu has the toolkit draw.
class DrawnMenu : public QMenu {
public:
    static QStyleOptionMenuItem row(const QMenu& menu, const QAction& action) {
        QStyleOptionMenuItem option;
        (menu.*&DrawnMenu::initStyleOption)(&option, &action);
        return option;
    }
};

class MenuViewTest : public testing::Test {
protected:
    ~MenuViewTest() override { delete menu_; }

    QMenu& open(const MenuRows& rows) {
        menu_ = new MenuView(rows, themes_.themes().front().dashboard);
        menu_->popup({0, 0});
        return *menu_;
    }

    /// Opens the menu within the first row.
    QMenu& openInner() {
        auto* inner = menu_->actions().front()->menu();
        inner->popup({50, 50});
        return *inner;
    }

    [[nodiscard]] QStyleOptionMenuItem drawn(int row) const {
        return DrawnMenu::row(*menu_, *menu_->actions()[row]);
    }

    static std::function<void()> nothing() {
        return [] {};
    }

    ThemeRegistry themes_;
    QPointer<QMenu> menu_;
};

TEST_F(MenuViewTest, DrawsACheckMarkOnTheCheckedRowAndOnNoOther) {
    open({{.title = "Medianoche (00:00)", .action = nothing()},
          {.title = "04:00", .checked = true, .action = nothing()}});
    EXPECT_EQ(drawn(0).checkType, QStyleOptionMenuItem::NotCheckable);
    EXPECT_FALSE(drawn(0).checked);
    EXPECT_NE(drawn(1).checkType, QStyleOptionMenuItem::NotCheckable);
    EXPECT_TRUE(drawn(1).checked);
    const auto picture = menu_->grab().toImage();
    const auto ground = picture.pixelColor(3, 3);
    const auto markIn = [&](int row) {
        const auto place = menu_->actionGeometry(menu_->actions()[row]);
        for (int y = place.top() + 2; y < place.bottom() - 1; ++y) {
            for (int x = place.left() + 4; x < place.left() + 24; ++x) {
                if (qAbs(picture.pixelColor(x, y).lightness() - ground.lightness()) > 60) return true;
            }
        }
        return false;
    };
    EXPECT_FALSE(markIn(0));
    EXPECT_TRUE(markIn(1));
}

TEST_F(MenuViewTest, ShowsTheKeyEquivalentBesideTheTitle) {
    open({{.title = "Salir", .keyEquivalent = 'q', .action = nothing()},
          {.title = "Otra", .action = nothing()}});
    EXPECT_EQ(drawn(0).text, "Salir\tCtrl+Q");
    EXPECT_EQ(drawn(1).text, "Otra");
}

TEST_F(MenuViewTest, AKeyEquivalentChoosesItsRowAndClosesTheMenu) {
    int chosen = 0;
    auto& menu = open({{.title = "Salir", .keyEquivalent = 'q', .action = [&] { ++chosen; }}});
    QTest::keyClick(&menu, Qt::Key_Q);
    EXPECT_EQ(chosen, 0);
    QTest::keyClick(&menu, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(chosen, 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return menu_.isNull(); }));
}

TEST_F(MenuViewTest, AKeyEquivalentWorksFromAMenuWithinAMenu) {
    int chosen = 0;
    open({{.title = "Proyecto",
           .children = {{.title = "Corto", .children = {{.title = "Activar", .action = nothing()}}}}},
          {.title = "Ocultar ventana", .keyEquivalent = 'h', .action = [&] { ++chosen; }}});
    auto& inner = openInner();
    auto* innermost = inner.actions().front()->menu();
    innermost->popup({90, 90});
    QTest::keyClick(innermost, Qt::Key_H, Qt::ControlModifier);
    EXPECT_EQ(chosen, 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return menu_.isNull(); }));
}

TEST_F(MenuViewTest, AnInformationalRowCannotBeChosen) {
    open({{.title = "Hoy: 00:00:00"}, MenuRow::separator(), {.title = "Salir", .action = nothing()}});
    EXPECT_FALSE(menu_->actions()[0]->isEnabled());
    EXPECT_TRUE(menu_->actions()[1]->isSeparator());
    EXPECT_TRUE(menu_->actions()[2]->isEnabled());
}

TEST_F(MenuViewTest, ARowWithoutATitleIsARow) {
    int chosen = 0;
    open({{.title = "", .swatch = RgbColor{0x7B, 0xD8, 0x8F}, .action = [&] { ++chosen; }},
          {.title = "", .children = {{.title = "Activar", .action = nothing()}}}});
    EXPECT_FALSE(menu_->actions()[0]->isSeparator());
    EXPECT_EQ(menu_->actions()[0]->text(), "Sin nombre");
    EXPECT_EQ(menu_->actions()[1]->text(), "Sin nombre");
    EXPECT_GT(menu_->actionGeometry(menu_->actions()[0]).height(), 15);
    EXPECT_NE(menu_->actions()[1]->menu(), nullptr);
    menu_->actions()[0]->trigger();
    EXPECT_EQ(chosen, 1);
}

TEST_F(MenuViewTest, ASymbolStandsBeforeItsTitleAndShowsWhetherTheRowIsChecked) {
    open({{.title = "Sistema", .symbol = "cpu", .action = nothing()},
          {.title = "Sistema", .checked = true, .symbol = "cpu", .action = nothing()},
          {.title = "Nada", .symbol = "no.such.symbol", .action = nothing()}});
    const auto picture = [this](int row) { return menu_->actions()[row]->icon().pixmap(48).toImage(); };
    const auto ink = [&](int row) {
        int pixels = 0;
        for (int y = 0; y < 48; ++y) {
            for (int x = 0; x < 48; ++x) pixels += picture(row).pixelColor(x, y).alpha() > 128 ? 1 : 0;
        }
        return pixels;
    };
    EXPECT_GT(ink(0), 200);
    EXPECT_LT(ink(0), 1200);
    EXPECT_GT(ink(1), 1800) << "the symbol lies on a plate";
    EXPECT_EQ(picture(0).pixelColor(0, 24).alpha(), 0);
    EXPECT_TRUE(menu_->actions()[1]->isChecked());
    EXPECT_TRUE(menu_->actions()[2]->icon().isNull());
}

TEST_F(MenuViewTest, ATitleWithNothingToSeeSaysTheSameAsTheTabs) {
    for (const std::string title : {"", "  ", "\u200b\u200e", "\n"}) {
        open({{.title = title, .action = nothing()}});
        EXPECT_EQ(menu_->actions()[0]->text(), nameText(title)) << title;
        EXPECT_EQ(menu_->actions()[0]->text(), "Sin nombre") << title;
    }
}

TEST_F(MenuViewTest, ATitleOf50000LettersOrWithLineBreaksIsOneLineThatTheScreenHasRoomFor) {
    open({{.title = "Corto", .action = nothing()},
          {.title = std::string(50'000, 'x'), .action = nothing()},
          {.title = "Uno\nDos\u2028Tres", .action = nothing()},
          {.title = std::string(50'000, '\n'), .children = {{.title = "Activar", .action = nothing()}}}});
    EXPECT_LT(menu_->width(), 420);
    EXPECT_TRUE(menu_->actions()[1]->text().endsWith(u'…'));
    EXPECT_EQ(menu_->actions()[2]->text(), "Uno Dos Tres");
    const auto height = menu_->actionGeometry(menu_->actions()[0]).height();
    for (auto* action : menu_->actions()) EXPECT_EQ(menu_->actionGeometry(action).height(), height);
}

TEST_F(MenuViewTest, AnAmpersandIsEscaped) {
    open({{.title = "Luz & Sombra", .action = nothing()}});
    EXPECT_EQ(drawn(0).text, "Luz && Sombra");
}

}  // namespace
}  // namespace tidewatch
