#pragma once

#include "control/ControlFixture.h"

#include <sstream>

namespace zorvane {

/// The control with its details panel, which it shows as lines of text.
class PanelControl : public ControlTest {
  protected:
    const PanelElements& Panel() const { return Shown().panel; }
    const cmPlate& Definition() const { return plate.LoadedDefinition(); }

    /// The rows that are shown: "caption=text" each, without the text when its box is hidden.
    String Rows() const {
        String rows;
        for (std::size_t i = 0; i < Panel().txtData.size(); ++i) {
            if (!Panel().lblAnnotation[i].visible) continue;
            rows += (rows.empty() ? "" : "; ") + Panel().lblAnnotation[i].caption;
            if (Panel().txtData[i].visible) rows += "=" + Panel().txtData[i].text;
        }
        return rows;
    }

    /// The page chooser: its entries, the present one in brackets.
    String Pages() const {
        String pages;
        const DropDown& list = Panel().comboSelect;
        for (std::size_t i = 0; i < list.entries.size(); ++i) {
            const bool present = static_cast<Integer>(i) == list.position;
            pages += (pages.empty() ? "" : ", ") +
                     (present ? "[" + list.entries[i] + "]" : list.entries[i]);
        }
        return pages;
    }

    /// The names of the sub-wells as the layout has them.
    String SubWells() const {
        String names;
        for (const auto& subWell : *Definition().CompoundWell())
            names += (names.empty() ? "" : " ") + subWell->WellName();
        return names;
    }

    /// Types into the row of this caption, as the operator does.
    void Type(const String& caption, const String& text) {
        for (std::size_t i = 0; i < Panel().txtData.size(); ++i)
            if (Panel().lblAnnotation[i].visible && Panel().lblAnnotation[i].caption == caption)
                return plate.RowTyped(static_cast<Integer>(i), text);
        FAIL() << "no row " << caption << " in " << Rows();
    }
};

} // namespace zorvane
