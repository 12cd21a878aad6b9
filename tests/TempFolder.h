#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <unistd.h>

namespace zorvane {

/// An empty folder named after the running test and its process, that goes away with this object.
class TempFolder {
  public:
    TempFolder() {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        std::string name = std::string(test->test_suite_name()) + "." + test->name() + "." +
                           std::to_string(getpid()) + ".folder";
        for (char& c : name)
            if (c == '/') c = '_';
        path_ = testing::TempDir() + name;
        std::filesystem::remove_all(path_);
        std::filesystem::create_directory(path_);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

} // namespace zorvane
