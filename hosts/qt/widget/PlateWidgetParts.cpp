#include "hosts/qt/widget/PlateWidgetParts.h"

#include "hosts/qt/widget/QuietLoad.h"

#include <QPointer>

namespace zorvane {

PlateWidget::Parts::Parts(PlateWidget& owner)
    : widget(owner), hosted(std::make_shared<HostedPlate>(owner)), plate(hosted->plate),
      steps(owner, hosted), painter(owner, *hosted, steps),
      input(owner, plate, painter, steps, observer), dataButton(owner), panel(owner, plate, steps),
      sizing(owner, plate, panel, steps), names(plate), observer(owner, plate) {
    firstFileName = plate.FileName;
    ConnectSite();
    connect(&panel, &PanelMirror::changed, &dataButton, [this] {
        sizing.PanelChanged();
        observer.TellProperties();
    });
    connect(&panel, &PanelMirror::changed, &widget, &PlateWidget::panelChanged);
    connect(&widget, &PlateWidget::plateChanged, &dataButton, [this] { sizing.PlateChanged(); });
    connect(&dataButton, &QPushButton::clicked, &dataButton,
            [this] { steps.Run([this] { plate.DataButtonPressed(); }); });
    connect(&panel.Place(), &PanelPlace::moved, &dataButton, [this] { ShowDataButton(); });
    NameControls();
    ShowDataButton();
    dataButton.raise(); // the panel leaves room for it
}

void PlateWidget::Parts::NameControls() {
    dataButton.setAccessibleName(tr("Details"));
    panel.NameControls();
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

bool PlateWidget::Parts::Load(const std::function<bool()>& step, QString* why) {
    const QPointer<PlateWidget> shown(&widget); // a slot may destroy it
    bool loaded = false;
    if (!sizing.AboutToLoad()) return false;
    if (why || widget.ReportsFailures()) {
        const auto failure = QuietLoad::Run(step);
        loaded = !failure;
        if (why) *why = failure ? failure->reason : QString();
        if (shown && failure && !why)
            emit shown->failed(failure->number, failure->source, failure->reason);
    } else {
        steps.Run([&] { loaded = step(); });
    }
    if (shown) observer.TellProperties();
    return loaded;
}

// Where the host has given the panel a place, there is nothing to open.
void PlateWidget::Parts::ShowDataButton() {
    dataButton.Show(plate.Elements().cmdData);
    if (panel.Place().IsGiven()) dataButton.hide();
}

} // namespace zorvane
