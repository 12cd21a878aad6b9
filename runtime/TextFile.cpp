#include "runtime/TextFile.h"

#include "runtime/FileName.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <ios>
#include <sstream>
#include <utility>

namespace zorvane {

namespace {

/// The error of a file that could not be opened; `missing` is the one for a name that is not there.
[[noreturn]] void RaiseOpenFailure(const std::filesystem::path& path, ErrorNumber missing) {
    std::error_code ignored;
    if (std::filesystem::exists(path, ignored)) Raise(ErrorNumber::PathFileAccess);
    const std::filesystem::path directory = path.parent_path();
    if (!directory.empty() && !std::filesystem::is_directory(directory, ignored))
        Raise(ErrorNumber::PathNotFound);
    Raise(missing);
}

/// Opens a file without translating line ends. Directories are refused before opening, because some
/// platforms open them and fail only on reading.
void Open(std::filebuf& file, const String& name, std::ios::openmode mode, ErrorNumber missing) {
    // A zero character would silently cut the name short.
    if (name.find('\0') != name.npos) Raise(missing);
    const std::filesystem::path path = PathOf(name);
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) Raise(ErrorNumber::PathFileAccess);
    if (!file.open(path, mode | std::ios::binary)) RaiseOpenFailure(path, missing);
}

std::unique_ptr<std::streambuf> OpenedFile(const String& path) {
    auto file = std::make_unique<std::filebuf>();
    // The blocks of the reader are the buffer; a second one below would only copy.
    file->pubsetbuf(nullptr, 0);
    Open(*file, path, std::ios::in, ErrorNumber::FileNotFound);
    return file;
}

} // namespace

/// Reads a file block by block and cuts it into lines. The next CR and the next LF are remembered
/// apart, so that each byte is searched once for either, whatever line ends the file has.
class TextFile::LineBuffer {
  public:
    explicit LineBuffer(std::unique_ptr<std::streambuf> file) : file_(std::move(file)) {}

    bool AtEnd() { return at_ == end_ && !Fill(); }

    void ReadLine(String& line) {
        if (AtEnd()) Raise(ErrorNumber::InputPastEnd);
        line.clear();
        do {
            const char* const stop = LineEnd();
            line.append(at_, stop);
            at_ = stop;
        } while (at_ == end_ && Fill());
        SkipLineEnd();
    }

    FilePosition Position() const { return blockStart_ + (at_ - block_.data()); }

    void Seek(FilePosition position) {
        if (position < 0) Raise(ErrorNumber::InvalidProcedureCall);
        const FilePosition offset = position - blockStart_;
        const bool inBlock = offset >= 0 && offset <= end_ - block_.data();
        if (!inBlock) return SeekInFile(position);
        SeekInBlock(block_.data() + offset);
    }

  private:
    /// Takes the next block of a wholly read one; false at the end of the file.
    bool Fill() {
        blockStart_ = Position();
        SetBlock(0);
        SetBlock(ReadBlock());
        return at_ != end_;
    }

    std::streamsize ReadBlock() {
        try {
            return file_->sgetn(block_.data(), static_cast<std::streamsize>(block_.size()));
        } catch (const std::ios_base::failure&) {
            Raise(ErrorNumber::DeviceError);
        }
    }

    void SetBlock(std::streamsize size) {
        at_ = block_.data();
        end_ = at_ + size;
        nextCr_ = Find('\r', at_, end_, end_);
        nextLf_ = Find('\n', at_, end_, end_);
    }

    /// What lies ahead stays known; going back searches only the way back.
    void SeekInBlock(const char* target) {
        if (target < at_) {
            nextCr_ = Find('\r', target, at_, nextCr_);
            nextLf_ = Find('\n', target, at_, nextLf_);
        }
        at_ = target;
    }

    void SeekInFile(FilePosition position) {
        if (file_->pubseekpos(position, std::ios::in) == std::streambuf::pos_type(-1))
            Raise(ErrorNumber::DeviceError);
        blockStart_ = position;
        SetBlock(0);
    }

    static const char* Find(char c, const char* from, const char* to, const char* otherwise) {
        const void* const found = std::memchr(from, c, static_cast<std::size_t>(to - from));
        return found ? static_cast<const char*>(found) : otherwise;
    }

    /// The first CR or LF from the present place on, or the end of the block.
    const char* LineEnd() {
        if (nextCr_ < at_) nextCr_ = Find('\r', at_, end_, end_);
        if (nextLf_ < at_) nextLf_ = Find('\n', at_, end_, end_);
        return std::min(nextCr_, nextLf_);
    }

    void SkipLineEnd() {
        if (at_ == end_) return;
        const bool cr = *at_++ == '\r';
        // The LF of a CR LF may be in the next block.
        if (cr && !AtEnd() && *at_ == '\n') ++at_;
    }

    std::unique_ptr<std::streambuf> file_;
    std::array<char, 65536> block_;
    FilePosition blockStart_ = 0;
    const char* at_ = block_.data();
    const char* end_ = at_;
    const char* nextCr_ = at_;
    const char* nextLf_ = at_;
};

TextFile::TextFile() = default;
TextFile::~TextFile() = default;
TextFile::TextFile(TextFile&&) noexcept = default;
TextFile& TextFile::operator=(TextFile&&) noexcept = default;

void TextFile::OpenInput(const String& path) {
    Close();
    input_ = std::make_unique<LineBuffer>(OpenedFile(path));
}

void TextFile::OpenText(const String& text) {
    Close();
    input_ = std::make_unique<LineBuffer>(std::make_unique<std::stringbuf>(text, std::ios::in));
}

void TextFile::OpenOutput(const String& path) {
    Close();
    auto file = std::make_unique<std::filebuf>();
    Open(*file, path, std::ios::out | std::ios::trunc, ErrorNumber::PathFileAccess);
    output_ = std::move(file);
}

void TextFile::Close() {
    input_.reset();
    const auto output = std::move(output_);
    if (output && !output->close()) Raise(ErrorNumber::DeviceError);
}

bool TextFile::IsOpen() const noexcept { return input_ || output_; }

TextFile::LineBuffer& TextFile::Input() const {
    if (!input_) Raise(ErrorNumber::BadFileNumber);
    return *input_;
}

bool TextFile::AtEnd() { return Input().AtEnd(); }

String TextFile::ReadLine() {
    String line;
    ReadLine(line);
    return line;
}

void TextFile::ReadLine(String& line) { Input().ReadLine(line); }

TextFile::FilePosition TextFile::Position() const { return Input().Position(); }

void TextFile::Seek(FilePosition position) { Input().Seek(position); }

void TextFile::WriteLine(std::string_view text) {
    if (!output_) Raise(ErrorNumber::BadFileNumber);
    const auto write = [this](std::string_view part) {
        const auto size = static_cast<std::streamsize>(part.size());
        if (output_->sputn(part.data(), size) != size) Raise(ErrorNumber::DeviceError);
    };
    write(text);
    write("\r\n");
}

} // namespace zorvane
