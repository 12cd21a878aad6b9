#include "QtDriver.h"
#include "behaviour/Transcript.h"

namespace zorvane {
namespace {

class QtBehaviour : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(QtBehaviour, IsAsRecorded) {
    QtDriver host;
    ExpectReplay(host, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Transcripts, QtBehaviour, testing::ValuesIn(Transcripts()),
                         [](const auto& transcript) { return transcript.param.stem().string(); });

} // namespace
} // namespace zorvane
