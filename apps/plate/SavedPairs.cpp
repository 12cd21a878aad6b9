#include "apps/plate/SavedPairs.h"

#include "apps/plate/Files.h"
#include "runtime/Text.h"
#include "support/XMLFile.h"

#include <iostream>

namespace zorvane {

namespace {

constexpr Long kEndOfFile = 1051;

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
        return error.Number() == kEndOfFile;
    }
    return false;
}

/// Whether the file holds nothing else.
bool ReadFile(TStringPairList& list, const String& file) {
    XMLFile x;
    x.FileName(file);
    const bool begins = EqualNoCase(x.ReadXMLSectionHeader(), "PairList");
    list.ReadFromXML(x);
    return begins && IsAtEnd(x);
}

void WriteFile(const TStringPairList& list, const String& file) {
    XMLFile x;
    x.FileName(file);
    list.WriteToXML(x);
    x.CloseXMLFile();
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

/// Reads what was written before it takes the place of anything.
void CheckWritten(const TStringPairList& list, const String& written, const String& file) {
    TStringPairList kept;
    try {
        ReadFile(kept, written);
    } catch (const RuntimeError&) {
        Fail(file + ": not changed: a name with a \">\" or a line break in it cannot be saved");
    }
    WarnOfLosses(list, kept);
}

} // namespace

void ReadPairs(TStringPairList& list, const String& file, FileContent content) {
    bool nothingElse = true;
    try {
        nothingElse = ReadFile(list, file);
    } catch (const RuntimeError& error) {
        Fail(WordsFor(error, file));
    }
    if (!nothingElse && content == FileContent::NothingElse)
        Fail(file + ": holds more than a list of pairs, and is not changed");
    list.Name = Unquoted(list.Name);
}

void SavePairs(const TStringPairList& list, const String& file) {
    ReplaceFile(file, [&](const String& temporary) {
        try {
            WriteFile(list, temporary);
        } catch (const RuntimeError&) {
            Fail(file + ": cannot be written");
        }
        CheckWritten(list, temporary, file);
    });
}

bool Holds(const TStringPairList& list, const TStringPair& pair) {
    const TStringPair* const found = list.Find(pair.Name());
    return found && found->Value() == pair.Value();
}

} // namespace zorvane
