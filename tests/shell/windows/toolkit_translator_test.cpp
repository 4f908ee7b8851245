#include "shell/windows/toolkit_translator.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QKeySequence>

namespace tidewatch {
namespace {

class ToolkitTranslatorTest : public testing::Test {
protected:
    ToolkitTranslatorTest() {
        EXPECT_TRUE(words_.load());
        QCoreApplication::installTranslator(&words_);
    }
    ~ToolkitTranslatorTest() override { QCoreApplication::removeTranslator(&words_); }

    ToolkitTranslator words_;
};

TEST_F(ToolkitTranslatorTest, DialogsSpeakSpanish) {
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancelar");
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "&Yes"), "&Sí");
}

TEST_F(ToolkitTranslatorTest, KeysKeepTheirNames) {
    EXPECT_EQ(QKeySequence("Ctrl+H").toString(QKeySequence::NativeText), "Ctrl+H");
}

}  // namespace
}  // namespace tidewatch
