#include "hosts/qt/panel/PanelPlace.h"

#include "hosts/qt/panel/PanelFrame.h"

#include <algorithm>

namespace zorvane {

namespace {

constexpr int kTitleGap = 3; ///< from the title of a detached panel to its contents

} // namespace

PanelPlace::~PanelPlace() {
    if (!detached_) return;
    detached_->disconnect(this);
    frame_.setParent(&host_);
    delete detached_;
}

void PanelPlace::Detach(bool on) {
    if (on == (detached_ != nullptr)) return;
    if (!on) {
        delete detached_; // brings the frame back
        return;
    }
    detached_ = new DetachedPanel(host_);
    frame_.setParent(detached_);
    connect(detached_, &DetachedPanel::placed, this, &PanelPlace::moved);
    connect(detached_, &DetachedPanel::closed, this, &PanelPlace::closed);
    connect(detached_, &DetachedPanel::going, this, &PanelPlace::BringBack);
    emit moved();
}

void PanelPlace::BringBack() {
    detached_.clear();
    frame_.setParent(&host_);
    frame_.lower(); // leaves room for the data button
    emit moved();
}

void PanelPlace::SetOpen(bool open) {
    if (detached_ && !IsGiven()) detached_->setVisible(open);
}

QSize PanelPlace::Extra(QSize designed) const {
    return detached_ ? (detached_->size() - designed).expandedTo({0, 0}) : QSize(0, 0);
}

QRect PanelPlace::Frame(QRect designed, const QString& title) {
    if (detached_) {
        detached_->Design(designed.size());
        detached_->setWindowTitle(title);
        return detached_->rect();
    }
    designed.setBottom(std::min(designed.bottom(), host_.height() - 1));
    return designed;
}

QRect PanelPlace::View(QRect designed, int frameHeight) const {
    const int bottom = frameHeight - 3;
    if (!detached_) {
        designed.setBottom(std::min(designed.bottom(), bottom));
        return designed;
    }
    designed.setBottom(bottom);
    designed.setTop(PanelFrame::kTitleHeight + kTitleGap); // no data button there
    return designed;
}

} // namespace zorvane
