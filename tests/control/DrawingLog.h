#pragma once

#include "platform/HostSite.h"

#include <string>
#include <utility>
#include <vector>

namespace zorvane {

using Lines = std::vector<String>;

/// Writes every drawing call down as a line. Pens are numbered from 50, contexts are 100 plus the
/// window.
class DrawingLog : public DrawingContext {
  public:
    Handle GetDC(Handle window) override {
        Log("GetDC", {window});
        return 100 + window;
    }
    void ReleaseDC(Handle window, Handle context) override { Log("ReleaseDC", {window, context}); }
    Handle GetCurrentObject(Handle context, Long kind) override {
        Log("GetCurrentObject", {context, kind});
        return 7;
    }
    Handle SelectObject(Handle context, Handle object) override {
        Log("SelectObject", {context, object});
        return 7;
    }
    Handle CreatePen(Long style, Long width, Long color) override {
        Log("CreatePen", {style, width, color});
        return nextPen_++;
    }
    void DeleteObject(Handle object) override { Log("DeleteObject", {object}); }
    void SetROP2(Handle context, Long mode) override { Log("SetROP2", {context, mode}); }
    void Rectangle(Handle context, Long left, Long top, Long right, Long bottom) override {
        Log("Rectangle", {context, left, top, right, bottom});
    }
    void Ellipse(Handle context, Long left, Long top, Long right, Long bottom) override {
        Log("Ellipse", {context, left, top, right, bottom});
    }

    /// The lines since the last call.
    std::vector<String> Take() { return std::exchange(lines_, {}); }

  private:
    void Log(String call, std::initializer_list<Long> arguments) {
        for (const Long each : arguments)
            call += " " + std::to_string(each);
        lines_.push_back(std::move(call));
    }

    std::vector<String> lines_;
    Handle nextPen_ = 50;
};

/// A host that keeps the drawing calls and nothing else.
class DrawingSite : public HostSite {
  public:
    void Repaint(const Rect& /*area*/) override {}
    Single Width() const override { return 6600; }
    Single Height() const override { return 4800; }
    void Resize(Single /*width*/, Single /*height*/) override {}
    DrawingContext& Drawing() override { return drawn; }
    DrawingContext::Handle PlateWindow() const override { return 3; }

    DrawingLog drawn;
};

} // namespace zorvane
