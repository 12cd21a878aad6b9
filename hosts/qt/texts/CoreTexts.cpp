#include "hosts/qt/texts/CoreTexts.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace zorvane {

namespace {

/// Matches what a text with placeholders may become, and captures what stands for these.
QRegularExpression Expression(const QString& source) {
    static const QRegularExpression placeholder(QStringLiteral("\\\\%[1-9]"));
    QString pattern = QRegularExpression::escape(source);
    pattern.replace(placeholder, QStringLiteral("(.+?)"));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                              QRegularExpression::DotMatchesEverythingOption);
}

/// Unlike QString::arg it leaves a per cent sign in a part as it is.
QString Filled(const QString& text, const QStringList& parts) {
    QString filled;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int number = text[i] == QLatin1Char('%') ? text.mid(i + 1, 1).toInt() : 0;
        if (number > 0 && number <= parts.size()) {
            filled += parts[number - 1];
            ++i;
        } else {
            filled += text[i];
        }
    }
    return filled;
}

bool IsText(const QString& source, qsizetype part) {
    return source.contains(QStringLiteral(": %%1").arg(part)) ||
           source.contains(QStringLiteral("\n%%1").arg(part));
}

} // namespace

CoreTexts::CoreTexts(const char* context, std::span<const char* const> sources)
    : context_(context), sources_(sources) {
    for (const char* source : sources) {
        const QString text = QString::fromUtf8(source);
        if (text.contains(QLatin1String("%1"))) patterns_.append({source, Expression(text)});
    }
}

QString CoreTexts::Translated(const char* source) const {
    return QCoreApplication::translate(context_, source);
}

QString CoreTexts::Shown(const QString& text) const {
    const auto whole = std::find(sources_.begin(), sources_.end(), text.toStdString());
    if (whole != sources_.end()) return Translated(*whole);
    for (const Pattern& pattern : patterns_) {
        const QString source = QString::fromUtf8(pattern.source);
        const QString translated = Translated(pattern.source);
        if (translated == source) continue;
        const QRegularExpressionMatch match = pattern.expression.match(text);
        if (!match.hasMatch()) continue;
        QStringList parts = match.capturedTexts().mid(1);
        for (qsizetype i = 0; i < parts.size(); ++i)
            if (IsText(source, i + 1)) parts[i] = Shown(parts[i]);
        return Filled(translated, parts);
    }
    return text;
}

} // namespace zorvane
