#include "shell/status_title.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

Project named(const std::string& name) {
    return {.id = Uuid(), .name = name, .colorHex = "#7BD88F"};
}

ProductivityScore score(std::int64_t productive, std::int64_t distracting) {
    ProductivityScore score;
    score.add(Tier::productive, Seconds(productive));
    score.add(Tier::distracting, Seconds(distracting));
    return score;
}

TEST(StatusTitle, NothingBookedTodayIsADashWithoutAMood) {
    const auto title = statusTitle({}, std::nullopt);
    EXPECT_EQ(title.text(), "—");
    EXPECT_EQ(title.mood, StatusTitle::Mood::none);
}

TEST(StatusTitle, NothingBookedTodayWithAnActiveProjectIsTheDashAndItsName) {
    EXPECT_EQ(statusTitle({}, named("Film")).text(), "— · Film");
}

TEST(StatusTitle, ANameOf12CharactersIsShownWhole) {
    EXPECT_EQ(statusTitle({}, named("abcdefghijkl")).project, "abcdefghijkl");
}

TEST(StatusTitle, ANameOf13CharactersShowsAsItsFirst11AndAnEllipsis) {
    EXPECT_EQ(statusTitle({}, named("abcdefghijklm")).project, "abcdefghijk…");
}

TEST(StatusTitle, CharactersAreCountedNotBytes) {
    EXPECT_EQ(statusTitle({}, named("áéíóúñáéíóúñ")).project, "áéíóúñáéíóúñ");
    EXPECT_EQ(statusTitle({}, named("áéíóúñáéíóúñá")).project, "áéíóúñáéíóú…");
}

TEST(StatusTitle, ACharacterIsWhatAReaderTakesForOne) {
    const std::string family = "👨‍👩‍👧‍👦";
    const std::string flag = "🇲🇽";
    const std::string accented = "e\u0301";
    std::string eleven;
    for (int i = 0; i < 4; ++i) eleven += family + flag;
    eleven += accented + accented + accented;
    EXPECT_EQ(statusTitle({}, named(eleven + family)).project, eleven + family);
    EXPECT_EQ(statusTitle({}, named(eleven + family + "x")).project, eleven + "…");
}

TEST(StatusTitle, ANameWithLineBreaksIsOneLine) {
    EXPECT_EQ(statusTitle({}, named("Corto\r\n de\u2028ayer")).project, "Corto de ay…");
    EXPECT_EQ(statusTitle({}, named("Uno\nDos")).text(), "— · Uno Dos");
}

TEST(StatusTitle, ANameOf50000LettersIsShort) {
    EXPECT_EQ(statusTitle({}, named(std::string(50'000, 'x'))).project, "xxxxxxxxxxx…");
}

TEST(StatusTitle, AScoreOfExactly0Point3IsMiddlingAndOfExactly0Point6Good) {
    EXPECT_EQ(statusTitle(score(29, 71), std::nullopt).mood, StatusTitle::Mood::low);
    EXPECT_EQ(statusTitle(score(30, 70), std::nullopt).mood, StatusTitle::Mood::middling);
    EXPECT_EQ(statusTitle(score(59, 41), std::nullopt).mood, StatusTitle::Mood::middling);
    EXPECT_EQ(statusTitle(score(60, 40), std::nullopt).mood, StatusTitle::Mood::good);
}

TEST(StatusTitle, TheFigureIsTheScoreInPerCent) {
    EXPECT_EQ(statusTitle(score(72, 28), std::nullopt).text(), "72%");
}

}  // namespace
}  // namespace tidewatch
