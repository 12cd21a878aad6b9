#pragma once

#include "library/DiskFiles.h"

#include <functional>
#include <utility>

namespace zorvane {

/// The machine's files on a disk that is full from one step on, counted from 0. A write that fails
/// has written half of its bytes.
class FailingFiles final : public FileLayer {
  public:
    explicit FailingFiles(int failing = -1) : failing_(failing) {}

    /// Runs before a file is read.
    std::function<void()> onRead = [] {};

    String Resolved(const String& path) override { return Step().Resolved(path); }
    bool Exists(const String& path) override { return Step().Exists(path); }
    void CheckWritable(const String& path) override { Step().CheckWritable(path); }
    String Read(const String& path) override {
        onRead();
        return Step().Read(path);
    }
    std::unique_ptr<Output> CreateBeside(const String& path) override {
        return std::make_unique<FailingOutput>(*this, Step().CreateBeside(path));
    }
    void Rename(const String& from, const String& to) override { Step().Rename(from, to); }
    void RenameToNew(const String& from, const String& to) override {
        Step().RenameToNew(from, to);
    }
    std::shared_ptr<void> Lock(const String& path) override { return Step().Lock(path); }
    void SyncFolder(const String& path) override { Step().SyncFolder(path); }

  private:
    class FailingOutput final : public Output {
      public:
        FailingOutput(FailingFiles& files, std::unique_ptr<Output> output)
            : files_(files), output_(std::move(output)) {}

        const String& Path() const override { return output_->Path(); }
        void Write(std::string_view bytes) override {
            output_->Write(bytes.substr(0, bytes.size() / 2));
            files_.Step();
            output_->Write(bytes.substr(bytes.size() / 2));
        }
        void Flush() override { files_.Step(), output_->Flush(); }
        void Close() override { files_.Step(), output_->Close(); }

      private:
        FailingFiles& files_;
        std::unique_ptr<Output> output_;
    };

    DiskFiles& Step() {
        if (steps_++ == failing_) throw RuntimeError(61, "test", "the disk is full");
        return disk_;
    }

    DiskFiles disk_;
    int failing_;
    int steps_ = 0;
};

} // namespace zorvane
