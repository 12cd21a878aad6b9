/// Replays a transcript in a folder of its own: runs its commands, which begin with "$ " and go on
/// in lines with "> ", and compares what they print with what is recorded. The transcript shows \r
/// for a carriage return, \ where the last line has no end, and an exit code other than 0 in
/// brackets. Lines that begin with "#" are comments. Where an answer differs, the new transcript is
/// left in the present folder with the ending ".new"; it can take the place of the old one.
/// A page in Markdown is replayed too: its blocks of the language "console" are one transcript.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>

#include <sys/wait.h>

namespace {

namespace fs = std::filesystem;

std::string AnswerTo(const std::string& command) {
    std::FILE* const output = popen(("exec 2>&1 </dev/null\n" + command).c_str(), "r");
    std::string answer;
    for (int c = 0; (c = std::getc(output)) != EOF;)
        answer += c == '\r' ? "\\r" : std::string(1, static_cast<char>(c));
    if (!answer.empty() && answer.back() != '\n') answer += "\\\n";
    const int status = pclose(output);
    return status == 0 ? answer : answer + "[" + std::to_string(WEXITSTATUS(status)) + "]\n";
}

std::string Replayed(const std::string& transcript, bool isPage) {
    std::istringstream lines(transcript);
    std::string replayed, command;
    bool inConsole = !isPage;
    for (std::string line; std::getline(lines, line);) {
        const bool fence = isPage && line.starts_with("```");
        if (fence) inConsole = line == "```console";
        if (fence || !inConsole) {
            if (!command.empty()) replayed += AnswerTo(std::exchange(command, {}));
            replayed += line + "\n";
            continue;
        }
        const bool goesOn = line.starts_with('>') && !command.empty();
        if (!goesOn && !command.empty()) replayed += AnswerTo(std::exchange(command, {}));
        if (goesOn || line.starts_with("$ "))
            command += line.substr(std::min(line.size(), std::size_t{2})) + "\n";
        if (!command.empty() || line.starts_with('#')) replayed += line + "\n";
    }
    return command.empty() ? replayed : replayed + AnswerTo(command);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: replay_transcript TRANSCRIPT\n");
        return EXIT_FAILURE;
    }
    std::ifstream input(argv[1], std::ios::binary);
    const std::string recorded{std::istreambuf_iterator<char>(input), {}};
    const fs::path folder = fs::absolute(fs::path(argv[1]).stem());
    fs::remove_all(folder);
    fs::create_directory(folder);
    fs::current_path(folder);
    const std::string replayed = Replayed(recorded, fs::path(argv[1]).extension() == ".md");
    fs::current_path(folder.parent_path());
    fs::remove_all(folder);
    if (!recorded.empty() && replayed == recorded) return EXIT_SUCCESS;
    const std::string answers = folder.string() + ".new";
    std::ofstream(answers, std::ios::binary) << replayed;
    std::system(("diff -u '" + std::string(argv[1]) + "' '" + answers + "'").c_str());
    return EXIT_FAILURE;
}
