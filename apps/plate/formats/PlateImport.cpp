#include "apps/plate/formats/PlateImport.h"

#include "apps/plate/Files.h"
#include "formats/PlateSource.h"
#include "formats/labware/Labware.h"
#include "formats/wells/WellTable.h"
#include "runtime/Text.h"

#include <map>

namespace zorvane {

namespace {

/// Definitions one below the other, each name only once.
class Library {
  public:
    void Add(const String& file, const SourcePlate& plate) {
        const auto [first, isNew] = files_.emplace(LowerText(plate.name), file);
        if (!isNew) Fail(plate.name + " is in " + first->second + " already");
        text_ += (text_.empty() ? "" : "\r\n") + DefinitionText(plate);
    }
    const String& Text() const { return text_; }

  private:
    String text_;
    std::map<String, String> files_;
};

void WarnOfBottom(const String& file, const ExactNumber& offset) {
    if (SameNumber(offset, ExactNumber())) return;
    const bool higher = offset.Units() > 0;
    const ExactNumber distance = higher ? offset : ExactNumber() - offset;
    Warn(file + ": left out: the bottoms lie " + distance.Text() + " mm " +
         (higher ? "higher" : "lower") + " than the height less the depth");
}

SourcePlate ReadLabwareFile(const String& file) {
    const String text = ReadFile(file);
    const LabwareSource labware = WithFile(file, [&] { return ReadLabware(text); });
    WarnOfBottom(file, labware.bottomOffset);
    return labware.plate;
}

/// Adds the sub-well of a labware to those of the others, which must have its size.
void Merge(SourcePlate& merged, const SourcePlate& plate) {
    if (merged.subWells.empty()) {
        merged.length = plate.length;
        merged.width = plate.width;
        merged.height = plate.height;
        merged.tags = plate.tags;
    }
    if (!SameNumber(merged.length, plate.length) || !SameNumber(merged.width, plate.width) ||
        !SameNumber(merged.height, plate.height))
        Fail("this labware has another size than the first one");
    merged.subWells.push_back(plate.subWells.front());
}

String MergedLibrary(const std::vector<String>& files, const String& name) {
    SourcePlate merged;
    merged.name = name;
    for (const String& file : files) {
        const SourcePlate plate = ReadLabwareFile(file);
        WithFile(file, [&] { Merge(merged, plate); });
    }
    return WithFile(name, [&] { return DefinitionText(merged); });
}

} // namespace

String LibraryOfLabware(const std::vector<String>& files, const String& mergedName) {
    if (!mergedName.empty()) return MergedLibrary(files, mergedName);
    Library library;
    for (const String& file : files) {
        const SourcePlate plate = ReadLabwareFile(file);
        WithFile(file, [&] { library.Add(file, plate); });
    }
    return library.Text();
}

String LibraryOfTables(const std::vector<String>& files) {
    Library library;
    for (const String& file : files) {
        const String text = ReadFile(file);
        const std::vector<SourcePlate> plates = WithFile(file, [&] { return ReadWellTable(text); });
        for (const SourcePlate& plate : plates)
            WithFile(file + ": " + plate.name, [&] { library.Add(file, plate); });
    }
    return library.Text();
}

} // namespace zorvane
