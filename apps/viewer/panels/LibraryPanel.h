#pragma once

#include "platetext/LibraryIndex.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;

namespace zorvane::viewer {

class Notice;

/// The plates of a library, with a box that narrows them down by name and tags.
class LibraryPanel final : public QWidget {
    Q_OBJECT

  public:
    explicit LibraryPanel(QWidget* parent = nullptr);

    /// Why a listing ends before its file does; empty when it does not.
    static QString StopText(const LibraryListing& library);

    /// The list itself, the last stop of the Tab key.
    QWidget& List() const;
    /// Lists the plates of a library, none of them chosen.
    void Show(const LibraryListing& library);
    /// Chooses a plate by its index in the library.
    void Choose(int index);
    /// The name of the chosen plate; empty when none is.
    QString Chosen() const;
    /// Chooses the plate of this name without saying so.
    void SetChosen(const QString& name);

  signals:
    void plateChosen(const QString& name);
    /// The operator is done with choosing.
    void accepted();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void AddPlate(const LibraryEntry& plate);
    void Filter();
    void ShowCount(int found);
    /// Chooses the next plate that is shown, upwards or downwards.
    void Step(int by);
    /// Chooses the plate found where the present one is filtered out.
    void Accept();

    LibraryListing library_;
    QLineEdit* filter_;
    QLabel* found_;
    QListWidget* list_;
    Notice* notice_;
};

} // namespace zorvane::viewer
