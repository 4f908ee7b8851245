#include "ui/control_test.h"

#include <QtTest/QTest>

namespace tidewatch {
namespace {

using SearchFieldTest = ControlTest;

constexpr auto search = R"(
Item {
    property string searched: "?"
    property int escapes: 0
    Keys.onEscapePressed: ++escapes
    SearchField {
        objectName: "field"
        placeholder: "buscar"
        onEdited: text => parent.searched = text
    }
})";

TEST_F(SearchFieldTest, TheSearchFieldReportsEdits) {
    show(search);
    press(Qt::Key_Tab);
    press(Qt::Key_A);
    press(Qt::Key_B);
    EXPECT_EQ(seen("searched").toString(), "ab");
    EXPECT_EQ(accessible(the("field")).role(), QAccessible::EditableText);
    EXPECT_EQ(nameOf(the("field")), "buscar");
}

TEST_F(SearchFieldTest, EscapeEmptiesTheSearchFieldFirst) {
    show(search);
    press(Qt::Key_Tab);
    press(Qt::Key_A);
    press(Qt::Key_Escape);
    EXPECT_EQ(the("field").property("text").toString(), "");
    EXPECT_EQ(seen("searched").toString(), "");
    EXPECT_EQ(count("escapes"), 0);
    press(Qt::Key_Escape);
    EXPECT_EQ(count("escapes"), 1);
}

TEST_F(SearchFieldTest, TheButtonInTheSearchFieldEmptiesItAndGivesTheFocusBack) {
    show(search);
    EXPECT_FALSE(the("clear").isVisible());
    click(the("field"));
    press(Qt::Key_A);
    ASSERT_TRUE(the("clear").isVisible());
    EXPECT_EQ(nameOf(the("clear")), "Borrar búsqueda");
    click(the("clear"));
    EXPECT_EQ(seen("searched").toString(), "");
    EXPECT_TRUE(the("field").hasActiveFocus());
    EXPECT_FALSE(the("clear").isVisible());
}

TEST_F(SearchFieldTest, TheSearchFieldFollowsItsOwner) {
    show(
        "Item { property string wanted: ''; SearchField { objectName: 'field'; text: parent.wanted"
        "; onEdited: text => parent.wanted = text } }");
    click(the("field"));
    press(Qt::Key_A);
    EXPECT_EQ(seen("wanted").toString(), "a");
    view_->setProperty("wanted", "editor");
    EXPECT_EQ(the("field").property("text").toString(), "editor");
}

}  // namespace
}  // namespace tidewatch
