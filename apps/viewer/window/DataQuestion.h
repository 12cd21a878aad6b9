#pragma once

class QWidget;

namespace zorvane::viewer {

class PlateSession;

/// Asks what is to become of data of wells that no file holds, where there is any. Returns false
/// when it is to stay.
bool MayLeaveData(PlateSession& session, QWidget& window);

} // namespace zorvane::viewer
