#include "behaviour/Commands.h"

#include "model/cmPlate.h"
#include "runtime/NumberText.h"

#include <gtest/gtest.h>

#include <functional>
#include <iomanip>
#include <sstream>
#include <tuple>
#include <type_traits>

namespace zorvane {

namespace {

/// The words of a command as arguments of calls. Missing ones are 0, off or empty.
class Words {
  public:
    explicit Words(const String& command) : stream_(command) {}

    template <class... Arguments>
    std::tuple<Arguments...> Take() {
        return {Next<Arguments>()...};
    }
    template <class Argument>
    Argument Next() {
        String word;
        stream_ >> std::quoted(word);
        if constexpr (std::is_same_v<Argument, String>) {
            return word == "none" ? kNoValue : word;
        } else if constexpr (std::is_same_v<Argument, Boolean>) {
            return word == "on";
        } else if constexpr (std::is_same_v<Argument, Long>) {
            return word == "none" ? kNoColor : ParseLong(word.empty() ? "0" : word);
        } else {
            return static_cast<Argument>(LeadingSingle(word));
        }
    }
    /// The words that are left.
    String Rest() {
        String rest;
        std::getline(stream_ >> std::ws, rest);
        return rest;
    }

  private:
    std::istringstream stream_;
};

using Action = std::function<String(HostDriver&, Words&)>;

template <class... Values>
String Given(const Values&... values) {
    std::ostringstream line;
    line << "gives:" << std::boolalpha;
    ((line << ' ' << values), ...);
    return line.str() + "\n";
}

template <class Class>
Class& In(HostDriver& host) {
    if constexpr (std::is_same_v<Class, HostDriver>) {
        return host;
    } else {
        return host.Control();
    }
}

/// A call of the control, or something that its operator does.
template <class Class, class... Arguments>
Action Do(void (Class::*call)(Arguments...)) {
    return [call](HostDriver& host, Words& words) {
        std::apply([&](const auto&... arguments) { (In<Class>(host).*call)(arguments...); },
                   words.Take<std::decay_t<Arguments>...>());
        return String();
    };
}

template <class Value, class... Arguments>
Action Get(Value (Plate::*call)(Arguments...) const) {
    return [call](HostDriver& host, Words& words) {
        return std::apply(
            [&](const auto&... arguments) { return Given((host.Control().*call)(arguments...)); },
            words.Take<std::decay_t<Arguments>...>());
    };
}

template <class Value>
Action Set(Value PlateFields::*field) {
    return [field](HostDriver& host, Words& words) {
        host.Control().*field = words.Next<Value>();
        return String();
    };
}

Action Point(void (HostDriver::*pointing)(Integer, Integer, Single, Single)) {
    return [pointing](HostDriver& host, Words& words) {
        const auto [x, y, button, shift] = words.Take<Single, Single, String, Integer>();
        const Integer pressed =
            button.empty() ? kLeftButton : static_cast<Integer>(ParseLong(button));
        (host.*pointing)(pressed, shift, x, y);
        return String();
    };
}

String WellAt(HostDriver& host, Words& words) {
    const auto [x, y] = words.Take<Single, Single>();
    return "well: " + std::to_string(host.Control().MouseToWell(x, y)) + "\n";
}

String Centroid(HostDriver& host, Words& words) {
    const auto [row, col, name] = words.Take<Integer, Integer, String>();
    Single x = 0, y = 0, z = 1;
    host.Control().WellCentroid(x, y, z, row, col, name);
    return Given(x, y, z);
}

String Envelope(HostDriver& host, Words& words) {
    const auto [row, col, name] = words.Take<Integer, Integer, String>();
    Single left = 0, top = 0, low = 1, right = 0, bottom = 0, high = 1;
    host.Control().WellEnvelope(left, top, low, right, bottom, high, row, col, name);
    return Given(left, top, low, right, bottom, high);
}

/// What a host program does and asks, and what an operator does.
const std::map<String, Action>& Commands() {
    static const std::map<String, Action> commands = {
        // How the control is set up.
        {"multiple", Set(&Plate::MultipleSelect)},
        {"drag-drop", Set(&Plate::DragDrop)},
        {"fixed-size", Set(&Plate::FixedSize)},
        {"centred", Set(&Plate::HorizontalCentred)},
        {"defined-color", Set(&Plate::DefinedWellColor)},
        {"error-color", Set(&Plate::ErrorWellColor)},
        {"selected-color", Set(&Plate::SelectedColor)},
        {"deselected-color", Set(&Plate::DeselectedColor)},
        {"x-left", Set(&Plate::XLeft)},
        {"y-top", Set(&Plate::YTop)},
        {"rim-default", Do(&Plate::DefaultRimColor)},
        {"well-default", Do(&Plate::DefaultWellColor)},
        {"select-box", Do(&Plate::SelectBoxEnabled)},
        {"mouse", Do(&Plate::MouseEnabled)},
        {"edit", Do(&Plate::EditEnable)},
        {"panel", Do(&Plate::DataVisible)},
        {"scale", Do(&Plate::DrawingScale)},
        {"selected", Do(&Plate::Selected)},
        {"property", Do(&Plate::SetProperty)},
        {"show-page", Do(&Plate::SetDataDisplay)},
        {"read-page", Do(&Plate::GetDataDisplay)},
        {"page-chosen", Do(&Plate::PageChosen)},
        {"row-typed", Do(&Plate::RowTyped)},
        {"style-chosen", Do(&Plate::StyleChosen)},
        // The current well and the selection.
        {"current", Do(&Plate::CurrentWell)},
        {"row", Do(&Plate::Row)},
        {"col", Do(&Plate::Col)},
        {"index", Do(&Plate::WellIndex)},
        {"sub-well", Do(&Plate::SubWell)},
        {"set-well", Do(&Plate::SetWell)},
        {"select", Do(&Plate::SelectWell)},
        {"select-all", Do(&Plate::SelectAll)},
        {"select-current", Do(&Plate::WellSelected)},
        {"selected?", Get(&Plate::IsSelected)},
        {"clear-selection", Do(&Plate::ClearSelection)},
        {"well-at?", WellAt},
        {"set-array", Do(&Plate::SetArray)},
        {"fill", Do(&Plate::FillArray)},
        // Data of any well and of the current one.
        {"text", Do(&Plate::Text)},
        {"text?", Get(&Plate::Text)},
        {"error", Do(&Plate::ErrorCode)},
        {"error?", Get(&Plate::ErrorCode)},
        {"volume", Do(&Plate::SetVolume)},
        {"volume?", Get(&Plate::GetVolume)},
        {"annotate", Do(&Plate::WellAnnotation)},
        {"annotation?", Get(&Plate::WellAnnotation)},
        {"define", Do(&Plate::IsDefined)},
        {"defined?", Get(&Plate::IsDefined)},
        {"current-volume", Do(&Plate::CurrentVolume)},
        {"define-current", Do(&Plate::SolutionDefined)},
        {"well-color", Do(&Plate::WellColor)},
        {"rim-color", Do(&Plate::RimColor)},
        {"clear", Do(&Plate::ClearWell)},
        {"clear-sub-wells", Do(&Plate::ClearSubWells)},
        // The shape of the current sub-well, and places on the plate.
        {"style-of-current", Do(&Plate::Style)},
        {"max-volume", Do(&Plate::MaxVolume)},
        {"depth", Do(&Plate::Depth)},
        {"diameter", Do(&Plate::WellDiameter)},
        {"size-x", Do(&Plate::WellSizeX)},
        {"size-y", Do(&Plate::WellSizeY)},
        {"rim-width", Do(&Plate::RimWidth)},
        {"rim-height", Do(&Plate::RimHeight)},
        {"x-offset", Do(&Plate::xOffset)},
        {"y-offset", Do(&Plate::yOffset)},
        {"initial-volume", Do(&Plate::InitialVolume)},
        {"well-x?", Get(&Plate::WellX)},
        {"well-y?", Get(&Plate::WellY)},
        {"well-z?", Get(&Plate::WellZ)},
        {"centroid?", Centroid},
        {"envelope?", Envelope},
        // What an operator does.
        {"press", Point(&HostDriver::Press)},
        {"double-click", Point(&HostDriver::DoubleClick)},
        {"move", Point(&HostDriver::Move)},
        {"release", Point(&HostDriver::Release)},
        {"key", Do(&HostDriver::KeyDown)},
        {"key-up", Do(&HostDriver::KeyUp)},
        {"button", Do(&HostDriver::PressDataButton)},
        {"page", Do(&HostDriver::ChoosePage)},
        {"comment", Do(&HostDriver::TypeComment)},
        {"type-row", Do(&HostDriver::TypeRow)},
        {"style", Do(&HostDriver::ChooseStyle)},
        {"apply", Do(&HostDriver::PressApply)},
        {"menu", Do(&HostDriver::ChooseCommand)},
        {"command", Do(&HostDriver::RunCommand)},
    };
    return commands;
}

} // namespace

String RunCommand(HostDriver& host, const String& command, const String& lines) {
    Words words(command);
    const auto name = words.Next<String>();
    if (name == "plate") {
        host.Control().PlateClassText(lines);
        return {};
    }
    const auto action = Commands().find(name);
    if (action != Commands().end()) return action->second(host, words);
    const auto given = host.RunOwn(name, words.Rest());
    if (!given) ADD_FAILURE() << "no such command: " << command;
    return given.value_or("");
}

} // namespace zorvane
