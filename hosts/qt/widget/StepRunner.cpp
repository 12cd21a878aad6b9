#include "hosts/qt/widget/StepRunner.h"

#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/texts/ControlText.h"
#include "platform/Process.h"
#include "runtime/RuntimeError.h"

namespace zorvane {

QObject* StepRunner::AsObject() const { return &widget_; }

void StepRunner::Report(const std::exception& error) {
    const auto* const ours = dynamic_cast<const RuntimeError*>(&error);
    const String description =
        ours ? ours->Description() : QString::fromLocal8Bit(error.what()).toStdString();
    if (widget_.ReportsFailures()) {
        const int number = ours ? ours->Number() : 0; // 0: thrown by a slot of the host
        const QString source = ours ? QString::fromStdString(ours->Source()) : QString();
        emit widget_.failed(number, source, ControlText(description));
    } else {
        CurrentMessages().Show({description});
    }
}

} // namespace zorvane
