#include "model/LabelText.h"
#include "model/cmPlate.h"
#include "runtime/Checked.h"
#include "runtime/NumberText.h"
#include "runtime/RuntimeError.h"

/// How rows, columns and indices turn into each other, and how positions are labelled.
namespace zorvane {

CharacterAt LabelCharacter(std::string_view label) {
    if (label.empty()) Raise(ErrorNumber::InvalidProcedureCall);
    return FirstCharacter(label);
}

String LabelText(Checked code, const CharacterAt& countedFrom) {
    const Integer character = code.Value();
    if (character < 0 || character > 255) Raise(ErrorNumber::InvalidProcedureCall);
    if (countedFrom.valid) return EncodeUtf8(character);
    return {static_cast<char>(static_cast<unsigned char>(character))};
}

namespace {

String Legend(std::string_view firstLabel, Integer direction, Integer position) {
    const Checked steps = Checked(direction) * position;
    if (IsNumber(firstLabel)) return GeneralText(LeadingNumber(firstLabel) + steps.Value());
    const CharacterAt first = LabelCharacter(firstLabel);
    return LabelText(Checked(first.code) + steps, first);
}

} // namespace

Integer cmPlate::RowColToIndex(Integer row, Integer col, Boolean columnMajor) const {
    return columnMajor ? Checked(col) * rows_ + row : Checked(row) * cols_ + col;
}

Integer cmPlate::IndexToRow(Integer index, Boolean columnMajor) const {
    return columnMajor ? Checked(index) % rows_ : Checked(index) / cols_;
}

Integer cmPlate::IndexToCol(Integer index, Boolean columnMajor) const {
    return columnMajor ? Checked(index) / rows_ : Checked(index) % cols_;
}

Integer cmPlate::TransposeIndex(Integer index, Boolean toColumnMajor) const {
    const bool fromColumnMajor = !toColumnMajor;
    return RowColToIndex(IndexToRow(index, fromColumnMajor), IndexToCol(index, fromColumnMajor),
                         toColumnMajor);
}

String cmPlate::RowLegend(Integer row) const { return Legend(rowLabel_, rowDirection_, row); }

String cmPlate::ColumnLegend(Integer col) const {
    return Legend(columnLabel_, columnDirection_, col);
}

String cmPlate::WellLegend(Integer row, Integer col) const {
    const String rowLegend = RowLegend(row);
    return rowLegend + ColumnLegend(col);
}

} // namespace zorvane
