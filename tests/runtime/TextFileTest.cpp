#include "runtime/TextFile.h"

#include "Test.h"

#include <filesystem>
#include <functional>
#include <vector>

namespace zorvane {
namespace {

constexpr std::size_t kBlock = 65536;

std::vector<String> RestOf(TextFile& text) {
    std::vector<String> lines;
    while (!text.AtEnd())
        lines.push_back(text.ReadLine());
    return lines;
}

std::vector<String> LinesOf(const String& bytes) {
    const TempFile file(bytes);
    TextFile text;
    text.OpenInput(file.Path());
    std::vector<String> lines = RestOf(text);
    text.OpenText(bytes);
    EXPECT_EQ(RestOf(text), lines) << "a text in memory";
    return lines;
}

TEST(TextFile, CutsLinesAtAnyLineEnd) {
    const String zero("a\0b", 3);
    const struct {
        String bytes;
        std::vector<String> lines;
    } rows[] = {{"", {}},
                {"a", {"a"}},
                {"a\n", {"a"}},
                {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
                {"\r\n\n\r", {"", "", ""}},
                {"a\n\r\nb", {"a", "", "b"}},
                {"a\r\rb\r", {"a", "", "b"}},
                {zero + "\n\xFF\xFE", {zero, "\xFF\xFE"}}};
    for (const auto& row : rows)
        EXPECT_EQ(LinesOf(row.bytes), row.lines) << testing::PrintToString(row.bytes);
}

TEST(TextFile, CutsTheSameLinesWhereverABlockEnds) {
    for (const char* const lineEnd : {"\r\n", "\n", "\r"}) {
        for (std::size_t length = kBlock - 3; length <= kBlock + 1; ++length) {
            const String longLine(length, 'x');
            EXPECT_EQ(LinesOf(longLine + lineEnd + "next" + lineEnd),
                      (std::vector<String>{longLine, "next"}))
                << length << testing::PrintToString(lineEnd);
        }
    }
    const String huge(5 * kBlock + 17, 'y');
    EXPECT_EQ(LinesOf(huge + "\r\n" + huge), (std::vector<String>{huge, huge}));
}

TEST(TextFile, GoesBackToEveryPosition) {
    String bytes;
    for (int i = 0; bytes.size() < 3 * kBlock; ++i) {
        bytes += String(static_cast<std::size_t>(i * 37 % 1000), 'x') + std::to_string(i) +
                 (i % 3 == 0   ? "\r\n"
                  : i % 3 == 1 ? "\n"
                               : "\r");
    }
    const TempFile file(bytes);
    TextFile text;
    text.OpenInput(file.Path());
    std::vector<TextFile::FilePosition> positions;
    std::vector<String> lines;
    while (!text.AtEnd()) {
        positions.push_back(text.Position());
        lines.push_back(text.ReadLine());
        // Read again at once, as a reader does that meets the start of the next record.
        text.Seek(positions.back());
        ASSERT_EQ(text.ReadLine(), lines.back());
    }
    EXPECT_EQ(text.Position(), static_cast<TextFile::FilePosition>(bytes.size()));
    // Distant places in no order; 101 shares no factor with the number of lines.
    for (std::size_t i = 0, at = 0; i < lines.size(); ++i, at = (at + 101) % lines.size()) {
        text.Seek(positions[at]);
        EXPECT_FALSE(text.AtEnd());
        ASSERT_EQ(text.ReadLine(), lines[at]) << at;
    }
    text.Seek(static_cast<TextFile::FilePosition>(bytes.size() + kBlock));
    EXPECT_TRUE(text.AtEnd());
}

// Names are UTF-8, and bytes where they are not.
TEST(TextFile, WritesAndReadsFilesOfAnyName) {
    const TempFolder folder;
    for (const char* const name : {"Plätten α.Dat", "Pl\xE4tten"}) {
        TextFile text;
        text.OpenOutput(folder.File(name));
        text.WriteLine("a\nb");
        text.Close();
        EXPECT_EQ(folder.Bytes(name), "a\nb\r\n");
        text.OpenInput(folder.File(name));
        EXPECT_EQ(RestOf(text), (std::vector<String>{"a", "b"}));
    }
}

TEST(TextFile, RaisesTheNumberOfEachFailure) {
    const TempFile file("line\n");
    const String folder = testing::TempDir();
    TextFile closed;
    TextFile input;
    input.OpenInput(file.Path());
    input.ReadLine();
    TextFile other;
    const struct {
        const char* what;
        Long number;
        std::function<void()> action;
    } rows[] = {{"no name", 53, [&] { other.OpenInput(""); }},
                {"no file", 53, [&] { other.OpenInput(folder + "missing"); }},
                {"cut name", 53, [&] { other.OpenInput(file.Path() + String(1, '\0')); }},
                {"no folder", 76, [&] { other.OpenInput(folder + "missing/file"); }},
                {"file as folder", 76, [&] { other.OpenInput(file.Path() + "/file"); }},
                {"folder", 75, [&] { other.OpenInput(folder); }},
                {"overlong name", 53, [&] { other.OpenInput(String(100000, 'x')); }},
                {"write to folder", 75, [&] { other.OpenOutput(folder); }},
                {"write below nothing", 76, [&] { other.OpenOutput(folder + "missing/file"); }},
                {"write without name", 75, [&] { other.OpenOutput(""); }},
                {"past end", 62, [&] { input.ReadLine(); }},
                {"negative position", 5, [&] { input.Seek(-1); }},
                {"write to input", 52, [&] { input.WriteLine("x"); }},
                {"read closed", 52, [&] { closed.ReadLine(); }},
                {"end of closed", 52, [&] { closed.AtEnd(); }},
                {"write closed", 52, [&] { closed.WriteLine("x"); }},
                {"close closed", 0, [&] { closed.Close(); }}};
    for (const auto& row : rows)
        EXPECT_EQ(NumberRaisedBy(row.action), row.number) << row.what;
    EXPECT_FALSE(other.IsOpen());
}

TEST(TextFile, ReportsAFullDevice) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
    TextFile text;
    text.OpenOutput("/dev/full");
    text.WriteLine("kept back until the file is closed");
    EXPECT_EQ(NumberRaisedBy([&] { text.Close(); }), 57);
    EXPECT_FALSE(text.IsOpen());
}

} // namespace
} // namespace zorvane
