#pragma once

class QPainter;
class QWidget;

namespace zorvane {

/// The room between a thin frame and the text inside it, in device-independent pixels.
inline constexpr int kThinFrameMargin = 2;

/// Paints a frame one pixel wide, in the highlight colour while the widget has the focus. Rows of
/// 13 pixels leave no room for a style's own frames.
void PaintThinFrame(QPainter& painter, const QWidget& widget);

} // namespace zorvane
