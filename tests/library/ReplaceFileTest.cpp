#include "library/ReplaceFile.h"
#include "Test.h"
#include "library/FailingFiles.h"
#include "library/LibraryDocument.h"

#include <sys/xattr.h>

#include <optional>
#include <thread>

namespace zorvane {
namespace {

namespace fs = std::filesystem;
using Names = std::set<String>;
using Expected = std::optional<std::string_view>;

String AttributeOf(const String& file, const char* name) {
    String value(100, '\0');
    const ssize_t size = ::getxattr(file.c_str(), name, value.data(), value.size());
    value.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return value;
}

TEST(ReplaceFile, KeepsABackupAndThePermissionsAndFollowsLinks) {
    const TempFolder folder;
    DiskFiles files;
    fs::create_symlink("a.dat", folder.File("link.dat"));
    ReplaceFile(files, folder.File("link.dat"), "old");
    EXPECT_EQ(folder.Names(), (Names{"a.dat", "link.dat"})) << "the link led nowhere";
    for (const int rights : {0640, 0600}) {
        fs::permissions(folder.File("a.dat"), fs::perms(rights));
        ReplaceFile(files, folder.File("link.dat"), "new", "old");
        EXPECT_EQ(folder.Bytes("a.dat"), "new");
        EXPECT_EQ(folder.Bytes("a.dat~"), "old");
        for (const char* const name : {"a.dat", "a.dat~"})
            EXPECT_EQ(fs::status(folder.File(name)).permissions(), fs::perms(rights));
        ReplaceFile(files, folder.File("a.dat"), "old");
    }
    EXPECT_EQ(folder.Names(), (Names{"a.dat", "a.dat~", "link.dat"}));
}

// The user with the number 1 may read and write what the group may not.
TEST(ReplaceFile, KeepsAnAccessList) {
    const TempFolder folder;
    folder.Put("a.dat", "old");
    const String list("\2\0\0\0"
                      "\1\0\6\0\xFF\xFF\xFF\xFF"
                      "\2\0\6\0\1\0\0\0"
                      "\4\0\0\0\xFF\xFF\xFF\xFF"
                      "\x10\0\6\0\xFF\xFF\xFF\xFF"
                      "\x20\0\0\0\xFF\xFF\xFF\xFF",
                      44);
    const char* const name = "system.posix_acl_access";
    if (::setxattr(folder.File("a.dat").c_str(), name, list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "this file system has no access lists";
    DiskFiles files;
    ReplaceFile(files, folder.File("a.dat"), "new");
    EXPECT_EQ(AttributeOf(folder.File("a.dat"), name), list);
}

TEST(ReplaceFile, KeepsAttributesOfTheUser) {
    const TempFolder folder;
    folder.Put("a.dat", "old");
    const char* const name = "user.origin";
    if (::setxattr(folder.File("a.dat").c_str(), name, "lab", 3, 0) != 0)
        GTEST_SKIP() << "this file system has no attributes";
    DiskFiles files;
    ReplaceFile(files, folder.File("a.dat"), "new", "old");
    for (const char* const file : {"a.dat", "a.dat~"})
        EXPECT_EQ(AttributeOf(folder.File(file), name), "lab");
}

TEST(ReplaceFile, CreatesNoFileThatIsThere) {
    const TempFolder folder;
    DiskFiles files;
    CreateFile(files, folder.File("a.dat"), "first");
    const auto again = [&] { CreateFile(files, folder.File("a.dat"), "second"); };
    EXPECT_EQ(NumberRaisedBy(again), static_cast<Long>(ErrorNumber::ChangedOnDisk));
    EXPECT_THROW(files.RenameToNew(folder.File("b.dat"), folder.File("a.dat")), RuntimeError);
    EXPECT_EQ(folder.Bytes("a.dat"), "first");
}

TEST(ReplaceFile, LeavesTheFileAsItWasWhicheverStepFails) {
    for (const Expected& expected : {Expected("old"), Expected()}) {
        const TempFolder folder;
        const String path = folder.File("a.dat");
        String said = "not run yet";
        int step = 0;
        for (; !said.empty(); ++step) {
            folder.Put("a.dat", "old");
            FailingFiles files(step);
            said = RaisedBy([&] { ReplaceFile(files, path, "new", expected); }).description;
            const bool claimsOld = said.ends_with(" The file is as it was.") || step < 2;
            EXPECT_EQ(folder.Bytes("a.dat"), claimsOld ? "old" : "new") << said;
            Names names = folder.Names();
            if (said.empty()) names.erase("a.dat~");
            EXPECT_EQ(names, Names{"a.dat"}) << said;
            if (said.empty()) break;
            EXPECT_TRUE(claimsOld || !expected) << said;
            EXPECT_TRUE(said.starts_with(path + " was not saved: ")) << said;
            EXPECT_NE(said.find(" failed: the disk is full."), said.npos) << said;
        }
        EXPECT_GT(step, 8);
    }
}

TEST(ReplaceFile, LosesNoChangeOfConcurrentWriters) {
    const TempFolder folder;
    folder.Put("a.dat", "");
    const auto addLines = [path = folder.File("a.dat")] {
        DiskFiles files;
        for (int added = 0; added < 20;) {
            const String before = files.Read(path);
            if (!NumberRaisedBy([&] { ReplaceFile(files, path, before + "line\n", before); }))
                ++added;
        }
    };
    std::thread other(addLines);
    addLines();
    other.join();
    EXPECT_EQ(folder.Bytes("a.dat").size(), 40 * String("line\n").size());
}

TEST(LibraryDocument, OverwritesNothingThatCameMeanwhile) {
    const TempFolder folder;
    folder.Put("a.dat", "PLATE One\nROWS 1\n");
    FailingFiles files;
    LibraryDocument document(files, folder.File("a.dat"));
    EXPECT_FALSE(document.ChangedOnDisk());
    const LibraryText edited = document.Text().WithReplaced("Plate One\r\n    ROWS 2\r\n");
    const String theirs = "PLATE One\nROWS 3\n";
    files.onRead = [&] { folder.Put("a.dat", theirs); }; // at the very last moment
    const RaisedError raised = RaisedBy([&] { document.Save(edited); });
    EXPECT_EQ(raised.number, static_cast<Long>(ErrorNumber::ChangedOnDisk));
    EXPECT_TRUE(raised.description.ends_with(" was not saved: another program has changed it since "
                                             "it was read. Nothing was overwritten."));
    EXPECT_EQ(folder.Bytes("a.dat"), theirs);
    EXPECT_TRUE(document.ChangedOnDisk());

    files.onRead = [] {};
    document.Reload();
    document.Save(document.Text().WithReplaced("Plate One\r\n    ROWS 4\r\n"));
    EXPECT_EQ(folder.Bytes("a.dat"), "Plate One\n    ROWS 4\n");
    EXPECT_EQ(folder.Bytes("a.dat~"), theirs);
    EXPECT_FALSE(document.ChangedOnDisk());
}

} // namespace
} // namespace zorvane
