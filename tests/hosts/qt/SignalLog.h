#pragma once

#include <QMetaMethod>
#include <QSignalSpy>

#include <memory>
#include <vector>

namespace zorvane {

/// Writes down the signals that a class of objects adds to those of its base, in their order.
class SignalLog : public QObject {
    Q_OBJECT

  public:
    explicit SignalLog(const QObject& object) : class_(*object.metaObject()) {
        const QMetaMethod note = staticMetaObject.method(staticMetaObject.indexOfSlot("Note()"));
        for (int i = class_.methodOffset(); i < class_.methodCount(); ++i) {
            if (class_.method(i).methodType() != QMetaMethod::Signal) continue;
            spies_[i] = std::make_unique<QSignalSpy>(&object, class_.method(i));
            connect(&object, class_.method(i), this, note);
        }
    }

    /// The signals since the last call, with their arguments.
    QString Take() {
        for (const auto& [signal, spy] : spies_)
            spy->clear();
        return std::exchange(names_, {}).join(", ");
    }
    /// Whether a signal has come since then.
    bool Has(int signal) const { return !spies_.at(signal)->isEmpty(); }

  private:
    Q_SLOT void Note() {
        const int signal = senderSignalIndex();
        QString text = class_.method(signal).name();
        for (const QVariant& argument : spies_[signal]->last())
            text += ' ' + argument.toString();
        names_ += text;
    }

    const QMetaObject& class_;
    std::map<int, std::unique_ptr<QSignalSpy>> spies_; // by index of the signal
    QStringList names_;
};

} // namespace zorvane
