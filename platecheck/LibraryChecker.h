#pragma once

#include "model/cmPlate.h"
#include "platecheck/ArgumentCheck.h"
#include "platecheck/FindingList.h"
#include "platecheck/PlateCheck.h"
#include "platetext/LineCode.h"

#include <map>
#include <unordered_map>
#include <vector>

namespace zorvane {

/// Gives the lines of a library to the reader one by one and notes what becomes of each. Where the
/// look-up of a plate would stop, this one goes on as if the line were not there.
class LibraryChecker {
  public:
    LibraryChecker(const String& fileName, Standards standards)
        : standards_(standards), findings_(fileName) {}

    /// Lines are counted from 1.
    void Read(String& line);
    std::vector<Finding> Finish() &&;

  private:
    /// Something that ends every look-up, reported once the plates after it have been counted.
    struct Stop {
        SourceLine line;
        String reason;
        Long platesUpToHere;
        bool insidePlate;
    };

    LineCode Feed();
    void OpenPlate(const LineParts& parts);
    void ClosePlate();
    void ReadKeyword(const LineParts& parts, bool failed);
    void NoteRepetition(const KeywordTraits& traits, const LineParts& parts);
    void CheckTrailingComment(const KeywordTraits& traits, const LineParts& parts);
    void CheckSubWellName(const LineParts& parts);
    void UnknownKeyword(const LineParts& parts);
    void StrayLine(const LineParts& parts);
    void AddStop(String reason, bool insidePlate);
    void Report(const Stop& stop);

    Standards standards_;
    cmPlate plate_;
    FindingList findings_;
    SourceLine line_;
    bool inPlate_ = false;
    bool broken_ = false;    ///< a line of the plate failed
    bool commented_ = false; ///< a recorded comment of the plate has been reported
    Long plates_ = 0;
    PlateLines lines_;
    std::map<Keyword, SourceLine> givenInSubWell_;
    std::unordered_map<String, Long> plateNames_; ///< line numbers by lower case name
    std::vector<Stop> stops_;
};

} // namespace zorvane
