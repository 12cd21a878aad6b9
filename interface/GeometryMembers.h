#pragma once

#include "interface/Member.h"

namespace zorvane {

template <class Visitor>
void DescribePlateSize(Visitor& visitor) {
    visitor(Field<&Plate::Rows>{6, "Rows", "The number of rows."});
    visitor(Field<&Plate::Cols>{5, "Cols", "The number of columns."});
    visitor(Field<&Plate::SubWellCount>{7, "SubWellCount",
                                        "The number of sub-wells at each position."});
    visitor(Property<Integer, &Plate::TotalWells>{
        63, "TotalWells",
        "The number of wells: rows times columns times sub-wells; well numbers run from 0 to one "
        "less."});
    visitor(Field<&Plate::XPitch>{8, "XPitch", "The distance from column to column."});
    visitor(Field<&Plate::YPitch>{9, "YPitch", "The distance from row to row."});
    visitor(Field<&Plate::xOverall>{10, "xOverall", "The size of the plate along the rows."});
    visitor(Field<&Plate::yOverall>{11, "yOverall", "The size of the plate along the columns."});
    visitor(Field<&Plate::PHeight>{12, "PHeight", "The height of the plate."});
    visitor(Field<&Plate::XLeft>{13, "XLeft", "The X of column 0."});
    visitor(Field<&Plate::YTop>{14, "YTop", "The Y of row 0."});
    visitor(
        Field<&Plate::ZClear>{15, "ZClear", "A height that clears the plate, 1 mm above its top."});
}

template <class Visitor>
void DescribeGeometry(Visitor& visitor) {
    visitor(MemberGroup{"Geometry",
                        "Lengths are millimetres; X grows with the column, Y with the row, Z with "
                        "the height. Rows and columns count from 0 and are not checked against "
                        "the plate; a sub-well that the plate does not have fails with 5. Each "
                        "layout sets the fields again."});
    DescribePlateSize(visitor);
    visitor(IndexedProperty<Single(Integer, Integer, const String&), &Plate::WellX>{
        90,
        "WellX",
        "The X of a well; the column comes first.",
        {"DesiredColumn", "DesiredRow", "DesiredSubWell"}});
    visitor(IndexedProperty<Single(Integer, Integer, const String&), &Plate::WellY>{
        91,
        "WellY",
        "The Y of a well; the column comes first.",
        {"DesiredColumn", "DesiredRow", "DesiredSubWell"}});
    visitor(IndexedProperty<Single(Integer, Integer, const String&), &Plate::WellZ>{
        92,
        "WellZ",
        "The Z of a well's bottom; the column comes first.",
        {"DesiredColumn", "DesiredRow", "DesiredSubWell"}});
    visitor(Property<Single, &Plate::CurrentWellX>{87, "CurrentWellX",
                                                   "The X of the current well, without XLeft."});
    visitor(Property<Single, &Plate::CurrentWellY>{88, "CurrentWellY",
                                                   "The Y of the current well, without YTop."});
    visitor(Property<Single, &Plate::CurrentWellZ>{
        89, "CurrentWellZ", "The Z of the current well's bottom; 0 while no sub-well is chosen."});
    visitor(Method<&Plate::WellCentroid>{
        29,
        "WellCentroid",
        "The centre of a well position, with Z 0; the row comes first, and the sub-well makes no "
        "difference.",
        {"X", "Y", "Z", "Row", "Col", {"SubPlateName", ""}}});
    visitor(Method<&Plate::WellEnvelope>{
        28,
        "WellEnvelope",
        "The box that the rims of a well position lie in, with Z 0; the row comes first, and the "
        "sub-well makes no difference.",
        {"Xmin", "YMin", "Zmin", "Xmax", "Ymax", "Zmax", "Row", "Col", {"SubPlateName", ""}}});
}

} // namespace zorvane
