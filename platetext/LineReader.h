#pragma once

#include "model/cmPlate.h"
#include "platetext/Keywords.h"
#include "platetext/LineCode.h"
#include "runtime/NumberText.h"
#include "runtime/Rounding.h"

#include <string_view>

namespace zorvane {

/// Applies one line of a definition to a plate, and lives as long as that takes. The line is taken
/// apart into views; text is copied only where the plate keeps it.
class cmPlate::LineReader {
  public:
    explicit LineReader(cmPlate& plate) : plate_(plate) {}

    LineCode Read(std::string_view line);

  private:
    static constexpr std::string_view kDefaultSubWell = "DEFAULT";
    /// The shelf depth of a definition that gives none.
    static constexpr Single kNoShelf = -0.001F;

    void TakeArgument(std::string_view argument);
    /// The text with its TABs as spaces; good until the next call.
    std::string_view Blanked(std::string_view text);
    LineCode ReadOutsidePlate();
    LineCode ReadInsidePlate();
    void OpenPlate();
    void AppendTrailingComment();
    void Record(std::string_view name, std::string_view value, Integer position = 0);

    Single Value() const { return LeadingSingle(firstArgument_); }
    Integer WholeValue() const { return ToInteger(Value()); }
    /// The sub-well that the line is about; before any WELL line, one named DEFAULT.
    WellDetails& SubWell();
    void StartSubWell(std::string_view name);

    void ReadPlateValue(Keyword keyword);
    void ReadSubWellValue(const KeywordTraits& traits);
    void ReadColumnLabel();
    void ReadRowLabel();
    void ReadShelfDepth();
    void ReadCoordinates();
    void ReadTag();
    void ReadTagList();
    void AddTag(std::string_view tag);
    void RecordTags();
    void ReadWell();

    cmPlate& plate_;
    std::string_view keyword_;
    std::string_view argument_;      ///< everything after the keyword
    std::string_view firstArgument_; ///< the first word of it
    std::string_view commentPlace_;  ///< where a trailing comment is looked for
};

} // namespace zorvane
