#include "behaviour/Transcript.h"

#include "Test.h"
#include "behaviour/Commands.h"
#include "behaviour/EventLog.h"
#include "behaviour/Snapshot.h"

namespace zorvane {

namespace {

/// Runs a command and returns what it changed, a line for each thing.
String AnswerTo(HostDriver& host, EventLog& events, const String& command, const String& lines) {
    const auto before = SnapshotOf(host);
    String given;
    const RaisedError error = RaisedBy([&] { given = RunCommand(host, command, lines); });
    String answer = events.Take("\n");
    if (!answer.empty()) answer += "\n";
    answer += given;
    if (error.number != 0)
        answer += "fails: " + std::to_string(error.number) + " " + error.description + "\n";
    for (const auto& [name, value] : SnapshotOf(host)) {
        const auto old = before.find(name);
        if (old == before.end() ? !value.empty() : old->second != value)
            answer.append(name).append(": ").append(value).append("\n");
    }
    return answer;
}

/// The lines but for those of names that the host cannot show.
String SeenBy(const HostDriver& host, std::istream& lines) {
    String seen;
    for (String line; std::getline(lines, line);)
        if (!host.Unseen().contains(line.substr(0, line.find(':')))) seen += line + "\n";
    return seen;
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
    const String recorded = SeenBy(host, file);
    std::istringstream answers(Replayed(host, recorded));
    const String replayed = SeenBy(host, answers);
    if (!recorded.empty() && replayed == recorded) return;
    std::ofstream(transcript.string() + ".new", std::ios::binary) << replayed;
    ADD_FAILURE() << "differs from " << transcript << "; see the .new file next to it";
}

std::vector<std::filesystem::path> Transcripts(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> transcripts;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".txt") transcripts.push_back(entry.path());
    return transcripts;
}

} // namespace zorvane
