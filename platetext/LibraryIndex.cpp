#include "platetext/LibraryIndex.h"

#include "model/cmPlate.h"
#include "runtime/FileName.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "runtime/TextFile.h"
#include "runtime/TextFunctions.h"

#include <filesystem>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace zorvane {

namespace {

/// Follows the reading of a library line by line, to tell the numbers of lines.
class LineFollower {
  public:
    /// Takes the library, opened a second time.
    explicit LineFollower(TextFile file) : file_(std::move(file)) {}

    Long LinesRead() const { return lines_; }

    /// Goes on to where the reading has come; the number of the last PLATE line on the way, or 0.
    Long FollowTo(TextFile::FilePosition position) {
        Long plateLine = 0;
        while (file_.Position() < position && !file_.AtEnd()) {
            file_.ReadLine(line_);
            ++lines_;
            std::string_view words = line_;
            if (EqualNoCase(NextWord(words), "PLATE")) plateLine = lines_;
        }
        return plateLine;
    }

  private:
    TextFile file_;
    String line_;
    Long lines_ = 0;
};

LibraryEntry EntryOf(const cmPlate& plate, Long line) {
    return {plate.PlateName(),   line, plate.Rows(), plate.Cols(), plate.CompoundWell()->Count(),
            plate.TagListText(), false};
}

LibraryListing List(TextFile file, TextFile again) {
    LibraryListing listing;
    std::unordered_set<String> names;
    LineFollower follower(std::move(again));
    cmPlate plate;
    while (listing.code == kPlateRead && !file.AtEnd()) {
        plate.Properties.Clear();
        listing.code = plate.ReadNextPlate(file);
        const Long plateLine = follower.FollowTo(file.Position());
        if (plateLine != 0) {
            LibraryEntry entry = EntryOf(plate, plateLine);
            // A look-up takes the first plate of a name, and none without a name.
            const bool firstOfName = names.insert(LowerText(entry.name)).second;
            entry.found = listing.code == kPlateRead && firstOfName && !entry.name.empty();
            listing.plates.push_back(std::move(entry));
        }
    }
    if (listing.code != kPlateRead) {
        // A stray or failed line has been read, any other stop is before its line.
        const bool lineRead =
            listing.code == kStoppedAtStrayLine || listing.code == kStoppedAtFailedLine;
        listing.stoppedAtLine = follower.LinesRead() + (lineRead ? 0 : 1);
    }
    return listing;
}

} // namespace

LibraryListing ListLibrary(const String& fileName) {
    TextFile file;
    TextFile again;
    file.OpenInput(fileName);
    std::error_code ignored;
    // What a pipe gives to one reader, the other does not get.
    if (!std::filesystem::is_regular_file(PathOf(fileName), ignored))
        Raise(ErrorNumber::PathFileAccess);
    again.OpenInput(fileName);
    return List(std::move(file), std::move(again));
}

LibraryListing ListLibraryText(const String& text) {
    TextFile file;
    TextFile again;
    file.OpenText(text);
    again.OpenText(text);
    return List(std::move(file), std::move(again));
}

} // namespace zorvane
