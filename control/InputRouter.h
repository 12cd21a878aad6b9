#pragma once

#include "control/Plate.h"
#include "runtime/Export.h"

#include <cstdint>
#include <functional>

namespace zorvane {

/// Turns a window's pointer and key input into that of a control: finds out which part of the
/// control is meant, keeps the part on which a button went down until all are up again, and puts
/// presses, clicks and double clicks in order.
///
/// X and Y are drawing units in the control. Buttons and shift keys are as in PlateTypes.h; a
/// button that has no number there is 0 where it is pressed or released, and any bit of its own
/// among the buttons that are held. Failures are the host's to report: every call of the control
/// goes through its Attempt.
class ZORVANE_EXPORT InputRouter {
  public:
    enum class Part : std::uint8_t {
        None,
        PlateArea,
        Panel,
        Background,
        Host, ///< a press that the host has answered itself
    };

    /// A place in the plate area.
    struct Spot {
        Single x;
        Single y;
    };

    /// The window's side of the routing.
    class Host {
      public:
        virtual ~Host() = default;

        /// Runs a call of the control and reports what it throws. Returns False when the call has
        /// ended the host, and this router with it.
        virtual Boolean Attempt(const std::function<void()>& call) = 0;
        /// A button went down on the plate area. A host that answers it itself returns True and
        /// has the pointer to itself until all buttons are up.
        virtual Boolean AnswerPress(Integer /*button*/, Integer /*shift*/, Spot /*at*/) {
            return false;
        }
        /// Whether the details panel is shown somewhere else and covers nothing of the control.
        virtual Boolean PanelIsApart() const { return false; }
        /// The control has been told of a button that came up: no outline is left to be shown.
        virtual void GestureEnded() {}
    };

    /// Both must outlive this object.
    InputRouter(Plate& plate, Host& host) : plate_(plate), host_(host) {}

    /// The topmost part at a place; never None or Host.
    Part PartAt(Single x, Single y) const;
    Spot InPlate(Single x, Single y) const;
    /// The well shown at a place, or -1.
    Integer WellAt(Single x, Single y) const;
    /// The part on which the button went down that is held, or None.
    Part Held() const { return held_; }

    void Press(Integer button, Integer shift, Single x, Single y);
    /// The second press of a double click, in place of Press.
    void DoubleClick(Integer button, Integer shift, Single x, Single y);
    /// `buttons` are those still held, also in Release. A move without one ends a press whose
    /// release was lost, to a message box for one.
    void Move(Integer buttons, Integer shift, Single x, Single y);
    void Release(Integer button, Integer buttons, Integer shift, Single x, Single y);

    /// A key went down that has this code and types this character, each 0 for none. Returns
    /// whether it moves the current well.
    Boolean KeyDown(Integer keyCode, Integer character, Integer shift);
    void KeyUp(Integer keyCode, Integer shift);

  private:
    /// Returns False where the host has answered the press itself, or has ended in the course of
    /// it.
    Boolean Down(Integer button, Integer shift, Single x, Single y);
    /// Returns False where the host has ended in the course of it.
    Boolean Up(Integer button, Integer shift, Single x, Single y);

    Plate& plate_;
    Host& host_;
    Part held_ = Part::None;
    Boolean secondClick_ = false;
};

} // namespace zorvane
