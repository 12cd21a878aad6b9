#pragma once

#include "interface/Member.h"

/// The members that load a plate definition, show it in the panel and change it.
namespace zorvane {

template <class Visitor>
void DescribeLoading(Visitor& visitor) {
    visitor(MemberGroup{"Loading a plate",
                        "A control shows one plate definition, from a plate library or from its "
                        "text. Until the first load, whatever needs a definition fails with 91."});
    visitor(Field<&Plate::FileName>{
        1, "FileName", "The plate library from which plates are loaded.", saved::FileName({})});
    visitor(Property<String, &Plate::PlateName, &Plate::PlateName>{
        57, "PlateName",
        "The name of the loaded plate; writing loads that plate from FileName, without an answer.",
        saved::kPlateName});
    visitor(Method<&Plate::SetPlate>{
        79,
        "SetPlate",
        "Loads a plate from a library, which becomes FileName, or from FileName where none is "
        "named; answers whether that worked, and if not, shows a message and leaves the drawing "
        "as it was.",
        {"PName", {"FName", ""}}});
    visitor(Property<String, &Plate::PlateClassText, &Plate::PlateClassText>{
        43, "PlateClassText",
        "The definition of the loaded plate as text; writing loads a plate from such a text."});
    visitor(Field<&Plate::Status>{2, "Status", "The status of the definition last laid out."});
    visitor(Field<&Plate::Dirty>{
        17, "Dirty", "A mark for the host's own use, cleared whenever a plate is loaded."});
}

template <class Visitor>
void DescribePanel(Visitor& visitor) {
    visitor(MemberGroup{"The details panel",
                        "The panel shows pages of the definition, numbered from 0: comments, tags, "
                        "general properties, then one for each sub-well."});
    visitor(Property<Boolean, &Plate::DataVisible, &Plate::DataVisible>{
        76, "DataVisible", "Whether the details panel is open."});
    visitor(Property<Boolean, &Plate::EditEnable, &Plate::EditEnable>{
        40, "EditEnable", "Whether the operator can edit the definition in the panel."});
    visitor(Method<&Plate::SetDataDisplay>{
        78,
        "SetDataDisplay",
        "Shows a page of the definition in the panel; fails with 9 for the page of a sub-well "
        "that does not exist.",
        {"Index"}});
    visitor(Method<&Plate::GetDataDisplay>{
        77,
        "GetDataDisplay",
        "Takes the texts in the panel as a page of the definition, which then reads itself again.",
        {"Index"}});
}

template <class Visitor>
void DescribeEditing(Visitor& visitor) {
    visitor(MemberGroup{"Editing the definition",
                        "The sizes are those of the current sub-well, in millimetres, at every "
                        "position of the plate. They read as 0 and ignore what is written while no "
                        "sub-well is chosen. Only InitialVolume lays the plate out again."});
    visitor(Property<String, &Plate::TagList>{25, "TagList",
                                              "The tags of the definition, separated by blanks."});
    visitor(Method<&Plate::SetProperty>{
        26, "SetProperty", "Records a property of the definition.", {"Name", "Value"}});
    visitor(Method<&Plate::GetProperty>{
        27,
        "GetProperty",
        "The value of a recorded property of the definition; fails with 91 where there is none.",
        {"Name"}});
    visitor(Property<Integer, &Plate::Style, &Plate::Style>{46, "Style",
                                                            "The code of the sub-well's shape."});
    visitor(Property<Single, &Plate::MaxVolume, &Plate::MaxVolume>{
        47, "MaxVolume", "The volume that the sub-well takes, in the library's unit."});
    visitor(Property<Single, &Plate::Depth, &Plate::Depth>{
        48, "Depth", "The depth of the sub-well below the top of the plate."});
    visitor(Property<Single, &Plate::WellDiameter, &Plate::WellDiameter>{
        49, "WellDiameter",
        "The sub-well's diameter; reads as the mean of WellSizeX and WellSizeY."});
    visitor(Property<Single, &Plate::WellSizeX, &Plate::WellSizeX>{
        50, "WellSizeX", "The sub-well's width inside the rim, along the rows."});
    visitor(Property<Single, &Plate::WellSizeY, &Plate::WellSizeY>{
        51, "WellSizeY", "The sub-well's width inside the rim, along the columns."});
    visitor(Property<Single, &Plate::RimWidth, &Plate::RimWidth>{
        52, "RimWidth", "The thickness of the rim along the rows."});
    visitor(Property<Single, &Plate::RimHeight, &Plate::RimHeight>{
        53, "RimHeight", "The thickness of the rim along the columns."});
    visitor(Property<Single, &Plate::xOffset, &Plate::xOffset>{
        54, "xOffset", "Where the sub-well lies in its position, along the rows."});
    visitor(Property<Single, &Plate::yOffset, &Plate::yOffset>{
        55, "yOffset", "Where the sub-well lies in its position, along the columns."});
    visitor(Property<Single, &Plate::InitialVolume, &Plate::InitialVolume>{
        56, "InitialVolume",
        "The volume in the sub-well at first; writing lays the plate out again, which clears "
        "selection, annotations and colours."});
}

} // namespace zorvane
