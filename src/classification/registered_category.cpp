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
    // What says exactly what somebody does there.
    Row{"IDE", "", Category::development},
    Row{"TerminalEmulator", "", Category::development},
    Row{"Debugger", "", Category::development},
    Row{"Profiling", "", Category::development},
    Row{"RevisionControl", "", Category::development},
    Row{"GUIDesigner", "", Category::development},
    Row{"WebDevelopment", "", Category::development},
    Row{"VideoConference", "", Category::meetings},
    Row{"WebBrowser", "", Category::browser},
    Row{"Email", "", Category::communication},
    Row{"InstantMessaging", "", Category::communication},
    Row{"Chat", "", Category::communication},
    Row{"IRCClient", "", Category::communication},
    Row{"Telephony", "", Category::communication},
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

    // Games name their kind, but every one of them is a game first.
    Row{"Game", "", Category::games},
    Row{"Amusement", "", Category::entertainment},
    Row{"News", "", Category::entertainment},
    Row{"Feed", "", Category::entertainment},

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

std::optional<Category> RegisteredCategories::category(const AppId& app) const {
    if (const auto known = known_.find(app); known != known_.end()) return known->second;
    const auto info = workspace_.applicationInfo(app);
    return known_[app] = info ? categoryOfRegistered(info->categories) : std::nullopt;
}

}  // namespace tidewatch
