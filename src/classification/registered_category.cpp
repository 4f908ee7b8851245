#include "classification/registered_category.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tidewatch {
namespace {

// The first row whose words are all registered decides, so rows go from specific to general.
struct RegisteredRow {
    std::string_view word;
    std::string_view andWord;  // empty if one word suffices
    Category category;
};

constexpr std::array registeredRows{
    // An application for conferences is rarely used for anything else.
    RegisteredRow{"VideoConference", "", Category::meetings},

    // Unambiguous activities.
    RegisteredRow{"IDE", "", Category::development},
    RegisteredRow{"TerminalEmulator", "", Category::development},
    RegisteredRow{"Debugger", "", Category::development},
    RegisteredRow{"Profiling", "", Category::development},
    RegisteredRow{"RevisionControl", "", Category::development},
    RegisteredRow{"GUIDesigner", "", Category::development},
    RegisteredRow{"WebDevelopment", "", Category::development},
    RegisteredRow{"WebBrowser", "", Category::browser},
    RegisteredRow{"Email", "", Category::communication},
    RegisteredRow{"ContactManagement", "", Category::communication},
    RegisteredRow{"Calendar", "", Category::meetings},

    // Producing audio and video precedes playing it; many players also record.
    RegisteredRow{"AudioVideoEditing", "", Category::audioVideo},
    RegisteredRow{"Sequencer", "", Category::music},
    RegisteredRow{"Midi", "", Category::music},
    RegisteredRow{"Music", "", Category::music},
    RegisteredRow{"TV", "", Category::entertainment},
    RegisteredRow{"Player", "Video", Category::entertainment},
    RegisteredRow{"Player", "Audio", Category::music},
    RegisteredRow{"Player", "", Category::entertainment},
    RegisteredRow{"Recorder", "", Category::audioVideo},
    RegisteredRow{"Tuner", "", Category::music},
    RegisteredRow{"Mixer", "", Category::system},
    RegisteredRow{"DiscBurning", "", Category::utilities},

    // Games register their genre, some nothing else; all of them are games first.
    RegisteredRow{"Game", "", Category::games},
    RegisteredRow{"ActionGame", "", Category::games},
    RegisteredRow{"AdventureGame", "", Category::games},
    RegisteredRow{"ArcadeGame", "", Category::games},
    RegisteredRow{"BoardGame", "", Category::games},
    RegisteredRow{"BlocksGame", "", Category::games},
    RegisteredRow{"CardGame", "", Category::games},
    RegisteredRow{"KidsGame", "", Category::games},
    RegisteredRow{"LogicGame", "", Category::games},
    RegisteredRow{"RolePlaying", "", Category::games},
    RegisteredRow{"Shooter", "", Category::games},
    RegisteredRow{"SportsGame", "", Category::games},
    RegisteredRow{"StrategyGame", "", Category::games},
    RegisteredRow{"Amusement", "", Category::entertainment},
    RegisteredRow{"News", "", Category::entertainment},
    RegisteredRow{"Feed", "", Category::entertainment},

    // After games and entertainment, which often include chat.
    RegisteredRow{"InstantMessaging", "", Category::communication},
    RegisteredRow{"Chat", "", Category::communication},
    RegisteredRow{"IRCClient", "", Category::communication},
    RegisteredRow{"Telephony", "", Category::communication},

    RegisteredRow{"Photography", "", Category::audioVideo},
    RegisteredRow{"Scanning", "", Category::utilities},
    RegisteredRow{"OCR", "", Category::utilities},
    RegisteredRow{"Viewer", "", Category::utilities},
    RegisteredRow{"Publishing", "", Category::design},
    RegisteredRow{"FlowChart", "", Category::documents},

    RegisteredRow{"FileManager", "", Category::system},
    RegisteredRow{"Monitor", "", Category::system},
    RegisteredRow{"Filesystem", "", Category::system},
    RegisteredRow{"PackageManager", "", Category::system},
    RegisteredRow{"DesktopSettings", "", Category::system},
    RegisteredRow{"HardwareSettings", "", Category::system},
    RegisteredRow{"Printing", "", Category::system},

    RegisteredRow{"WordProcessor", "", Category::documents},
    RegisteredRow{"Spreadsheet", "", Category::documents},
    RegisteredRow{"Presentation", "", Category::documents},
    RegisteredRow{"ProjectManagement", "", Category::documents},
    RegisteredRow{"Dictionary", "", Category::documents},

    // The main categories. A text editor for development registers as such.
    RegisteredRow{"Development", "", Category::development},
    RegisteredRow{"TextEditor", "", Category::documents},
    RegisteredRow{"Documentation", "", Category::documents},
    RegisteredRow{"Engineering", "", Category::design},
    RegisteredRow{"Electronics", "", Category::design},
    RegisteredRow{"Graphics", "", Category::design},
    RegisteredRow{"Office", "", Category::documents},
    RegisteredRow{"AudioVideo", "", Category::audioVideo},
    RegisteredRow{"Audio", "", Category::audioVideo},
    RegisteredRow{"Video", "", Category::audioVideo},
    RegisteredRow{"Science", "", Category::documents},
    RegisteredRow{"Education", "", Category::documents},
    RegisteredRow{"Settings", "", Category::system},
    RegisteredRow{"System", "", Category::system},
    RegisteredRow{"Network", "", Category::utilities},
    RegisteredRow{"Utility", "", Category::utilities},
};

}  // namespace

std::optional<Category> categoryOfRegistered(std::span<const std::string> registered) {
    const auto has = [&](std::string_view word) {
        return word.empty() || std::ranges::find(registered, word) != registered.end();
    };
    const auto row = std::ranges::find_if(registeredRows, [&](const RegisteredRow& candidate) {
        return has(candidate.word) && has(candidate.andWord);
    });
    return row == registeredRows.end() ? std::nullopt : std::optional(row->category);
}

std::optional<Category> RegisteredCategories::category(const AppId& app) {
    const auto [entry, isNew] = answers_.try_emplace(app);
    auto& answer = entry->second;
    if (answer.category) return answer.category;
    const auto revision = applications_.revision();
    if (isNew || answer.revision != revision) answer = {lookUp(app), revision};
    return answer.category;
}

std::optional<Category> RegisteredCategories::lookUp(const AppId& app) {
    if (const auto* words = registrations_.find(app)) {
        if (const auto category = categoryOfRegistered(*words)) return category;
    }
    const auto info = applications_.info(app);
    const auto category = info ? categoryOfRegistered(info->categories) : std::nullopt;
    if (category) registrations_.remember(app, info->categories);
    return category;
}

}  // namespace tidewatch
