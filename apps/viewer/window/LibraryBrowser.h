#pragma once

#include "platetext/LibraryIndex.h"

#include <QObject>
#include <QString>

#include <optional>

class QWidget;

namespace zorvane::viewer {

class EditMode;
class LibraryPanel;
class PlateSession;

/// Opens libraries and shows their plates, asking first where edits would be lost.
class LibraryBrowser final : public QObject {
    Q_OBJECT

  public:
    LibraryBrowser(PlateSession& session, EditMode& editing, LibraryPanel& panel, QWidget& window);

    /// The library that is open; empty before the first one.
    const QString& File() const { return file_; }
    /// Opens a library and shows one of its plates: that of the name given, if it has it. Emits
    /// failed(), and keeps what was open, when the file cannot be read or has no plate. Returns
    /// whether the library is open.
    bool Open(const QString& file, const QString& plate = {});
    /// Opens the library of the last run with the plate that was shown. Returns false, without a
    /// word, when the file is no longer there.
    bool OpenLast();
    /// Keeps for the next run which library and plate are open.
    void Remember() const;
    /// Lets the operator choose the library to open.
    void AskAndOpen();
    /// Leads to the filter of the plates, wherever its panel is.
    void FindPlate();
    /// Begins or ends editing the plate that is shown. Unsaved edits may keep it from ending.
    void SwitchEditing(bool on);

  signals:
    void opened(const QString& file);
    void aboutToShowPlate();
    /// A plate of the library has been asked for, or saved under another name; it is shown unless
    /// the control has failed.
    void plateShown();
    void failed(const QString& reason);

  private:
    void ShowPlate(const QString& name);
    void ListAgain(const QString& plate);
    std::optional<LibraryListing> Read(const QString& file);

    PlateSession& session_;
    EditMode& editing_;
    LibraryPanel& panel_;
    QWidget& window_;
    QString file_;
};

} // namespace zorvane::viewer
