#pragma once

#include "interface/Member.h"

/// The members that choose and select wells.
namespace zorvane {

template <class Visitor>
void DescribeCurrentWell(Visitor& visitor) {
    visitor(MemberGroup{"The current well",
                        "One well is the current one, which the pointer, the arrow keys and these "
                        "members choose. Writing checks no range and draws nothing; it fails with "
                        "6 when the well number does not fit 16 bits. After a load the current "
                        "well is number 0, and no sub-well is chosen."});
    visitor(Property<Integer, &Plate::CurrentWell, &Plate::CurrentWell>{
        69, "CurrentWell", "The number of the current well."});
    visitor(Property<Integer, &Plate::Row, &Plate::Row>{59, "Row",
                                                        "The row of the current well, from 0."});
    visitor(Property<Integer, &Plate::Col, &Plate::Col>{58, "Col",
                                                        "The column of the current well, from 0."});
    visitor(Property<Integer, &Plate::WellIndex, &Plate::WellIndex>{
        62, "WellIndex",
        "The position of the current sub-well, from 1; writing 0 chooses the last one."});
    visitor(Property<String, &Plate::SubWell, &Plate::SubWell>{
        60, "SubWell",
        "The name of the current sub-well, \"Default\" while none is chosen; an unknown name "
        "leads beyond the last well."});
    visitor(Property<String, &Plate::Location>{
        61, "Location",
        "Sub-well, row and column of the current well, from 0, such as \"Drop, 2, 5\"."});
    visitor(Method<&Plate::SetWell>{
        71,
        "SetWell",
        "Makes a well current and carries out a selection action; fails with 9 when the well does "
        "not exist.",
        {"R", "C", {"SubWell", ""}, {"SelectionAction", wsSingle}}});
    visitor(Method<&Plate::MouseToWell>{
        80,
        "MouseToWell",
        "The number of the well at a point of the plate area, in drawing units; -1 where there is "
        "none, and while edits of sub-wells are pending.",
        {"X", "Y"}});
}

template <class Visitor>
void DescribeSelection(Visitor& visitor) {
    visitor(MemberGroup{"Selection", "MultipleSelect limits the operator and SetWell; the other "
                                     "members select any number of wells."});
    visitor(Field<&Plate::MultipleSelect>{3, "MultipleSelect",
                                          "Whether more than one well may be selected at a time.",
                                          saved::kMultipleSelect});
    visitor(Field<&Plate::DragDrop>{
        4, "DragDrop",
        "Whether a press on a selected well begins to move the selected wells, which ends in the "
        "event DragMove, instead of changing the selection."});
    visitor(Property<Boolean, &Plate::MouseEnabled, &Plate::MouseEnabled>{
        44, "MouseEnabled",
        "Whether pointer input on the plate area is honoured; the details button is enabled with "
        "it."});
    visitor(Property<Boolean, nullptr, &Plate::SelectBoxEnabled>{
        30, "SelectBoxEnabled",
        "Whether an area selection is framed; false hides the frame at once."});
    visitor(Method<&Plate::SelectWell>{72,
                                       "SelectWell",
                                       "Selects or deselects one well, without counting it in "
                                       "NSelected and without an event.",
                                       {"WellNo", "Value"}});
    visitor(Method<&Plate::SelectAll>{
        73, "SelectAll", "Does what SelectWell does with every well.", {"Value"}});
    visitor(Method<&Plate::IsSelected>{
        86,
        "IsSelected",
        "Whether a well is selected; false for a number that is no well.",
        {"WellNo"}});
    visitor(Property<Boolean, &Plate::WellSelected, &Plate::WellSelected>{
        68, "WellSelected", "Whether the current well is selected."});
    visitor(Property<Integer, &Plate::NSelected>{
        70, "NSelected",
        "The number of selected wells as SetWell, area selections and SetArray count them; a load "
        "does not start it again."});
}

template <class Visitor>
void DescribeBlocks(Visitor& visitor) {
    visitor(MemberGroup{"Blocks of wells",
                        "A block is a rectangle of positions; rows and columns count from 0."});
    visitor(Method<&Plate::SetArray>{
        36,
        "SetArray",
        "Records a block, chooses a sub-well and adds the block's wells to the selection, those "
        "that are new in it with a colour unless that is -1; fails with 2999 when the block "
        "leaves the plate.",
        {"X",
         "Y",
         "Width",
         "Height",
         "SW",
         {"Direction", foTopLeftHorizontal},
         {"Color", kNoColor}}});
    visitor(Method<&Plate::FillArray>{
        37,
        "FillArray",
        "Walks the recorded block and colours and annotates its wells from StartWell to StopWell, "
        "counted from 1 along the walk, or to its end for -1; a colour of -1 and the default text "
        "leave wells as they are, and the first \"#\" of a text becomes the number along the "
        "walk.",
        {"Color", {"AnnotationText", kNoValue}, {"StartWell", 1}, {"StopWell", -1}}});
    visitor(
        Property<Integer, &Plate::ArrayX>{31, "ArrayX", "The first column of the recorded block."});
    visitor(
        Property<Integer, &Plate::ArrayY>{32, "ArrayY", "The first row of the recorded block."});
    visitor(Property<Integer, &Plate::ArrayWidth>{33, "ArrayWidth",
                                                  "The number of columns of the recorded block."});
    visitor(Property<Integer, &Plate::ArrayHeight>{34, "ArrayHeight",
                                                   "The number of rows of the recorded block."});
    visitor(Property<String, &Plate::ArraySubwell>{
        35, "ArraySubwell", "Always empty; SubWell has the sub-well of the recorded block."});
}

} // namespace zorvane
