#include "apps/plate/edit/PlateEdits.h"

#include "apps/plate/Files.h"
#include "library/DefinitionEdits.h"
#include "runtime/NumberText.h"
#include "runtime/RuntimeError.h"

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

Single NumberIn(const String& text) {
    if (!IsNumber(text)) Fail("\"" + text + "\" is not a number");
    try {
        return LeadingSingle(text);
    } catch (const RuntimeError& error) {
        if (error.Is(ErrorNumber::Overflow)) Fail("\"" + text + "\" is too large");
        throw;
    }
}

std::pair<String, String> Pair(const String& text, char mark, const char* form) {
    std::vector<String> parts = PartsOf(text, mark, 2, form);
    return {std::move(parts[0]), std::move(parts[1])};
}

} // namespace

PlateEdit Rotation(const String& /*argument*/) { return TurnPlate; }

PlateEdit Shift(const String& distances) {
    const auto parts = PartsOf(distances, ',', 3, "X,Y,Z");
    return [x = NumberIn(parts[0]), y = NumberIn(parts[1]),
            z = NumberIn(parts[2])](cmPlate& plate) { MoveSubWells(plate, x, y, z); };
}

PlateEdit Renaming(const String& names) {
    return [pair = Pair(names, '=', "OLD=NEW")](cmPlate& plate) {
        RenameSubWell(plate, pair.first, pair.second);
    };
}

PlateEdit Exchange(const String& names) {
    return [pair = Pair(names, ',', "A,B")](cmPlate& plate) {
        ExchangeSubWells(plate, pair.first, pair.second);
    };
}

PlateEdit Removal(const String& name) {
    return [name](cmPlate& plate) { RemoveSubWell(plate, name); };
}

PlateEdit Addition(const String& names) {
    return [pair = Pair(names, '=', "NEW=FROM")](cmPlate& plate) {
        AddSubWellLike(plate, pair.first, pair.second);
    };
}

} // namespace zorvane
