#pragma once

#include "control/Elements.h"

#include <QColor>
#include <QPalette>
#include <QRect>
#include <QString>

class QComboBox;
class QPushButton;
class QWidget;

namespace zorvane {

// How elements of the details panel show in the toolkit's own controls.

/// The control leaves the top of ControlPic empty, so the scrolling view starts this far down:
/// nothing then scrolls under the data button. In drawing units.
inline constexpr Single kEmptyTop = 225;

/// Where an element of the panel stands in the scrolling view, that many pixels wider than it is
/// designed.
QRect InView(const Rect& box, int wider = 0);

/// Gives a widget a colour for one role of its palette, where it has another: setting a palette
/// costs a repaint.
void SetColor(QWidget& widget, QPalette::ColorRole role, const QColor& color);

/// A text in which every "&" is shown as it is.
QString WithoutMnemonic(QString text);

/// Shows a button that many pixels away from where it is designed.
void ShowButton(QPushButton& shown, const Button& button, QPoint shift);
/// Shows a list that many pixels wider than it is designed. Changes only the entries that differ;
/// emits nothing.
void ShowDropDown(QComboBox& shown, const DropDown& list, int wider);

} // namespace zorvane
