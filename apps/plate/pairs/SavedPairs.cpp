#include "apps/plate/pairs/SavedPairs.h"

#include "apps/plate/Files.h"
#include "apps/plate/pairs/XmlTokens.h"
#include "library/ReplaceFile.h"
#include "runtime/Text.h"
#include "support/XMLFile.h"

#include <algorithm>

namespace zorvane {

namespace {

/// What an error of reading says, with the file's name in it.
String WordsFor(const RuntimeError& error, const String& file) {
    const String name = ShownName(file);
    if (error.Is(ErrorNumber::XMLNotOpened)) return name + ": no XML header on its first line";
    if (error.Is(ErrorNumber::XMLNotRead)) return name + ": ends inside a section";
    for (const String& words : {error.Description(), error.Source()}) {
        const std::size_t place = words.find(" in file ");
        if (place != words.npos) return name + ": " + words.substr(0, place);
    }
    return name + ": sections are nested too deeply, or end before they begin";
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

void ReadList(TStringPairList& list, const String& bytes) {
    XMLFile x;
    x.ReadFrom(bytes);
    x.ReadXMLSectionHeader();
    list.ReadFromXML(x);
}

String Written(const TStringPairList& list) {
    String bytes;
    XMLFile x;
    x.WriteTo(bytes);
    list.WriteToXML(x);
    x.CloseXMLFile();
    return bytes;
}

bool IsFor(char c, std::string_view characters) { return characters.find(c) != characters.npos; }

bool HasControlCharacter(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) {
        return static_cast<unsigned char>(c) < 0x20 && !IsFor(c, "\t\r\n");
    });
}

/// The format writes names into attributes as they are.
bool IsGeneralXml(const TStringPair& pair) {
    const String& name = pair.Name();
    const String both = name + pair.Value();
    return name.find_first_of("\"<&") == name.npos && IsUtf8(both) && !HasControlCharacter(both);
}

void CheckKept(const TStringPairList& list, const String& bytes, const String& file) {
    TStringPairList kept;
    try {
        ReadList(kept, bytes);
    } catch (const RuntimeError&) {
        Fail(file + " was not saved: a name with a \">\" or a line break in it cannot be kept");
    }
    for (const auto& pair : list) {
        if (Holds(kept, *pair)) continue;
        Fail(file + " was not saved: " + pair->Name() +
             (EqualNoCase(pair->Name(), pair->Value())
                  ? " would not be kept, because its value is its name"
                  : " would not be kept as it is"));
    }
}

void WarnOfOtherReaders(const TStringPairList& list) {
    for (const auto& pair : list) {
        if (IsGeneralXml(*pair)) continue;
        Warn(pair->Name() + ": programs that read all of XML will refuse the file, because of a "
                            "character in this pair");
    }
}

} // namespace

void SavedPairs::Read(TStringPairList& list) const { ReadBytes(list, ReadFile(file_)); }

void SavedPairs::ReadBytes(TStringPairList& list, const String& bytes) const {
    try {
        ReadList(list, bytes);
    } catch (const RuntimeError& error) {
        Fail(WordsFor(error, file_));
    }
    list.Name = Unquoted(list.Name);
}

void SavedPairs::ReadToChange(TStringPairList& list, bool mayBeNew) {
    if (IsStandard(file_)) Fail("standard input cannot be changed");
    lock_ = LockForSaving(files_, file_);
    if (mayBeNew && !files_.Exists(files_.Resolved(file_))) return;
    bytes_ = ReadFile(file_);
    ReadBytes(list, *bytes_);
    if (XmlTokens(Written(list)) != XmlTokens(*bytes_))
        Fail(file_ + ": holds more than a list of pairs, and is not changed");
}

void SavedPairs::Prepare(const TStringPairList& list) {
    toSave_ = Written(list);
    CheckKept(list, toSave_, file_);
    WarnOfOtherReaders(list);
}

void SavedPairs::Save() {
    bytes_ ? ReplaceFile(files_, file_, toSave_, *bytes_) : CreateFile(files_, file_, toSave_);
    lock_.reset();
}

bool Holds(const TStringPairList& list, const TStringPair& pair) {
    const TStringPair* const found = list.Find(pair.Name());
    return found && found->Value() == pair.Value();
}

} // namespace zorvane
