#include "hosts/qt/PlateHints.h"
#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtPalette.h"
#include "hosts/qt/SelectionAids.h"
#include "hosts/qt/Units.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace zorvane {

namespace {

constexpr Long kHighlight = SystemColor(0x0D);
constexpr Long kHighlightText = SystemColor(0x0E);

} // namespace

void PlateWidget::setAids(Aids aids) {
    aids_ = aids;
    update();
}

void PlateWidget::Select(const std::function<void()>& selection) {
    Try([&] {
        selection();
        emit selectionAided();
    });
}

bool PlateWidget::AnswerPress(const QMouseEvent& event) {
    const bool selects = event.button() == Qt::LeftButton && mouseEnabled() && multipleSelect();
    const bool keep = event.modifiers().testFlag(Qt::ControlModifier);
    const bool extend = event.modifiers().testFlag(Qt::ShiftModifier);
    const Spot at = InPlate(event.position());
    const auto line = LegendAt(*plate_, at.x, at.y);
    if (selects && line && aids_.testFlag(Aid::LegendClickSelects)) {
        setFocus(Qt::MouseFocusReason);
        Select([&] { selection_->SelectLine(*line, keep); });
        return true;
    }
    const Integer well = plate_->MouseToWell(at.x, at.y);
    if (selects && extend && IsWell(well) && IsWell(plate_->CurrentWell()) &&
        aids_.testFlag(Aid::ShiftExtendsSelection)) {
        setFocus(Qt::MouseFocusReason);
        Select([&] { selection_->ExtendTo(well, keep); });
        return true;
    }
    selection_->ForgetAnchor();
    return false;
}

bool PlateWidget::AnswerKey(const QKeyEvent& event) {
    if (plate_->TotalWells() < 1) return false;
    if (event.key() == Qt::Key_Escape && selection_->Any() &&
        aids_.testFlag(Aid::EscapeClearsSelection)) {
        Select([this] { selection_->Clear(); });
        return true;
    }
    if (event.matches(QKeySequence::SelectAll) && multipleSelect() &&
        aids_.testFlag(Aid::CtrlASelectsAll)) {
        Select([this] { selection_->SelectAll(); });
        return true;
    }
    return false;
}

void PlateWidget::AnswerMove(Integer from, Qt::KeyboardModifiers modifiers) {
    const Integer to = plate_->CurrentWell();
    const bool extend = modifiers.testFlag(Qt::ShiftModifier) && multipleSelect() &&
                        aids_.testFlag(Aid::ShiftExtendsSelection);
    if (!extend || !IsWell(from) || !IsWell(to)) {
        selection_->ForgetAnchor();
        return;
    }
    Select([&] {
        plate_->CurrentWell(from);
        selection_->ExtendTo(to, modifiers.testFlag(Qt::ControlModifier));
    });
}

void PlateWidget::HoverOver(Integer wellNo) {
    if (wellNo == hovered_) return;
    for (const Integer well : {std::exchange(hovered_, wellNo), wellNo}) {
        if (aids_.testFlag(Aid::HighlightLegends))
            update(ToPixels(HighlightedLegends(*plate_, well)).toAlignedRect());
    }
}

void PlateWidget::PaintHints(QtCanvas& canvas) {
    const SystemPalette colors = SystemColors(palette());
    if (aids_.testFlag(Aid::ErrorMarks)) MarkErrors(*plate_, canvas);
    if (aids_.testFlag(Aid::HighlightLegends)) {
        HighlightLegends(*plate_, hovered_, Resolve(kHighlight, colors),
                         Resolve(kHighlightText, colors), canvas);
    }
}

QString PlateWidget::ToolTipText() const {
    return aids_.testFlag(Aid::RichToolTips) ? DescriptionOf(*plate_, hovered_) : site_->ToolTip();
}

} // namespace zorvane
