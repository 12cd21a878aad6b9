#include "platetext/LibraryIndex.h"

#include "model/cmPlate.h"
#include "runtime/Text.h"
#include "runtime/TextFile.h"
#include "runtime/TextFunctions.h"

#include <string_view>
#include <unordered_set>
#include <utility>

namespace zorvane {

namespace {

/// Follows the reading of a library line by line, to tell the numbers of lines.
class LineFollower {
  public:
    explicit LineFollower(const String& fileName) { file_.OpenInput(fileName); }

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

} // namespace

LibraryListing ListLibrary(const String& fileName) {
    LibraryListing listing;
    std::unordered_set<String> names;
    LineFollower follower(fileName);
    TextFile file;
    file.OpenInput(fileName);
    while (listing.code == kPlateRead && !file.AtEnd()) {
        cmPlate plate;
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

} // namespace zorvane
