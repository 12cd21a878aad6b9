#pragma once

#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/QtPalette.h"
#include "hosts/qt/WidgetPainter.h"
#include "hosts/qt/input/PlateInput.h"
#include "hosts/qt/panel/DetailsButton.h"
#include "hosts/qt/panel/PanelMirror.h"
#include "hosts/qt/panel/PanelText.h"
#include "hosts/qt/widget/PlateSignals.h"
#include "hosts/qt/widget/PlateSizing.h"
#include "hosts/qt/widget/ShownNames.h"
#include "runtime/Checked.h"
#include "runtime/Rounding.h"
#include "runtime/RuntimeError.h"

#include <functional>
#include <memory>
#include <type_traits>

namespace zorvane {

/// What a widget is made of, and how its members reach the control.
struct PlateWidget::Parts {
    explicit Parts(PlateWidget& widget);

    /// What the control answers; 0, empty or false where it fails.
    template <class Read>
    static auto Answer(Read read) {
        try {
            return read();
        } catch (const RuntimeError&) {
            return decltype(read())();
        }
    }
    template <class Value>
    std::decay_t<Value> Get(Value (Plate::*read)() const) const {
        return Answer([&] { return std::decay_t<Value>((plate.*read)()); });
    }
    QString GetText(String (Plate::*read)() const) const { return ShownText(Get(read)); }
    /// The same about a well.
    template <class Value>
    Value Get(Value (Plate::*read)(Integer) const, int wellNo) const {
        return Answer([&] { return (plate.*read)(Checked(wellNo)); });
    }

    /// Gives the control a value; a failure is reported.
    template <class Value, class Given>
    void Set(void (Plate::*write)(Value), const Given& value) {
        steps.Run([&] { (plate.*write)(As<std::decay_t<Value>>(value)); });
    }
    /// The same for a well.
    template <class Value, class Given>
    void Set(void (Plate::*write)(Integer, Value), int wellNo, const Given& value) {
        steps.Run([&] { (plate.*write)(Checked(wellNo), As<std::decay_t<Value>>(value)); });
    }
    /// Gives a value to the sub-well of the current well, of which the control tells no one.
    template <class Value, class Given>
    void SetSubWell(void (Plate::*write)(Value), const Given& value) {
        Set(write, value);
        emit widget.currentWellDataChanged();
    }

    /// Loads a plate by a step that returns whether that worked. With `why`, the reason why not
    /// goes there, else it is reported.
    bool Load(const std::function<bool()>& step, QString* why = nullptr);

    /// What assistive technology calls them, in the language of the program.
    void NameControls();
    void ShowDataButton();

    PlateWidget& widget;
    String firstFileName; ///< the library of a new control
    QString requestedPlateName;
    std::shared_ptr<HostedPlate> hosted;
    Plate& plate;
    StepRunner steps;
    Aids aids;
    WidgetPainter painter;
    PlateInput input;
    // Widgets go before what answers the events that their going causes.
    DetailsButton dataButton;
    PanelMirror panel;
    PlateSizing sizing;
    ShownNames names; ///< hears of a new plate before whoever asks for its names
    PlateSignals observer;

  private:
    void ConnectSite();

    /// A value as the control takes it; error 6 where it is too large.
    template <class Value, class Given>
    static Value As(const Given& value) {
        if constexpr (std::is_same_v<Given, QString>) {
            return value.toStdString();
        } else if constexpr (std::is_same_v<Value, Integer>) {
            return Checked(value);
        } else if constexpr (std::is_same_v<Value, Single>) {
            return ToSingle(value);
        } else {
            return value;
        }
    }
};

} // namespace zorvane
