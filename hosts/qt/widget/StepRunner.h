#pragma once

#include <QPointer>

#include <exception>
#include <memory>
#include <utility>

namespace zorvane {

class PlateWidget;
struct HostedPlate;

/// Runs the steps of one control that may fail: the operator's input, a property set by the host.
/// A failure is reported as PlateWidget says, because no exception may reach Qt's event loop. The
/// control lives until the step ends, even when the host destroys the widget in the middle.
class StepRunner {
  public:
    StepRunner(PlateWidget& widget, std::shared_ptr<HostedPlate> hosted)
        : widget_(widget), hosted_(std::move(hosted)) {}

    /// Returns whether the widget is still there.
    template <class Step>
    bool Run(Step&& step) {
        const auto hosted = hosted_;
        const QPointer<QObject> shown = AsObject();
        try {
            std::forward<Step>(step)();
        } catch (const std::exception& error) {
            if (shown) Report(error);
        }
        return !shown.isNull();
    }

    /// Reports a failure that has been caught elsewhere.
    void Report(const std::exception& error);

  private:
    QObject* AsObject() const;

    PlateWidget& widget_;
    std::shared_ptr<HostedPlate> hosted_;
};

} // namespace zorvane
