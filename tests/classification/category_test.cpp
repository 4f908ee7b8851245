#include "classification/category.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "classification/category_defaults.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

/// The applications of one category, separated by spaces.
struct AppsOfCategory {
    Category category;
    std::string_view apps;
};

/// The whole built-in table once more, so that no row can be lost, misspelt or moved unnoticed.
constexpr AppsOfCategory wholeTable[] = {
    {Category::audioVideo,
     "com.blackmagic-design.DaVinciResolve com.apple.FinalCut com.apple.FinalCutPro com.adobe.Premiere "
     "com.adobe.AfterEffects com.adobe.AudioCC com.apple.iMovie com.lemkesoft.cinemate.CapCutMac "
     "com.bytedance.CapCut com.topazlabs.VideoEnhance com.apple.QuickTimePlayerX com.apple.Photos "
     "com.apple.iPhoto com.blackmagic-design.Fairlight com.adobe.media-encoder "
     "com.adobe.LightroomClassicCC7"},
    {Category::design,
     "com.figma.Desktop com.figma.figmaagent com.adobe.Photoshop com.adobe.illustrator "
     "com.adobe.indesign com.adobe.AdobeXD com.bohemiancoding.sketch3 com.seriflabs.affinitydesigner "
     "com.seriflabs.affinityphoto"},
    {Category::development,
     "com.apple.dt.Xcode com.microsoft.VSCode com.apple.Terminal com.googlecode.iterm2 "
     "com.jetbrains.intellij com.jetbrains.pycharm co.anthropic.claudefordesktop com.anthropic.claude "
     "com.anthropic.claudefordesktop com.tinyspeck.slackmacgap.helper com.python.IDLE org.python.IDLE"},
    {Category::documents,
     "com.apple.iWork.Pages com.apple.iWork.Numbers com.apple.iWork.Keynote com.apple.Notes "
     "com.apple.Reminders com.apple.freeform notion.id com.electron.notion com.microsoft.Word "
     "com.microsoft.Excel com.microsoft.Powerpoint com.microsoft.onenote.mac com.finaldraft.finaldraft12 "
     "net.shinyfrog.bear com.apple.TextEdit com.apple.dictionary"},
    {Category::browser,
     "com.google.Chrome com.apple.Safari company.thebrowser.Browser org.mozilla.firefox "
     "com.brave.Browser com.microsoft.edgemac"},
    {Category::communication,
     "com.apple.mail com.apple.MobileSMS com.tinyspeck.slackmacgap net.whatsapp.WhatsApp WhatsApp "
     "ru.keepcoder.Telegram com.apple.AddressBook"},
    {Category::meetings,
     "us.zoom.xos com.apple.FaceTime com.microsoft.teams com.microsoft.teams2 com.cisco.webexmeetingsapp "
     "com.google.Meet com.apple.iCal"},
    {Category::system,
     "com.apple.finder com.apple.systempreferences com.apple.ActivityMonitor com.apple.DiskUtility "
     "com.apple.Console com.apple.controlstrip com.apple.dock com.apple.SystemEvents "
     "com.apple.PrintCenter com.apple.MigrationAssistant com.apple.iphonesimulator"},
    {Category::utilities,
     "com.brightlooms.tidewatch com.QotoQot.Qbserve com.macpaw.CleanMyMac4 com.macpaw.CleanMyMacX "
     "com.apple.Preview com.adobe.acc.AdobeCreativeCloud com.adobe.acc.helper com.unarchive.unarchiver "
     "com.colliderli.iina"},
    {Category::music, "com.spotify.client com.apple.Music com.apple.GarageBand com.apple.logic10"},
    {Category::games,
     "com.brightlooms.fathom.games com.valvesoftware.steam com.valvesoftware.steam.helper "
     "com.roblox.RobloxPlayer com.apple.Chess com.epicgames.EpicGamesLauncher com.blizzard.battle.net"},
    {Category::social,
     "com.hnc.Discord com.tweetbot.tweetbot com.atebits.Tweetie2 com.burbn.instagram "
     "com.zhiliaoapp.musically"},
    {Category::entertainment,
     "com.apple.TV tv.stremio.Stremio com.4kdownload.4kyoutubetomp3 com.netflix.Netflix "
     "com.disney.disneyplus com.apple.podcasts com.apple.iBooksX"},
};

TEST(TierTest, FourInOrderWithStoredAndDisplayedValues) {
    std::vector<std::pair<std::string_view, std::string_view>> texts;
    for (const auto tier : allTiers()) texts.emplace_back(rawValue(tier), displayName(tier));
    EXPECT_THAT(texts,
                ElementsAre(Pair("productivo", "Productivo"), Pair("neutral", "Neutral"),
                            Pair("distrayendo", "Distrayendo"), Pair("sincategorizar", "Sin categorizar")));
}

