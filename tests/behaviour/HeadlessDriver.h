#pragma once

#include "behaviour/HostDriver.h"
#include "behaviour/Snapshot.h"
#include "control/InputRouter.h"
#include "platform/memory/MemorySite.h"
#include "runtime/NumberText.h"

#include <utility>

namespace zorvane {

/// A host without a window.
class HeadlessDriver final : public HostDriver, private InputRouter::Host {
  public:
    Plate& Control() override { return plate_; }

    void Press(Integer button, Integer shift, Single x, Single y) override {
        router_.Press(button, shift, Left() + x, Top() + y);
    }
    void DoubleClick(Integer button, Integer shift, Single x, Single y) override {
        router_.DoubleClick(button, shift, Left() + x, Top() + y);
    }
    void Move(Integer buttons, Integer shift, Single x, Single y) override {
        router_.Move(buttons, shift, Left() + x, Top() + y);
    }
    void Release(Integer button, Integer shift, Single x, Single y) override {
        router_.Release(button, 0, shift, Left() + x, Top() + y);
    }
    void KeyDown(Integer keyCode, Integer character, Integer shift) override {
        router_.KeyDown(keyCode, character, shift);
    }
    void KeyUp(Integer keyCode, Integer shift) override { router_.KeyUp(keyCode, shift); }

    void PressDataButton() override { plate_.DataButtonPressed(); }
    void ChoosePage(Integer position) override { plate_.PageChosen(position); }
    void TypeComment(const String& text) override { plate_.CommentTyped(text + "\r\n"); }
    void TypeRow(Integer row, const String& text) override { plate_.RowTyped(row, text); }
    void ChooseStyle(Integer position) override { plate_.StyleChosen(position); }
    void PressApply() override {
        if (plate_.Elements().panel.cmdApply.enabled) plate_.ApplyPressed();
    }
    void ChooseCommand(Integer entry, const String& answer) override {
        site_.choices = {entry};
        Expect(answer);
        plate_.MenuPressed();
    }
    void RunCommand(SubWellCommand command, const String& answer) override {
        Expect(answer);
        plate_.MenuChosen(command);
    }

    std::map<String, String> Window() override {
        String asked;
        for (const Question& question : site_.questions) {
            asked += "[" + question.title + "] " + OnOneLine(question.prompt) + " (" +
                     question.preset + ")";
        }
        return {{"outline", site_.overlay.Any() ? "shown" : ""},
                {"tooltip", site_.toolTips.empty() ? String() : site_.toolTips.back()},
                {"pointer", std::to_string(static_cast<int>(plate_.Elements().platePointer))},
                {"focus", std::exchange(site_.focusRequests, 0) > 0             ? "taken"
                          : std::exchange(site_.dataButtonFocusRequests, 0) > 0 ? "data button"
                                                                                : ""},
                {"size", SingleText(site_.Width()) + "x" + SingleText(site_.Height())},
                {"asked", asked}};
    }

  private:
    void Expect(const String& answer) {
        site_.answers = {answer};
        site_.questions.clear();
    }
    Boolean Attempt(const std::function<void()>& call) override {
        call();
        return true;
    }
    Single Left() const { return plate_.Elements().fraPlate.box.left; }
    Single Top() const { return plate_.Elements().fraPlate.box.top; }

    MemorySite site_;
    Plate plate_{site_};
    InputRouter router_{plate_, *this};
};

} // namespace zorvane
