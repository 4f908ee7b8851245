#include "classification/registered_category.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tidewatch {
namespace {

// Decided by the first row all of whose words are registered, so from the more specific to the more general.
struct Row {
    std::string_view word;
    std::string_view andWord;  // empty: the one word decides
    Category category;
};

constexpr std::array rows{
    // Whoever can hold a conference there is rarely there for anything else.
    Row{"VideoConference", "", Category::meetings},

    // What says exactly what somebody does there.
    Row{"IDE", "", Category::development},
    Row{"TerminalEmulator", "", Category::development},
    Row{"Debugger", "", Category::development},
    Row{"Profiling", "", Category::development},
    Row{"RevisionControl", "", Category::development},
    Row{"GUIDesigner", "", Category::development},
    Row{"WebDevelopment", "", Category::development},
    Row{"WebBrowser", "", Category::browser},
    Row{"Email", "", Category::communication},
    Row{"ContactManagement", "", Category::communication},
    Row{"Calendar", "", Category::meetings},

    // Making sound and pictures comes before playing them; many a player also records.
    Row{"AudioVideoEditing", "", Category::audioVideo},
    Row{"Sequencer", "", Category::music},
    Row{"Midi", "", Category::music},
    Row{"Music", "", Category::music},
    Row{"TV", "", Category::entertainment},
    Row{"Player", "Video", Category::entertainment},
    Row{"Player", "Audio", Category::music},
    Row{"Player", "", Category::entertainment},
    Row{"Recorder", "", Category::audioVideo},
    Row{"Tuner", "", Category::music},
    Row{"Mixer", "", Category::system},
    Row{"DiscBurning", "", Category::utilities},

    // Games name their kind, some of them nothing else, but every one of them is a game first.
    Row{"Game", "", Category::games},
    Row{"ActionGame", "", Category::games},
    Row{"AdventureGame", "", Category::games},
    Row{"ArcadeGame", "", Category::games},
    Row{"BoardGame", "", Category::games},
    Row{"BlocksGame", "", Category::games},
    Row{"CardGame", "", Category::games},
    Row{"KidsGame", "", Category::games},
    Row{"LogicGame", "", Category::games},
    Row{"RolePlaying", "", Category::games},
    Row{"Shooter", "", Category::games},
    Row{"SportsGame", "", Category::games},
    Row{"StrategyGame", "", Category::games},
    Row{"Amusement", "", Category::entertainment},
    Row{"News", "", Category::entertainment},
    Row{"Feed", "", Category::entertainment},

    // After games and entertainment: where people play or watch together they also chat.
    Row{"InstantMessaging", "", Category::communication},
    Row{"Chat", "", Category::communication},
    Row{"IRCClient", "", Category::communication},
    Row{"Telephony", "", Category::communication},

    Row{"Photography", "", Category::audioVideo},
    Row{"Scanning", "", Category::utilities},
    Row{"OCR", "", Category::utilities},
    Row{"Viewer", "", Category::utilities},
    Row{"Publishing", "", Category::design},
    Row{"FlowChart", "", Category::documents},

    Row{"FileManager", "", Category::system},
    Row{"Monitor", "", Category::system},
    Row{"Filesystem", "", Category::system},
    Row{"PackageManager", "", Category::system},
    Row{"DesktopSettings", "", Category::system},
    Row{"HardwareSettings", "", Category::system},
    Row{"Printing", "", Category::system},

    Row{"WordProcessor", "", Category::documents},
    Row{"Spreadsheet", "", Category::documents},
    Row{"Presentation", "", Category::documents},
    Row{"ProjectManagement", "", Category::documents},
    Row{"Dictionary", "", Category::documents},

    // The main categories. A text editor that is a tool of development says so.
    Row{"Development", "", Category::development},
    Row{"TextEditor", "", Category::documents},
    Row{"Documentation", "", Category::documents},
    Row{"Engineering", "", Category::design},
    Row{"Electronics", "", Category::design},
    Row{"Graphics", "", Category::design},
    Row{"Office", "", Category::documents},
    Row{"AudioVideo", "", Category::audioVideo},
    Row{"Audio", "", Category::audioVideo},
    Row{"Video", "", Category::audioVideo},
    Row{"Science", "", Category::documents},
    Row{"Education", "", Category::documents},
    Row{"Settings", "", Category::system},
    Row{"System", "", Category::system},
    Row{"Network", "", Category::utilities},
    Row{"Utility", "", Category::utilities},
};

}  // namespace

std::optional<Category> categoryOfRegistered(std::span<const std::string> registered) {
    const auto has = [&](std::string_view word) {
        return word.empty() || std::ranges::find(registered, word) != registered.end();
    };
    const auto row = std::ranges::find_if(
        rows, [&](const Row& candidate) { return has(candidate.word) && has(candidate.andWord); });
    return row == rows.end() ? std::nullopt : std::optional(row->category);
}

std::optional<Category> RegisteredCategories::category(const AppId& app) {
    const auto [entry, isNew] = answers_.try_emplace(app);
    auto& answer = entry->second;
    if (answer.category) return answer.category;
    const auto revision = workspace_.registryRevision();
    if (isNew || answer.revision != revision) answer = {lookUp(app), revision};
    return answer.category;
}

std::optional<Category> RegisteredCategories::lookUp(const AppId& app) {
    if (const auto* words = registrations_.find(app)) {
        if (const auto category = categoryOfRegistered(*words)) return category;
    }
    const auto info = workspace_.applicationInfo(app);
    const auto category = info ? categoryOfRegistered(info->categories) : std::nullopt;
    if (category) registrations_.remember(app, info->categories);
    return category;
}

}  // namespace tidewatch
