#pragma once

#include "platform/Process.h"
#include "platform/memory/MemoryProcess.h"
#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <unistd.h>

namespace zorvane {

/// A run-time error as values; number 0 and empty texts when there is none.
struct RaisedError {
    Long number = 0;
    String source, description;
};

/// The run-time error that a call raises.
template <class Call>
RaisedError RaisedBy(Call&& call) {
    try {
        call();
    } catch (const RuntimeError& error) {
        return {error.Number(), error.Source(), error.Description()};
    }
    return {};
}

template <class Call>
Long NumberRaisedBy(Call&& call) {
    return RaisedBy(call).number;
}

/// An empty folder that goes away with this object, whatever it holds by then.
class TempFolder {
  public:
    TempFolder() { std::filesystem::create_directory(path_); }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    String File(std::string_view name) const { return (path_ / name).string(); }

    void Put(std::string_view name, std::string_view bytes) const {
        std::ofstream(File(name), std::ios::binary) << bytes;
    }
    String Bytes(std::string_view name) const {
        std::ifstream file(File(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::set<String> Names() const {
        std::set<String> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            names.insert(entry.path().filename().string());
        return names;
    }

  private:
    static inline int made_ = 0;

    std::filesystem::path path_ =
        testing::TempDir() + "zorvane-" + std::to_string(getpid()) + "-" + std::to_string(++made_);
};

/// A file with given bytes, in a folder of its own, that goes away with this object.
class TempFile {
  public:
    explicit TempFile(std::string_view bytes = {}) { folder_.Put("file.tmp", bytes); }

    const String& Path() const { return path_; }
    String Bytes() const { return folder_.Bytes("file.tmp"); }

  private:
    TempFolder folder_;
    String path_ = folder_.File("file.tmp");
};

/// Installs an in-memory process for one test. A message box that the test did not announce fails
/// it, and so does an announced one that was not shown.
struct TestProcess : MemoryProcess {
    TestProcess() {
        messages.onUnexpected = [](const Message& message) {
            ADD_FAILURE() << "unexpected message box: " << message.title << ": " << message.prompt;
        };
    }
    ~TestProcess() override { EXPECT_EQ(messages.Outstanding(), 0U); }

  private:
    InstalledProcess installed_{*this};
};

/// A definition made of lines, each with its CR LF.
inline String DefinitionOf(std::initializer_list<std::string_view> lines) {
    String text;
    for (const auto line : lines)
        text.append(line).append("\r\n");
    return text;
}

/// The definition of a plate of 120 mm by 80 mm with a pitch of 9 mm; then the lines in `more`,
/// which may set any of this otherwise, and those of the sub-wells.
inline String GridText(int rows, int cols, const String& subWells, const String& more = {}) {
    return DefinitionOf({"PLATE Demo", "ROWS " + std::to_string(rows),
                         "COLS " + std::to_string(cols), "ROWLABEL A", "COLLABEL 1", "XPITCH 9",
                         "YPITCH 9", "XOVERALL 120", "YOVERALL 80", "HEIGHT 14"}) +
           more + subWells;
}

/// A square sub-well 5 mm deep with a rim of 1 mm around it; lengths are in millimetres. The lines
/// in `more` may set any of this otherwise.
inline String SubWellText(const String& name, Single x, Single y, Single size,
                          const String& more = {}) {
    std::ostringstream text;
    text << "WELL " << name << "\r\nXOFFSET " << x << "\r\nYOFFSET " << y << "\r\nWELLSIZEX "
         << size << "\r\nWELLSIZEY " << size << "\r\nRIMWIDTH 1\r\nRIMHEIGHT 1\r\nDEPTH 5\r\n"
         << more;
    return text.str();
}

/// One sub-well. At 50 drawing units a millimetre wells are 450 units apart, from (500, 500) on,
/// and their rims 390 units wide.
inline String OneDrop(int rows = 8, int cols = 12) {
    return GridText(rows, cols, SubWellText("Drop1", 10, 10, 6));
}

/// A large reservoir and, on it but off its centre, a drop; the drop is the first sub-well.
inline String DropOnReservoir(int rows = 8, int cols = 12) {
    return GridText(rows, cols,
                    SubWellText("Drop1", 8, 8, 1) + SubWellText("Reservoir", 10, 10, 6));
}

} // namespace zorvane
