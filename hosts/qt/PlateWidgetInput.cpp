#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/Units.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextDocument>
#include <QToolTip>

namespace zorvane {

namespace {

constexpr Integer kArrowLeft = 37;
constexpr Integer kArrowUp = 38;
constexpr Integer kArrowRight = 39;
constexpr Integer kArrowDown = 40;
constexpr Integer kShiftKeyCode = 16;
constexpr Integer kCtrlKeyCode = 17;
constexpr Integer kAltKeyCode = 18;

Integer ButtonBit(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return kLeftButton;
    case Qt::RightButton:
        return kRightButton;
    case Qt::MiddleButton:
        return kMiddleButton;
    default:
        return 0;
    }
}

Integer ButtonBits(Qt::MouseButtons buttons) {
    return static_cast<Integer>((buttons & Qt::LeftButton ? kLeftButton : 0) |
                                (buttons & Qt::RightButton ? kRightButton : 0) |
                                (buttons & Qt::MiddleButton ? kMiddleButton : 0));
}

Integer ShiftBits(Qt::KeyboardModifiers modifiers) {
    return static_cast<Integer>((modifiers & Qt::ShiftModifier ? kShiftKey : 0) |
                                (modifiers & Qt::ControlModifier ? kCtrlKey : 0) |
                                (modifiers & Qt::AltModifier ? kAltKey : 0));
}

/// The platform's code of a key that means something to the control, else 0.
Integer KeyCode(int key) {
    switch (key) {
    case Qt::Key_Left:
        return kArrowLeft;
    case Qt::Key_Up:
        return kArrowUp;
    case Qt::Key_Right:
        return kArrowRight;
    case Qt::Key_Down:
        return kArrowDown;
    case Qt::Key_Shift:
        return kShiftKeyCode;
    case Qt::Key_Control:
        return kCtrlKeyCode;
    case Qt::Key_Alt:
        return kAltKeyCode;
    default:
        return 0;
    }
}

bool IsArrow(Integer code) { return code >= kArrowLeft && code <= kArrowDown; }

/// The code of the character that a key types, or 0 for none or one beyond a byte.
Integer CharacterCode(const QString& text) {
    if (text.size() != 1 || text[0].unicode() > 0xFF) return 0;
    return static_cast<Integer>(text[0].unicode());
}

} // namespace

PlateWidget::Part PlateWidget::PartAt(QPointF position) const {
    const Surface& surface = plate_->Elements();
    const auto holds = [position](const Frame& frame) {
        return frame.visible && ToPixels(frame.box).contains(position);
    };
    if (holds(surface.fraData)) return Part::Panel;
    return holds(surface.fraPlate) ? Part::PlateArea : Part::Background;
}

PlateWidget::Spot PlateWidget::InPlate(QPointF position) const {
    const Rect& area = plate_->Elements().fraPlate.box;
    return {ToUnits(position.x()) - area.left, ToUnits(position.y()) - area.top};
}

int PlateWidget::wellAt(QPointF position) const {
    if (PartAt(position) != Part::PlateArea) return -1;
    const Spot at = InPlate(position);
    return plate_->MouseToWell(at.x, at.y);
}

void PlateWidget::AnnounceCurrentWell() {
    if (announced_ == plate_->CurrentWell()) return;
    announced_ = plate_->CurrentWell();
    if (!hasFocus() || !IsWell(announced_)) return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(announced_);
    QAccessible::updateAccessibility(&event);
}

void PlateWidget::mousePressEvent(QMouseEvent* event) {
    secondClick_ = false;
    Press(*event);
}

// The second press of a double click is a press as any other, which the double click follows.
void PlateWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    secondClick_ = true;
    Press(*event);
    if (event->button() != Qt::LeftButton) return;
    if (pressed_ == Part::PlateArea) Try([this] { plate_->AreaDoubleClicked(); });
    if (pressed_ == Part::Panel) Try([this] { plate_->PanelDoubleClicked(); });
}

