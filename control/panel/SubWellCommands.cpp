#include "control/panel/SubWellCommands.h"

#include "runtime/Checked.h"
#include "runtime/NumberText.h"
#include "runtime/TextFunctions.h"

#include <memory>
#include <utility>

namespace zorvane {

namespace {

constexpr const char* kMoveCenters =
    "Enter distance in mm to shift all subwell centers\r\n+ve value shifts ";
constexpr const char* kMoveBottoms =
    "Enter distance in mm to shift bottoms of all subwells\r\n+ve value shifts ";

} // namespace

SubWellCommands::Rest SubWellCommands::Run(SubWellCommand command) {
    switch (command) {
    case mnuAddNewSubWell:
        return Insert();
    case mnuRemoveSubWell:
        return Remove();
    case mnuRenameSubwell:
        return Rename();
    case mnuMoveUp:
        return MoveUp();
    case mnuMoveDown:
        return MoveDown();
    case mnuRotate90:
        return Rotate();
    case mnuShiftHorizontal:
        return Shift(AskDistance(kMoveCenters, "right", "X Shift"), 0, 0);
    case mnuShiftVertical:
        return Shift(0, AskDistance(kMoveCenters, "down", "Y Shift"), 0);
    case mnuShiftHeight:
        return Shift(0, 0, AskDistance(kMoveBottoms, "up", "Z Shift"));
    }
    return Rest::Nothing;
}

/// The sub-well that the commands work on. Hosts and operators rely on it being the one after the
/// one whose page is shown.
Integer SubWellCommands::Number() const { return Checked(Position()) - 1; }

/// The answer is used as it is, an empty one too.
SubWellCommands::Rest SubWellCommands::Insert() {
    const auto subWell = std::make_shared<WellDetails>();
    const String name =
        operator_.Ask({"Enter  a unique name for the subwell", "SubWell Name", String()});
    const auto parent = plate_->CompoundWell()->Item(Position() >= 2 ? Number() : Integer{1});
    subWell->Copy(*parent);
    subWell->WellName(name);
    plate_->AddSubWell(subWell, Number(), parent);
    chooser_.entries.insert(Page(Position() + 1), name);
    panel_.ChoosePage(Checked(Position()) + 1);
    return Rest::Mark;
}

SubWellCommands::Rest SubWellCommands::Remove() {
    const Integer position = Position();
    const Integer number = Number();
    if (position < 2) return Rest::Nothing;
    chooser_.entries.erase(Page(position));
    panel_.ChoosePage(Checked(position) - 1);
    plate_->RemoveSubWell(number);
    return Rest::Open;
}

SubWellCommands::Rest SubWellCommands::Rename() {
    if (Position() < 2) return Rest::Nothing;
    const String present = plate_->CompoundWell()->Item(Number())->WellName();
    const String name = operator_.Ask({"New SubWell Name", "Rename SubWell", present});
    if (name.empty()) return Rest::Nothing;
    *Page(Position()) = name + " Well";
    plate_->RenameSubWell(Number(), name);
    return Rest::Open;
}

SubWellCommands::Rest SubWellCommands::MoveUp() {
    const Integer position = Position();
    if (position < 3) return Rest::Nothing;
    plate_->SwapSubWells(Number(), Checked(Number()) - 1);
    std::swap(*Page(position), *Page(position - 1));
    panel_.ChoosePage(Checked(position) - 1);
    return Rest::LayOut;
}

SubWellCommands::Rest SubWellCommands::MoveDown() {
    const Integer position = Position();
    if (position < 2 || std::cmp_greater_equal(position + 1, chooser_.entries.size()))
        return Rest::Nothing;
    plate_->SwapSubWells(Number(), position);
    std::swap(*Page(position), *Page(position + 1));
    panel_.ChoosePage(Checked(position) + 1);
    return Rest::LayOut;
}

SubWellCommands::Rest SubWellCommands::Rotate() {
    plate_->Rotate90();
    return Rest::LayOut;
}

SubWellCommands::Rest SubWellCommands::Shift(Single dX, Single dY, Single dZ) {
    if (dX == 0 && dY == 0 && dZ == 0) return Rest::Nothing;
    plate_->ShiftWells(dX, dY, dZ);
    return Rest::LayOut;
}

/// 0 when cancelled or when the answer does not begin with a number.
Single SubWellCommands::AskDistance(const char* prompt, const char* direction,
                                    const char* title) const {
    return LeadingSingle(TrimBlanks(operator_.Ask({String(prompt) + direction, title, "0.00"})));
}

} // namespace zorvane
