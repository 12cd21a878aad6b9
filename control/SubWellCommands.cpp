#include "control/SubWellCommands.h"

#include "control/DataPanel.h"
#include "control/Layout.h"
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

class Commands {
  public:
    explicit Commands(ControlParts parts)
        : parts_(parts), pages_(parts.surface.panel.comboSelect.entries) {}

    /// The answer is used as it is, an empty one too.
    void Insert() {
        const auto subWell = std::make_shared<WellDetails>();
        const String name = Ask({"Enter  a unique name for the subwell", "SubWell Name", String()});
        const auto parent = Layout().Item(Position() >= 2 ? Number() : Integer{1});
        subWell->Copy(*parent);
        subWell->WellName(name);
        Plate().AddSubWell(subWell, Number(), parent);
        pages_.insert(Page(Position() + 1), name);
        ChoosePage(parts_, Checked(Position()) + 1);
        MarkEdited();
    }

    void Remove() {
        const Integer position = Position();
        const Integer number = Number();
        if (position < 2) return;
        pages_.erase(Page(position));
        ChoosePage(parts_, Checked(position) - 1);
        Plate().RemoveSubWell(number);
        MarkEditedAndOpen();
    }

    void Rename() {
        if (Position() < 2) return;
        const String name =
            Ask({"New SubWell Name", "Rename SubWell", Layout().Item(Number())->WellName()});
        if (name.empty()) return;
        *Page(Position()) = name + " Well";
        Plate().RenameSubWell(Number(), name);
        MarkEditedAndOpen();
    }

    void MoveUp() {
        const Integer position = Position();
        if (position < 3) return;
        Plate().SwapSubWells(Number(), Checked(Number()) - 1);
        std::swap(*Page(position), *Page(position - 1));
        ChoosePage(parts_, Checked(position) - 1);
        LayOut();
    }

    void MoveDown() {
        const Integer position = Position();
        if (position < 2 || std::cmp_greater_equal(position + 1, pages_.size())) return;
        Plate().SwapSubWells(Number(), position);
        std::swap(*Page(position), *Page(position + 1));
        ChoosePage(parts_, Checked(position) + 1);
        LayOut();
    }

    void Rotate() {
        Plate().Rotate90();
        LayOut();
    }

    void ShiftAcross() { Shift(AskDistance(kMoveCenters, "right", "X Shift"), 0, 0); }

    void ShiftDown() { Shift(0, AskDistance(kMoveCenters, "down", "Y Shift"), 0); }

    void Raise() { Shift(0, 0, AskDistance(kMoveBottoms, "up", "Z Shift")); }

  private:
    cmPlate& Plate() const { return parts_.state.Definition(); }
    const CompoundWell& Layout() const { return *Plate().CompoundWell(); }

    Integer Position() const { return parts_.surface.panel.comboSelect.position; }
    /// The sub-well that the commands work on. Hosts and operators rely on it being the one after
    /// the one whose page is shown.
    Integer Number() const { return Checked(Position()) - 1; }
    std::vector<String>::iterator Page(std::ptrdiff_t position) const {
        return pages_.begin() + position;
    }

    String Ask(const Question& question) const { return parts_.site.Ask(question); }

    /// 0 when cancelled or when the answer does not begin with a number.
    Single AskDistance(const char* prompt, const char* direction, const char* title) const {
        return LeadingSingle(TrimBlanks(Ask({String(prompt) + direction, title, "0.00"})));
    }

    void Shift(Single dX, Single dY, Single dZ) {
        if (dX == 0 && dY == 0 && dZ == 0) return;
        Plate().ShiftWells(dX, dY, dZ);
        LayOut();
    }

    void LayOut() {
        LayoutPlate(parts_, true);
        MarkEditedAndOpen();
    }

    void MarkEdited() {
        parts_.surface.panel.cmdApply.enabled = true;
        parts_.state.LayoutBusy = true;
    }

    void MarkEditedAndOpen() {
        MarkEdited();
        ShowDataPanel(parts_, true);
    }

    ControlParts parts_;
    std::vector<String>& pages_;
};

} // namespace

void RunSubWellCommand(ControlParts parts, SubWellCommand command) {
    Commands commands(parts);
    switch (command) {
    case mnuAddNewSubWell:
        return commands.Insert();
    case mnuRemoveSubWell:
        return commands.Remove();
    case mnuRenameSubwell:
        return commands.Rename();
    case mnuMoveUp:
        return commands.MoveUp();
    case mnuMoveDown:
        return commands.MoveDown();
    case mnuRotate90:
        return commands.Rotate();
    case mnuShiftHorizontal:
        return commands.ShiftAcross();
    case mnuShiftVertical:
        return commands.ShiftDown();
    case mnuShiftHeight:
        return commands.Raise();
    }
}

} // namespace zorvane
