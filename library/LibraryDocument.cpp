#include "library/LibraryDocument.h"

#include "library/ReplaceFile.h"

namespace zorvane {

namespace {

LibraryText ReadLibrary(FileLayer& files, const String& path) {
    try {
        return LibraryText(files.Read(path));
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.Number(), error.Source(),
                           path + " cannot be read: " + error.Description());
    }
}

} // namespace

LibraryDocument::LibraryDocument(FileLayer& files, const String& path)
    : files_(files), path_(path), text_(ReadLibrary(files, path)) {}

bool LibraryDocument::ChangedOnDisk() const {
    try {
        return files_.Read(path_) != text_.Bytes();
    } catch (const RuntimeError&) {
        return true;
    }
}

void LibraryDocument::Reload() { text_ = ReadLibrary(files_, path_); }

void LibraryDocument::Save(const LibraryText& text) {
    ReplaceFile(files_, path_, text.Bytes(), text_.Bytes());
    text_ = text;
}

} // namespace zorvane
