#include "apps/plate/edit/PlateEdits.h"

#include "apps/plate/Files.h"
#include "platetext/RecordMissingValues.h"
#include "runtime/Checked.h"
#include "runtime/NumberText.h"
#include "runtime/Text.h"

#include <memory>
#include <utility>
#include <vector>

namespace zorvane {

namespace {

/// The parts of a text between the marks; there must be `count` of them.
std::vector<String> PartsOf(const String& text, char mark, std::size_t count, const char* form) {
    std::vector<String> parts(1);
    for (const char c : text) {
        if (c == mark) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    if (parts.size() != count) Fail("\"" + text + "\" is not " + form);
    return parts;
}

/// Runs an action and explains the failures that come of numbers too large and of labels.
template <class Action>
auto RunExplained(const String& tooLarge, Action&& action) {
    try {
        return std::forward<Action>(action)();
    } catch (const RuntimeError& error) {
        if (error.Number() == static_cast<Long>(ErrorNumber::Overflow)) Fail(tooLarge);
        if (error.Number() != static_cast<Long>(ErrorNumber::InvalidProcedureCall)) throw;
        Fail("there are no letters for that many rows");
    }
}

Single NumberIn(const String& text) {
    if (!IsNumber(text)) Fail("\"" + text + "\" is not a number");
    return RunExplained("\"" + text + "\" is too large", [&] { return LeadingSingle(text); });
}

std::pair<String, String> Pair(const String& text, char mark, const char* form) {
    std::vector<String> parts = PartsOf(text, mark, 2, form);
    return {std::move(parts[0]), std::move(parts[1])};
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

void Rename(cmPlate& plate, const String& from, const String& to) {
    const Integer position = Find(plate, from);
    if (!EqualNoCase(from, to)) CheckNewName(plate, to);
    plate.RenameSubWell(position, to);
}

void Swap(cmPlate& plate, const String& one, const String& other) {
    const Integer first = Find(plate, one);
    const Integer second = Find(plate, other);
    if (first == second) Fail("sub-well \"" + one + "\" cannot be exchanged with itself");
    plate.SwapSubWells(first, second);
}

void Add(cmPlate& plate, const String& name, const String& from) {
    const auto parent = plate.CompoundWell()->Item(Find(plate, from));
    CheckNewName(plate, name);
    auto subWell = std::make_shared<WellDetails>();
    subWell->Copy(*parent);
    subWell->WellName(name);
    // What is recorded for it goes to the end of the text, so it comes last in the layout too.
    plate.AddSubWell(subWell, -1, parent);
    // Where the library writes WELL in capitals, the name of the parent has been recorded.
    plate.SetProperty(name + ".Well", name);
}

void Rotate(cmPlate& plate) {
    RecordMissingValues(plate);
    RunExplained("a value would be too large", [&] { plate.Rotate90(); });
}

} // namespace

PlateEdit Rotation(const String& /*argument*/) { return Rotate; }

PlateEdit Shift(const String& distances) {
    const auto parts = PartsOf(distances, ',', 3, "X,Y,Z");
    return
        [x = NumberIn(parts[0]), y = NumberIn(parts[1]), z = NumberIn(parts[2])](cmPlate& plate) {
            RecordMissingValues(plate);
            RunExplained("a value would be too large", [&] { plate.ShiftWells(x, y, z); });
        };
}

PlateEdit Renaming(const String& names) {
    return [pair = Pair(names, '=', "OLD=NEW")](cmPlate& plate) {
        Rename(plate, pair.first, pair.second);
    };
}

PlateEdit Exchange(const String& names) {
    return
        [pair = Pair(names, ',', "A,B")](cmPlate& plate) { Swap(plate, pair.first, pair.second); };
}

PlateEdit Removal(const String& name) {
    return [name](cmPlate& plate) { plate.RemoveSubWell(Find(plate, name)); };
}

PlateEdit Addition(const String& names) {
    return [pair = Pair(names, '=', "NEW=FROM")](cmPlate& plate) {
        Add(plate, pair.first, pair.second);
    };
}

} // namespace zorvane
