#pragma once

#include "runtime/Types.h"

#include <QString>

class QTextDocument;

namespace zorvane {

/// Texts of a plate definition as text boxes show them, and back. A text is UTF-8 or, where its
/// bytes are not, one character a byte; either way what is shown and taken back unchanged is the
/// same bytes.

QString ShownText(const String& text);

/// The bytes of a text that the operator has changed; `before` is what it was, and says how bytes
/// stand for characters.
String TakenText(const QString& shown, const String& before);

/// A comment as lines without the end of the last one.
QString ShownComment(const String& comment);

/// The lines that stand in a text box, to be compared with ShownComment.
QString LinesIn(const QTextDocument& document);

/// A comment whose every line has its end, as a definition needs it.
String TakenComment(const QString& shown, const String& before);

} // namespace zorvane
