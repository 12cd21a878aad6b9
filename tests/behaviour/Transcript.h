#pragma once

#include "behaviour/HostDriver.h"

#include <filesystem>
#include <memory>
#include <string_view>

namespace zorvane {

/// The transcript with its commands run anew. Commands begin with "$ " and go on in lines with
/// "> "; each is followed by what it changed: the events that it raised, the failure that it ended
/// in, and everything of the control and its window that is not as it was before.
String Replayed(HostDriver& host, std::string_view transcript);

/// Replays a transcript and compares. Where it differs, the new one is left next to it with the
/// ending ".new", and can take its place once a person has looked at it.
void ExpectReplay(HostDriver& host, const std::filesystem::path& transcript);

/// The transcripts in a folder; those that every host replays, unless told.
std::vector<std::filesystem::path>
Transcripts(const std::filesystem::path& folder = ZORVANE_BEHAVIOUR);

} // namespace zorvane
