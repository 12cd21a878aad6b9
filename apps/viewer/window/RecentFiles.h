#pragma once

#include <QMenu>

namespace zorvane::viewer {

/// The menu of the libraries opened last, kept from one run of the program to the next. Those that
/// are gone are left out.
class RecentFiles final : public QMenu {
    Q_OBJECT

  public:
    explicit RecentFiles(QWidget* parent = nullptr);

    /// Puts a file at the top of the menu.
    void Add(const QString& file);

  signals:
    void chosen(const QString& file);

  private:
    void Fill();
    void Forget();
};

} // namespace zorvane::viewer
