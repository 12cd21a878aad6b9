#include "library/SafeSave.h"
#include "library/FailingFiles.h"
#include "library/Folder.h"
#include "library/LibraryDocument.h"

namespace zorvane {
namespace {

using Names = std::set<String>;

/// What a failing action says; empty when it does not fail.
template <class Action>
String Failure(Action&& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.Description();
    }
    return {};
}

TEST(SafeSave, KeepsABackupAndThePermissionsAndFollowsLinks) {
    const Folder folder;
    folder.Put("a.dat", "old");
    std::filesystem::permissions(folder.File("a.dat"), std::filesystem::perms{0640});
    std::filesystem::create_symlink("a.dat", folder.File("link.dat"));
    DiskFiles files;
    SafeSave(files, folder.File("link.dat"), "old", "new");
    EXPECT_EQ(folder.Names(), (Names{"a.dat", "a.dat~", "link.dat"}));
    EXPECT_EQ(folder.Bytes("a.dat"), "new");
    EXPECT_EQ(folder.Bytes("a.dat~"), "old");
    for (const char* const name : {"a.dat", "a.dat~"})
        EXPECT_EQ(std::filesystem::status(folder.File(name)).permissions(),
                  std::filesystem::perms{0640});
    EXPECT_TRUE(std::filesystem::is_symlink(folder.File("link.dat")));
    SafeSave(files, folder.File("a.dat"), "new", "newer");
    EXPECT_EQ(folder.Bytes("a.dat~"), "new");
}

TEST(SafeSave, LeavesTheFileAsItWasWhicheverStepFails) {
    const Folder folder;
    const char* const steps[] = {
        "looking for it",
        "writing to it",
        "writing a temporary file beside it", // create
        "writing a temporary file beside it", // write
        "writing a temporary file beside it", // flush
        "writing a temporary file beside it", // close
        "writing a backup of it",
        "writing a backup of it",
        "writing a backup of it",
        "writing a backup of it",
        "reading it again",
        "keeping the backup",
        "putting the new content in its place",
        "flushing the folder",
    };
    int step = 0;
    for (const char* const name : steps) {
        folder.Put("a.dat", "old");
        FailingFiles files(step);
        const String path = folder.File("a.dat");
        const String said = Failure([&] { SafeSave(files, path, "old", "new"); });
        EXPECT_EQ(said, path + " was not saved: " + name + " failed: the disk is full." +
                            (step == 0 ? "" : " The file is as it was."))
            << step;
        EXPECT_EQ(folder.Bytes("a.dat"), "old") << step;
        Names names = folder.Names();
        names.erase("a.dat~");
        EXPECT_EQ(names, Names{"a.dat"}) << step;
        std::filesystem::remove(folder.File("a.dat~"));
        ++step;
    }
    FailingFiles files;
    SafeSave(files, folder.File("a.dat"), "old", "new");
    EXPECT_EQ(files.Calls(), step) << "every step has failed once";
}

TEST(SafeSave, SaysWhatIsWrongWithTheFile) {
    const Folder folder;
    DiskFiles files;
    const auto save = [&](const char* name) {
        const String path = folder.File(name);
        const String said = Failure([&] { SafeSave(files, path, "old", "new"); });
        return said.substr(std::min(said.size(), path.size()));
    };
    EXPECT_EQ(save("gone.dat"), " was not saved: looking for it failed: it is not there.");
    folder.Put("fixed.dat", "old");
    std::filesystem::permissions(folder.File("fixed.dat"), std::filesystem::perms{0444});
    EXPECT_EQ(save("fixed.dat"),
              " was not saved: writing to it failed: it is read-only. The file is as it was.");
    folder.Put("other.dat", "older");
    EXPECT_EQ(save("other.dat"), " was not saved: another program has changed it since it was "
                                 "read. Nothing was overwritten.");
    EXPECT_EQ(folder.Names(), (Names{"fixed.dat", "other.dat"}));
    EXPECT_EQ(Failure([&] { LibraryDocument(files, folder.File("gone.dat")); }),
              folder.File("gone.dat") + " cannot be read: it is not there");
}

TEST(LibraryDocument, OverwritesNothingThatCameMeanwhile) {
    const Folder folder;
    folder.Put("a.dat", "PLATE One\nROWS 1\n");
    FailingFiles files;
    LibraryDocument document(files, folder.File("a.dat"));
    EXPECT_FALSE(document.ChangedOnDisk());
    const LibraryText edited = document.Text().WithReplaced("Plate One\r\n    ROWS 2\r\n");
    const String theirs = "PLATE One\nROWS 3\n";
    // The very last moment: the new content is written, the file is about to be read again.
    constexpr int reading = 11;
    files.onCall = [&](int call) {
        if (call == reading) folder.Put("a.dat", theirs);
    };
    EXPECT_NE(Failure([&] { document.Save(edited); }), "");
    EXPECT_EQ(folder.Bytes("a.dat"), theirs);
    EXPECT_TRUE(document.ChangedOnDisk());

    files.onCall = [](int) {};
    document.Reload();
    document.Save(document.Text().WithReplaced("Plate One\r\n    ROWS 4\r\n"));
    EXPECT_EQ(folder.Bytes("a.dat"), "Plate One\n    ROWS 4\n");
    EXPECT_EQ(folder.Bytes("a.dat~"), theirs);
    EXPECT_FALSE(document.ChangedOnDisk());
}

} // namespace
} // namespace zorvane
