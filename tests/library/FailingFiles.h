#pragma once

#include "library/DiskFiles.h"

#include <functional>
#include <utility>

namespace zorvane {

/// The machine's files, of whose calls one fails: the one of a given number, from 0. A write that
/// fails has written half of its bytes.
class FailingFiles final : public FileLayer {
  public:
    static constexpr int kNone = -1;

    explicit FailingFiles(int failing = kNone) : failing_(failing) {}

    int Calls() const { return calls_; }
    /// Runs in front of each call.
    std::function<void(int call)> onCall = [](int) {};

    String Resolved(const String& path) override {
        Count();
        return disk_.Resolved(path);
    }
    void CheckWritable(const String& path) override {
        Count();
        disk_.CheckWritable(path);
    }
    String Read(const String& path) override {
        Count();
        return disk_.Read(path);
    }
    std::unique_ptr<Output> CreateBeside(const String& path) override {
        Count();
        return std::make_unique<FailingOutput>(*this, disk_.CreateBeside(path));
    }
    void Rename(const String& from, const String& to) override {
        Count();
        disk_.Rename(from, to);
    }
    void Remove(const String& path) override { disk_.Remove(path); }
    void SyncFolder(const String& path) override {
        Count();
        disk_.SyncFolder(path);
    }

  private:
    class FailingOutput final : public Output {
      public:
        FailingOutput(FailingFiles& files, std::unique_ptr<Output> output)
            : files_(files), output_(std::move(output)) {}

        const String& Path() const override { return output_->Path(); }
        void Write(std::string_view bytes) override {
            output_->Write(bytes.substr(0, bytes.size() / 2));
            files_.Count();
            output_->Write(bytes.substr(bytes.size() / 2));
        }
        void Flush() override {
            files_.Count();
            output_->Flush();
        }
        void Close() override {
            files_.Count();
            output_->Close();
        }

      private:
        FailingFiles& files_;
        std::unique_ptr<Output> output_;
    };

    void Count() {
        onCall(calls_);
        if (calls_++ == failing_) throw RuntimeError(61, "test", "the disk is full");
    }

    DiskFiles disk_;
    int failing_;
    int calls_ = 0;
};

} // namespace zorvane
