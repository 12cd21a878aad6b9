#include "Test.h"
#include "behaviour/HeadlessDriver.h"
#include "behaviour/Transcript.h"

namespace zorvane {
namespace {

class HeadlessBehaviour : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(HeadlessBehaviour, IsAsRecorded) {
    TestProcess process;
    HeadlessDriver host;
    ExpectReplay(host, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Transcripts, HeadlessBehaviour, testing::ValuesIn(Transcripts()),
                         [](const auto& transcript) { return transcript.param.stem().string(); });

} // namespace
} // namespace zorvane
