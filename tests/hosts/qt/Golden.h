#pragma once

#include <QFile>
#include <QImage>
#include <QString>

#include <gtest/gtest.h>

namespace zorvane {

/// Compares a text with the one kept under this name. One that differs is written next to it, for a
/// person to look at and to rename when it is right.
inline void ExpectGolden(const QString& text, const char* name) {
    const QString path = QString("%1/%2.txt").arg(ZORVANE_GOLDEN_TEXTS, name);
    QFile kept(path);
    if (kept.open(QFile::ReadOnly) && kept.readAll() == text.toUtf8()) return;
    QFile differing(path + ".new");
    EXPECT_TRUE(differing.open(QFile::WriteOnly));
    differing.write(text.toUtf8());
    ADD_FAILURE() << "differs from " << path.toStdString() << "; see the .new file next to it";
}

/// A picture as text: a character for every pixel, or every second one of every second row. Darker
/// ones look darker; five shades leave room for another rounding of blended edges.
inline QString AsCharacters(const QImage& picture, int step = 1) {
    QString text;
    for (int y = 0; y < picture.height(); y += step) {
        for (int x = 0; x < picture.width(); x += step)
            text += QLatin1Char("#=+- "[qGray(picture.pixel(x, y)) * 5 / 256]);
        text += '\n';
    }
    return text;
}

} // namespace zorvane
