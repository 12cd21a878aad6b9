#include "WidgetDriver.h"
#include "behaviour/Transcript.h"

namespace zorvane {
namespace {

class QtBehaviour : public testing::TestWithParam<std::filesystem::path> {};
class WidgetBehaviour : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(QtBehaviour, IsAsRecorded) {
    QtDriver host;
    ExpectReplay(host, GetParam());
}

TEST_P(WidgetBehaviour, IsAsRecorded) {
    WidgetDriver host;
    ExpectReplay(host, GetParam());
}

const auto kNameOf = [](const auto& transcript) { return transcript.param.stem().string(); };

INSTANTIATE_TEST_SUITE_P(Transcripts, QtBehaviour, testing::ValuesIn(Transcripts()), kNameOf);
INSTANTIATE_TEST_SUITE_P(Transcripts, WidgetBehaviour,
                         testing::ValuesIn(Transcripts(ZORVANE_QT_TRANSCRIPTS)), kNameOf);

} // namespace
} // namespace zorvane
