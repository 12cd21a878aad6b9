#include "model/cmPlate.h"
#include "runtime/TextFunctions.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

/// Looking up the last plate of a large library. It may take three times as long as a bare pass
/// over the same file that only splits lines and takes the first word of each.
namespace zorvane {
namespace {

constexpr int kPlates = 10000;

String NameOf(int plate) { return "Sitting_Drop_" + std::to_string(plate); }

void WriteSubWell(std::ostream& file, const char* name, double offset) {
    file << "  WELL " << name << "\n    STYLE ROUND\n    XOFFSET " << offset
         << "\n    YOFFSET 11.24\n    WELLSIZEX 2.50\n    WELLSIZEY 2.50\n    RIMWIDTH 0.25\n"
            "    RIMHEIGHT 0.25\n    DEPTH 1.80\n    VOLUME 4.00\n";
}

/// A library in the style of the sample library, in a temporary file that goes away at the end.
class LargeLibrary {
  public:
    LargeLibrary() {
        std::ofstream file(path_, std::ios::binary);
        for (int plate = 0; plate < kPlates; ++plate) {
            file << "PLATE " << NameOf(plate)
                 << "\n  ; One reservoir and one drop.\n  ROWS 8\n  COLS 12\n  ROWLABEL A\n"
                    "  COLLABEL 1\n  XPITCH 9.000\n  YPITCH 9.000\n  XOVERALL 127.76\n"
                    "  YOVERALL 85.48\n  HEIGHT 14.40\n  SHELFDEPTH -0.5\n"
                    "  TAGLIST vapour sitting\n";
            WriteSubWell(file, "Drop1", 12.18);
            WriteSubWell(file, "Reservoir", 16.58);
            file << '\n';
        }
    }
    ~LargeLibrary() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

    const String& Path() const { return path_; }

  private:
    String path_ = (std::filesystem::temp_directory_path() / "zorvane-large-library.dat").string();
};

const String& LibraryPath() {
    static const LargeLibrary library;
    return library.Path();
}

void BarePass(benchmark::State& state) {
    const String& path = LibraryPath();
    for (auto _ : state) {
        std::ifstream file(path, std::ios::binary);
        std::string line;
        while (std::getline(file, line)) {
            std::string_view rest = line;
            benchmark::DoNotOptimize(NextWord(rest));
        }
    }
}
BENCHMARK(BarePass)->Unit(benchmark::kMillisecond);

void LookUpOfTheLastPlate(benchmark::State& state) {
    const String& path = LibraryPath();
    for (auto _ : state) {
        cmPlate plate;
        if (!plate.SetPlate(path, NameOf(kPlates - 1))) state.SkipWithError("plate not found");
    }
}
BENCHMARK(LookUpOfTheLastPlate)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zorvane
