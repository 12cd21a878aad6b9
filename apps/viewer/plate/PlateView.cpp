#include "apps/viewer/plate/PlateView.h"

#include "apps/viewer/PlateSession.h"
#include "apps/viewer/plate/CurrentWellMark.h"
#include "apps/viewer/plate/VolumeLegend.h"
#include "apps/viewer/plate/WellKeys.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace zorvane::viewer {

PlateView::PlateView(QWidget* parent)
    : QStackedWidget(parent), scroll_(new QScrollArea), plate_(new PlateWidget),
      page_(new QWidget) {
    plate_->setAccessibleName(tr("Plate"));
    plate_->setRefitOnResize(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setWidget(plate_);
    SetFitted(true);

    auto* layout = new QVBoxLayout(page_);
    layout->addWidget(scroll_, 1);
    addWidget(MakeStartPage());
    addWidget(page_);
}

QWidget* PlateView::MakeStartPage() {
    auto* hint = new QLabel(tr("Open a plate library, or drop one here."));
    hint->setAlignment(Qt::AlignCenter);
    auto* open = new QPushButton(tr("&Open Library…"));
    open->setMinimumHeight(2 * open->sizeHint().height());
    connect(open, &QPushButton::clicked, this, &PlateView::openAsked);

    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setSpacing(16);
    layout->addStretch(1);
    layout->addWidget(hint);
    layout->addWidget(open, 0, Qt::AlignHCenter);
    layout->addStretch(1);
    return page;
}

void PlateView::SetSession(PlateSession& session) {
    page_->layout()->addWidget(new VolumeLegend(session));
    new CurrentWellMark(session);
    new WellKeys(session);
    connect(&session, &PlateSession::opened, this, [this] { setCurrentWidget(page_); });
}

void PlateView::SetFitted(bool on) { scroll_->setWidgetResizable(on); }

} // namespace zorvane::viewer
