#pragma once

#include "control/PlateEvents.h"
#include "control/Surface.h"
#include "platform/HostSite.h"
#include "runtime/Geometry.h"
#include "runtime/Types.h"

#include <optional>
#include <utility>

namespace zorvane {

/// Stands between the parts of one control and its host. Gathers what an operation changes and
/// hands it to the host at the operation's end, everything at most once. An operation is a call of
/// the host or an input of the operator, whatever it calls inside.
///
/// What is pending is also handed out before the host is asked or told of an event, so that nobody
/// sees a stale picture meanwhile. What the host does while it answers is an operation of its own.
class Notifier final : public HostSite {
  public:
    /// Reads from the surface where things are shown; the well number is that of the current well.
    /// All must outlive this object.
    Notifier(HostSite& site, const Surface& surface, const Integer& currentWell)
        : site_(site), surface_(surface), currentWell_(currentWell) {}

    void AddObserver(PlateObserver& observer) { observers_.Add(observer); }
    void RemoveObserver(PlateObserver& observer) noexcept { observers_.Remove(observer); }

    /// Runs an operation, or a step of one. What a failing one has changed is handed out as well.
    template <class Action>
    void Operate(Action action) {
        ++depth_;
        try {
            action();
        } catch (...) {
            EndOperation();
            throw;
        }
        EndOperation();
    }

    /// Hands out what is pending and calls something that may let the host act.
    template <class Call>
    auto CallOut(Call call) {
        HandOut();
        const Pause pause(depth_);
        return call();
    }

    /// Raises an event of the control.
    template <class Event>
    void Raise(Event event) {
        CallOut([&] { observers_.Raise(event); });
    }

    /// Tells the host everything that is pending, such as before an outline is drawn: a repaint
    /// after it would wipe it.
    void HandOut();

    // What has changed, or is about to.

    void Repaint(const Rect& area) override { pending_.area = Union(pending_.area, area); }
    /// An area in the coordinates of the plate area.
    void RepaintInPlate(const Rect& area);
    /// The whole control, the panel too.
    void RepaintAll() { pending_.everything = pending_.panel = true; }
    void Resize(Single width, Single height) override { pending_.size = {width, height}; }
    void PanelChanged() override;
    void DataButtonChanged() override;
    void SelectionChanged() { pending_.selection = true; }
    void WellDataChanged(Integer first, Integer last);
    void PlateChanged() { pending_.plate = true; }

    // The size that the control has once what is pending is handed out.

    Single Width() const override { return pending_.size ? pending_.size->first : site_.Width(); }
    Single Height() const override {
        return pending_.size ? pending_.size->second : site_.Height();
    }

    // Requests that go to the host at once.

    DrawingContext& Drawing() override { return site_.Drawing(); }
    DrawingContext::Handle PlateWindow() const override { return site_.PlateWindow(); }
    void TakeFocus() override { site_.TakeFocus(); }
    void FocusDataButton() override { site_.FocusDataButton(); }
    void SetToolTip(const String& text) override { site_.SetToolTip(text); }
    void SetPointer(PointerShape shape) override { site_.SetPointer(shape); }
    String Ask(const Question& question) override {
        return CallOut([&] { return site_.Ask(question); });
    }
    Integer Choose(const std::vector<MenuEntry>& entries) override {
        return CallOut([&] { return site_.Choose(entries); });
    }

  private:
    struct Pending {
        Rect area;
        std::optional<std::pair<Single, Single>> size;
        Boolean everything = false;
        Boolean panel = false;
        Boolean dataButton = false;
        Boolean plate = false;
        Boolean selection = false;
        std::optional<std::pair<Integer, Integer>> wells;
    };

    /// While it lives, calls of the host are operations of their own.
    class Pause {
      public:
        explicit Pause(int& depth) : depth_(depth), before_(std::exchange(depth, 0)) {}
        ~Pause() { depth_ = before_; }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

      private:
        int& depth_;
        int before_;
    };

    void EndOperation();
    void TellSite(const Pending& changes);
    void TellObservers(const Pending& changes);

    HostSite& site_;
    const Surface& surface_;
    PlateEvents observers_;
    const Integer& currentWell_;
    Integer toldWell_ = 0;
    Pending pending_;
    int depth_ = 0;
};

} // namespace zorvane
