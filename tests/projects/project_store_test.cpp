#include "projects/project_store.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Archived = ProjectStore::Archived;

const Uuid someId = *Uuid::parse("0F8FAD5B-D9CB-469F-A165-70867728950E");
const Uuid otherId = *Uuid::parse("7C9E6679-7425-40DE-944B-E07FC1F90AE7");

constexpr auto twoProjects =
    "{\n"
    "  \"activeProjectID\" : \"7C9E6679-7425-40DE-944B-E07FC1F90AE7\",\n"
    "  \"projects\" : [\n"
    "    {\n"
    "      \"archived\" : true,\n"
    "      \"colorHex\" : \"#7BD88F\",\n"
    "      \"id\" : \"0F8FAD5B-D9CB-469F-A165-70867728950E\",\n"
    "      \"name\" : \"Edición \\/ \\\"LMN\\\"\"\n"
    "    },\n"
    "    {\n"
    "      \"archived\" : false,\n"
    "      \"colorHex\" : \"no colour\",\n"
    "      \"id\" : \"7C9E6679-7425-40DE-944B-E07FC1F90AE7\",\n"
    "      \"name\" : \"\"\n"
    "    }\n"
    "  ]\n"
    "}";
constexpr auto noProjects = "{\n  \"projects\" : [\n\n  ]\n}";

struct ProjectStoreTest : testing::Test {
    test::FakeWorld world;
    Broadcaster broadcaster;
    std::optional<ProjectStore> store;
    int posted = 0;
    Connection observing = broadcaster.observe<ProjectsChanged>([this](const ProjectsChanged&) { ++posted; });

    ProjectStoreTest() { restart(); }

    void restart() { store.emplace(world.files, world.log, world.randomness, broadcaster); }
    void restartWith(std::string_view text) {
        world.files.put(world.projectsJson, text);
        restart();
    }
    [[nodiscard]] std::string onDisk() const {
        return world.files.content(world.projectsJson).value_or("no file");
    }
    [[nodiscard]] std::vector<std::string> names(const std::vector<Project>& projects) const {
        std::vector<std::string> result;
        for (const auto& project : projects) result.push_back(project.name);
        return result;
    }
    void expectEmpty() const {
        EXPECT_THAT(store->projects(), IsEmpty());
        EXPECT_EQ(store->activeProjectId(), std::nullopt);
    }
};

TEST_F(ProjectStoreTest, AtFirstThereIsNothingAndNoFile) {
    expectEmpty();
    EXPECT_EQ(store->activeProject(), std::nullopt);
    EXPECT_EQ(onDisk(), "no file");
}

TEST_F(ProjectStoreTest, ANewProjectIsAppendedWithARandomIdAndIsNotActive) {
    const auto first = store->addProject("  Uno ");
    const auto second = store->addProject("Dos");
    EXPECT_THAT(store->projects(), ElementsAre(first, second));
    EXPECT_EQ(first.name, "  Uno ");
    EXPECT_FALSE(first.archived);
    EXPECT_NE(first.id, second.id);
    EXPECT_EQ(first.id.text().size(), 36u);
    EXPECT_EQ(store->activeProjectId(), std::nullopt);
    EXPECT_EQ(posted, 2);
}

TEST_F(ProjectStoreTest, TheFirstColourIsGivenAgainAfterItsProjectIsDeleted) {
    const auto first = store->addProject("Uno");
    EXPECT_EQ(first.colorHex, "#7BD88F");
    store->deleteProject(first.id);
    EXPECT_EQ(store->addProject("Dos").colorHex, "#7BD88F");
}

TEST_F(ProjectStoreTest, ANinthProjectGetsTheFirstColourATenthTheSecond) {
    for (int i = 0; i < 8; ++i) store->addProject("p");
    EXPECT_EQ(store->addProject("ninth").colorHex, "#7BD88F");
    EXPECT_EQ(store->addProject("tenth").colorHex, "#6B9ED4");
}

