#pragma once

#include "interface/Member.h"

/// The members for what is known of wells, and for how wells and plate look.
namespace zorvane {

template <class Visitor>
void DescribeCurrentWellData(Visitor& visitor) {
    visitor(Property<Single, &Plate::CurrentVolume, &Plate::CurrentVolume>{
        81, "CurrentVolume", "The volume in the current well."});
    visitor(Property<Boolean, &Plate::SolutionDefined, &Plate::SolutionDefined>{
        67, "SolutionDefined",
        "Whether the current well is marked as defined; unlike IsDefined, writing does not colour "
        "the well."});
    visitor(Method<&Plate::ClearWell>{
        65, "ClearWell",
        "Clears the current well's mark, volume, annotation and colour; text, error code and "
        "selection stay."});
}

template <class Visitor>
void DescribeWellData(Visitor& visitor) {
    visitor(MemberGroup{"Data of wells",
                        "Well numbers at or beyond TotalWells read as empty and ignore what is "
                        "written; negative ones fail with 9. For a current well that does not "
                        "exist SolutionDefined and ClearWell fail with 9 or 91."});
    visitor(IndexedProperty<String(Integer), &Plate::Text, &Plate::Text>{
        41, "Text", "The text of a well, which its tooltip shows.", {"WellNo"}});
    visitor(IndexedProperty<Integer(Integer), &Plate::ErrorCode, &Plate::ErrorCode>{
        42,
        "ErrorCode",
        "The error code of a well; it is to be written before IsDefined, which colours the well.",
        {"WellNo"}});
    visitor(Method<&Plate::GetVolume>{82, "GetVolume", "The volume in a well.", {"WellNo"}});
    visitor(Method<&Plate::SetVolume>{
        83, "SetVolume", "Records the volume in a well.", {"WellNo", "V"}});
    visitor(IndexedProperty<String(Integer), &Plate::WellAnnotation, &Plate::WellAnnotation>{
        84, "WellAnnotation", "The caption shown on a well.", {"WellNo"}});
    visitor(IndexedProperty<Boolean(Integer), &Plate::IsDefined, &Plate::IsDefined>{
        85,
        "IsDefined",
        "Whether a well is marked as defined; writing colours the well, and false also clears its "
        "error code.",
        {"WellNo"}});
    DescribeCurrentWellData(visitor);
    visitor(Method<&Plate::ClearSubWells>{
        66,
        "ClearSubWells",
        "Does what ClearWell does with one sub-well at every position, and makes the first of "
        "them current.",
        {"SubWellName"}});
}

template <class Visitor>
void DescribeColors(Visitor& visitor) {
    visitor(Property<Long, &Plate::DefaultWellColor, &Plate::DefaultWellColor>{
        39, "DefaultWellColor", "The colour of the bottom of a well that is not marked as defined.",
        saved::kWellColor});
    visitor(Property<Long, &Plate::DefaultRimColor, &Plate::DefaultRimColor>{
        38, "DefaultRimColor", "The colour of the rim of a well that is not selected.",
        saved::kRimColor});
    visitor(Field<&Plate::DefaultSelectColor>{18, "DefaultSelectColor",
                                              "The colour of the rim of a selected well.",
                                              saved::kSelectColor});
    visitor(Field<&Plate::DefinedWellColor>{
        21, "DefinedWellColor",
        "The colour of the bottom of a defined well without an error code."});
    visitor(Field<&Plate::ErrorWellColor>{
        22, "ErrorWellColor", "The colour of the bottom of a defined well with an error code."});
    visitor(Field<&Plate::SelectedColor>{23, "SelectedColor",
                                         "The colour of the plate area while Selected is true.",
                                         saved::kSelectedColor});
    visitor(Field<&Plate::DeselectedColor>{24, "DeselectedColor",
                                           "The colour of the plate area while Selected is false.",
                                           saved::kDeselectedColor});
    visitor(Property<String, &Plate::WellColor, &Plate::WellColor>{
        74, "WellColor", "The colour of the current well's bottom, as text."});
    visitor(Property<String, &Plate::RimColor, &Plate::RimColor>{
        75, "RimColor", "The colour of the current well's rim, as text."});
}

template <class Visitor>
void DescribeAppearance(Visitor& visitor) {
    visitor(MemberGroup{
        "Appearance",
        "A colour is 0x00BBGGRR or, with the top bit set, a system colour whose index is the low "
        "byte. One that changes applies from the next time that a well is coloured or the control "
        "marked. As text a colour is a decimal number, or a hexadecimal one after \"&H\"; any "
        "other text fails with 13."});
    visitor(Property<Single, &Plate::DrawingScale, &Plate::DrawingScale>{
        45, "DrawingScale",
        "Drawing units (1/1440 inch) a millimetre; writing lays a loaded plate out again.",
        saved::kDrawingScale});
    visitor(Field<&Plate::FixedSize>{
        16, "FixedSize",
        "Whether the drawing is fitted to the control, instead of the control to the drawing.",
        saved::kFixedSize});
    visitor(Field<&Plate::HorizontalCentred>{
        19, "HorizontalCentred", "Whether a drawing of fixed size is centred from left to right.",
        saved::kHorizontalCentred});
    visitor(Field<&Plate::VerticalCentred>{
        20, "VerticalCentred", "Whether a drawing of fixed size is centred from top to bottom.",
        saved::kVerticalCentred});
    visitor(Property<Boolean, &Plate::Selected, &Plate::Selected>{
        64, "Selected",
        "Whether the whole control is marked, by the colours of plate area and legends and a bold "
        "details button."});
    DescribeColors(visitor);
}

} // namespace zorvane
