#include "platform/freedesktop/desktop_entry.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/freedesktop/desktop_entries.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto files =
    "# A comment\n"
    "[Desktop Entry]\n"
    "Type=Application\n"
    "Name=Files\n"
    "Name[de]=Dateien\n"
    "Name[es_AR]=Archivitos\n"
    "Name[es_MX]=Archivos de México\n"
    "Name[es]=Archivos\n"
    "Icon=org.example.Files\n"
    "Categories=GNOME;GTK;Utility;FileManager;\n"
    "\n"
    "[Desktop Action new-window]\n"
    "Name=New Window\n"
    "Name[es_CL]=Ventana\n"
    "Icon=window-new\n"
    "Categories=Game;\n";

std::string nameIn(std::string_view text, std::string_view locale) {
    const auto info = parseDesktopEntry(text, locale);
    return info ? info->name : "nothing";
}

TEST(DesktopEntryTest, TellsNameIconAndCategories) {
    const auto info = parseDesktopEntry(files, "es_ES");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->name, "Archivos");
    EXPECT_EQ(info->icon, "org.example.Files");
    EXPECT_THAT(info->categories, ElementsAre("GNOME", "GTK", "Utility", "FileManager"));
}

TEST(DesktopEntryTest, TheNameIsInTheSpanishOfTheCountryIfThereIsOne) {
    EXPECT_EQ(nameIn(files, "es_MX"), "Archivos de México");
    EXPECT_EQ(nameIn(files, "es_MX.UTF-8"), "Archivos de México");
    EXPECT_EQ(nameIn(files, "es_ES"), "Archivos");
}

TEST(DesktopEntryTest, TheNameIsInSpanishWhateverTheMachineSpeaks) {
    for (const auto* locale : {"es", "de_DE", "C", "", "en_US.UTF-8"}) {
        EXPECT_EQ(nameIn(files, locale), "Archivos") << locale;
    }
}

TEST(DesktopEntryTest, WithoutPlainSpanishTheFirstCountryWillDo) {
    EXPECT_EQ(nameIn("[Desktop Entry]\nName=Files\nName[es_AR]=A\nName[es_CL]=B\n", "es_ES"), "A");
}

TEST(DesktopEntryTest, WithoutSpanishTheNameIsThePlainOne) {
    EXPECT_EQ(nameIn("[Desktop Entry]\nName[est]=Failid\nName=Files\nName[de]=Dateien\n", "es_ES"), "Files");
}

TEST(DesktopEntryTest, MissingKeysAreEmpty) {
    const auto info = parseDesktopEntry("[Desktop Entry]\nType=Application\n", "es");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->name, "");
    EXPECT_EQ(info->icon, "");
    EXPECT_THAT(info->categories, IsEmpty());
}

TEST(DesktopEntryTest, NoEntryOrAHiddenOneIsRejected) {
    EXPECT_EQ(parseDesktopEntry("", "es"), std::nullopt);
    EXPECT_EQ(parseDesktopEntry("Name=Files\n", "es"), std::nullopt);
    EXPECT_EQ(parseDesktopEntry("[Other]\nName=Files\n", "es"), std::nullopt);
    EXPECT_EQ(parseDesktopEntry("[Desktop Entry]\nName=Files\nHidden=true\n", "es"), std::nullopt);
}

TEST(DesktopEntryTest, SpacesAroundTheSignAndOtherLineBreaksAreAccepted) {
    const auto info = parseDesktopEntry(
        "[Desktop Entry]\r\nName = Files \r\n#Name[es]=no\r\nCategories\t=\tGame ;X\r\n", "");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->name, "Files");
    EXPECT_THAT(info->categories, ElementsAre("Game ", "X"));
}

TEST(DesktopEntryTest, EscapedCharactersAreParsed) {
    const auto info =
        parseDesktopEntry("[Desktop Entry]\nName=\\sA\\tB\\\\C\\\nIcon=C:\\\\x\nCategories=A\\;B;;C\n", "");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->name, " A\tB\\C\\");
    EXPECT_EQ(info->icon, "C:\\x");
    EXPECT_THAT(info->categories, ElementsAre("A;B", "C"));
}

struct DesktopEntriesInfoTest : testing::Test {
    test::TemporaryDirectory home;
    test::TemporaryDirectory shared;
    DesktopEntries entries{{home.path(), shared.path()}};

    static void write(const test::TemporaryDirectory& directory, const std::string& name,
                      const std::string& text) {
        const std::filesystem::path path(directory.path() + "/" + name);
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path) << text;
    }
    [[nodiscard]] std::string nameOf(const std::string& id) const {
        const auto info = entries.info(id, "es_ES");
        return info ? info->name : "nothing";
    }
};

TEST_F(DesktopEntriesInfoTest, ReturnsTheEntryOfExactlyThisId) {
    write(shared, "org.example.Files.desktop", files);
    EXPECT_EQ(nameOf("org.example.Files"), "Archivos");
    EXPECT_EQ(nameOf("org.example.files"), "nothing");
    EXPECT_EQ(nameOf("Files"), "nothing");
    EXPECT_EQ(nameOf(""), "nothing");
}

TEST_F(DesktopEntriesInfoTest, AnEntryWithoutANameHasItsIdAsName) {
    write(shared, "tool.desktop", "[Desktop Entry]\nExec=tool\n");
    EXPECT_EQ(nameOf("tool"), "tool");
}

TEST_F(DesktopEntriesInfoTest, TheUsersOwnEntryCountsBeforeTheSharedOne) {
    write(shared, "tool.desktop", "[Desktop Entry]\nName=Theirs\n");
    EXPECT_EQ(nameOf("tool"), "Theirs");
    write(home, "tool.desktop", "[Desktop Entry]\nName=Mine\n");
    EXPECT_EQ(nameOf("tool"), "Mine");
    write(home, "tool.desktop", "[Desktop Entry]\nName=Mine\nHidden=true\n");
    EXPECT_EQ(nameOf("tool"), "nothing");
}

TEST_F(DesktopEntriesInfoTest, ADashMayBeAStepIntoAFolder) {
    write(shared, "kde/sub/tool-box.desktop", "[Desktop Entry]\nName=Box\n");
    write(shared, "plain-tool.desktop", "[Desktop Entry]\nName=Plain\n");
    EXPECT_EQ(nameOf("kde-sub-tool-box"), "Box");
    EXPECT_EQ(nameOf("plain-tool"), "Plain");
    EXPECT_EQ(nameOf("kde-sub-other"), "nothing");
}

TEST_F(DesktopEntriesInfoTest, NoIdEscapesTheFolders) {
    write(shared, "inner/seen.desktop", "[Desktop Entry]\nName=Seen\n");
    const DesktopEntries inner({shared.path() + "/inner"});
    write(shared, "outside.desktop", "[Desktop Entry]\nName=Outside\n");
    for (const auto* id : {"../outside", "..-outside", "../inner/seen", "inner/seen"}) {
        EXPECT_EQ(inner.info(id, "es"), std::nullopt) << id;
    }
    EXPECT_EQ(inner.info(std::string("seen\0", 5), "es"), std::nullopt);
    EXPECT_TRUE(inner.info("seen", "es"));
}

TEST_F(DesktopEntriesInfoTest, AnEntryThatComesLaterIsSeenAtTheNextQuestion) {
    EXPECT_EQ(nameOf("late"), "nothing");
    write(shared, "late.desktop", "[Desktop Entry]\nName=Late\n");
    EXPECT_EQ(nameOf("late"), "Late");
}

}  // namespace
}  // namespace tidewatch::platform
