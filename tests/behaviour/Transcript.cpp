#include "behaviour/Transcript.h"

#include "Test.h"
#include "behaviour/Snapshot.h"
#include "runtime/NumberText.h"

#include <functional>
#include <utility>

namespace zorvane {

namespace {

/// The words of a command.
class Words {
  public:
    explicit Words(const String& command) : stream_(command) {}

    String Word() {
        String word;
        stream_ >> word;
        return word == "\"\"" ? String() : word;
    }
    /// The next word as a number; 0 when there is none.
    Single Number() { return LeadingSingle(Word()); }
    Integer Whole() { return static_cast<Integer>(Number()); }
    Boolean Flag() { return Word() == "on"; }
    String Rest() {
        String rest;
        std::getline(stream_ >> std::ws, rest);
        return rest;
    }

  private:
    std::istringstream stream_;
};

using Action = std::function<void(HostDriver&, Words&)>;

/// What a host program does.
const std::map<String, Action>& HostCalls() {
    static const std::map<String, Action> calls = {
        {"multiple", [](auto& h, auto& w) { h.Control().MultipleSelect = w.Flag(); }},
        {"drag-drop", [](auto& h, auto& w) { h.Control().DragDrop = w.Flag(); }},
        {"fixed-size", [](auto& h, auto& w) { h.Control().FixedSize = w.Flag(); }},
        {"select-box", [](auto& h, auto& w) { h.Control().SelectBoxEnabled(w.Flag()); }},
        {"mouse", [](auto& h, auto& w) { h.Control().MouseEnabled(w.Flag()); }},
        {"edit", [](auto& h, auto& w) { h.Control().EditEnable(w.Flag()); }},
        {"panel", [](auto& h, auto& w) { h.Control().DataVisible(w.Flag()); }},
        {"scale", [](auto& h, auto& w) { h.Control().DrawingScale(w.Number()); }},
        {"current", [](auto& h, auto& w) { h.Control().CurrentWell(w.Whole()); }},
        {"row", [](auto& h, auto& w) { h.Control().Row(w.Whole()); }},
        {"col", [](auto& h, auto& w) { h.Control().Col(w.Whole()); }},
        {"index", [](auto& h, auto& w) { h.Control().WellIndex(w.Whole()); }},
        {"sub-well", [](auto& h, auto& w) { h.Control().SubWell(w.Word()); }},
        {"set-well",
         [](auto& h, auto& w) {
             const Integer row = w.Whole();
             const Integer col = w.Whole();
             const String name = w.Word();
             h.Control().SetWell(row, col, name, static_cast<WellSelectAction>(w.Whole()));
         }},
        {"select",
         [](auto& h, auto& w) {
             const Integer well = w.Whole();
             h.Control().SelectWell(well, w.Flag());
         }},
        {"select-all", [](auto& h, auto& w) { h.Control().SelectAll(w.Flag()); }},
        {"clear-selection", [](auto& h, auto&) { h.Control().ClearSelection(); }},
        {"set-array",
         [](auto& h, auto& w) {
             const Integer x = w.Whole();
             const Integer y = w.Whole();
             const Integer width = w.Whole();
             const Integer height = w.Whole();
             const String name = w.Word();
             const Long order = w.Whole();
             const String color = w.Word();
             h.Control().SetArray(x, y, width, height, name, order,
                                  color.empty() ? kNoColor : ParseLong(color));
         }},
        {"fill",
         [](auto& h, auto& w) {
             const Integer start = w.Whole();
             const Integer stop = w.Whole();
             const String color = w.Word();
             const String text = w.Rest();
             h.Control().FillArray(color == "none" ? kNoColor : ParseLong(color),
                                   text.empty()     ? kNoValue
                                   : text == "\"\"" ? ""
                                                    : text,
                                   start, stop);
         }},
        {"text",
         [](auto& h, auto& w) {
             const Integer well = w.Whole();
             h.Control().Text(well, w.Rest());
         }},
        {"annotate",
         [](auto& h, auto& w) {
             const Integer well = w.Whole();
             h.Control().WellAnnotation(well, w.Rest());
         }},
        {"property",
         [](auto& h, auto& w) {
             const String name = w.Word();
             h.Control().SetProperty(name, w.Rest());
         }},
        {"selected", [](auto& h, auto& w) { h.Control().Selected(w.Flag()); }},
        {"style-of-current", [](auto& h, auto& w) { h.Control().Style(w.Whole()); }},
        {"command",
         [](auto& h, auto& w) {
             const auto command = static_cast<SubWellCommand>(w.Whole());
             h.RunCommand(command, w.Rest());
         }},
        {"page-chosen", [](auto& h, auto& w) { h.Control().PageChosen(w.Whole()); }},
        {"style-chosen", [](auto& h, auto& w) { h.Control().StyleChosen(w.Whole()); }},
        {"row-typed", [](auto& h, auto& w) { h.Control().RowTyped(w.Whole(), ""); }},
        {"show-page", [](auto& h, auto& w) { h.Control().SetDataDisplay(w.Whole()); }},
        {"read-page", [](auto& h, auto& w) { h.Control().GetDataDisplay(w.Whole()); }},
    };
    return calls;
}

using Pointing = void (HostDriver::*)(Integer, Integer, Single, Single);

void Point(HostDriver& host, Words& words, Pointing pointing) {
    const Single x = words.Number();
    const Single y = words.Number();
    const String button = words.Word();
    const Integer number = button.empty() ? kLeftButton : static_cast<Integer>(std::stoi(button));
    (host.*pointing)(number, words.Whole(), x, y);
}

/// What an operator does.
const std::map<String, Action>& Inputs() {
    static const std::map<String, Action> inputs = {
        {"press", [](auto& h, auto& w) { Point(h, w, &HostDriver::Press); }},
        {"double-click", [](auto& h, auto& w) { Point(h, w, &HostDriver::DoubleClick); }},
        {"move", [](auto& h, auto& w) { Point(h, w, &HostDriver::Move); }},
        {"release", [](auto& h, auto& w) { Point(h, w, &HostDriver::Release); }},
        {"key",
         [](auto& h, auto& w) {
             const Integer code = w.Whole();
             h.KeyDown(code, 0, w.Whole());
         }},
        {"key-up",
         [](auto& h, auto& w) {
             const Integer code = w.Whole();
             h.KeyUp(code, w.Whole());
         }},
        {"type", [](auto& h, auto& w) { h.KeyDown(0, w.Word()[0], 0); }},
        {"button", [](auto& h, auto&) { h.PressDataButton(); }},
        {"page", [](auto& h, auto& w) { h.ChoosePage(w.Whole()); }},
        {"comment", [](auto& h, auto& w) { h.TypeComment(w.Rest() + "\r\n"); }},
        {"type-row",
         [](auto& h, auto& w) {
             const Integer row = w.Whole();
             h.TypeRow(row, w.Rest());
         }},
        {"style", [](auto& h, auto& w) { h.ChooseStyle(w.Whole()); }},
        {"apply", [](auto& h, auto&) { h.PressApply(); }},
        {"menu",
         [](auto& h, auto& w) {
             const Integer entry = w.Whole();
             h.ChooseCommand(entry, w.Rest());
         }},
    };
    return inputs;
}

void Run(HostDriver& host, const String& command, const String& lines) {
    Words words(command);
    const String name = words.Word();
    if (name == "plate") return host.Control().PlateClassText(lines);
    for (const auto* const table : {&HostCalls(), &Inputs()}) {
        const auto action = table->find(name);
        if (action != table->end()) return action->second(host, words);
    }
    ADD_FAILURE() << "no such command: " << command;
}

/// Runs a command and returns what it changed, a line for each thing.
String AnswerTo(HostDriver& host, EventLog& events, const String& command, const String& lines) {
    const auto before = SnapshotOf(host);
    const RaisedError error = RaisedBy([&] { Run(host, command, lines); });
    String answer = events.Take();
    if (error.number != 0)
        answer += "fails: " + std::to_string(error.number) + " " + error.description + "\n";
    for (const auto& [name, value] : SnapshotOf(host)) {
        const auto old = before.find(name);
        if (old == before.end() ? !value.empty() : old->second != value)
            answer.append(name).append(": ").append(value).append("\n");
    }
    return answer;
}

} // namespace

String Replayed(HostDriver& host, std::string_view transcript) {
    EventLog events;
    host.Control().AddObserver(events);
    String replayed, command, lines;
    const auto answer = [&] {
        if (!command.empty()) replayed += AnswerTo(host, events, command, lines);
        command.clear();
        lines.clear();
    };
    std::istringstream input{String(transcript)};
    for (String line; std::getline(input, line);) {
        const bool goesOn = line.starts_with("> ") && !command.empty();
        if (!goesOn && (line.starts_with("$ ") || line.starts_with('#'))) answer();
        if (line.starts_with("$ ")) command = line.substr(2);
        if (goesOn) lines += line.substr(2) + "\r\n";
        if (goesOn || line.starts_with("$ ") || line.starts_with('#')) replayed += line + "\n";
    }
    answer();
    host.Control().RemoveObserver(events);
    return replayed;
}

void ExpectReplay(HostDriver& host, const std::filesystem::path& transcript) {
    std::ifstream file(transcript, std::ios::binary);
    String recorded;
    for (String line; std::getline(file, line);)
        if (!host.Unseen().contains(line.substr(0, line.find(':')))) recorded += line + "\n";
    const String replayed = Replayed(host, recorded);
    if (!recorded.empty() && replayed == recorded) return;
    std::ofstream(transcript.string() + ".new", std::ios::binary) << replayed;
    ADD_FAILURE() << "differs from " << transcript << "; see the .new file next to it";
}

std::vector<std::filesystem::path> Transcripts() {
    std::vector<std::filesystem::path> transcripts;
    for (const auto& entry : std::filesystem::directory_iterator(ZORVANE_BEHAVIOUR))
        if (entry.path().extension() == ".txt") transcripts.push_back(entry.path());
    return transcripts;
}

} // namespace zorvane
