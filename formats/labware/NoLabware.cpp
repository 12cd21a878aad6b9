#include "formats/labware/Labware.h"

/// What a build without the JSON library has of labware.
namespace zorvane {

namespace {

[[noreturn]] void RefuseJson() { RefuseSource("this build has no JSON"); }

} // namespace

bool HasLabware() { return false; }

LabwareSource ReadLabware(std::string_view) { RefuseJson(); }

String LabwareText(const cmPlate&, Long) { RefuseJson(); }

String LoadName(const cmPlate&, Long) { RefuseJson(); }

} // namespace zorvane
