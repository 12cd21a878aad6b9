#pragma once

#include "runtime/Types.h"

#include <QAccessibleWidget>

#include <map>

namespace zorvane {

class PlateWidget;

/// A plate as assistive technology sees it: a list whose children are the wells, by well number,
/// and after them the widget's own child widgets. Its focused child is the current well.
class PlateAccessible final : public QAccessibleWidget {
  public:
    explicit PlateAccessible(PlateWidget& widget);
    ~PlateAccessible() override;

    /// Makes plate widgets accessible from now on; may be called again.
    static void Install();
    /// Tells assistive technology that another well of a widget with the focus is current.
    static void AnnounceCurrentWell(PlateWidget& widget);
    /// Tells assistive technology that other wells are selected.
    static void AnnounceSelection(PlateWidget& widget);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text kind) const override;

  private:
    PlateWidget& Shown() const;

    // Wells asked for so far, by number; made when asked for, as there may be thousands.
    mutable std::map<Integer, QAccessible::Id> wells_;
};

} // namespace zorvane
