#include "hosts/qt/SettingsStore.h"

#include <QSettings>

namespace zorvane {

namespace {

/// Takes a stored value as one of the fallback's type; leaves a text that stands for none a text.
struct Reader {
    const QVariant& stored;

    PropertyValue operator()(Boolean) const {
        const QString text = Text().toLower();
        const bool on = text == QLatin1String("true") || text == QLatin1String("1");
        const bool off = text == QLatin1String("false") || text == QLatin1String("0");
        return on || off ? PropertyValue(on) : AsText();
    }
    PropertyValue operator()(Long) const {
        bool fits = false;
        const int number = Text().toInt(&fits);
        return fits ? PropertyValue(Long{number}) : AsText();
    }
    PropertyValue operator()(Single) const {
        bool fits = false;
        const float number = Text().toFloat(&fits);
        return fits ? PropertyValue(number) : AsText();
    }
    PropertyValue operator()(const String&) const { return AsText(); }

    QString Text() const { return stored.toString(); }
    PropertyValue AsText() const { return Text().toStdString(); }
};

/// A value as QSettings keeps it, readable in files.
struct Writer {
    QVariant operator()(Boolean on) const { return on; }
    QVariant operator()(Long number) const { return number; }
    QVariant operator()(Single number) const {
        // As a double it would have digits that mean nothing.
        int digits = 6;
        QString text = QString::number(double{number}, 'g', digits);
        while (text.toFloat() != number && digits < 9)
            text = QString::number(double{number}, 'g', ++digits);
        return text;
    }
    QVariant operator()(const String& text) const { return QString::fromStdString(text); }
};

} // namespace

PropertyValue SettingsStore::Read(const String& key, const PropertyValue& fallback) const {
    const QVariant stored = settings_.value(QString::fromStdString(key));
    return stored.isValid() ? std::visit(Reader{stored}, fallback) : fallback;
}

void SettingsStore::Write(const String& key, const PropertyValue& value,
                          const PropertyValue& fallback) {
    const QString name = QString::fromStdString(key);
    if (value == fallback) {
        settings_.remove(name);
    } else {
        settings_.setValue(name, std::visit(Writer{}, value));
    }
}

} // namespace zorvane
