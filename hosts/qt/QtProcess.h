#pragma once

#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/registry/DesktopRegistry.h"
#include "platform/Process.h"

#include <memory>

namespace zorvane {

/// Message boxes of the desktop, unless the program handles messages itself. The call returns once
/// the operator has dismissed the box.
class QtMessages final : public MessageDisplay {
  public:
    /// Where messages go instead of into boxes, while there is a handler.
    static PlateWidget::MessageHandler handler;

    void Show(const Message& message) override;
};

/// The primary screen of the desktop, one pixel of which is one device pixel.
class QtScreen final : public Screen {
  public:
    Single TwipsPerPixelX() const override;
    Single TwipsPerPixelY() const override { return TwipsPerPixelX(); }
};

/// What the desktop offers to every control.
class QtProcess final : public Process {
  public:
    /// Makes the desktop serve controls wherever no process has been installed. Every PlateWidget
    /// calls this, so that one dropped on a form needs no help.
    static void UseByDefault();

    MessageDisplay& Messages() override { return messages_; }
    Screen& TheScreen() override { return screen_; }
    Registry& TheRegistry() override { return *registry_; }

  private:
    QtMessages messages_;
    QtScreen screen_;
    std::unique_ptr<Registry> registry_ = NewDesktopRegistry();
};

} // namespace zorvane
