#include "apps/viewer/WellHistory.h"

#include <QUndoCommand>

#include <utility>

namespace zorvane::viewer {

namespace {

constexpr int kNeverMerged = -1;

/// One step. It has been done by the time that it is made.
class Step final : public QUndoCommand {
  public:
    Step(const QString& name, WellChange change, int period, const WellHistory::Show& show)
        : QUndoCommand(name), change_(std::move(change)), period_(period), show_(show) {}

    int id() const override { return period_; }
    void undo() override { show_(change_.before); }
    void redo() override {
        if (std::exchange(isNew_, false)) return;
        show_(change_.after);
    }
    bool mergeWith(const QUndoCommand* next) override {
        // Only steps have this id.
        if (!change_.Append(static_cast<const Step*>(next)->change_)) return false;
        setObsolete(change_.IsEmpty());
        return true;
    }

  private:
    WellChange change_;
    int period_;
    const WellHistory::Show& show_;
    bool isNew_ = true;
};

} // namespace

WellHistory::WellHistory(Show show) : show_(std::move(show)) {
    for (const auto happened : {&QUndoGroup::canUndoChanged, &QUndoGroup::canRedoChanged})
        connect(&stacks_, happened, this, &WellHistory::changed);
    for (const auto happened : {&QUndoGroup::undoTextChanged, &QUndoGroup::redoTextChanged})
        connect(&stacks_, happened, this, &WellHistory::changed);
}

// The stacks leave the group one by one, of which nobody is to hear any more.
WellHistory::~WellHistory() { stacks_.disconnect(this); }

void WellHistory::SwitchTo(const QString& plate, Integer wells) {
    Stack& stack = plates_[plate];
    if (stack.wells != wells) stack.steps.clear();
    stack.wells = wells;
    stacks_.addStack(&stack.steps);
    stacks_.setActiveStack(&stack.steps);
    EndStep();
}

void WellHistory::Clear() {
    plates_.clear();
    emit changed();
}

void WellHistory::Add(const QString& name, WellChange change, const QObject* field) {
    if (change.IsEmpty() || !stacks_.activeStack()) return;
    if (!field || field != std::exchange(lastField_, field)) EndStep();
    const int period = field ? period_ : kNeverMerged;
    stacks_.activeStack()->push(new Step(name, std::move(change), period, show_));
}

void WellHistory::Undo() {
    EndStep();
    stacks_.undo();
}

void WellHistory::Redo() {
    EndStep();
    stacks_.redo();
}

} // namespace zorvane::viewer
