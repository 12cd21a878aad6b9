#pragma once

#include "TempFile.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/wait.h>

namespace zorvane {

inline String BytesOf(const String& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline String Quoted(const String& word) { return "'" + word + "'"; }

/// What a run of the tool leaves behind. In the arguments, LIB stands for the sample library;
/// without a tool they are a whole command.
struct ToolRun {
    explicit ToolRun(String arguments, const String& tool = Quoted(PLATE_TOOL)) {
        const std::size_t at = arguments.find("LIB");
        if (at != arguments.npos) arguments.replace(at, 3, Quoted(ZORVANE_SAMPLE_LIBRARY));
        const TempFile outFile;
        const String errPath = outFile.Path() + ".err";
        // In front, so that the arguments can send the output elsewhere.
        const String redirections = ">" + Quoted(outFile.Path()) + " 2>" + Quoted(errPath) + " ";
        const int result =
            std::system(("exec " + redirections + "; " + tool + " " + arguments).c_str());
        exitCode = WIFEXITED(result) ? WEXITSTATUS(result) : -1;
        out = outFile.Bytes();
        err = BytesOf(errPath);
        std::filesystem::remove(errPath);
    }

    int exitCode = -1;
    String out;
    String err;
};

} // namespace zorvane
