#pragma once

#include "control/Definition.h"
#include "control/Notifier.h"
#include "control/PlateFields.h"
#include "control/Surface.h"
#include "runtime/Types.h"

namespace zorvane {

/// The details panel: shows the plate definition page by page and takes the operator's edits. The
/// definition itself changes only in Read.
class DataPanel {
  public:
    DataPanel(const PlateFields& fields, const Definition& definition, Surface& surface,
              Notifier& notifier)
        : fields_(fields), definition_(definition), surface_(surface), panel_(surface.panel),
          notifier_(notifier) {}

    Boolean EditEnable() const { return editEnable_; }
    /// Switches the panel between reading and editing.
    void EditEnable(Boolean on);
    /// Opens or closes the panel and gives the control the size that goes with it.
    void Open(Boolean visible);

    /// Lists the pages of the plate definition and shows the first.
    void ListPages();
    /// Shows the first page of a plate that was laid out.
    void Reset();
    /// The page chooser was set to a position: shows that page and enables the menu's commands that
    /// make sense there. Error 5 for a position that has no entry.
    void ChoosePage(Integer position);
    /// Shows a page; the page chooser stays.
    void Fill(Integer page);
    /// Takes a page into the plate definition, which then reads itself again.
    void Read(Integer page) const;

    void TypeComment(const String& text) { Type(panel_.txtComment, text); }
    /// Error 9 for a row that is not there.
    void TypeRow(Integer row, const String& text);
    /// Error 5 for a position that has no entry.
    void ChooseStyle(Integer position);

  private:
    void Type(TextBox& box, const String& text);

    const PlateFields& fields_;
    const Definition& definition_;
    Surface& surface_;
    PanelElements& panel_;
    Notifier& notifier_;
    Boolean editEnable_ = false;
    Integer heightBefore_ = 0; ///< of the control, before the panel was opened
};

} // namespace zorvane
