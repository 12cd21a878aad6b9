#include "library/LineDifference.h"
#include "library/LineNumbering.h"

#include <algorithm>

namespace zorvane {

namespace {

constexpr std::size_t kContext = 3;

/// Lines with their line ends, so that another line end is a change too. To patching tools a CR
/// without LF ends no line.
std::vector<String> WholeLines(std::string_view text) {
    std::vector<String> lines;
    while (!text.empty()) {
        const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.emplace_back(text.substr(0, size));
        text.remove_prefix(size);
    }
    return lines;
}

class Unified {
  public:
    Unified(std::string_view before, std::string_view after)
        : before_(WholeLines(before)), after_(WholeLines(after)) {
        LineNumbering numbering;
        LineNumbers numbers;
        for (const String& line : before_)
            numbers.before.push_back(numbering.NumberOf(line));
        for (const String& line : after_)
            numbers.after.push_back(numbering.NumberOf(line));
        changes_ = Compare(numbers);
    }

    /// Empty when nothing has changed.
    String Text() {
        String text;
        while (at_ < changes_.size()) {
            const std::size_t change = NextChange(at_);
            if (change == changes_.size()) break;
            Skip(change - std::min(kContext, change - at_));
            text += Hunk(EndOfHunk(change));
        }
        return text;
    }

  private:
    std::size_t NextChange(std::size_t from) const {
        const auto first = changes_.begin() + static_cast<std::ptrdiff_t>(from);
        const auto change = std::find_if(first, changes_.end(),
                                         [](LineChange each) { return each != LineChange::Same; });
        return static_cast<std::size_t>(change - changes_.begin());
    }

    /// Changes whose surroundings touch are shown together.
    std::size_t EndOfHunk(std::size_t change) const {
        std::size_t end = change;
        for (std::size_t next = change; next < changes_.size() && next <= end + 2 * kContext;
             next = NextChange(end))
            end = next + 1;
        return std::min(end + kContext, changes_.size());
    }

    void Skip(std::size_t to) {
        old_ += to - at_;
        new_ += to - at_;
        at_ = to;
    }

    String Hunk(std::size_t end) {
        const std::size_t oldFrom = old_;
        const std::size_t newFrom = new_;
        String lines;
        for (; at_ < end; ++at_)
            lines += Line(changes_[at_]);
        return "@@ -" + Range(oldFrom, old_) + " +" + Range(newFrom, new_) + " @@\n" + lines;
    }

    String Line(LineChange change) {
        const String& text = change == LineChange::Added ? after_[new_] : before_[old_];
        old_ += change != LineChange::Added ? 1 : 0;
        new_ += change != LineChange::Removed ? 1 : 0;
        const char* const sign = change == LineChange::Same    ? " "
                                 : change == LineChange::Added ? "+"
                                                               : "-";
        const bool ended = !text.empty() && text.back() == '\n';
        return sign + text + (ended ? "" : "\n\\ No newline at end of file\n");
    }

    /// The first line, from 1, and how many; an empty range names the line before it.
    static String Range(std::size_t from, std::size_t to) {
        return std::to_string(from == to ? from : from + 1) + "," + std::to_string(to - from);
    }

    std::vector<String> before_;
    std::vector<String> after_;
    std::vector<LineChange> changes_;
    std::size_t at_ = 0;
    std::size_t old_ = 0;
    std::size_t new_ = 0;
};

/// A file's name as patching tools read it: followed by a tab, so that it may have blanks in it,
/// and in quotes like those of C where that is not enough.
String NameField(const String& name) {
    const auto isSpecial = [](char c) {
        return static_cast<unsigned char>(c) < 0x20 || c == 0x7F || c == '"' || c == '\\';
    };
    if (std::none_of(name.begin(), name.end(), isSpecial)) return name + "\t";
    String quoted = "\"";
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if (!isSpecial(c)) {
            quoted += c;
        } else if (c == '"' || c == '\\') {
            quoted.append("\\").push_back(c);
        } else {
            quoted += '\\';
            for (const int shift : {6, 3, 0})
                quoted += static_cast<char>('0' + (byte >> shift & 7));
        }
    }
    return quoted + "\"";
}

} // namespace

String UnifiedDifference(std::string_view before, std::string_view after, const String& name) {
    String hunks = Unified(before, after).Text();
    if (hunks.empty()) return hunks;
    return "--- " + NameField(name) + "\n+++ " + NameField(name) + "\n" + hunks;
}

} // namespace zorvane
