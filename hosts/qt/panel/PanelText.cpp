#include "hosts/qt/panel/PanelText.h"

#include "runtime/Text.h"

#include <QTextDocument>

#include <algorithm>

namespace zorvane {

namespace {

bool FitsBytes(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() <= 0xFF; });
}

/// Leaves one kind of the line ends that a text box knows.
void BreakLines(QString& text) {
    for (const QChar end :
         {QChar(QLatin1Char('\r')), QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        text.replace(end, QLatin1Char('\n'));
}

} // namespace

QString ShownText(const String& text) {
    return IsUtf8(text) ? QString::fromStdString(text)
                        : QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

String TakenText(const QString& shown, const String& before) {
    return !IsUtf8(before) && FitsBytes(shown) ? shown.toLatin1().toStdString()
                                               : shown.toStdString();
}

QString ShownComment(const String& comment) {
    QString lines = ShownText(comment);
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    BreakLines(lines);
    if (lines.endsWith(QLatin1Char('\n'))) lines.chop(1);
    return lines;
}

// As plain text it would have blanks for the no-break spaces.
QString LinesIn(const QTextDocument& document) {
    QString lines = document.toRawText();
    BreakLines(lines);
    return lines;
}

String TakenComment(const QString& shown, const String& before) {
    if (shown.isEmpty()) return {};
    QString lines = shown + QLatin1Char('\n');
    lines.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return TakenText(lines, before);
}

} // namespace zorvane
