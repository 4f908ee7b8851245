#include "shell/style/symbol_table.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

TEST(SymbolTable, EverySymbolTouchesItsSquareAndStaysInside) {
    for (const QString name : {"star.fill", "star", "circle.fill"}) {
        SCOPED_TRACE(name.toStdString());
        const auto shape = symbolShape(name);
        ASSERT_TRUE(shape.has_value());
        const auto bounds = shape->boundingRect();
        EXPECT_NEAR(std::max(bounds.width(), bounds.height()), 1, 1e-6);
        EXPECT_GE(bounds.left(), -1e-6);
        EXPECT_GE(bounds.top(), -1e-6);
        EXPECT_LE(bounds.right(), 1 + 1e-6);
        EXPECT_LE(bounds.bottom(), 1 + 1e-6);
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
