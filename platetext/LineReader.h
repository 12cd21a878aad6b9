#pragma once

#include "model/cmPlate.h"
#include "platetext/LineCode.h"

#include <string_view>

namespace zorvane {

/// Applies one line of a definition to a plate, and lives as long as that takes. The line is taken
/// apart into views; text is copied only where the plate keeps it.
class cmPlate::LineReader {
  public:
    explicit LineReader(cmPlate& plate) : plate_(plate) {}

    Long Read(std::string_view line);

  private:
    static constexpr std::string_view kDefaultSubWell = "DEFAULT";
    /// The shelf depth of a definition that gives none.
    static constexpr Single kNoShelf = -0.001F;

    /// What a keyword does inside a plate. A line is recorded unless its keyword says otherwise.
    struct Keyword {
        std::string_view name;
        void (*apply)(LineReader& line);
        LineCode code = kApplied;
        bool recorded = true;
    };
    static const Keyword& FindKeyword(std::string_view word);

    void TakeArgument(std::string_view argument);
    /// The text with its TABs as spaces; good until the next call.
    std::string_view Blanked(std::string_view text);
    Long ReadOutsidePlate();
    Long ReadInsidePlate();
    void OpenPlate();
    void AppendTrailingComment();
    void Record(std::string_view name, std::string_view value, Integer position = 0);

    Single Value() const;
    Integer WholeValue() const;
    /// The sub-well that the line is about; before any WELL line, one named DEFAULT.
    WellDetails& SubWell();
    void StartSubWell(std::string_view name);

    void ReadCoordinates();
    void ReadTag();
    void ReadTagList();
    void AddTag(std::string_view tag);
    void RecordTags();
    void ReadColumnLabel();
    void ReadRowLabel();
    void ReadShelfDepth();
    void ReadWell();
    void ReadStyle();
    void ReadRimWidth();

    cmPlate& plate_;
    std::string_view keyword_;
    std::string_view argument_;      ///< everything after the keyword
    std::string_view firstArgument_; ///< the first word of it
    std::string_view commentPlace_;  ///< where a trailing comment is looked for
};

} // namespace zorvane
