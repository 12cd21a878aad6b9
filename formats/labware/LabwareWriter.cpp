#include "formats/PlateWells.h"
#include "formats/labware/Labware.h"
#include "formats/labware/SafeName.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace zorvane {

namespace {

using Json = nlohmann::ordered_json;

[[noreturn]] void RefusePlate(const String& reason) {
    Raise(ErrorNumber::InvalidProcedureCall, reason, "Zorvane::Formats");
}

/// A length that no labware has below zero.
Json Number(const ExactNumber& number, const char* what, const WellPosition& position) {
    if (number.Units() < 0) {
        RefusePlate("a labware cannot have a negative " + String(what) + ", as " +
                    PositionName(position) + " has: " + number.Text());
    }
    return number.Value();
}

Json WellOf(const SourceWell& well, const SourcePlate& plate) {
    const auto number = [&well](const ExactNumber& value, const char* what) {
        return Number(value, what, well.position);
    };
    Json json;
    json["depth"] = number(well.depth, "depth");
    json["totalLiquidVolume"] = number(well.volume, "volume");
    if (well.style == "ROUND" || well.style == "CCSHELF") {
        json["shape"] = "circular";
        json["diameter"] = number(well.sizeX, "size");
        if (!SameNumber(well.sizeX, well.sizeY)) {
            RefusePlate("a labware has no round wells of two sizes: " + well.sizeX.Text() + " by " +
                        well.sizeY.Text() + " mm");
        }
    } else {
        json["shape"] = "rectangular";
        json["xDimension"] = number(well.sizeX, "size");
        json["yDimension"] = number(well.sizeY, "size");
    }
    json["x"] = number(well.x, "x");
    json["y"] = number(plate.width - well.y, "y");
    json["z"] = number(plate.height - well.depth, "z (the height less the depth)");
    return json;
}

/// Appends a member without searching for one of its name: for many wells that takes long.
void Append(Json& object, const String& name, Json value) {
    object.get_ref<Json::object_t&>().emplace_back(name, std::move(value));
}

/// Names column by column, as protocols count wells.
Json Ordering(const std::vector<SourceWell>& wells) {
    std::vector<std::vector<std::pair<Long, String>>> columns;
    for (const SourceWell& well : wells) {
        const auto col = static_cast<std::size_t>(well.position.col);
        columns.resize(std::max(columns.size(), col + 1));
        columns[col].emplace_back(well.position.row, PositionName(well.position));
    }
    Json ordering = Json::array();
    for (auto& column : columns) {
        std::sort(column.begin(), column.end());
        Json names = Json::array();
        for (const auto& [row, name] : column)
            names.push_back(name);
        if (!names.empty()) ordering.push_back(std::move(names));
    }
    return ordering;
}

/// The spacing that multichannel pipettes know.
const char* FormatOf(const cmPlate& plate) {
    const auto spaced = [&plate](Integer rows, Integer cols, Single pitch) {
        return plate.Rows() == rows && plate.Cols() == cols && plate.XPitch() == pitch &&
               plate.YPitch() == pitch;
    };
    if (spaced(8, 12, 9)) return "96Standard";
    return spaced(16, 24, 4.5F) ? "384Standard" : "irregular";
}

Json Dimensions(const SourcePlate& plate) {
    for (const ExactNumber& length : {plate.length, plate.width, plate.height}) {
        if (length.Units() < 0)
            RefusePlate("a labware cannot have a negative size: " + length.Text());
    }
    return {{"xDimension", plate.length.Value()},
            {"yDimension", plate.width.Value()},
            {"zDimension", plate.height.Value()}};
}

/// The name of the plate, or of one of its several sub-wells.
String LabwareName(const cmPlate& plate, Long subWell) {
    if (plate.CompoundWell()->Count() < 2) return plate.PlateName();
    return plate.PlateName() + "." + plate.CompoundWell()->Item(subWell)->WellName();
}

} // namespace

String LoadName(const cmPlate& plate, Long subWell) {
    return SafeName(LabwareName(plate, subWell));
}

String LabwareText(const cmPlate& plate, Long subWell) {
    const SourcePlate source = PlateWells(plate);
    const SourceSubWell& wells = source.subWells.at(static_cast<std::size_t>(subWell - 1));
    Json group{{"metadata", {{"displayName", wells.name}}}, {"wells", Json::array()}};
    Json byName = Json::object();
    const Json ordering = Ordering(wells.wells);
    for (const SourceWell& well : wells.wells)
        Append(byName, PositionName(well.position), WellOf(well, source));
    for (const Json& column : ordering)
        group["wells"].insert(group["wells"].end(), column.begin(), column.end());

    Json labware;
    labware["ordering"] = ordering;
    labware["brand"] = {{"brand", "generic"}, {"brandId", Json::array()}};
    labware["metadata"] = {{"displayName", LabwareName(plate, subWell)},
                           {"displayCategory", "wellPlate"},
                           {"displayVolumeUnits", "\u00B5L"},
                           {"tags", source.tags}};
    labware["dimensions"] = Dimensions(source);
    labware["wells"] = std::move(byName);
    labware["groups"] = Json::array({std::move(group)});
    labware["parameters"] = {{"format", FormatOf(plate)},
                             {"quirks", Json::array()},
                             {"isTiprack", false},
                             {"isMagneticModuleCompatible", false},
                             {"loadName", LoadName(plate, subWell)}};
    labware["namespace"] = "custom_beta";
    labware["version"] = 1;
    labware["schemaVersion"] = 2;
    labware["cornerOffsetFromSlot"] = {{"x", 0}, {"y", 0}, {"z", 0}};
    return labware.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace zorvane
