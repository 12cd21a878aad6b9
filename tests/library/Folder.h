#pragma once

#include "runtime/Types.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace zorvane {

/// A folder of its own for one test, which goes away with this object.
class Folder {
  public:
    Folder() {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        path_ = testing::TempDir() + test->test_suite_name() + "." + test->name();
        std::filesystem::remove_all(path_);
        std::filesystem::create_directory(path_);
    }
    ~Folder() { std::filesystem::remove_all(path_); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    String File(const String& name) const { return path_ + "/" + name; }

    void Put(const String& name, const String& bytes) const {
        std::ofstream(File(name), std::ios::binary) << bytes;
    }

    String Bytes(const String& name) const {
        std::ifstream file(File(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::set<String> Names() const {
        std::set<String> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            names.insert(entry.path().filename().string());
        return names;
    }

  private:
    String path_;
};

} // namespace zorvane
