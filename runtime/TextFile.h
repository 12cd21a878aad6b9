#pragma once

#include "runtime/Types.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace zorvane {

/// A sequential text file, open for input or for output. Input accepts CR LF, LF and CR line ends
/// and can go back to a remembered position; output writes CR LF. Closes itself when it goes away.
class TextFile {
  public:
    /// A place in an input file to seek back to.
    using FilePosition = std::int64_t;

    /// A file that is not open.
    TextFile();
    ~TextFile();
    TextFile(TextFile&&) noexcept;
    TextFile& operator=(TextFile&&) noexcept;

    /// Opens for reading from the start. Errors 53 (no such file), 76 (no such directory), 75
    /// (cannot be opened: a directory, no right to read).
    void OpenInput(const String& path);
    /// Creates or truncates for writing. Errors 76, 75.
    void OpenOutput(const String& path);
    void Close() noexcept;
    bool IsOpen() const noexcept;

    /// True when no character is left to read. Error 57 when reading fails.
    bool AtEnd();
    /// The next line without its line end. Error 62 at the end of the file, 57 when reading fails.
    String ReadLine();
    /// ReadLine into a text that keeps its storage from line to line.
    void ReadLine(String& line);
    /// Where the next line begins.
    FilePosition Position() const;
    void Seek(FilePosition position);

    /// Writes the text and a CR LF. Error 57 when writing fails.
    void WriteLine(std::string_view text);

  private:
    struct Stream;
    std::unique_ptr<Stream> stream_;
};

} // namespace zorvane
