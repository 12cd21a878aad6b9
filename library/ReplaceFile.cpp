#include "library/ReplaceFile.h"

#include <utility>

namespace zorvane {

namespace {

enum class Target { Any, Expected, None };

class Replacement {
  public:
    Replacement(FileLayer& files, const String& path) : files_(files), path_(path) {}

    /// Finds the file, which may be saved then, and keeps others from saving it meanwhile.
    std::shared_ptr<void> Lock(Target allowed) {
        step_ = allowed == Target::Expected ? "looking for it" : "looking for its folder";
        target_ = files_.Resolved(path_);
        CheckTarget(allowed);
        step_ = "waiting for other programs";
        auto lock = files_.Lock(target_);
        CheckTarget(allowed); // Whoever had the lock may have made it.
        return lock;
    }

    void Run(std::string_view bytes, Target allowed, std::string_view expected) {
        const auto lock = Lock(allowed);
        step_ = "writing a temporary file next to it";
        const auto fresh = Written(bytes);
        if (allowed == Target::Expected) {
            ReplaceExpected(expected, *fresh);
        } else {
            step_ = "putting the new content in its place";
            exists_ ? files_.Rename(fresh->Path(), target_)
                    : files_.RenameToNew(fresh->Path(), target_);
            step_ = "flushing the folder";
            outcome_ = " The new content is in the file.";
            files_.SyncFolder(target_);
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
    void CheckTarget(Target allowed) {
        exists_ = files_.Exists(target_);
        if (allowed == Target::Expected && !exists_)
            Raise(ErrorNumber::FileNotFound, "it is not there");
        if (allowed == Target::None && exists_)
            Raise(ErrorNumber::ChangedOnDisk, "another program has made it meanwhile");
        step_ = "writing to it";
        if (!exists_) return;
        outcome_ = kUnchanged;
        files_.CheckWritable(target_);
    }

    std::unique_ptr<FileLayer::Output> Written(std::string_view bytes) {
        auto file = files_.CreateBeside(target_);
        file->Write(bytes);
        file->Flush();
        file->Close();
        return file;
    }

    void ReplaceExpected(std::string_view expected, const FileLayer::Output& fresh) {
        step_ = "writing a backup of it";
        const auto backup = Written(expected);
        // As late as possible: not every program asks for the lock.
        step_ = "reading it again";
        if (files_.Read(target_) != expected)
            Raise(ErrorNumber::ChangedOnDisk, "another program has changed it since it was read");
        step_ = "putting the new content in its place";
        files_.Rename(fresh.Path(), target_);
        String former = backup->Path();
        try {
            step_ = "keeping the backup";
            outcome_ = " The new content is in the file.";
            files_.Rename(former, BackupOf(target_));
            former = BackupOf(target_);
            // Names in a folder may still be lost until the folder is flushed.
            step_ = "flushing the folder";
            outcome_ = " The new content is in the file, the former in " + former + ".";
            files_.SyncFolder(target_);
        } catch (const RuntimeError&) {
            files_.Rename(former, target_);
            outcome_ = kUnchanged;
            throw;
        }
    }

    static constexpr const char* kUnchanged = " The file is as it was.";

    FileLayer& files_;
    String path_;
    String target_; ///< where the path leads
    bool exists_ = false;
    String step_;
    String outcome_; ///< what the failure leaves behind
};

void Replace(FileLayer& files, const String& path, std::string_view bytes, Target allowed,
             std::string_view expected = {}) {
    Replacement replacement(files, path);
    try {
        replacement.Run(bytes, allowed, expected);
    } catch (const RuntimeError& error) {
        replacement.Fail(error);
    }
}

} // namespace

String BackupOf(const String& path) { return path + "~"; }

std::shared_ptr<void> LockForSaving(FileLayer& files, const String& path) {
    Replacement replacement(files, path);
    try {
        return replacement.Lock(Target::Any);
    } catch (const RuntimeError& error) {
        replacement.Fail(error);
    }
}

void ReplaceFile(FileLayer& files, const String& path, std::string_view bytes,
                 std::optional<std::string_view> expected) {
    Replace(files, path, bytes, expected ? Target::Expected : Target::Any,
            expected.value_or(std::string_view()));
}

void CreateFile(FileLayer& files, const String& path, std::string_view bytes) {
    Replace(files, path, bytes, Target::None);
}

} // namespace zorvane