void PlateWidget::Press(const QMouseEvent& event) {
    // While a button is held, the part that it went down on gets the others too.
    if (pressed_ == Part::None) pressed_ = PartAt(event.position());
    if (pressed_ == Part::Background) Try([this] { plate_->BackgroundPressed(); });
    if (pressed_ == Part::PlateArea && AnswerPress(event)) pressed_ = Part::Aid;
    const Integer button = ButtonBit(event.button());
    if (pressed_ != Part::PlateArea || button == 0) return;
    FitOverlay();
    const Spot at = InPlate(event.position());
    Try([&] { plate_->ButtonDown(button, ShiftBits(event.modifiers()), at.x, at.y); });
}

void PlateWidget::mouseMoveEvent(QMouseEvent* event) {
    // The release was lost, to a message box opened meanwhile for one: the gesture ends here.
    if (pressed_ != Part::None && event->buttons() == Qt::NoButton)
        Release(Qt::LeftButton, event->modifiers(), event->position());
    const bool overPlate = PartAt(event->position()) == Part::PlateArea;
    if (pressed_ == Part::PlateArea || (pressed_ == Part::None && overPlate)) {
        Try([&] {
            const Spot at = InPlate(event->position());
            plate_->PointerMove(ButtonBits(event->buttons()), ShiftBits(event->modifiers()), at.x,
                                at.y);
            HoverOver(overPlate ? plate_->MouseToWell(at.x, at.y) : Integer{-1});
        });
    }
    ShowPointer(pressed_ == Part::PlateArea || overPlate);
}

void PlateWidget::mouseReleaseEvent(QMouseEvent* event) {
    const Part part = pressed_;
    const bool inside = part == PartAt(event->position());
    Release(event->button(), event->modifiers(), event->position());
    if (event->buttons() != Qt::NoButton) pressed_ = part;
    if (event->button() != Qt::LeftButton || !inside || secondClick_) return;
    if (part == Part::PlateArea) Try([this] { plate_->AreaClicked(); });
    if (part == Part::Panel) Try([this] { plate_->PanelClicked(); });
}

void PlateWidget::Release(Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                          QPointF position) {
    const Part part = pressed_;
    pressed_ = Part::None;
    if (part != Part::PlateArea || ButtonBit(button) == 0) return;
    const Spot at = InPlate(position);
    Try([&] { plate_->ButtonUp(ButtonBit(button), ShiftBits(modifiers), at.x, at.y); });
    // Whatever went wrong on the way, no outline outlives its gesture.
    if (site_->Overlay().Clear()) update();
}

void PlateWidget::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    ShowPointer(false);
    HoverOver(-1);
}

void PlateWidget::ShowPointer(bool overPlate) {
    const PointerShape shape = overPlate ? site_->Pointer() : PointerShape::Standard;
    if (shape == PointerShape::Standard) {
        unsetCursor();
    } else {
        setCursor(shape == PointerShape::MoveArrows ? Qt::SizeAllCursor : Qt::DragCopyCursor);
    }
}

void PlateWidget::keyPressEvent(QKeyEvent* event) {
    ShowRing(true);
    if (AnswerKey(*event)) return;
    const Integer code = KeyCode(event->key());
    const Integer character = CharacterCode(event->text());
    const Integer from = plate_->CurrentWell();
    Try([&] {
        if (code != 0) plate_->KeyDown(code, ShiftBits(event->modifiers()));
        if (character != 0) plate_->CharacterTyped(character);
    });
    if (IsArrow(code)) AnswerMove(from, event->modifiers());
    ShowPointer(underMouse());
    event->setAccepted(IsArrow(code));
}

void PlateWidget::keyReleaseEvent(QKeyEvent* event) {
    Try([&] { plate_->KeyUp(KeyCode(event->key()), ShiftBits(event->modifiers())); });
    ShowPointer(underMouse());
    event->ignore();
}

void PlateWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    ShowRing(event->reason() != Qt::MouseFocusReason);
}

void PlateWidget::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    ShowRing(false);
}

void PlateWidget::ShowRing(bool on) {
    if (on == ringShown_) return;
    ringShown_ = on;
    update();
}

bool PlateWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const bool over = PartAt(help.pos()) == Part::PlateArea;
    QString text = over ? ToolTipText() : QString();
    // Hosts' texts are shown as they are, also where they look like markup.
    if (Qt::mightBeRichText(text))
        text = text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
    QToolTip::showText(help.globalPos(), text, this);
    return true;
}

} // namespace zorvane
