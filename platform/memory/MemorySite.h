#pragma once

#include "platform/HostSite.h"
#include "platform/InvertingOverlay.h"
#include "runtime/Export.h"

#include <deque>
#include <vector>

namespace zorvane {

/// The host of one control without a desktop, for tests and headless programs. It remembers what
/// the control asks for and answers questions and menus from a script; with the script at its end
/// the operator cancels.
class ZORVANE_EXPORT MemorySite final : public HostSite {
  public:
    /// The size of a freshly placed control.
    explicit MemorySite(Single width = 6600, Single height = 4800) { SetSize(width, height); }

    /// Gives the control another size, as the host's window does.
    void SetSize(Single width, Single height);

    void Repaint(const Rect& area) override { repaints.push_back(area); }
    Single Width() const override { return width_; }
    Single Height() const override { return height_; }
    void Resize(Single width, Single height) override;
    DrawingContext& Drawing() override { return overlay; }
    DrawingContext::Handle PlateWindow() const override { return 1; }
    void TakeFocus() override { ++focusRequests; }
    void FocusDataButton() override { ++dataButtonFocusRequests; }
    void SetToolTip(const String& text) override { toolTips.push_back(text); }
    void SetPointer(PointerShape shape) override { pointers.push_back(shape); }
    void PanelChanged() override { ++panelChanges; }
    void DataButtonChanged() override { ++dataButtonChanges; }
    /// Gives the next of `answers`.
    String Ask(const Question& question) override;
    /// Gives the next of `choices`; a disabled or missing entry cannot be chosen and gives -1.
    Integer Choose(const std::vector<MenuEntry>& entries) override;

    std::deque<String> answers;
    std::deque<Integer> choices;

    std::vector<Rect> repaints;
    std::vector<Question> questions;
    std::vector<std::vector<MenuEntry>> menus;
    std::vector<String> toolTips;
    std::vector<PointerShape> pointers;
    Long resizes = 0;
    Long focusRequests = 0;
    Long dataButtonFocusRequests = 0;
    Long panelChanges = 0;
    Long dataButtonChanges = 0;
    /// Outlines on the plate area; as large as the control in the pixels of the present screen.
    InvertingOverlay overlay;

  private:
    Single width_ = 0;
    Single height_ = 0;
};

} // namespace zorvane
