#include "ui/symbols/symbol_table.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "wellbeing/stretch.h"

namespace tidewatch {
namespace {

void expectInsideTheUnitSquare(const QRectF& bounds) {
    EXPECT_GE(bounds.left(), -1e-6);
    EXPECT_GE(bounds.top(), -1e-6);
    EXPECT_LE(bounds.right(), 1 + 1e-6);
    EXPECT_LE(bounds.bottom(), 1 + 1e-6);
}

TEST(SymbolTable, EverySymbolHasAShapeInsideItsSquare) {
    for (const auto& name : symbolNames()) {
        SCOPED_TRACE(name.toStdString());
        const auto shape = symbolShape(name);
        ASSERT_TRUE(shape.has_value());
        EXPECT_FALSE(shape->isEmpty());
        const auto bounds = shape->boundingRect();
        expectInsideTheUnitSquare(bounds);
        // Large enough to be seen beside the others.
        EXPECT_GE(std::max(bounds.width(), bounds.height()), 0.5 - 1e-6);
    }
}

TEST(SymbolTable, DrawingsOfOurOwnTouchTheSquare) {
    for (const QString name : {"star.fill", "star", "circle.fill", "bomb"}) {
        SCOPED_TRACE(name.toStdString());
        const auto bounds = symbolShape(name)->boundingRect();
        EXPECT_NEAR(std::max(bounds.width(), bounds.height()), 1, 1e-6);
    }
}

TEST(SymbolTable, GlyphsStandInTheMiddleOfTheirSquare) {
    for (const QString name :
         {"plus", "xmark", "clock", "checkmark.circle.fill", "app", "square.grid.2x2.fill"}) {
        SCOPED_TRACE(name.toStdString());
        const auto middle = symbolShape(name)->boundingRect().center();
        EXPECT_NEAR(middle.x(), 0.5, 0.01);
        EXPECT_NEAR(middle.y(), 0.5, 0.01);
    }
}

// An empty frame would look like an unchecked check box.
TEST(SymbolTable, TheSymbolOfAnApplicationHasMoreThanItsFrame) {
    const auto shape = *symbolShape(u"app");
    const auto bounds = shape.boundingRect();
    const auto hasInk = [&](double across, double down) {
        return shape.contains(
            QPointF(bounds.left() + across * bounds.width(), bounds.top() + down * bounds.height()));
    };
    int inkInTheMiddle = 0;
    for (int i = 0; i < 100; ++i) inkInTheMiddle += hasInk(0.5, i / 100.0) ? 1 : 0;
    int inkOfASide = 0;
    for (int i = 0; i < 100; ++i) inkOfASide += hasInk(i / 100.0, 0.7) ? 1 : 0;
    EXPECT_GT(inkOfASide, 0);
    EXPECT_GT(inkInTheMiddle, 3 * inkOfASide / 2)
        << "from above, there is more than the two lines of a frame";
}

TEST(SymbolTable, TheSymbolsThatTheWindowNamesAreThere) {
    const auto names = symbolNames();
    for (const QString name : {"chevron.left",
                               "chevron.right",
                               "app",
                               "flame.fill",
                               "calendar",
                               "clock",
                               "bolt.fill",
                               "sum",
                               "chart.bar.fill",
                               "trophy.fill",
                               "leaf.fill",
                               "calendar.badge.checkmark",
                               "doc.richtext",
                               "magnifyingglass",
                               "checkmark",
                               "plus",
                               "gamecontroller.fill",
                               "clock.badge.exclamationmark",
                               "minus",
                               "checkmark.circle.fill",
                               "xmark"}) {
        EXPECT_TRUE(names.contains(name)) << name.toStdString();
    }
}

TEST(SymbolTable, EveryExerciseHasASymbolOfItsOwn) {
    QList<QPainterPath> shapes;
    for (const auto stretch : allStretches()) {
        const auto icon = textsOf(stretch).icon;
        SCOPED_TRACE(icon);
        const auto shape = symbolShape(QString::fromUtf8(icon.data(), static_cast<qsizetype>(icon.size())));
        ASSERT_TRUE(shape.has_value());
        EXPECT_FALSE(shapes.contains(*shape));
        shapes.append(*shape);
    }
}

TEST(SymbolTable, TheFilledStarIsFilledAndTheOtherIsHollow) {
    EXPECT_TRUE(symbolShape(u"star.fill")->contains(QPointF(0.5, 0.5)));
    EXPECT_FALSE(symbolShape(u"star")->contains(QPointF(0.5, 0.5)));
}

TEST(SymbolTable, AnUnknownNameHasNoShape) {
    EXPECT_FALSE(symbolShape(u"star.half").has_value());
    EXPECT_FALSE(symbolShape(u"").has_value());
}

}  // namespace
}  // namespace tidewatch