TEST(TierTest, IsParsedFromItsExactRawValue) {
    for (const auto tier : allTiers()) EXPECT_EQ(tierFromRaw(rawValue(tier)), tier);
    for (const auto* raw : {"", "Productivo", "productivo ", "Sin categorizar", "productive"}) {
        EXPECT_EQ(tierFromRaw(raw), std::nullopt) << raw;
    }
}

TEST(CategoryTest, FifteenInTheirOrderWithTheirTiers) {
    std::vector<std::pair<std::string_view, Tier>> rows;
    for (const auto category : allCategories()) rows.emplace_back(rawValue(category), defaultTier(category));
    using enum Tier;
    EXPECT_THAT(rows,
                ElementsAre(Pair("Audio/Video", productive), Pair("Diseño", productive),
                            Pair("Desarrollo", productive), Pair("Documentos y escritura", productive),
                            Pair("Comunicación", productive), Pair("Reuniones", productive),
                            Pair("Navegador", productive), Pair("Sistema", neutral),
                            Pair("Utilidades", neutral), Pair("Música", neutral), Pair("Juegos", distracting),
                            Pair("Entretenimiento", distracting), Pair("Social", distracting),
                            Pair("Otro", productive), Pair("Sin categorizar", uncategorized)));
}

TEST(CategoryTest, IsParsedFromItsExactRawValue) {
    for (const auto category : allCategories()) EXPECT_EQ(categoryFromRaw(rawValue(category)), category);
    for (const auto* raw : {"", "desarrollo", "Diseno", "Audio\\/Video", "Sistema "}) {
        EXPECT_EQ(categoryFromRaw(raw), std::nullopt) << raw;
    }
}

TEST(CategoryDefaultsTest, Hold116ApplicationsOnceEach) {
    std::set<std::string_view> apps;
    for (const auto& row : categoryDefaults()) apps.insert(row.app);
    EXPECT_EQ(categoryDefaults().size(), 116u);
    EXPECT_EQ(apps.size(), 116u);
}

TEST(CategoryDefaultsTest, EveryApplicationStandsInItsCategoryAndNoOtherStandsThere) {
    std::vector<std::pair<std::string_view, Category>> expected;
    for (auto [category, apps] : wholeTable) {
        while (!apps.empty()) {
            expected.emplace_back(apps.substr(0, apps.find(' ')), category);
            apps.remove_prefix(std::min(apps.size(), expected.back().first.size() + 1));
        }
    }
    ASSERT_EQ(expected.size(), 116u);
    std::vector<std::pair<std::string_view, Category>> table;
    for (const auto& row : categoryDefaults()) table.emplace_back(row.app, row.category);
    EXPECT_THAT(table, UnorderedElementsAreArray(expected));
    for (const auto& [app, category] : expected) {
        EXPECT_EQ(defaultCategory(AppId(std::string(app))), category) << app;
    }
}

TEST(CategoryDefaultsTest, SpreadOverThirteenCategories) {
    std::map<Category, int> counts;
    for (const auto& row : categoryDefaults()) ++counts[row.category];
    using enum Category;
    EXPECT_THAT(counts, UnorderedElementsAre(Pair(audioVideo, 16), Pair(design, 9), Pair(development, 12),
                                             Pair(documents, 16), Pair(communication, 7), Pair(meetings, 7),
                                             Pair(browser, 6), Pair(Category::system, 11), Pair(utilities, 9),
                                             Pair(music, 4), Pair(games, 7), Pair(entertainment, 7),
                                             Pair(social, 5)));
}

TEST(CategoryDefaultsTest, EveryRowIsFound) {
    for (const auto& row : categoryDefaults()) {
        EXPECT_EQ(defaultCategory(AppId(std::string(row.app))), row.category) << row.app;
    }
}

TEST(CategoryDefaultsTest, AnUnknownApplicationOrAnotherLetterCaseIsNotFound) {
    for (const auto* app :
         {"", "aaa", "zzz", "Com.google.Chrome", "com.google.chrome", "com.google.Chrome "}) {
        EXPECT_EQ(defaultCategory(AppId(app)), std::nullopt) << app;
    }
}

TEST(CategoryDefaultsTest, TheRowsThatStandWhereTheyStandOnPurpose) {
    EXPECT_EQ(defaultCategory(AppId("com.tinyspeck.slackmacgap.helper")), Category::development);
    EXPECT_EQ(defaultCategory(AppId("com.tinyspeck.slackmacgap")), Category::communication);
    EXPECT_EQ(defaultCategory(AppId("com.apple.iCal")), Category::meetings);
    EXPECT_EQ(defaultCategory(AppId("com.colliderli.iina")), Category::utilities);
    EXPECT_EQ(defaultCategory(AppId("com.brightlooms.tidewatch")), Category::utilities);
}

TEST(CategoryDefaultsTest, TheBuiltInGamesAreDistractingWithoutAnyOverride) {
    const auto category = defaultCategory(AppId("com.brightlooms.fathom.games"));
    EXPECT_EQ(category, Category::games);
    EXPECT_EQ(defaultTier(*category), Tier::distracting);
}

}  // namespace
}  // namespace tidewatch
