#include "platform/freedesktop/xdg_desktop.h"

#include <gmock/gmock.h>
#include <stdlib.h>

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>

#include "platform/fake/fake_applications.h"
#include "support/temporary_directory.h"
#include "tests/platform/freedesktop/private_bus.h"

namespace tidewatch::platform {
namespace {

/// A file manager that records what it is asked to show.
class FileManager final : public QDBusVirtualObject {
public:
    explicit FileManager(QDBusConnection bus) {
        EXPECT_TRUE(bus.registerVirtualObject("/org/freedesktop/FileManager1", this));
        EXPECT_TRUE(bus.registerService("org.freedesktop.FileManager1"));
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        shown += message.arguments().at(0).toStringList();
        bus.send(message.createReply());
        return true;
    }

    QStringList shown;
};

class XdgDesktopTest : public testing::Test {
protected:
    XdgDesktopTest() {
        // Only what the test registers: nothing of the machine that it runs on.
        for (const auto* variable : {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_HOME", "XDG_DATA_DIRS"})
            ::setenv(variable, directory_.path().c_str(), 1);
    }

    void registerForFolders(const std::string& id) {
        directory_.write("mimeapps.list", "[Default Applications]\ninode/directory=" + id + ".desktop;\n");
    }
    std::optional<Status> reveal(const std::string& path) {
        std::optional<Status> shown;
        desktop_.reveal(path, [&](const Status& status) { shown = status; });
        QElapsedTimer timer;
        timer.start();
        while (!shown && timer.elapsed() < 60'000) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return shown;
    }

    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QCoreApplication application_{argc_, argv_};
    test::TemporaryDirectory directory_;
    PrivateBus bus_;
    MessageBus session_{bus_.address().section(',', 0, 0)};
    FakeApplications applications_;
    XdgDesktop desktop_{session_, applications_, QProcessEnvironment()};
};

TEST_F(XdgDesktopTest, ThePlaceWhereAFileIsRevealedHasTheNameOfTheFileManager) {
    applications_.registerApplication(AppId("org.files"), {"Archivos", "", {"System", "FileManager"}});
    registerForFolders("org.files");
    EXPECT_EQ(desktop_.words().revealInFileManager, "Revelar en Archivos");
}

TEST_F(XdgDesktopTest, WithoutAFileManagerItIsTheFolder) {
    EXPECT_EQ(desktop_.words().revealInFileManager, "Mostrar en la carpeta");
    applications_.registerApplication(AppId("org.browser"), {"Navegador", "", {"Network", "WebBrowser"}});
    registerForFolders("org.browser");
    EXPECT_EQ(desktop_.words().revealInFileManager, "Mostrar en la carpeta");
}

TEST_F(XdgDesktopTest, NobodyIsAskedBeforeFoldersAreRead) {
    EXPECT_FALSE(desktop_.words().asksBeforeReadingFolders);
    EXPECT_EQ(desktop_.words().unnamedVolume, "Sistema");
}

TEST_F(XdgDesktopTest, APathIsRevealedByteForByte) {
    FileManager manager(bus_.connect());
    for (const auto* path : {"/home/user/a b", "/home/user/ñ%#?", "/home/user/\xff"}) {
        const auto shown = reveal(path);
        ASSERT_TRUE(shown);
        EXPECT_TRUE(shown->ok());
    }
    EXPECT_EQ(manager.shown, QStringList({"file:///home/user/a%20b", "file:///home/user/%C3%B1%25%23%3F",
                                          "file:///home/user/%FF"}));
}

TEST_F(XdgDesktopTest, WithoutAFileManagerRevealingFails) {
    const auto shown = reveal("/home/user/a");
    ASSERT_TRUE(shown);
    EXPECT_FALSE(shown->ok());
}

}  // namespace
}  // namespace tidewatch::platform
