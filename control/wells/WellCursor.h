#pragma once

#include "control/Definition.h"
#include "control/PlateFields.h"
#include "control/WellGrid.h"
#include "runtime/Types.h"

namespace zorvane {

/// The current well of a control: its number, which always agrees with sub-well, row and column. No
/// setter checks a range, draws or tells anyone; error 6 when the number does not fit 16 bits, with
/// the parts that were set in place.
class WellCursor {
  public:
    WellCursor(const PlateFields& fields, const Definition& definition)
        : fields_(fields), definition_(definition) {}

    const Integer& Number() const { return number_; }
    Integer Row() const { return place_.row; }
    Integer Col() const { return place_.col; }
    /// The sub-well's position from 1; 0 while none is chosen.
    Integer SubWell() const { return place_.subWell; }
    /// "Default" while no sub-well is chosen.
    String SubWellName() const;

    void Number(Integer wellNo);
    void Row(Integer row);
    void Col(Integer col);
    /// 0 stands for the last sub-well.
    void SubWell(Integer position);
    /// An unknown name leads one past the last sub-well, unless the present one is the default one.
    void SubWellName(const String& name);
    /// Moves within the sub-well.
    void MoveTo(Integer row, Integer col);
    /// Moves to the sub-well of this name. An unknown one leads one past the last sub-well, unless
    /// it is that of the default one.
    void MoveTo(Integer row, Integer col, const String& subWell);
    /// Well 0 without a sub-well.
    void Reset();

  private:
    Integer PositionOf(const String& name) const;
    Integer OnePastLast() const;
    void Renumber();

    const PlateFields& fields_;
    const Definition& definition_;
    Integer number_ = 0;
    WellPlace place_;
};

} // namespace zorvane
