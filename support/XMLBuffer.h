#pragma once

#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "runtime/TextFile.h"

#include <string_view>
#include <utility>

namespace zorvane {

/// The input line of an XML file that is being read. Taking text off its front only moves a mark,
/// so that a line of any length is read in one pass.
class XMLBuffer {
  public:
    /// What has not been taken yet.
    std::string_view Rest() const { return std::string_view(line_).substr(at_); }

    void Set(String line) {
        line_ = std::move(line);
        at_ = 0;
    }

    /// Takes the next line of a file, without the blanks around it. A failure leaves nothing.
    void ReadLine(TextFile& file) {
        try {
            at_ = 0;
            file.ReadLine(line_);
        } catch (const RuntimeError&) {
            line_.clear();
            throw;
        }
        line_.resize(TrimEnd(line_).size());
        at_ = line_.size() - TrimStart(line_).size();
    }

    /// Takes that many characters off the front. Valid until the buffer is set or read again.
    std::string_view Take(std::size_t length) {
        const std::string_view taken = Rest().substr(0, length);
        at_ += length;
        return taken;
    }

    /// Puts text in front, over what was taken as far as it reaches: a line may hold very many
    /// empty members, and each is put back as its end.
    void PutBack(std::string_view text) {
        if (at_ < text.size()) {
            line_.insert(0, text.size() - at_, ' ');
            at_ = text.size();
        }
        at_ -= text.size();
        line_.replace(at_, text.size(), text);
    }

  private:
    String line_;
    std::size_t at_ = 0;
};

} // namespace zorvane
