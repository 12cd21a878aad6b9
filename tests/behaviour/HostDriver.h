#pragma once

#include "control/Plate.h"

#include <map>
#include <optional>
#include <set>

namespace zorvane {

/// A host with one control, as the transcripts of behaviour drive it: what an operator does to its
/// window, and what its window shows besides the control's own elements. X and Y are drawing units
/// in the plate area, multiples of a pixel; buttons, shift keys and key codes are the control's.
class HostDriver {
  public:
    virtual ~HostDriver() = default;

    virtual Plate& Control() = 0;

    virtual void Press(Integer button, Integer shift, Single x, Single y) = 0;
    virtual void DoubleClick(Integer button, Integer shift, Single x, Single y) = 0;
    virtual void Move(Integer buttons, Integer shift, Single x, Single y) = 0;
    virtual void Release(Integer button, Integer shift, Single x, Single y) = 0;
    virtual void KeyDown(Integer keyCode, Integer character, Integer shift) = 0;
    virtual void KeyUp(Integer keyCode, Integer shift) = 0;

    virtual void PressDataButton() = 0;
    virtual void ChoosePage(Integer position) = 0;
    /// Types a line instead of what is there.
    virtual void TypeComment(const String& text) = 0;
    virtual void TypeRow(Integer row, const String& text) = 0;
    virtual void ChooseStyle(Integer position) = 0;
    virtual void PressApply() = 0;
    /// Opens the menu, chooses an entry (-1 for none) and answers the question that follows.
    virtual void ChooseCommand(Integer entry, const String& answer) = 0;
    /// Runs a command for the host, whether or not the menu offers it, and answers its question.
    virtual void RunCommand(SubWellCommand command, const String& answer) = 0;
    /// Runs a command that other hosts do not have and returns what it gives, a line or nothing;
    /// no value where there is no command of that name.
    virtual std::optional<String> RunOwn(const String& /*name*/, const String& /*words*/) {
        return std::nullopt;
    }

    /// What the window shows by name: whether there is an outline, the tooltip, the pointer,
    /// what has taken the focus since the last call, its size in drawing units, and the question
    /// asked last.
    virtual std::map<String, String> Window() = 0;
    /// Names, of the window or the control, that this host cannot show as others do.
    virtual std::set<String> Unseen() const { return {}; }
};

} // namespace zorvane
