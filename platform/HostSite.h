#pragma once

#include "platform/DrawingContext.h"
#include "platform/InputBox.h"
#include "platform/PopupMenu.h"
#include "runtime/Export.h"
#include "runtime/Geometry.h"
#include "runtime/Types.h"

namespace zorvane {

/// Pointer shapes over the plate area.
enum class PointerShape : Integer { Standard = 0, MoveArrows = 5, Custom = 99 };

/// What one control asks of the host that shows it. The site must outlive its control. Lengths are
/// drawing units (twips) in the control's coordinates. The first six calls are required, the rest
/// have defaults.
///
/// Whatever a call of the control or an input changes, Resize, Repaint, PanelChanged and
/// DataButtonChanged each come once at its end, in this order, and once more before it raises an
/// event, asks the operator or draws an outline.
class ZORVANE_EXPORT HostSite : public InputBox, public PopupMenu {
  public:
    /// What is shown in this area has changed; paint it when convenient. The area lives for the
    /// call.
    virtual void Repaint(const Rect& area) = 0;
    /// The control's present size, read by each layout.
    virtual Single Width() const = 0;
    virtual Single Height() const = 0;
    /// The control takes another size, at the end of a layout or when its panel opens or closes.
    virtual void Resize(Single width, Single height) = 0;
    /// The context for outlines on the plate area; the same object for the control's whole life.
    virtual DrawingContext& Drawing() = 0;
    /// The window handle of the plate area, never 0; read at each press on a well.
    virtual DrawingContext::Handle PlateWindow() const = 0;

    /// The control wants the keyboard focus: a press or click on it.
    virtual void TakeFocus() {}
    /// The button that opens the details panel wants the focus: the control was marked as selected.
    virtual void FocusDataButton() {}
    /// The tooltip of the plate area has changed to this text; empty for none.
    virtual void SetToolTip(const String& /*text*/) {}
    /// The pointer shape of the plate area has changed.
    virtual void SetPointer(PointerShape /*shape*/) {}
    /// Elements in the details panel have changed. A host that mirrors them takes them over again.
    virtual void PanelChanged() {}
    /// The button that opens the details panel, cmdData, has changed.
    virtual void DataButtonChanged() {}
};

} // namespace zorvane
