// SPDX-License-Identifier: MIT
#include "ui/app_folder.h"

#include <QDir>
#include <QFile>
#include <filesystem>

#include "support/test_game.h"

namespace tidewalk::test {
namespace {

struct Places {
    Places() {
        for (const char* const name : {"bin", "share", "share/icons"})
            QDir().mkdir(At(name));
        folder.Write("share/all.col", "shipped");
        folder.Write("share/tide.htm", "help");
        folder.Write("share/icons/undo.svg", "icon");
        std::filesystem::permissions(folder.Path("share/all.col"), std::filesystem::perms::owner_read);
    }
    QString At(const std::string& name) const { return QString::fromStdString(folder.Path(name)); }
    AppFolderChoice Choose(const std::optional<QString>& requested = {}) const {
        return ChooseAppFolder(requested, {At("bin"), At("home/data/tidewalk"), At("share")});
    }

    TempFolder folder;
};

TEST(AppFolder, TheUsersFolderIsMadeAndGetsOnlyWhatItLacks) {
    const Places places;
    EXPECT_EQ(places.Choose().folder, places.At("home/data/tidewalk"));
    EXPECT_EQ(places.folder.Read("home/data/tidewalk/all.col"), "shipped");
    EXPECT_FALSE(QFile::exists(places.At("home/data/tidewalk/icons")));
    EXPECT_TRUE(QFile::permissions(places.At("home/data/tidewalk/all.col")) & QFile::WriteOwner);
    places.folder.Write("home/data/tidewalk/all.col", "my own");
    QFile::remove(places.At("home/data/tidewalk/tide.htm"));
    places.Choose();
    EXPECT_EQ(places.folder.Read("home/data/tidewalk/all.col"), "my own");
    EXPECT_EQ(places.folder.Read("home/data/tidewalk/tide.htm"), "help");
}

TEST(AppFolder, AProgramBesideItsSchemesIsAPortableCopy) {
    const Places places;
    places.folder.Write("bin/all.col", "portable");
    EXPECT_EQ(places.Choose().folder, places.At("bin"));
    EXPECT_FALSE(QFile::exists(places.At("home")));
}

TEST(AppFolder, ARequestedFolderIsTakenAsItIs) {
    const Places places;
    EXPECT_EQ(places.Choose(places.At("share")).folder, places.At("share"));
    QDir().mkdir(places.At("empty"));
    EXPECT_EQ(places.Choose(places.At("empty")).error, "");
    EXPECT_TRUE(QDir(places.At("empty")).isEmpty());
    EXPECT_NE(places.Choose(places.At("nowhere")).error, "");
}

TEST(AppFolder, AFolderThatCannotBeMadeIsReported) {
    const Places places;
    places.folder.Write("home", "a file in the way");
    EXPECT_NE(places.Choose().error, "");
}

}  // namespace
}  // namespace tidewalk::test
