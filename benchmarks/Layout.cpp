#include "control/Plate.h"
#include "platform/memory/MemorySite.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <string>
#include <vector>

/// What drawing a plate costs before anything is painted. A full layout of 1,536 positions with
/// three sub-wells may take 40 ns a well; its floor is writing as many bytes as the elements of
/// those wells have, once. Colouring one well must cost the same on a plate of any size.
namespace zorvane {
namespace {

String PlateText(int rows, int cols, int subWells) {
    String text = "PLATE Benchmark\r\nROWS " + std::to_string(rows) + "\r\nCOLS " +
                  std::to_string(cols) +
                  "\r\nROWLABEL 1\r\nCOLLABEL 1\r\nXPITCH 2.25\r\nYPITCH 2.25\r\nXOVERALL "
                  "127.76\r\nYOVERALL 85.48\r\nHEIGHT 10\r\n";
    for (int i = 0; i < subWells; ++i) {
        text += "WELL Drop" + std::to_string(i) + "\r\nXOFFSET " + std::to_string(2 + i) +
                "\r\nYOFFSET 2\r\nWELLSIZEX 1\r\nWELLSIZEY 1\r\nRIMWIDTH 0.2\r\nRIMHEIGHT 0.2\r\n";
    }
    return text;
}

/// A control that shows such a plate.
struct Shown {
    Shown(int rows, int cols, int subWells) {
        plate.PlateClassText(PlateText(rows, cols, subWells));
        plate.WellIndex(1);
    }
    MemorySite site;
    Plate plate{site};
};

void CountWells(benchmark::State& state, std::int64_t wells) {
    state.counters["per_well"] = benchmark::Counter(static_cast<double>(wells),
                                                    benchmark::Counter::kIsIterationInvariantRate |
                                                        benchmark::Counter::kInvert);
}

void WritingTheElementsOnce(benchmark::State& state) {
    constexpr std::size_t wells = std::size_t{3} * 1536;
    std::vector<unsigned char> elements(wells * (2 * sizeof(Shape) + sizeof(Label)));
    for (auto _ : state) {
        std::memset(elements.data(), 1, elements.size());
        benchmark::ClobberMemory();
    }
    CountWells(state, wells);
}
BENCHMARK(WritingTheElementsOnce);

void FullLayout(benchmark::State& state) {
    Shown shown(32, 48, 3);
    for (auto _ : state) {
        shown.plate.InitialVolume(1); // lays out with a full reset
        shown.site.repaints.clear();
    }
    CountWells(state, shown.plate.TotalWells());
}
BENCHMARK(FullLayout);

void Relayout(benchmark::State& state) {
    Shown shown(32, 48, 3);
    for (auto _ : state) {
        shown.plate.DrawingScale(50);
        shown.site.repaints.clear();
    }
    CountWells(state, shown.plate.TotalWells());
}
BENCHMARK(Relayout);

void ColouringOneWell(benchmark::State& state) {
    Shown shown(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)), 1);
    Long color = 0;
    for (auto _ : state) {
        shown.plate.IsDefined(static_cast<Integer>(shown.plate.TotalWells() / 2), true);
        shown.plate.DefinedWellColor = ++color;
        shown.site.repaints.clear();
    }
    state.SetLabel(std::to_string(shown.plate.TotalWells()) + " wells");
}
BENCHMARK(ColouringOneWell)->Args({8, 12})->Args({217, 151});

} // namespace
} // namespace zorvane
