#include "support/StringList.h"
#include "support/TStringPairList.h"
#include "support/XMLFile.h"

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <filesystem>

/// A list of 100,000 pairs written to an XML file and read back. Each may take four times as long
/// as a general XML library that builds and saves, or loads and collects, the same document. Then
/// what must not grow with the size of a list.
namespace zorvane {
namespace {

constexpr int kPairs = 100000;

String NameOf(int pair) { return "Field name " + std::to_string(pair); }
String ValueOf(int pair) { return "Value <" + std::to_string(pair) + "> & more of it"; }

const TStringPairList& LargeList() {
    static const auto list = [] {
        auto made = std::make_unique<TStringPairList>();
        for (int i = 0; i < kPairs; ++i)
            made->Add(std::make_shared<TStringPair>(NameOf(i), ValueOf(i)));
        return made;
    }();
    return *list;
}

/// A temporary file that goes away at the end.
class SavedList {
  public:
    explicit SavedList(const char* name)
        : path_((std::filesystem::temp_directory_path() / name).string()) {}
    ~SavedList() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    const String& Path() const { return path_; }

    void Write() const {
        XMLFile x;
        x.FileName(path_);
        LargeList().WriteToXML(x);
        x.CloseXMLFile();
    }

  private:
    String path_;
};

pugi::xml_document DocumentOf(const TStringPairList& list) {
    pugi::xml_document document;
    pugi::xml_node section = document.append_child("PairList");
    for (const auto& pair : list) {
        pugi::xml_node field = section.append_child("Field");
        field.append_attribute("Name") = pair->Name().c_str();
        field.append_child("Name").text() = pair->Name().c_str();
        field.append_child("Value").text() = pair->Value().c_str();
    }
    return document;
}

void WriteDocument(benchmark::State& state) {
    const SavedList file("zorvane-benchmark-document.xml");
    const TStringPairList& list = LargeList();
    for (auto _ : state)
        DocumentOf(list).save_file(file.Path().c_str(), " ");
}
BENCHMARK(WriteDocument)->Unit(benchmark::kMillisecond);

void WriteList(benchmark::State& state) {
    const SavedList file("zorvane-benchmark-list.xml");
    LargeList();
    for (auto _ : state)
        file.Write();
}
BENCHMARK(WriteList)->Unit(benchmark::kMillisecond);

/// Only loads the document: less than any reader of a list can do.
void LoadDocument(benchmark::State& state) {
    const SavedList file("zorvane-benchmark-list.xml");
    file.Write();
    for (auto _ : state) {
        pugi::xml_document document;
        if (!document.load_file(file.Path().c_str())) state.SkipWithError("document not loaded");
    }
}
BENCHMARK(LoadDocument)->Unit(benchmark::kMillisecond);

void ReadDocument(benchmark::State& state) {
    const SavedList file("zorvane-benchmark-list.xml");
    file.Write();
    for (auto _ : state) {
        pugi::xml_document document;
        document.load_file(file.Path().c_str());
        TStringPairList list;
        for (const pugi::xml_node field : document.child("PairList").children("Field")) {
            list.Add(std::make_shared<TStringPair>(field.child_value("Name"),
                                                   field.child_value("Value")));
        }
        if (list.Count() != kPairs) state.SkipWithError("pairs are missing");
    }
}
BENCHMARK(ReadDocument)->Unit(benchmark::kMillisecond);

void ReadList(benchmark::State& state) {
    const SavedList file("zorvane-benchmark-list.xml");
    file.Write();
    for (auto _ : state) {
        XMLFile x;
        x.FileName(file.Path());
        TStringPairList list;
        list.ReadFromXML(x);
        if (list.Count() != kPairs) state.SkipWithError("pairs are missing");
    }
}
BENCHMARK(ReadList)->Unit(benchmark::kMillisecond);

/// The time for each pair shows whether the whole is linear. Names are looked up from the last to
/// the first, the opposite of the order that the list expects.
void AddAndLookUp(benchmark::State& state) {
    const auto pairs = static_cast<int>(state.range(0));
    for (auto _ : state) {
        TStringPairList list;
        for (int i = 0; i < pairs; ++i)
            list.Add(std::make_shared<TStringPair>(NameOf(i), ValueOf(i)));
        for (int i = pairs - 1; i >= 0; --i)
            benchmark::DoNotOptimize(list.Pair(NameOf(i)));
    }
    state.SetItemsProcessed(state.iterations() * pairs);
}
BENCHMARK(AddAndLookUp)->Arg(1000)->Arg(10000)->Arg(kPairs)->Unit(benchmark::kMillisecond);

/// Replaces every pair by one of the same name, as a file does that names its fields twice.
void ReplaceEach(benchmark::State& state) {
    const auto pairs = static_cast<int>(state.range(0));
    TStringPairList list;
    for (int i = 0; i < pairs; ++i)
        list.Value(NameOf(i), ValueOf(i));
    for (auto _ : state) {
        for (int i = 0; i < pairs; ++i)
            list.Add(std::make_shared<TStringPair>(NameOf(i), ValueOf(i)));
    }
    state.SetItemsProcessed(state.iterations() * pairs);
}
BENCHMARK(ReplaceEach)->Arg(1000)->Arg(10000)->Arg(kPairs)->Unit(benchmark::kMillisecond);

void AddAtTheCap(benchmark::State& state) {
    StringList list;
    list.MaxSize = static_cast<Long>(state.range(0)) * 20;
    const String text(20, 'x');
    while (list.Count() < state.range(0))
        list.Add(text);
    for (auto _ : state)
        list.Add(text);
}
BENCHMARK(AddAtTheCap)->Arg(100)->Arg(10000)->Arg(1000000);

} // namespace
} // namespace zorvane
