#include "library/ReplaceFile.h"

#include <utility>

namespace zorvane {

namespace {

/// A file with a new name that goes away with this object unless it was moved to its place.
class Temporary {
  public:
    Temporary(FileLayer& files, const String& target)
        : files_(files), output_(files.CreateBeside(target)) {}
    ~Temporary() {
        if (moved_) return;
        const String path = output_->Path();
        output_.reset();
        try {
            files_.Remove(path);
        } catch (const RuntimeError&) { // What made the save fail is the better thing to tell.
        }
    }
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;

    void Fill(std::string_view bytes) {
        output_->Write(bytes);
        output_->Flush();
        output_->Close();
    }

    void MoveTo(const String& path) {
        files_.Rename(output_->Path(), path);
        moved_ = true;
    }

  private:
    FileLayer& files_;
    std::unique_ptr<FileLayer::Output> output_;
    bool moved_ = false;
};

class Replacement {
  public:
    Replacement(FileLayer& files, const String& path) : files_(files), path_(path) {}

    void Run(std::string_view bytes, std::optional<std::string_view> expected) {
        step_ = expected ? "looking for it" : "looking for its folder";
        const String target = files_.Resolved(path_);
        const bool exists = files_.Exists(target);
        if (expected && !exists) Raise(ErrorNumber::FileNotFound, "it is not there");
        step_ = "writing to it";
        if (exists) {
            outcome_ = kUnchanged;
            files_.CheckWritable(target);
        }
        step_ = "writing a temporary file next to it";
        Temporary fresh(files_, target);
        fresh.Fill(bytes);
        if (expected) {
            ReplaceExpected(target, *expected, fresh);
        } else {
            step_ = "putting the new content in its place";
            fresh.MoveTo(target);
            step_ = "flushing the folder";
            outcome_ = " The new content is in the file.";
            files_.SyncFolder(target);
        }
    }

    [[noreturn]] void Fail(const RuntimeError& error) const {
        const bool changed = error.Is(ErrorNumber::ChangedOnDisk);
        const String said = error.Description() + ".";
        throw RuntimeError(error.Number(), kErrorSource,
                           path_ + " was not saved: " +
                               (changed ? said + " Nothing was overwritten."
                                        : step_ + " failed: " + said + outcome_));
    }

  private:
    void ReplaceExpected(const String& target, std::string_view expected, Temporary& fresh) {
        step_ = "writing a backup of it";
        Temporary backup(files_, target);
        backup.Fill(expected);
        // As late as possible, and not while another save does the same.
        step_ = "waiting for other programs";
        const auto lock = files_.LockFolder(target);
        step_ = "reading it again";
        if (files_.Read(target) != expected)
            Raise(ErrorNumber::ChangedOnDisk, "another program has changed it since it was read");
        step_ = "keeping the backup";
        backup.MoveTo(BackupOf(target));
        step_ = "putting the new content in its place";
        fresh.MoveTo(target);
        Settle(target);
    }

    /// Names in a folder may still be lost until the folder is flushed. Where that fails, the
    /// backup takes its place again.
    void Settle(const String& target) {
        step_ = "flushing the folder";
        try {
            files_.SyncFolder(target);
        } catch (const RuntimeError&) {
            outcome_ = " The new content is in the file, the former in " + BackupOf(target) + ".";
            files_.Rename(BackupOf(target), target);
            outcome_ = kUnchanged;
            throw;
        }
    }

    static constexpr const char* kUnchanged = " The file is as it was.";

    FileLayer& files_;
    String path_;
    String step_;
    String outcome_; ///< what the failure leaves behind
};

} // namespace

String BackupOf(const String& path) { return path + "~"; }

void ReplaceFile(FileLayer& files, const String& path, std::string_view bytes,
                 std::optional<std::string_view> expected) {
    Replacement replacement(files, path);
    try {
        replacement.Run(bytes, expected);
    } catch (const RuntimeError& error) {
        replacement.Fail(error);
    }
}

} // namespace zorvane
