#include "library/DefinitionEdits.h"

#include "model/PropertyBlock.h"
#include "model/WellStyle.h"
#include "platetext/RecordMissingValues.h"
#include "runtime/Checked.h"
#include "runtime/NumberText.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "support/TStringPair.h"

#include <memory>
#include <optional>
#include <utility>

namespace zorvane {

namespace {

[[noreturn]] void Fail(const String& description) {
    Raise(ErrorNumber::EditNotPossible, description);
}

/// Runs a change and explains the failures that come of numbers too large and of labels.
template <class Change>
void RunExplained(Change&& change) {
    try {
        std::forward<Change>(change)();
    } catch (const RuntimeError& error) {
        if (error.Is(ErrorNumber::Overflow)) Fail("a value would be too large");
        if (error.Is(ErrorNumber::InvalidProcedureCall))
            Fail("there are no letters for that many rows");
        throw;
    }
}

/// The position of a sub-well; 0 when there is none of this name.
Integer PositionOf(const cmPlate& plate, const String& name) {
    Checked position = 0;
    for (const auto& each : *plate.CompoundWell()) {
        position = position + 1;
        if (EqualNoCase(each->WellName(), name)) return position;
    }
    return 0;
}

/// The position of a sub-well that the plate has, with lines of its own. Changes to another one
/// would not be written with the plate.
Integer Find(const cmPlate& plate, const String& name) {
    const Integer position = PositionOf(plate, name);
    if (position == 0) Fail("the plate has no sub-well \"" + name + "\"");
    if (plate.Properties.IndexOf(name + ".Well") == 0)
        Fail("sub-well \"" + name + "\" has no WELL line of its own");
    return position;
}

/// The mark between the name and the property in the recorded list is a full stop.
void CheckNewName(const cmPlate& plate, const String& name) {
    if (name.empty()) Fail("the name of a sub-well must not be empty");
    if (name.front() == ';' || name.find_first_of(" \t\r\n.") != name.npos) {
        Fail("\"" + name +
             "\" is no name for a sub-well, which is one word without a full stop "
             "that does not begin with \";\"");
    }
    if (PositionOf(plate, name) != 0) Fail("the plate has a sub-well \"" + name + "\" already");
}

/// Records a value of a sub-well: where it has one, or after those of its own, since a value that
/// stands elsewhere is read as one of another sub-well.
void Record(cmPlate& plate, const String& subWell, Keyword keyword, const String& value) {
    RecordMissingValues(plate); // a rim width that is read before any rim height gives both
    const PropertyBlock block(plate.Properties, subWell);
    const String name = block.prefix + String(TraitsOf(keyword).name);
    plate.SetProperty(name, value, Checked(block.first) + block.length - 1);
}

} // namespace

void TurnPlate(cmPlate& plate) {
    RecordMissingValues(plate);
    RunExplained([&] { plate.Rotate90(); });
}

void MoveSubWells(cmPlate& plate, Single dX, Single dY, Single dZ) {
    RecordMissingValues(plate);
    RunExplained([&] { plate.ShiftWells(dX, dY, dZ); });
}

void RenameSubWell(cmPlate& plate, const String& name, const String& newName) {
    const Integer position = Find(plate, name);
    if (!EqualNoCase(name, newName)) CheckNewName(plate, newName);
    plate.RenameSubWell(position, newName);
}

void ExchangeSubWells(cmPlate& plate, const String& name, const String& otherName) {
    const Integer first = Find(plate, name);
    const Integer second = Find(plate, otherName);
    if (first == second) Fail("sub-well \"" + name + "\" cannot be exchanged with itself");
    plate.SwapSubWells(first, second);
}

void RemoveSubWell(cmPlate& plate, const String& name) { plate.RemoveSubWell(Find(plate, name)); }

void AddSubWellLike(cmPlate& plate, const String& name, const String& like) {
    const auto parent = plate.CompoundWell()->Item(Find(plate, like));
    CheckNewName(plate, name);
    auto subWell = std::make_shared<WellDetails>();
    subWell->Copy(*parent);
    subWell->WellName(name);
    // What is recorded for it goes to the end of the text, so it comes last in the layout too.
    plate.AddSubWell(subWell, -1, parent);
    // Where the library writes WELL in capitals, the name of the parent has been recorded.
    plate.SetProperty(name + ".Well", name);
}

void SetSubWellNumber(cmPlate& plate, const String& name, Keyword keyword, Single value) {
    const auto subWell = plate.CompoundWell()->Item(Find(plate, name));
    const String text = SingleText(value);
    Record(plate, subWell->WellName(), keyword, text);
    ((*subWell).*TraitsOf(keyword).setNumber)(value);
}

void SetSubWellStyle(cmPlate& plate, const String& name, const String& style) {
    const std::optional<Long> code = WellStyleCode(style);
    if (!code) Fail("\"" + style + "\" is not a style");
    const auto subWell = plate.CompoundWell()->Item(Find(plate, name));
    Record(plate, subWell->WellName(), Keyword::Style, cmPlate::StyleText(*code));
    subWell->Style(*code);
}

} // namespace zorvane
