#include "control/wells/Selection.h"

#include "runtime/Checked.h"

namespace zorvane {

void Selection::SetMark(Integer wellNo, Boolean selected) {
    Boolean& mark = wells_[wellNo].Selected;
    if (mark != selected) notifier_.SelectionChanged();
    mark = selected;
}

void Selection::Mark(Integer wellNo, Boolean selected) {
    SetMark(wellNo, selected);
    elements_.FillRim(wellNo, selected ? fields_.DefaultSelectColor : elements_.defaultRim);
}

void Selection::MarkAll(Boolean selected) {
    for (Integer i = 0; i < wells_.Allocated(); ++i)
        Mark(i, selected);
}

void Selection::Clear() {
    for (Integer i = 0; i < wells_.Total(); ++i)
        if (Has(i)) Mark(i, false);
    count_ = 0;
}

void Selection::SetWell(Integer row, Integer col, const String& subWell, WellSelectAction action) {
    if (action == wsSingle || !fields_.MultipleSelect) Clear();
    cursor_.MoveTo(row, col, subWell);
    if (action == wsSilent) return;

    const Boolean select = !Has(cursor_.Number());
    Mark(cursor_.Number(), select);
    count_ = Checked(count_) + (select ? 1 : -1);
}

Boolean Selection::AddCurrent() {
    const Integer wellNo = cursor_.Number();
    if (Has(wellNo)) return false;
    SetMark(wellNo, true);
    count_ = Checked(count_) + 1;
    elements_.FillRim(wellNo, fields_.DefaultSelectColor);
    return true;
}

} // namespace zorvane
