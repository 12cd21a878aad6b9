#include "control/panel/FieldCaptions.h"

#include "runtime/TextFunctions.h"
#include "support/TStringPairList.h"

#include <memory>

namespace zorvane {

namespace {

struct Field {
    const char* key;
    const char* caption;
};

constexpr Field kFields[] = {
    {"Rows", "Rows"},
    {"Cols", "Columns"},
    {"RowLabel", "Row Label"},
    {"ColLabel", "Column Label"},
    {"XOverall", "X Overall"},
    {"YOverall", "Y Overall"},
    {"XPitch", "X Pitch"},
    {"YPitch", "Y Pitch"},
    {"PlateHeight", "Plate Height"},
    {"ShelfDepth", "Shelf Depth"},
    {"Style", "Style"},
    {"Xoffset", "X offset"},
    {"YOffset", "Y Offset"},
    {"Depth", "Depth"},
    {"ShelfHeight", "Shelf Height"},
    {"WellSizeX", "Well Size X"},
    {"WellSizeY", "Well Size Y"},
    {"Volume", "Volume"},
    {"RimWidth", "Rim Width"},
    {"RimHeight", "Rim Height"},
    {"RimCenterX", "Rim Center X"},
    {"RimCenterY", "Rim Center Y"},
    {"Area", "Area"},
    {"Taper", "Taper"},
    {"R0", "R0"},
};

TStringPairList MakeFieldTable() {
    TStringPairList table;
    table.ErrorOnFail = false;
    for (const Field& field : kFields)
        table.Add(std::make_shared<TStringPair>(field.key, field.caption));
    return table;
}

} // namespace

String FieldCaption(std::string_view name) {
    static const TStringPairList table = MakeFieldTable();
    const auto field = table.Pair(name);
    return field ? field->Value() : Capitalize(name);
}

} // namespace zorvane
