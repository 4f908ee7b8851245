#include "platform/linux/process_identity.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

TEST(FlatpakId, IsTheNameOfTheApplicationGroup) {
    EXPECT_EQ(flatpakId("[Application]\nname=org.example.Notes\nruntime=x\n"), "org.example.Notes");
    EXPECT_EQ(flatpakId("[Instance]\nname=other\n[Application]\nname=org.example.Notes\n"),
              "org.example.Notes");
}

TEST(FlatpakId, IsAbsentFromARuntimeAndFromNothing) {
    EXPECT_EQ(flatpakId("[Runtime]\nname=org.example.Platform\n"), std::nullopt);
    EXPECT_EQ(flatpakId(""), std::nullopt);
}

TEST(SnapId, IsTheNameAndTheApplicationOfTheScope) {
    EXPECT_EQ(
        snapId("0::/user.slice/app.slice/snap.editor.editor-3b5c3a7e-8b0f-4c43-9d0b-0f8a1e1f2a3b.scope\n"),
        "editor_editor");
    EXPECT_EQ(snapId("0::/user.slice/snap.suite.draw-9.3b5c3a7e.scope\n"), "suite_draw-9");
}

TEST(SnapId, IsAbsentForAnOrdinaryProcess) {
    EXPECT_EQ(snapId("0::/user.slice/session-2.scope\n"), std::nullopt);
    EXPECT_EQ(snapId(""), std::nullopt);
}

TEST(SandboxedApplication, ReadsWhatTheProcessDirectoryHolds) {
    test::TemporaryDirectory proc;
    proc.write("10/root/.flatpak-info", "[Application]\nname=org.example.Notes\n");
    proc.write("11/cgroup", "0::/user.slice/snap.editor.editor.1234.scope\n");
    proc.write("12/cgroup", "0::/user.slice\n");
    EXPECT_EQ(sandboxedApplication(10, proc.path()), "org.example.Notes");
    EXPECT_EQ(sandboxedApplication(11, proc.path()), "editor_editor");
    EXPECT_EQ(sandboxedApplication(12, proc.path()), std::nullopt);
    EXPECT_EQ(sandboxedApplication(13, proc.path()), std::nullopt);
}

TEST(SandboxedApplication, ANamedPipeInTheSandboxDoesNotBlockAndTellsNothing) {
    test::TemporaryDirectory proc;
    proc.write("10/cgroup", "0::/user.slice/snap.editor.editor.1234.scope\n");
    std::filesystem::create_directories(proc.path() + "/10/root");
    ASSERT_EQ(::mkfifo((proc.path() + "/10/root/.flatpak-info").c_str(), 0600), 0);
    EXPECT_EQ(sandboxedApplication(10, proc.path()), "editor_editor");
}

TEST(SandboxedApplication, ADeviceWithoutAnEndInTheSandboxTellsNothing) {
    test::TemporaryDirectory proc;
    std::filesystem::create_directories(proc.path() + "/10/root");
    std::filesystem::create_symlink("/dev/zero", proc.path() + "/10/root/.flatpak-info");
    EXPECT_EQ(sandboxedApplication(10, proc.path()), std::nullopt);
}

TEST(SandboxedApplication, AFileOfExcessiveSizeTellsNothing) {
    test::TemporaryDirectory proc;
    proc.write("10/root/.flatpak-info", "[Application]\nname=org.example.Notes\n");
    std::filesystem::resize_file(proc.path() + "/10/root/.flatpak-info", std::uintmax_t{1} << 40);
    EXPECT_EQ(sandboxedApplication(10, proc.path()), std::nullopt);
}

}  // namespace
}  // namespace tidewatch::platform
