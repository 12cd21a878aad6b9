#include "hosts/qt/ControlText.h"

#include "hosts/qt/panel/PanelText.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <span>

namespace zorvane {

namespace {

constexpr const char* kContext = "zorvane::Plate";

constexpr const char* kTexts[] = {
    // Pages, buttons and entries of the details panel.
    QT_TRANSLATE_NOOP("zorvane::Plate", "Comments"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Tags"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "General Properties"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "No Tags Defined"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Apply Changes"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Round"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Shelf"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Pillar"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Square"),
    // Captions of its rows.
    QT_TRANSLATE_NOOP("zorvane::Plate", "Rows"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Columns"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Row Label"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Column Label"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "X Overall"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Y Overall"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "X Pitch"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Y Pitch"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Plate Height"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Height"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Shelf Depth"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Style"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "X offset"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Y Offset"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Depth"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Shelf Height"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Well Size X"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Well Size Y"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Volume"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Rim Width"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Rim Height"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Rim Center X"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Rim Center Y"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Area"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Taper"),
    // The menu of sub-well commands and their questions.
    QT_TRANSLATE_NOOP("zorvane::Plate", "Insert New SubWell"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Remove SubWell"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Rename SubWell"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Move SubWell Up"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Move SubWell Down"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "&Rotate Plate 90"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Shift All Wells in &X"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Shift All Wells in &Y"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Raise Bottoms of All Wells"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "SubWell Name"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Enter  a unique name for the subwell"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "New SubWell Name"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "X Shift"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Y Shift"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Z Shift"),
    // Failures.
    QT_TRANSLATE_NOOP("zorvane::Plate", "Invalid procedure call or argument"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Overflow"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Subscript out of range"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Division by zero"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Type mismatch"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "File not found"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Path not found"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Object variable not set"),
    QT_TRANSLATE_NOOP("zorvane::Plate",
                      "This key is already associated with an element of this collection"),
};

/// Questions of more than one line.
constexpr const char* kQuestions[] = {
    QT_TRANSLATE_NOOP("zorvane::Plate", "Enter distance in mm to shift all subwell centers\r\n"
                                        "+ve value shifts right"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Enter distance in mm to shift all subwell centers\r\n"
                                        "+ve value shifts down"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Enter distance in mm to shift bottoms of all subwells\r\n"
                                        "+ve value shifts up"),
};

/// Texts around something that the control has put in.
constexpr const char* kPatterns[] = {
    QT_TRANSLATE_NOOP("zorvane::Plate", "%1 Well"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "%1 - Details"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Tag %1"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Can't find Plate <%1> in %2"),
    QT_TRANSLATE_NOOP("zorvane::Plate", "Error trying to read \"%1\" from <%2>"),
};

QString Translated(const char* text) { return QCoreApplication::translate(kContext, text); }

QRegularExpression Expression(const char* pattern) {
    QString expression = QRegularExpression::escape(QString::fromLatin1(pattern));
    for (const char* place : {"\\%1", "\\%2"})
        expression.replace(QLatin1String(place), QLatin1String("(.*)"));
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::DotMatchesEverythingOption);
}

/// The translation of a pattern with what stands in the text in its places; null where the text
/// does not follow the pattern.
QString Filled(const char* pattern, const QString& text) {
    const auto match = Expression(pattern).match(text);
    if (!match.hasMatch()) return {};
    const QString translated = Translated(pattern);
    return match.lastCapturedIndex() > 1 ? translated.arg(match.captured(1), match.captured(2))
                                         : translated.arg(match.captured(1));
}

/// The text as the control has it, or null where it is not the control's.
const char* OwnText(const String& text) {
    for (const auto& texts :
         {std::span<const char* const>(kTexts), std::span<const char* const>(kQuestions)}) {
        const auto own = std::find(texts.begin(), texts.end(), text);
        if (own != texts.end()) return *own;
    }
    return nullptr;
}

} // namespace

QString ControlText(const String& text) {
    if (const char* const own = OwnText(text)) return Translated(own);
    QString shown = ShownText(text);
    for (const char* const pattern : kPatterns) {
        if (Translated(pattern) == QLatin1String(pattern)) continue; // there is no translation
        QString filled = Filled(pattern, shown);
        if (!filled.isNull()) return filled;
    }
    return shown;
}

} // namespace zorvane
