#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <cstdint>
#include <fstream>
#include <memory>
#include <string_view>

namespace zorvane {

/// A sequential text file, open for input or for output. Input accepts CR LF, LF and CR line ends
/// and can go back to a remembered position; output writes CR LF. Lines may have any length and
/// hold any bytes. Closes itself when it goes away.
///
/// Every operation raises error 52 when the file is not open in the way it needs, and 57 when the
/// device fails.
class ZORVANE_EXPORT TextFile {
  public:
    /// A place in an input file to seek back to: the number of bytes before it.
    using FilePosition = std::int64_t;

    /// A file that is not open.
    TextFile();
    ~TextFile();
    TextFile(TextFile&&) noexcept;
    TextFile& operator=(TextFile&&) noexcept;

    /// Opens for reading from the start; what was open before is closed. Errors 53 (no such file),
    /// 76 (no such directory), 75 (cannot be opened: a directory, no right to read).
    void OpenInput(const String& path);
    /// Reads a text in memory as a file with these bytes would be read.
    void OpenText(const String& text);
    /// Creates or truncates for writing; what was open before is closed. Errors 76, 75.
    void OpenOutput(const String& path);
    /// Error 57 when an output file could not be written to its end; it is closed all the same.
    /// Closing an input file, or one that is not open, never fails.
    void Close();
    bool IsOpen() const noexcept;

    /// True when no character is left to read.
    bool AtEnd();
    /// The next line without its line end. Error 62 at the end of the file.
    String ReadLine();
    /// ReadLine into a text that keeps its storage from line to line.
    void ReadLine(String& line);
    /// Where the next line begins.
    FilePosition Position() const;
    /// Goes to a position that Position() gave. Error 5 when it is negative.
    void Seek(FilePosition position);

    /// Writes the text and a CR LF.
    void WriteLine(std::string_view text);

  private:
    class LineBuffer;

    LineBuffer& Input() const;

    std::unique_ptr<LineBuffer> input_;
    std::unique_ptr<std::filebuf> output_;
};

} // namespace zorvane
