#include "hosts/qt/widget/PlateWidgetParts.h"

namespace zorvane {

PlateWidget::Parts::Parts(PlateWidget& owner)
    : widget(owner), hosted(std::make_shared<HostedPlate>(owner)), plate(hosted->plate),
      steps(owner, hosted), painter(owner, *hosted, steps),
      input(owner, plate, painter, steps, observer), dataButton(owner), panel(owner, plate, steps),
      sizing(owner, plate, panel, steps), observer(owner, plate) {
    firstFileName = plate.FileName;
    ConnectSite();
    connect(&panel, &PanelMirror::changed, &dataButton, [this] {
        sizing.PanelChanged();
        observer.TellProperties();
    });
    connect(&panel, &PanelMirror::changed, &widget, &PlateWidget::panelChanged);
    connect(&dataButton, &QPushButton::clicked, &dataButton,
            [this] { steps.Run([this] { plate.DataButtonPressed(); }); });
    // The first to hear of it, so that whoever else does asks for the new names.
    connect(&widget, &PlateWidget::plateChanged, &dataButton, [this] { names_.reset(); });
    ShowDataButton();
    dataButton.raise(); // the panel leaves room for it
}

void PlateWidget::Parts::ConnectSite() {
    QtSite& site = hosted->site;
    site.MenuButton(panel.MenuButton());
    connect(&site, &QtSite::repaintAsked, &dataButton,
            [this](const Rect& area) { painter.Repaint(area, input.InGesture()); });
    connect(&site, &QtSite::sizeAsked, &dataButton, [this](QSize size) { sizing.Take(size); });
    connect(&site, &QtSite::dataButtonFocusAsked, &dataButton,
            [this] { dataButton.setFocus(Qt::OtherFocusReason); });
    connect(&site, &QtSite::dataButtonChanged, &dataButton, [this] { ShowDataButton(); });
    connect(&site, &QtSite::panelChanged, &panel, &PanelMirror::Changed);
}

const WellNames& PlateWidget::Parts::Names() {
    if (!names_) names_.emplace(plate);
    return *names_;
}

} // namespace zorvane
