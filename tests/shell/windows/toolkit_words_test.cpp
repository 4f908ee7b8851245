#include "shell/windows/toolkit_words.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QKeySequence>

namespace tidewatch {
namespace {

class ToolkitWordsTest : public testing::Test {
protected:
    ToolkitWordsTest() {
        EXPECT_TRUE(words_.load());
        QCoreApplication::installTranslator(&words_);
    }
    ~ToolkitWordsTest() override { QCoreApplication::removeTranslator(&words_); }

    ToolkitWords words_;
};

TEST_F(ToolkitWordsTest, DialogsSpeakSpanish) {
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancelar");
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "&Yes"), "&Sí");
}

TEST_F(ToolkitWordsTest, KeysKeepTheirNames) {
    EXPECT_EQ(QKeySequence("Ctrl+H").toString(QKeySequence::NativeText), "Ctrl+H");
}

}  // namespace
}  // namespace tidewatch
