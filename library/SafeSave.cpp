#include "library/SafeSave.h"

#include <utility>

namespace zorvane {

namespace {

/// A file with a new name that goes away with this object unless it was moved to its place.
class Temporary {
  public:
    Temporary(FileLayer& files, const String& besides)
        : files_(files), output_(files.CreateBeside(besides)) {}
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

class Save {
  public:
    Save(FileLayer& files, const String& path) : files_(files), path_(path) {}

    void Run(std::string_view before, std::string_view after) {
        step_ = "looking for it";
        const String target = files_.Resolved(path_);
        outcome_ = kUnchanged;
        step_ = "writing to it";
        files_.CheckWritable(target);
        step_ = "writing a temporary file beside it";
        Temporary fresh(files_, target);
        fresh.Fill(after);
        step_ = "writing a backup of it";
        Temporary backup(files_, target);
        backup.Fill(before);
        // As late as possible, so that nobody else's change comes in between.
        step_ = "reading it again";
        CheckUnchanged(target, before);
        step_ = "keeping the backup";
        backup.MoveTo(BackupOf(target));
        step_ = "putting the new content in its place";
        fresh.MoveTo(target);
        Settle(target);
    }

    [[noreturn]] void Fail(const RuntimeError& error) const {
        const bool changed = error.Number() == kChangedOnDisk;
        const String said = error.Description() + ".";
        throw RuntimeError(error.Number(), "Zorvane",
                           path_ + " was not saved: " +
                               (changed ? said + " Nothing was overwritten."
                                        : step_ + " failed: " + said + outcome_));
    }

  private:
    void CheckUnchanged(const String& target, std::string_view before) const {
        if (files_.Read(target) != before) {
            throw RuntimeError(kChangedOnDisk, "Zorvane",
                               "another program has changed it since it was read");
        }
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

void SafeSave(FileLayer& files, const String& path, std::string_view before,
              std::string_view after) {
    Save save(files, path);
    try {
        save.Run(before, after);
    } catch (const RuntimeError& error) {
        save.Fail(error);
    }
}

} // namespace zorvane
