#include "apps/viewer/logic/DefinitionEditor.h"

#include "library/ReadBack.h"
#include "platetext/RecordMissingValues.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "support/TStringPair.h"

#include <utility>

namespace zorvane::viewer {

namespace {

/// The control stops reading a text where a library goes on: at a keyword that it does not know.
void CheckNothingLost(const cmPlate& plate, const cmPlate& shown) {
    for (const auto& pair : plate.Properties) {
        const TStringPair* const same = shown.Properties.Find(pair->Name());
        if (same && same->Value() == pair->Value()) continue;
        Raise(ErrorNumber::EditNotPossible,
              "\"" + plate.PlateName() +
                  "\" cannot be edited here: the control would lose the line \"" + pair->Name() +
                  " " + pair->Value() + "\", at or after a keyword that it does not know.");
    }
}

/// A command that fails halfway, or that is given a name with a full stop, leaves the control with
/// lines that a reader would not take for what they were.
void CheckReadsBack(const String& definition) {
    const String line = LineNotReadBack(definition);
    if (line.empty()) return;
    Raise(ErrorNumber::EditNotPossible,
          "\"" + NameIn(definition) + "\" was not saved: the line \"" + line +
              "\" could not be read back. Undo brings the plate back as it was.");
}

/// The text of a plate as a control gives it that has been given the plate.
String EditedText(const LibraryText& library, const String& name) {
    cmPlate plate = library.PlateOf(library.Get(name));
    RecordMissingValues(plate);
    cmPlate shown;
    shown.SetFromText(WithoutEchoes(plate.Text()));
    CheckNothingLost(plate, shown);
    return shown.Text();
}

} // namespace

void DefinitionEditor::Begin(const String& library, const String& plate) {
    LibraryDocument document(files_, library);
    const String text = EditedText(document.Text(), plate);
    document_.emplace(std::move(document));
    plate_ = NameIn(text);
    history_.Begin(text);
}

String DefinitionEditor::Text() const { return WithoutEchoes(history_.Present()); }

std::vector<ChangedLine> DefinitionEditor::Difference() const {
    const auto block = Library().Find(plate_);
    if (!block) return DefinitionDifference({}, Text());
    return DefinitionDifference(Library().Of(*block), WithoutCommentsAfter(Text(), *block));
}

void DefinitionEditor::Save() {
    CheckReadsBack(history_.Present());
    document_->Save(Library().WithReplaced(history_.Present()));
    history_.SetSaved();
}

void DefinitionEditor::SaveAs(const String& name) {
    String definition = Renamed(history_.Present(), name);
    CheckReadsBack(definition);
    // The comments after the old plate stay where they are.
    if (const auto old = Library().Find(plate_))
        definition = WithoutCommentsAfter(definition, *old);
    document_->Save(Library().WithAppended(definition));
    plate_ = name;
    history_.Begin(definition);
}

void DefinitionEditor::Reload() {
    document_->Reload();
    history_.ForgetSaved();
    const auto block = Library().Find(plate_);
    if (block && EditedText(Library(), plate_) == history_.Present()) history_.SetSaved();
}

} // namespace zorvane::viewer
