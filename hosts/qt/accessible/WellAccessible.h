#pragma once

#include "runtime/Types.h"

#include <QAccessibleInterface>
#include <QPointer>

namespace zorvane {

class PlateWidget;

/// One well as assistive technology sees it: where it is, what it holds and whether it is selected.
/// Invalid once the plate has no such well.
class WellAccessible final : public QAccessibleInterface {
  public:
    WellAccessible(PlateWidget& widget, Integer well);

    Integer Well() const { return well_; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

  private:
    QPointer<PlateWidget> widget_;
    Integer well_;
};

} // namespace zorvane
