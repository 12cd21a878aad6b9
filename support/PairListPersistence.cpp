#include "runtime/NumberText.h"
#include "runtime/Rounding.h"
#include "runtime/TextFunctions.h"
#include "support/RegistryFunctions.h"
#include "support/TStringPairList.h"
#include "support/XMLFile.h"

namespace zorvane {

namespace {

const char* const kEntries = "\\Entries";

} // namespace

void TStringPair::WriteToXML(XMLFile& x) const {
    x.OpenXMLSection("Field", "Name=" + QuoteText(name_, "\""));
    x.WriteXMLMember("Name", name_);
    x.WriteXMLMember("Value", value_);
    x.CloseXMLSection();
}

void TStringPair::ReadFromXML(XMLFile& x) {
    for (;;) {
        const String tag = x.ReadXMLSectionHeader();
        if (EqualNoCase(tag, "NAME")) {
            name_ = x.ReadXMLData();
        } else if (EqualNoCase(tag, "VALUE")) {
            value_ = x.ReadXMLData();
        } else if (EqualNoCase(tag, "/FIELD")) {
            return;
        }
    }
}

Boolean TStringPair::WriteToRegistry(Long root, const String& key) const {
    return SaveSettingEx(root, key, name_, value_);
}

void TStringPairList::WriteToXML(XMLFile& x) const {
    x.OpenXMLSection("PairList");
    x.WriteXMLStringValue("Name", Name);
    for (const auto& pair : pairs_)
        if (!EqualNoCase(pair->Name(), pair->Value())) pair->WriteToXML(x);
    x.CloseXMLSection();
}

void TStringPairList::ReadFromXML(XMLFile& x) {
    Clear();
    for (;;) {
        const String tag = x.ReadXMLSectionHeader();
        if (EqualNoCase(tag, "NAME")) {
            Name = x.ReadXMLData();
        } else if (EqualNoCase(tag, "FIELD")) {
            const auto pair = std::make_shared<TStringPair>();
            pair->ReadFromXML(x);
            Add(pair);
        } else if (EqualNoCase(tag, "/PAIRLIST")) {
            return;
        }
    }
}

Boolean TStringPairList::WriteToRegistry(Long root, const String& key) const {
    SaveSettingEx(root, key, "Count", std::to_string(Count()));
    SaveSettingEx(root, key, "Name", Name);
    for (const auto& pair : pairs_)
        pair->WriteToRegistry(root, key + kEntries);
    return false;
}

Boolean TStringPairList::ReadFromRegistry(Long root, const String& key) {
    Long type = 0;
    // The count decides nothing; converting it refuses keys that hold something else.
    ToInteger(ParseLong(GetSettingEx(root, key, "Count", "0", type)));
    Name = GetSettingEx(root, key, "Name", "", type);
    std::vector<String> names;
    std::vector<String> values;
    if (EnumerateValues(root, key + kEntries, names, values) == 0)
        Raise(ErrorNumber::SubscriptOutOfRange);
    for (std::size_t i = 0; i < names.size(); ++i)
        Add(std::make_shared<TStringPair>(names[i], values[i]));
    return false;
}

} // namespace zorvane
