#include "classification/category_defaults.h"

#include <algorithm>
#include <array>

namespace tidewatch {
namespace {

using DefaultRow = CategoryDefault;

// Some rows are where they are on purpose: a messenger's helper under development, a calendar under meetings,
// a media player under utilities.
constexpr std::array defaultRows{
    DefaultRow{"com.blackmagic-design.DaVinciResolve", Category::audioVideo},
    DefaultRow{"com.apple.FinalCut", Category::audioVideo},
    DefaultRow{"com.apple.FinalCutPro", Category::audioVideo},
    DefaultRow{"com.adobe.Premiere", Category::audioVideo},
    DefaultRow{"com.adobe.AfterEffects", Category::audioVideo},
    DefaultRow{"com.adobe.AudioCC", Category::audioVideo},
    DefaultRow{"com.apple.iMovie", Category::audioVideo},
    DefaultRow{"com.lemkesoft.cinemate.CapCutMac", Category::audioVideo},
    DefaultRow{"com.bytedance.CapCut", Category::audioVideo},
    DefaultRow{"com.topazlabs.VideoEnhance", Category::audioVideo},
    DefaultRow{"com.apple.QuickTimePlayerX", Category::audioVideo},
    DefaultRow{"com.apple.Photos", Category::audioVideo},
    DefaultRow{"com.apple.iPhoto", Category::audioVideo},
    DefaultRow{"com.blackmagic-design.Fairlight", Category::audioVideo},
    DefaultRow{"com.adobe.media-encoder", Category::audioVideo},
    DefaultRow{"com.adobe.LightroomClassicCC7", Category::audioVideo},
    DefaultRow{"com.figma.Desktop", Category::design},
    DefaultRow{"com.figma.figmaagent", Category::design},
    DefaultRow{"com.adobe.Photoshop", Category::design},
    DefaultRow{"com.adobe.illustrator", Category::design},
    DefaultRow{"com.adobe.indesign", Category::design},
    DefaultRow{"com.adobe.AdobeXD", Category::design},
    DefaultRow{"com.bohemiancoding.sketch3", Category::design},
    DefaultRow{"com.seriflabs.affinitydesigner", Category::design},
    DefaultRow{"com.seriflabs.affinityphoto", Category::design},
    DefaultRow{"com.apple.dt.Xcode", Category::development},
    DefaultRow{"com.microsoft.VSCode", Category::development},
    DefaultRow{"com.apple.Terminal", Category::development},
    DefaultRow{"com.googlecode.iterm2", Category::development},
    DefaultRow{"com.jetbrains.intellij", Category::development},
    DefaultRow{"com.jetbrains.pycharm", Category::development},
    DefaultRow{"co.anthropic.claudefordesktop", Category::development},
    DefaultRow{"com.anthropic.claude", Category::development},
    DefaultRow{"com.anthropic.claudefordesktop", Category::development},
    DefaultRow{"com.tinyspeck.slackmacgap.helper", Category::development},
    DefaultRow{"com.python.IDLE", Category::development},
    DefaultRow{"org.python.IDLE", Category::development},
    DefaultRow{"com.apple.iWork.Pages", Category::documents},
    DefaultRow{"com.apple.iWork.Numbers", Category::documents},
    DefaultRow{"com.apple.iWork.Keynote", Category::documents},
    DefaultRow{"com.apple.Notes", Category::documents},
    DefaultRow{"com.apple.Reminders", Category::documents},
    DefaultRow{"com.apple.freeform", Category::documents},
    DefaultRow{"notion.id", Category::documents},
    DefaultRow{"com.electron.notion", Category::documents},
    DefaultRow{"com.microsoft.Word", Category::documents},
    DefaultRow{"com.microsoft.Excel", Category::documents},
    DefaultRow{"com.microsoft.Powerpoint", Category::documents},
    DefaultRow{"com.microsoft.onenote.mac", Category::documents},
    DefaultRow{"com.finaldraft.finaldraft12", Category::documents},
    DefaultRow{"net.shinyfrog.bear", Category::documents},
    DefaultRow{"com.apple.TextEdit", Category::documents},
    DefaultRow{"com.apple.dictionary", Category::documents},
    DefaultRow{"com.google.Chrome", Category::browser},
    DefaultRow{"com.apple.Safari", Category::browser},
    DefaultRow{"company.thebrowser.Browser", Category::browser},
    DefaultRow{"org.mozilla.firefox", Category::browser},
    DefaultRow{"com.brave.Browser", Category::browser},
    DefaultRow{"com.microsoft.edgemac", Category::browser},
    DefaultRow{"com.apple.mail", Category::communication},
    DefaultRow{"com.apple.MobileSMS", Category::communication},
    DefaultRow{"com.tinyspeck.slackmacgap", Category::communication},
    DefaultRow{"net.whatsapp.WhatsApp", Category::communication},
    DefaultRow{"WhatsApp", Category::communication},
    DefaultRow{"ru.keepcoder.Telegram", Category::communication},
    DefaultRow{"com.apple.AddressBook", Category::communication},
    DefaultRow{"us.zoom.xos", Category::meetings},
    DefaultRow{"com.apple.FaceTime", Category::meetings},
    DefaultRow{"com.microsoft.teams", Category::meetings},
    DefaultRow{"com.microsoft.teams2", Category::meetings},
    DefaultRow{"com.cisco.webexmeetingsapp", Category::meetings},
    DefaultRow{"com.google.Meet", Category::meetings},
    DefaultRow{"com.apple.iCal", Category::meetings},
    DefaultRow{"com.apple.finder", Category::system},
    DefaultRow{"com.apple.systempreferences", Category::system},
    DefaultRow{"com.apple.ActivityMonitor", Category::system},
    DefaultRow{"com.apple.DiskUtility", Category::system},
    DefaultRow{"com.apple.Console", Category::system},
    DefaultRow{"com.apple.controlstrip", Category::system},
    DefaultRow{"com.apple.dock", Category::system},
    DefaultRow{"com.apple.SystemEvents", Category::system},
    DefaultRow{"com.apple.PrintCenter", Category::system},
    DefaultRow{"com.apple.MigrationAssistant", Category::system},
    DefaultRow{"com.apple.iphonesimulator", Category::system},
    DefaultRow{"com.brightlooms.tidewatch", Category::utilities},
    DefaultRow{"com.QotoQot.Qbserve", Category::utilities},
    DefaultRow{"com.macpaw.CleanMyMac4", Category::utilities},
    DefaultRow{"com.macpaw.CleanMyMacX", Category::utilities},
    DefaultRow{"com.apple.Preview", Category::utilities},
    DefaultRow{"com.adobe.acc.AdobeCreativeCloud", Category::utilities},
    DefaultRow{"com.adobe.acc.helper", Category::utilities},
    DefaultRow{"com.unarchive.unarchiver", Category::utilities},
    DefaultRow{"com.colliderli.iina", Category::utilities},
    DefaultRow{"com.spotify.client", Category::music},
    DefaultRow{"com.apple.Music", Category::music},
    DefaultRow{"com.apple.GarageBand", Category::music},
    DefaultRow{"com.apple.logic10", Category::music},
    DefaultRow{"com.brightlooms.fathom.games", Category::games},
    DefaultRow{"com.valvesoftware.steam", Category::games},
    DefaultRow{"com.valvesoftware.steam.helper", Category::games},
    DefaultRow{"com.roblox.RobloxPlayer", Category::games},
    DefaultRow{"com.apple.Chess", Category::games},
    DefaultRow{"com.epicgames.EpicGamesLauncher", Category::games},
    DefaultRow{"com.blizzard.battle.net", Category::games},
    DefaultRow{"com.hnc.Discord", Category::social},
    DefaultRow{"com.tweetbot.tweetbot", Category::social},
    DefaultRow{"com.atebits.Tweetie2", Category::social},
    DefaultRow{"com.burbn.instagram", Category::social},
    DefaultRow{"com.zhiliaoapp.musically", Category::social},
    DefaultRow{"com.apple.TV", Category::entertainment},
    DefaultRow{"tv.stremio.Stremio", Category::entertainment},
    DefaultRow{"com.4kdownload.4kyoutubetomp3", Category::entertainment},
    DefaultRow{"com.netflix.Netflix", Category::entertainment},
    DefaultRow{"com.disney.disneyplus", Category::entertainment},
    DefaultRow{"com.apple.podcasts", Category::entertainment},
    DefaultRow{"com.apple.iBooksX", Category::entertainment},
};

constexpr auto rowsByApp = [] {
    auto sorted = defaultRows;
    std::ranges::sort(sorted, {}, &DefaultRow::app);
    return sorted;
}();

static_assert(std::ranges::adjacent_find(rowsByApp, {}, &DefaultRow::app) == rowsByApp.end());

}  // namespace

std::span<const CategoryDefault> categoryDefaults() {
    return defaultRows;
}

std::optional<Category> defaultCategory(const AppId& app) {
    const auto row = std::ranges::lower_bound(rowsByApp, std::string_view(app.text()), {}, &DefaultRow::app);
    const bool known = row != rowsByApp.end() && row->app == app.text();
    return known ? std::optional(row->category) : std::nullopt;
}

}  // namespace tidewatch
