// Shows a plate as text and lets an operator walk and select in it: a host without a window.
//
//   plate_in_a_terminal LIBRARY PLATE < commands
//
// Commands are left, right, up, down, "click ROW COLUMN" (from 1), define and quit.

#include "TextCanvas.h"

#include <control/InputRouter.h>
#include <control/Plate.h>
#include <drawing/PlatePainter.h>
#include <platform/InvertingOverlay.h>
#include <runtime/RuntimeError.h>

#include <iostream>
#include <map>
#include <sstream>
#include <utility>

using namespace zorvane;

namespace {

/// What the control asks of its host: a size, repaints, and answers that a terminal does not have.
class TerminalSite final : public HostSite {
  public:
    void Repaint(const Rect&) override { repaint = true; }
    Single Width() const override { return width_; }
    Single Height() const override { return height_; }
    void Resize(Single width, Single height) override {
        width_ = width;
        height_ = height;
    }
    DrawingContext& Drawing() override { return overlay_; }
    DrawingContext::Handle PlateWindow() const override { return 1; }
    String Ask(const Question&) override { return {}; }
    Integer Choose(const std::vector<MenuEntry>&) override { return -1; }

    bool repaint = true;

  private:
    Single width_ = 9600;
    Single height_ = 6800;
    InvertingOverlay overlay_; // takes the outlines of drags, which a terminal does not show
};

/// Says what the operator did.
class Narrator final : public PlateObserver {
  public:
    explicit Narrator(const Plate& plate) : plate_(plate) {}
    void CurrentWellChanged(Integer well) override {
        std::cout << "well " << well << ": " << plate_.Location() << '\n';
    }

  private:
    const Plate& plate_;
};

/// Reports failures of the control instead of ending the program.
class Input final : public InputRouter::Host {
  public:
    Boolean Attempt(const std::function<void()>& call) override {
        try {
            call();
        } catch (const RuntimeError& error) {
            std::cout << "error " << error.Number() << ": " << error.Description() << '\n';
        }
        return true; // no call ends this host
    }
};

void Click(const Plate& plate, InputRouter& router, int row, int column) {
    const Integer well = static_cast<Integer>((row - 1) * plate.Cols + column - 1);
    if (row < 1 || column < 1 || row > plate.Rows || column > plate.Cols) return;
    const Rect frame = plate.Elements().fraPlate.box;
    const Rect box =
        plate.Elements().WellBox(static_cast<std::size_t>(well)).Moved(frame.left, frame.top);
    const Single x = box.left + box.width / 2;
    const Single y = box.top + box.height / 2;
    router.Press(1, 0, x, y);
    router.Release(1, 0, 0, x, y);
}

void Show(const Plate& plate, TerminalSite& site) {
    if (!std::exchange(site.repaint, false)) return;
    TextCanvas canvas({0, 0, site.Width(), site.Height()}, 100);
    PaintControl(plate.Elements(), SystemPalette(), canvas, Details::Native);
    std::cout << canvas.Text();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: plate_in_a_terminal LIBRARY PLATE\n";
        return 2;
    }
    TerminalSite site;
    Plate plate(site);
    Narrator narrator(plate);
    plate.AddObserver(narrator);
    if (!plate.SetPlate(argv[2], argv[1])) return 1;
    plate.DrawingScale(plate.DrawingScale()); // the frame takes the fitted size at the next layout
    plate.MouseEnabled(true);
    plate.SetWell(0, 0);
    Show(plate, site);

    const std::map<std::string, Integer> keys{
        {"left", 37}, {"up", 38}, {"right", 39}, {"down", 40}};
    Input input;
    InputRouter router(plate, input);
    for (std::string line; std::getline(std::cin, line) && line != "quit";) {
        std::istringstream words(line);
        std::string command;
        int row = 0;
        int column = 0;
        words >> command >> row >> column;
        if (const auto key = keys.find(command); key != keys.end())
            router.KeyDown(key->second, 0, 0);
        else if (command == "click")
            Click(plate, router, row, column);
        else if (command == "define")
            input.Attempt([&] { plate.IsDefined(plate.CurrentWell(), true); });
        Show(plate, site);
    }
}
