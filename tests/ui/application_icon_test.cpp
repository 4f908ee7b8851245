#include "ui/symbols/application_icon.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QImage>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <string>

namespace tidewatch {
namespace {

namespace fs = std::filesystem;

struct ApplicationIconTest : testing::Test {
    QTemporaryDir folder;
    const QStringList before = QIcon::themeSearchPaths();
    const QString themeBefore = QIcon::themeName();
    ~ApplicationIconTest() override {
        QIcon::setThemeSearchPaths(before);
        QIcon::setThemeName(themeBefore);
    }

    [[nodiscard]] QString at(const QString& name) const {
        const auto path = folder.filePath(name);
        fs::create_directories(fs::path(path.toStdString()).parent_path());
        return path;
    }
    [[nodiscard]] QString picture(const QString& name) const {
        QImage image(32, 32, QImage::Format_RGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(at(name)));
        return folder.filePath(name);
    }
    [[nodiscard]] QString pipe(const QString& name) const {
        EXPECT_EQ(::mkfifo(at(name).toUtf8().constData(), 0600), 0);
        return folder.filePath(name);
    }
    [[nodiscard]] QString written(const QString& name, const std::string& content) const {
        std::ofstream(at(name).toStdString()) << content;
        return folder.filePath(name);
    }
    // A theme that applications put their pictures into.
    void useTheme() const {
        const auto index = written("hicolor/index.theme",
                                   "[Icon Theme]\nName=Hicolor\nComment=x\nDirectories=48x48/apps\n"
                                   "[48x48/apps]\nSize=48\nType=Threshold\n");
        EXPECT_TRUE(fs::exists(index.toStdString()));
        QIcon::setThemeSearchPaths({folder.path()});
        QIcon::setThemeName("hicolor");
    }
};

TEST_F(ApplicationIconTest, APictureInAFileIsShown) {
    EXPECT_FALSE(applicationIcon(picture("icon.png")).isNull());
}

TEST_F(ApplicationIconTest, ANamedPipeIsNoPicture) {
    EXPECT_TRUE(applicationIcon(pipe("icon.png")).isNull());
    EXPECT_TRUE(applicationIcon(pipe("icon.svg")).isNull());
}

TEST_F(ApplicationIconTest, ALinkToADeviceWithoutAnEndIsNoPicture) {
    fs::create_symlink("/dev/zero", at("icon.png").toStdString());
    EXPECT_TRUE(applicationIcon(folder.filePath("icon.png")).isNull());
}

TEST_F(ApplicationIconTest, AFileOfExcessiveSizeIsNoPicture) {
    const auto path = picture("icon.png");
    EXPECT_FALSE(applicationIcon(path).isNull());
    fs::resize_file(path.toStdString(), std::uintmax_t{1} << 40);  // takes no space
    EXPECT_TRUE(applicationIcon(path).isNull());
}

TEST_F(ApplicationIconTest, ADrawingThatBringsItsPicturesIsShown) {
    const auto path =
        written("icon.svg",
                R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink"
                              width="16" height="16"><rect id="a" width="16" height="16" fill="#00ff00"/>
                              <image width="1" height="1" xlink:href="data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg=="/>
                              <use xlink:href="#a"/></svg>)");
    EXPECT_FALSE(applicationIcon(path).isNull());
}

TEST_F(ApplicationIconTest, ADrawingThatRefersToANamedPipeIsNoPicture) {
    const auto target = pipe("picture.png").toStdString();
    const auto path =
        written("icon.svg",
                R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink"
                              width="16" height="16"><image width="16" height="16" xlink:href = ")" +
                    target + R"("/></svg>)");
    EXPECT_TRUE(applicationIcon(path).isNull());
}

TEST_F(ApplicationIconTest, AnIconOfTheThemeIsShown) {
    useTheme();
    static_cast<void>(picture("hicolor/48x48/apps/theme-editor.png"));
    EXPECT_FALSE(applicationIcon("theme-editor").isNull());
    EXPECT_TRUE(applicationIcon("theme-nothing").isNull());
}

TEST_F(ApplicationIconTest, ANamedPipeInTheThemeIsNoPicture) {
    useTheme();
    static_cast<void>(pipe("hicolor/48x48/apps/theme-pipe.png"));
    EXPECT_TRUE(applicationIcon("theme-pipe").isNull());
}

TEST_F(ApplicationIconTest, ALongNameTakesTheIconOfAShorterOneUnlessThatIsANamedPipe) {
    useTheme();
    static_cast<void>(picture("hicolor/48x48/apps/short.png"));
    static_cast<void>(pipe("hicolor/48x48/apps/clogged.png"));
    EXPECT_FALSE(applicationIcon("short-and-long").isNull());
    EXPECT_TRUE(applicationIcon("clogged-and-long").isNull());
}

// A theme "child" in a folder of its own, which inherits from "parent", and that from "grandparent".
struct InheritedIconTest : ApplicationIconTest {
    InheritedIconTest() {
        theme("child", "Inherits=missing, parent\nDirectories=48x48/apps", "48x48/apps");
        theme("parent", "Inherits=\"grandparent\"\nDirectories=64x64/mimetypes", "64x64/mimetypes");
        theme("grandparent", "Inherits=child\nDirectories=32x32@2/apps", "32x32@2/apps");
        theme("hicolor", "Directories=16x16/apps", "16x16/apps");
        QIcon::setThemeSearchPaths({folder.filePath("first"), folder.filePath("second")});
        QIcon::setThemeName("child");
    }
    void theme(const std::string& name, const std::string& keys, const std::string& directory) const {
        static_cast<void>(written(
            QString::fromStdString("second/" + name + "/index.theme"),
            "[Icon Theme]\nName=x\nComment=x\n" + keys + "\n[" + directory + "]\nSize=48\nType=Threshold\n"));
    }
};

TEST_F(InheritedIconTest, PicturesOfParentThemesAreShown) {
    for (const QString place :
         {"parent/64x64/mimetypes/", "grandparent/32x32@2/apps/", "hicolor/16x16/apps/"}) {
        const auto name = "inherited" + QString::number(qHash(place));
        static_cast<void>(picture("second/" + place + name + ".png"));
        EXPECT_FALSE(applicationIcon(name).isNull()) << place.toStdString();
    }
}

TEST_F(InheritedIconTest, ANamedPipeInAParentThemeIsNoPicture) {
    for (const QString place :
         {"parent/64x64/mimetypes/", "grandparent/32x32@2/apps/", "hicolor/16x16/apps/"}) {
        const auto name = "clogged" + QString::number(qHash(place));
        static_cast<void>(pipe("second/" + place + name + ".svg"));
        EXPECT_TRUE(applicationIcon(name).isNull()) << place.toStdString();
    }
}

TEST_F(InheritedIconTest, ALinkToADeviceInAParentThemeIsNoPicture) {
    fs::create_symlink("/dev/zero", at("second/parent/64x64/mimetypes/endless.png").toStdString());
    EXPECT_TRUE(applicationIcon("endless").isNull());
}

TEST_F(InheritedIconTest, ANamedPipeWhereAThemeLiesWithoutAnIndexIsNoPicture) {
    static_cast<void>(pipe("first/parent/64x64/mimetypes/clogged-elsewhere.png"));
    EXPECT_TRUE(applicationIcon("clogged-elsewhere").isNull());
}

TEST_F(InheritedIconTest, ThemesWhoseIndexOrCacheIsANamedPipeAreNotLookedThrough) {
    static_cast<void>(picture("second/child/48x48/apps/own.png"));
    EXPECT_FALSE(applicationIcon("own").isNull());
    for (const QString name : {"first/parent/index.theme", "first/grandparent/icon-theme.cache"}) {
        const auto path = pipe(name);
        EXPECT_TRUE(applicationIcon("own").isNull()) << path.toStdString();
        fs::remove(path.toStdString());
    }
    EXPECT_FALSE(applicationIcon("own").isNull());
}

TEST_F(ApplicationIconTest, ANamedPipeBesideAPictureForADenserScreenIsNoPicture) {
    const auto path = picture("icon.png");
    EXPECT_FALSE(applicationIcon(path).isNull());
    static_cast<void>(pipe("icon@2x.png"));
    EXPECT_TRUE(applicationIcon(path).isNull());
}

}  // namespace
}  // namespace tidewatch
