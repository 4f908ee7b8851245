#include "platform/freedesktop/folder_handlers.h"

#include <gmock/gmock.h>

namespace tidewatch::platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FolderHandlersTest, TheUsersChoiceIsReadInItsOrder) {
    EXPECT_THAT(folderHandlers("[Default Applications]\n"
                               "text/plain=editor.desktop\n"
                               "inode/directory=org.gnome.Nautilus.desktop;thunar.desktop;\n"),
                ElementsAre("org.gnome.Nautilus", "thunar"));
    EXPECT_THAT(folderHandlers("[MIME Cache]\r\ninode/directory=pcmanfm.desktop\r\n"),
                ElementsAre("pcmanfm"));
}

TEST(FolderHandlersTest, RemovedOnesAndOtherGroupsAreIgnored) {
    EXPECT_THAT(folderHandlers("[Removed Associations]\ninode/directory=code.desktop;\n"), IsEmpty());
    EXPECT_THAT(folderHandlers("inode/directory=code.desktop;\n"), IsEmpty());
}

TEST(FolderHandlersTest, MalformedTextIsIgnored) {
    EXPECT_THAT(folderHandlers(""), IsEmpty());
    EXPECT_THAT(folderHandlers("[Default Applications]\ninode/directory="), IsEmpty());
    EXPECT_THAT(folderHandlers("[Default Applications]\ninode/directory=;;firefox;\n"), IsEmpty());
}

}  // namespace
}  // namespace tidewatch::platform