TEST_F(ProjectStoreTest, AnyIdCanBeMadeActive) {
    const auto project = store->addProject("Uno");
    store->setActive(project.id);
    EXPECT_EQ(store->activeProject(), project);
    store->setActive(someId);
    EXPECT_EQ(store->activeProjectId(), someId);
    EXPECT_EQ(store->activeProject(), std::nullopt);
    store->setActive(std::nullopt);
    EXPECT_EQ(store->activeProjectId(), std::nullopt);
    EXPECT_EQ(posted, 4);
}

TEST_F(ProjectStoreTest, AnArchivedProjectWhoseIdIsMadeActiveIsTheActiveOne) {
    const auto project = store->addProject("Uno");
    store->setArchived(Archived::yes, project.id);
    store->setActive(project.id);
    EXPECT_EQ(store->activeProject()->name, "Uno");
}

TEST_F(ProjectStoreTest, ArchivingTheActiveProjectLeavesNoneActive) {
    const auto one = store->addProject("Uno");
    const auto two = store->addProject("Dos");
    store->setActive(one.id);
    store->setArchived(Archived::yes, two.id);
    EXPECT_EQ(store->activeProjectId(), one.id);
    store->setArchived(Archived::yes, one.id);
    EXPECT_EQ(store->activeProjectId(), std::nullopt);
    store->setArchived(Archived::no, one.id);
    EXPECT_EQ(store->activeProjectId(), std::nullopt);
    EXPECT_THAT(names(store->activeProjects()), ElementsAre("Uno"));
    EXPECT_THAT(names(store->archivedProjects()), ElementsAre("Dos"));
}

TEST_F(ProjectStoreTest, TheTwoListsKeepTheOrderOfCreation) {
    std::vector<Uuid> ids;
    for (const auto* name : {"a", "b", "c", "d"}) ids.push_back(store->addProject(name).id);
    store->setArchived(Archived::yes, ids[2]);
    store->setArchived(Archived::yes, ids[0]);
    EXPECT_THAT(names(store->activeProjects()), ElementsAre("b", "d"));
    EXPECT_THAT(names(store->archivedProjects()), ElementsAre("a", "c"));
}

TEST_F(ProjectStoreTest, ANameIsTrimmedWhenAProjectIsRenamed) {
    const auto project = store->addProject("Uno");
    store->renameProject(project.id, " \t Dos tres\n");
    EXPECT_EQ(store->project(project.id)->name, "Dos tres");
}

TEST_F(ProjectStoreTest, ABlankNameDoesNotRename) {
    const auto project = store->addProject("Uno");
    const auto writes = world.files.writes().size();
    for (const auto* blank : {"", "   ", "\n\t", "\u00A0"}) store->renameProject(project.id, blank);
    EXPECT_EQ(store->project(project.id)->name, "Uno");
    EXPECT_EQ(world.files.writes().size(), writes);
    EXPECT_EQ(posted, 1);
}

TEST_F(ProjectStoreTest, ChangesOfAnUnknownProjectNeitherWriteNorPost) {
    store->renameProject(someId, "Dos");
    store->setColor("#000000", someId);
    store->setArchived(Archived::yes, someId);
    EXPECT_THAT(world.files.writes(), IsEmpty());
    EXPECT_EQ(posted, 0);
}

TEST_F(ProjectStoreTest, DeletingAnUnknownProjectWritesAndPosts) {
    store->deleteProject(someId);
    EXPECT_EQ(onDisk(), noProjects);
    EXPECT_EQ(posted, 1);
}

TEST_F(ProjectStoreTest, AColourIsNotValidated) {
    const auto project = store->addProject("Uno");
    store->setColor("whatever", project.id);
    EXPECT_EQ(store->project(project.id)->colorHex, "whatever");
}

TEST_F(ProjectStoreTest, DeletingTheActiveProjectLeavesNoneActive) {
    const auto one = store->addProject("Uno");
    const auto two = store->addProject("Dos");
    store->setActive(two.id);
    store->deleteProject(one.id);
    EXPECT_EQ(store->activeProjectId(), two.id);
    store->deleteProject(two.id);
    EXPECT_EQ(store->activeProjectId(), std::nullopt);
    EXPECT_THAT(store->projects(), IsEmpty());
}

