#include "apps/plate/pairs/SavedPairs.h"

#include "apps/plate/Files.h"
#include "library/DiskFiles.h"
#include "library/ReplaceFile.h"
#include "runtime/Text.h"
#include "support/XMLFile.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace zorvane {

namespace {

/// What an error of a file says, with the file's name in it.
String WordsFor(const RuntimeError& error, const String& file) {
    for (const String& words : {error.Description(), error.Source()}) {
        const bool named = words.find("<" + file + ">") != words.npos;
        if (named || words.ends_with(" in file " + file)) return words;
    }
    return file + ": sections are nested too deeply, or end before they begin";
}

/// A text without quotes around it, and with those inside single again.
String Unquoted(std::string_view text) {
    if (text.size() < 2 || !text.starts_with('"') || !text.ends_with('"')) return String(text);
    String plain;
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        plain += text[i];
        if (text[i] == '"' && text[i + 1] == '"' && i + 2 < text.size()) ++i;
    }
    return plain;
}

bool IsAtEnd(XMLFile& x) {
    try {
        x.ReadXMLSectionHeader();
    } catch (const RuntimeError& error) {
        return error.Is(ErrorNumber::XMLNotRead);
    }
    return false;
}

/// Returns whether the file holds nothing else.
bool ReadList(TStringPairList& list, const String& file) {
    XMLFile x;
    x.FileName(file);
    const bool begins = EqualNoCase(x.ReadXMLSectionHeader(), "PairList");
    list.ReadFromXML(x);
    return begins && IsAtEnd(x);
}

/// Empty where there is no such file: reading the list from it says why.
String BytesOf(const String& file) {
    try {
        return DiskFiles().Read(file);
    } catch (const RuntimeError&) {
        return {};
    }
}

void WarnOfLosses(const TStringPairList& list, const TStringPairList& kept) {
    for (const auto& pair : list) {
        if (Holds(kept, *pair)) continue;
        std::cerr << "plate: warning: " << PrintableUtf8(pair->Name())
                  << (EqualNoCase(pair->Name(), pair->Value())
                          ? ": is not kept, because its value is its name\n"
                          : ": its value is not kept as it is\n");
    }
}

/// A folder that only this process can look into, and that goes away with this object.
class PrivateFolder {
  public:
    PrivateFolder() {
        if (!::mkdtemp(path_.data())) Fail(path_ + ": cannot be created");
    }
    ~PrivateFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;

    const String& Path() const { return path_; }

  private:
    String path_ = std::filesystem::temp_directory_path() / "plate-XXXXXX";
};

/// Reads what was written before it takes the place of anything.
void CheckWritten(const TStringPairList& list, const String& written, const String& file) {
    TStringPairList kept;
    try {
        ReadList(kept, written);
    } catch (const RuntimeError&) {
        Fail(file + ": not changed: a name with a \">\" or a line break in it cannot be saved");
    }
    WarnOfLosses(list, kept);
}

/// The bytes of a file with the list.
String Written(const TStringPairList& list, const String& file) {
    const PrivateFolder folder;
    XMLFile x;
    x.FileName(folder.Path() + "/list.xml");
    list.WriteToXML(x);
    x.CloseXMLFile();
    CheckWritten(list, x.FileName(), file);
    return ReadFile(x.FileName());
}

} // namespace

void SavedPairs::Read(TStringPairList& list, FileContent content) {
    bool nothingElse = true;
    try {
        // First, so that a change in between shows when the file is saved.
        if (content == FileContent::NothingElse) bytes_ = BytesOf(file_);
        nothingElse = ReadList(list, file_);
    } catch (const RuntimeError& error) {
        Fail(WordsFor(error, file_));
    }
    if (!nothingElse && content == FileContent::NothingElse)
        Fail(file_ + ": holds more than a list of pairs, and is not changed");
    list.Name = Unquoted(list.Name);
}

void SavedPairs::Save(const TStringPairList& list) const {
    DiskFiles files;
    ReplaceFile(files, file_, Written(list, file_), bytes_);
}

bool Holds(const TStringPairList& list, const TStringPair& pair) {
    const TStringPair* const found = list.Find(pair.Name());
    return found && found->Value() == pair.Value();
}

} // namespace zorvane
