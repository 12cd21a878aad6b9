#pragma once

#include "runtime/Types.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <unistd.h>

namespace zorvane {

/// A file with given bytes, named after the running test and its process, that goes away with this
/// object. One at a time in each test.
class TempFile {
  public:
    explicit TempFile(std::string_view bytes = {}) : path_(NameOfRunningTest()) {
        std::ofstream file(path_, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    ~TempFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    const String& Path() const { return path_; }
    String Bytes() const {
        std::ifstream file(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    static String NameOfRunningTest() {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        return testing::TempDir() + test->test_suite_name() + "." + test->name() + "." +
               std::to_string(getpid()) + ".tmp";
    }

    String path_;
};

} // namespace zorvane
