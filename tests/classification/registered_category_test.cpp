#include "classification/registered_category.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "classification/tier.h"

namespace tidewatch {
namespace {

struct Row {
    const char* application;
    std::vector<std::string> registered;
    std::optional<Category> category;
};

// What common kinds of applications register.
const std::vector<Row>& applications() {
    using enum Category;
    static const std::vector<Row> rows{
        {"code editor", {"TextEditor", "Development", "IDE"}, development},
        {"terminal", {"GNOME", "GTK", "System", "TerminalEmulator"}, development},
        {"version control", {"Development", "RevisionControl"}, development},
        {"programmer's text editor", {"Development", "TextEditor"}, development},
        {"text editor", {"GNOME", "GTK", "Utility", "TextEditor"}, documents},
        {"word processor", {"Office", "WordProcessor"}, documents},
        {"drawing of an office suite", {"Office", "FlowChart", "Graphics", "VectorGraphics"}, documents},
        {"office suite", {"Office", "X-Suite"}, documents},
        {"document viewer", {"GTK", "Office", "Viewer", "Graphics", "2DGraphics"}, utilities},
        {"vector drawing", {"Graphics", "VectorGraphics", "GTK"}, design},
        {"publishing", {"Qt", "Graphics", "Publishing"}, design},
        {"photographs", {"Graphics", "Photography", "GNOME"}, audioVideo},
        {"video editor", {"Qt", "KDE", "AudioVideo", "AudioVideoEditing"}, audioVideo},
        {"video editor under graphics", {"Graphics", "AudioVideo", "Video", "AudioVideoEditing"}, audioVideo},
        {"screen recorder", {"AudioVideo", "Recorder"}, audioVideo},
        {"video player", {"GTK", "AudioVideo", "Player", "Video"}, entertainment},
        {"player of anything, recording too", {"AudioVideo", "Player", "Recorder"}, entertainment},
        {"player of both", {"AudioVideo", "Audio", "Video", "Player"}, entertainment},
        {"television", {"AudioVideo", "Audio", "Video", "Player", "TV"}, entertainment},
        {"music player", {"GNOME", "AudioVideo", "Audio", "Player"}, music},
        {"music streaming", {"Audio", "Music", "Player", "AudioVideo"}, music},
        {"mixer", {"AudioVideo", "Audio", "Mixer", "GTK", "Settings"}, Category::system},
        {"file manager", {"GNOME", "GTK", "Utility", "Core", "FileManager"}, Category::system},
        {"system monitor", {"GNOME", "GTK", "System", "Monitor"}, Category::system},
        {"settings", {"Qt", "KDE", "Settings"}, Category::system},
        {"virtual machines", {"Emulator", "System"}, Category::system},
        {"game", {"GNOME", "GTK", "Game", "BlocksGame"}, games},
        {"game shop", {"Network", "FileTransfer", "Game"}, games},
        {"learning game", {"Education", "Game", "KidsGame"}, games},
        {"console emulator", {"Game", "Emulator"}, games},
        {"browser", {"GNOME", "GTK", "Network", "WebBrowser"}, browser},
        {"mail", {"Network", "Email"}, communication},
        {"mail with a calendar",
         {"GNOME", "Office", "Email", "Calendar", "ContactManagement"},
         communication},
        {"chat", {"Network", "InstantMessaging", "Chat"}, communication},
        {"video conference", {"Network", "InstantMessaging", "VideoConference", "Telephony"}, meetings},
        {"video conference in a browser of its own", {"Network", "WebBrowser", "VideoConference"}, meetings},
        {"video conference that also plays", {"AudioVideo", "Player", "VideoConference"}, meetings},
        {"chat of a game", {"Network", "InstantMessaging", "Game"}, games},
        {"chat of a kind of game", {"Network", "Chat", "RolePlaying"}, games},
        {"chat for fun", {"Network", "Chat", "Amusement"}, entertainment},
        {"chat beside a film",
         {"Network", "InstantMessaging", "AudioVideo", "Video", "Player"},
         entertainment},
        {"chat with a stream of news", {"Network", "InstantMessaging", "News"}, entertainment},
        {"telephone", {"Network", "Telephony"}, communication},
        {"network alone", {"Network"}, utilities},
        {"card game that says only so", {"CardGame"}, games},
        {"circuit boards", {"Science", "Electronics"}, design},
        {"calendar", {"GNOME", "GTK", "Core", "Office", "Calendar"}, meetings},
        {"archiver", {"GTK", "Utility", "Archiving", "Compression"}, utilities},
        {"torrents", {"Network", "FileTransfer", "P2P"}, utilities},
        {"algebra", {"Education", "Math"}, documents},
        {"nothing", {}, std::nullopt},
        {"toolkits only", {"GNOME", "GTK", "X-Whatever"}, std::nullopt},
        {"another letter case", {"game", "DEVELOPMENT"}, std::nullopt},
    };
    return rows;
}

TEST(RegisteredCategoryTest, TheMostSpecificWins) {
    for (const auto& row : applications()) {
        EXPECT_EQ(categoryOfRegistered(row.registered), row.category) << row.application;
    }
}

TEST(RegisteredCategoryTest, TheOrderOfRegistrationDoesNotMatter) {
    for (auto row : applications()) {
        std::ranges::sort(row.registered);
        do {
            ASSERT_EQ(categoryOfRegistered(row.registered), row.category) << row.application;
        } while (std::ranges::next_permutation(row.registered).found);
    }
}

TEST(RegisteredCategoryTest, EveryMainCategorySaysSomething) {
    for (const auto* main : {"AudioVideo", "Audio", "Video", "Development", "Education", "Game", "Graphics",
                             "Network", "Office", "Science", "Settings", "System", "Utility"}) {
        EXPECT_TRUE(categoryOfRegistered(std::vector<std::string>{main})) << main;
    }
}

TEST(RegisteredCategoryTest, NetworkAloneIsNeutral) {
    EXPECT_EQ(defaultTier(*categoryOfRegistered(std::vector<std::string>{"Network"})), Tier::neutral);
}

}  // namespace
}  // namespace tidewatch
