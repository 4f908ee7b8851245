#include "classification/category_defaults.h"

#include <algorithm>
#include <array>

namespace tidewatch {
namespace {

using Row = CategoryDefault;

// Some rows stand where they stand on purpose: a messenger's helper among the tools of development, a
// calendar among the meetings, a media player among the utilities.
constexpr std::array rows{
    Row{"com.blackmagic-design.DaVinciResolve", Category::audioVideo},
    Row{"com.apple.FinalCut", Category::audioVideo},
    Row{"com.apple.FinalCutPro", Category::audioVideo},
    Row{"com.adobe.Premiere", Category::audioVideo},
    Row{"com.adobe.AfterEffects", Category::audioVideo},
    Row{"com.adobe.AudioCC", Category::audioVideo},
    Row{"com.apple.iMovie", Category::audioVideo},
    Row{"com.lemkesoft.cinemate.CapCutMac", Category::audioVideo},
    Row{"com.bytedance.CapCut", Category::audioVideo},
    Row{"com.topazlabs.VideoEnhance", Category::audioVideo},
    Row{"com.apple.QuickTimePlayerX", Category::audioVideo},
    Row{"com.apple.Photos", Category::audioVideo},
    Row{"com.apple.iPhoto", Category::audioVideo},
    Row{"com.blackmagic-design.Fairlight", Category::audioVideo},
    Row{"com.adobe.media-encoder", Category::audioVideo},
    Row{"com.adobe.LightroomClassicCC7", Category::audioVideo},
    Row{"com.figma.Desktop", Category::design},
    Row{"com.figma.figmaagent", Category::design},
    Row{"com.adobe.Photoshop", Category::design},
    Row{"com.adobe.illustrator", Category::design},
    Row{"com.adobe.indesign", Category::design},
    Row{"com.adobe.AdobeXD", Category::design},
    Row{"com.bohemiancoding.sketch3", Category::design},
    Row{"com.seriflabs.affinitydesigner", Category::design},
    Row{"com.seriflabs.affinityphoto", Category::design},
    Row{"com.apple.dt.Xcode", Category::development},
    Row{"com.microsoft.VSCode", Category::development},
    Row{"com.apple.Terminal", Category::development},
    Row{"com.googlecode.iterm2", Category::development},
    Row{"com.jetbrains.intellij", Category::development},
    Row{"com.jetbrains.pycharm", Category::development},
    Row{"co.anthropic.claudefordesktop", Category::development},
    Row{"com.anthropic.claude", Category::development},
    Row{"com.anthropic.claudefordesktop", Category::development},
    Row{"com.tinyspeck.slackmacgap.helper", Category::development},
    Row{"com.python.IDLE", Category::development},
    Row{"org.python.IDLE", Category::development},
    Row{"com.apple.iWork.Pages", Category::documents},
    Row{"com.apple.iWork.Numbers", Category::documents},
    Row{"com.apple.iWork.Keynote", Category::documents},
    Row{"com.apple.Notes", Category::documents},
    Row{"com.apple.Reminders", Category::documents},
    Row{"com.apple.freeform", Category::documents},
    Row{"notion.id", Category::documents},
    Row{"com.electron.notion", Category::documents},
    Row{"com.microsoft.Word", Category::documents},
    Row{"com.microsoft.Excel", Category::documents},
    Row{"com.microsoft.Powerpoint", Category::documents},
    Row{"com.microsoft.onenote.mac", Category::documents},
    Row{"com.finaldraft.finaldraft12", Category::documents},
    Row{"net.shinyfrog.bear", Category::documents},
    Row{"com.apple.TextEdit", Category::documents},
    Row{"com.apple.dictionary", Category::documents},
    Row{"com.google.Chrome", Category::browser},
    Row{"com.apple.Safari", Category::browser},
    Row{"company.thebrowser.Browser", Category::browser},
    Row{"org.mozilla.firefox", Category::browser},
    Row{"com.brave.Browser", Category::browser},
    Row{"com.microsoft.edgemac", Category::browser},
    Row{"com.apple.mail", Category::communication},
    Row{"com.apple.MobileSMS", Category::communication},
    Row{"com.tinyspeck.slackmacgap", Category::communication},
    Row{"net.whatsapp.WhatsApp", Category::communication},
    Row{"WhatsApp", Category::communication},
    Row{"ru.keepcoder.Telegram", Category::communication},
    Row{"com.apple.AddressBook", Category::communication},
    Row{"us.zoom.xos", Category::meetings},
    Row{"com.apple.FaceTime", Category::meetings},
    Row{"com.microsoft.teams", Category::meetings},
    Row{"com.microsoft.teams2", Category::meetings},
    Row{"com.cisco.webexmeetingsapp", Category::meetings},
    Row{"com.google.Meet", Category::meetings},
    Row{"com.apple.iCal", Category::meetings},
    Row{"com.apple.finder", Category::system},
    Row{"com.apple.systempreferences", Category::system},
    Row{"com.apple.ActivityMonitor", Category::system},
    Row{"com.apple.DiskUtility", Category::system},
    Row{"com.apple.Console", Category::system},
    Row{"com.apple.controlstrip", Category::system},
    Row{"com.apple.dock", Category::system},
    Row{"com.apple.SystemEvents", Category::system},
    Row{"com.apple.PrintCenter", Category::system},
    Row{"com.apple.MigrationAssistant", Category::system},
    Row{"com.apple.iphonesimulator", Category::system},
    Row{"com.brightlooms.tidewatch", Category::utilities},
    Row{"com.QotoQot.Qbserve", Category::utilities},
    Row{"com.macpaw.CleanMyMac4", Category::utilities},
    Row{"com.macpaw.CleanMyMacX", Category::utilities},
    Row{"com.apple.Preview", Category::utilities},
    Row{"com.adobe.acc.AdobeCreativeCloud", Category::utilities},
    Row{"com.adobe.acc.helper", Category::utilities},
    Row{"com.unarchive.unarchiver", Category::utilities},
    Row{"com.colliderli.iina", Category::utilities},
    Row{"com.spotify.client", Category::music},
    Row{"com.apple.Music", Category::music},
    Row{"com.apple.GarageBand", Category::music},
    Row{"com.apple.logic10", Category::music},
    Row{"com.brightlooms.fathom.games", Category::games},
    Row{"com.valvesoftware.steam", Category::games},
    Row{"com.valvesoftware.steam.helper", Category::games},
    Row{"com.roblox.RobloxPlayer", Category::games},
    Row{"com.apple.Chess", Category::games},
    Row{"com.epicgames.EpicGamesLauncher", Category::games},
    Row{"com.blizzard.battle.net", Category::games},
    Row{"com.hnc.Discord", Category::social},
    Row{"com.tweetbot.tweetbot", Category::social},
    Row{"com.atebits.Tweetie2", Category::social},
    Row{"com.burbn.instagram", Category::social},
    Row{"com.zhiliaoapp.musically", Category::social},
    Row{"com.apple.TV", Category::entertainment},
    Row{"tv.stremio.Stremio", Category::entertainment},
    Row{"com.4kdownload.4kyoutubetomp3", Category::entertainment},
    Row{"com.netflix.Netflix", Category::entertainment},
    Row{"com.disney.disneyplus", Category::entertainment},
    Row{"com.apple.podcasts", Category::entertainment},
    Row{"com.apple.iBooksX", Category::entertainment},
};

constexpr auto rowsByApp = [] {
    auto sorted = rows;
    std::ranges::sort(sorted, {}, &Row::app);
    return sorted;
}();

static_assert(std::ranges::adjacent_find(rowsByApp, {}, &Row::app) == rowsByApp.end());

}  // namespace

std::span<const CategoryDefault> categoryDefaults() {
    return rows;
}

std::optional<Category> defaultCategory(const AppId& app) {
    const auto row = std::ranges::lower_bound(rowsByApp, std::string_view(app.text()), {}, &Row::app);
    const bool known = row != rowsByApp.end() && row->app == app.text();
    return known ? std::optional(row->category) : std::nullopt;
}

}  // namespace tidewatch
