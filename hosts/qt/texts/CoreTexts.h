#pragma once

#include <QList>
#include <QRegularExpression>
#include <QString>

#include <span>

namespace zorvane {

/// Texts that are spelled where no toolkit is known, in the language of the program that shows
/// them. They have a name or a number in them by the time they are shown, so that a catalogue has
/// patterns for those.
class CoreTexts {
  public:
    /// `context` is the one that catalogues have the texts in. A text whose parts vary has "%1" to
    /// "%9" for these, in this order. A part after a colon, or on a line of its own, is such a text
    /// itself; the others are names and numbers.
    CoreTexts(const char* context, std::span<const char* const> sources);

    /// A text of the list as the catalogues have it; any other as it is.
    QString Shown(const QString& text) const;

  private:
    struct Pattern {
        const char* source;
        QRegularExpression expression;
    };

    QString Translated(const char* source) const;

    const char* context_;
    std::span<const char* const> sources_;
    QList<Pattern> patterns_;
};

} // namespace zorvane
