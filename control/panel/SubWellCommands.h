#pragma once

#include "control/Definition.h"
#include "control/panel/DataPanel.h"
#include "platform/InputBox.h"
#include "runtime/Types.h"

#include <cstdint>
#include <vector>

namespace zorvane {

/// The commands of the panel's menu, which change the sub-wells of the plate definition: they ask
/// the operator for what they need and keep the page chooser in step where they can.
class SubWellCommands {
  public:
    /// What is left to do after a command, each including the ones before: nothing, marking the
    /// definition as edited, opening the panel, and before both laying the plate out.
    enum class Rest : std::uint8_t { Nothing, Mark, Open, LayOut };

    SubWellCommands(const Definition& definition, PanelElements& elements, DataPanel& panel,
                    InputBox& operatorInput)
        : plate_(definition), chooser_(elements.comboSelect), panel_(panel),
          operator_(operatorInput) {}

    /// Failures of the definition reach the caller, with the changes made before them in place.
    Rest Run(SubWellCommand command);

  private:
    Rest Insert();
    Rest Remove();
    Rest Rename();
    Rest MoveUp();
    Rest MoveDown();
    Rest Rotate();
    Rest Shift(Single dX, Single dY, Single dZ);
    Single AskDistance(const char* prompt, const char* direction, const char* title) const;

    Integer Position() const { return chooser_.position; }
    Integer Number() const;
    std::vector<String>::iterator Page(std::ptrdiff_t position) const {
        return chooser_.entries.begin() + position;
    }

    const Definition& plate_;
    DropDown& chooser_;
    DataPanel& panel_;
    InputBox& operator_;
};

} // namespace zorvane