TEST_F(ProjectStoreTest, DeletingRemovesEveryProjectOfThatId) {
    std::string text = twoProjects;
    const std::string other = otherId.text();
    for (std::size_t at; (at = text.find(other)) != std::string::npos;) {
        text.replace(at, other.size(), someId.text());
    }
    restartWith(text);
    EXPECT_THAT(store->projects(), SizeIs(2));
    EXPECT_EQ(store->project(someId)->name, "Edición / \"LMN\"");
    store->deleteProject(someId);
    expectEmpty();
}

TEST_F(ProjectStoreTest, EachChangeIsOnTheDiskBeforeItIsAnnounced) {
    std::vector<std::string> seen;
    const auto listening = store->changed.connect([&] { seen.push_back("changed " + onDisk()); });
    const auto observingMore = broadcaster.observe<ProjectsChanged>(
        [&](const ProjectsChanged&) { seen.push_back("posted " + onDisk()); });
    store->setActive(otherId);
    const std::string written =
        "{\n  \"activeProjectID\" : \"7C9E6679-7425-40DE-944B-E07FC1F90AE7\",\n  \"projects\" : [\n\n  ]\n}";
    EXPECT_THAT(seen, ElementsAre("changed " + written, "posted " + written));
}

TEST_F(ProjectStoreTest, EveryMutationWritesAndPosts) {
    const auto project = store->addProject("Uno");
    store->setActive(project.id);
    store->renameProject(project.id, "Dos");
    store->setColor("#000000", project.id);
    store->setArchived(Archived::yes, project.id);
    store->deleteProject(project.id);
    EXPECT_EQ(posted, 6);
    EXPECT_THAT(world.files.writes(), SizeIs(6));
}

TEST_F(ProjectStoreTest, TheFileIsReadAndWrittenBackByteForByte) {
    restartWith(twoProjects);
    EXPECT_EQ(store->projects(), (std::vector<Project>{{someId, "Edición / \"LMN\"", "#7BD88F", true},
                                                       {otherId, "", "no colour", false}}));
    EXPECT_EQ(store->activeProjectId(), otherId);
    store->setActive(otherId);
    EXPECT_EQ(onDisk(), twoProjects);
    EXPECT_EQ(store->dataFilePath(), world.projectsJson);
}

TEST_F(ProjectStoreTest, AnInvalidColourShowsAsGreenAndIsKept) {
    restartWith(twoProjects);
    EXPECT_EQ(store->project(otherId)->color(), (RgbColor{52, 199, 89}));
    store->renameProject(otherId, "Otro");
    restart();
    EXPECT_EQ(store->project(otherId)->colorHex, "no colour");
}

TEST_F(ProjectStoreTest, TheActiveIdMayBeMissingOrNullOrOfNoProject) {
    restartWith(R"({"projects":[]})");
    expectEmpty();
    restartWith(R"({"projects":[],"activeProjectID":null})");
    expectEmpty();
    restartWith(R"({"projects":[],"activeProjectID":"0f8fad5b-d9cb-469f-a165-70867728950e"})");
    EXPECT_EQ(store->activeProjectId(), someId);
}

TEST_F(ProjectStoreTest, OtherKeysAreIgnored) {
    restartWith(
        R"({"version":1,"projects":[{"id":"0F8FAD5B-D9CB-469F-A165-70867728950E","name":"a","colorHex":"b",)"
        R"("archived":false,"notes":[1]}]})");
    EXPECT_THAT(store->projects(), SizeIs(1));
}

TEST_F(ProjectStoreTest, AMissingKeyReadsAsNoProjects) {
    const std::string good =
        R"({"id":"7C9E6679-7425-40DE-944B-E07FC1F90AE7","name":"a","colorHex":"b","archived":false})";
    restartWith(R"({"projects":[)" + good + "]}");
    EXPECT_THAT(store->projects(), SizeIs(1));
    for (const auto* bad : {
             R"({"name":"a","colorHex":"b","archived":false})",
             R"({"id":"7C9E6679-7425-40DE-944B-E07FC1F90AE7","colorHex":"b","archived":false})",
             R"({"id":"7C9E6679-7425-40DE-944B-E07FC1F90AE7","name":"a","archived":false})",
             R"({"id":"7C9E6679-7425-40DE-944B-E07FC1F90AE7","name":"a","colorHex":"b"})",
         }) {
        restartWith(R"({"projects":[)" + good + "," + bad + "]}");
        EXPECT_THAT(store->projects(), IsEmpty()) << bad;
    }
}

TEST_F(ProjectStoreTest, AMalformedFileReadsAsNoProjects) {
    for (
        const auto* text : {
            "",
            "[]",
            "null",
            "{}",
            "not json",
            R"({"projects":{}})",
            R"({"projects":null})",
            R"({"projects":[null]})",
            R"({"projects":[[]]})",
            R"({"projects":[{"id":"no uuid","name":"a","colorHex":"b","archived":false}]})",
            R"({"projects":[{"id":7,"name":"a","colorHex":"b","archived":false}]})",
            R"({"projects":[{"id":"7C9E6679-7425-40DE-944B-E07FC1F90AE7","name":7,"colorHex":"b","archived":false}]})",
            R"({"projects":[{"id":"7C9E6679-7425-40DE-944B-E07FC1F90AE7","name":"a","colorHex":null,"archived":false}]})",
            R"({"projects":[{"id":"7C9E6679-7425-40DE-944B-E07FC1F90AE7","name":"a","colorHex":"b","archived":0}]})",
            R"({"projects":[{"id":"7C9E6679-7425-40DE-944B-E07FC1F90AE7","name":"a","colorHex":"b","archived":"false"}]})",
            R"({"projects":[],"activeProjectID":"no uuid"})",
            R"({"projects":[],"activeProjectID":7})",
        }) {
        restartWith(text);
        expectEmpty();
    }
}

TEST_F(ProjectStoreTest, EveryTruncationReadsAsNoProjectsAndIsReplacedByTheNextWrite) {
    const std::string whole = twoProjects;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        restartWith(whole.substr(0, length));
        expectEmpty();
        store->setActive(std::nullopt);
        EXPECT_EQ(onDisk(), noProjects) << length;
    }
}

TEST_F(ProjectStoreTest, ADamagedFileIsSetAsideByTheNextWrite) {
    restartWith("garbage");
    store->addProject("Corto");
    EXPECT_EQ(world.files.content(world.projectsJson + ".damaged-2026-01-15"), "garbage");
    store->addProject("Otro");
    EXPECT_EQ(world.log.infos().size(), 1u);
}

TEST_F(ProjectStoreTest, EveryByteGarbledNeitherCrashesNorLeavesAnUnreadableFile) {
    const std::string whole = twoProjects;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const char garbage : {'\0', '"', '{', '[', ',', '9', '\xFF'}) {
            auto damaged = whole;
            damaged[at] = garbage;
            restartWith(damaged);
            const auto kept = store->projects();
            store->setActive(someId);
            restart();
            ASSERT_EQ(store->projects(), kept) << damaged;
            ASSERT_EQ(store->activeProjectId(), someId) << damaged;
        }
    }
}

TEST_F(ProjectStoreTest, AFailedWriteIsLoggedTheChangeIsKeptAndAnnounced) {
    world.files.failWrite(1);
    world.log.expectWarning("Tidewatch: failed to save projects: ");
    const auto project = store->addProject("Uno");
    EXPECT_THAT(store->projects(), ElementsAre(project));
    EXPECT_EQ(posted, 1);
    EXPECT_EQ(onDisk(), "no file");
    store->setActive(project.id);
    restart();
    EXPECT_EQ(store->activeProject(), project);
}

TEST_F(ProjectStoreTest, AFailedWriteKeepsTheFileAsItWas) {
    restartWith(twoProjects);
    world.files.setDisk(platform::MemoryFileSystem::Disk::full);
    world.log.expectWarning("Tidewatch: failed to save projects: ");
    store->deleteProject(someId);
    EXPECT_EQ(onDisk(), twoProjects);
}

TEST_F(ProjectStoreTest, ANameThatIsNotUtf8IsWrittenRepaired) {
    store->addProject("caf\xE9");
    restart();
    ASSERT_THAT(store->projects(), SizeIs(1));
    EXPECT_EQ(store->projects().front().name, "caf\uFFFD");
}

}  // namespace
}  // namespace tidewatch
