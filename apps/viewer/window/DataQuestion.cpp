#include "apps/viewer/window/DataQuestion.h"

#include "apps/viewer/PlateSession.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace zorvane::viewer {

namespace {

struct DataQuestion {
    Q_DECLARE_TR_FUNCTIONS(DataQuestion)
};

} // namespace

bool MayLeaveData(PlateSession& session, QWidget& window) {
    const QStringList plates = session.PlatesNotInFile();
    if (plates.isEmpty()) return true;
    QMessageBox box(QMessageBox::Question, DataQuestion::tr("Plate Viewer"),
                    DataQuestion::tr("No file holds the data of the wells of: %1")
                        .arg(plates.join(QStringLiteral(", "))),
                    QMessageBox::Discard | QMessageBox::Cancel, &window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        DataQuestion::tr("Export Well Data writes that of the plate that is shown to a file."));
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Discard;
}

} // namespace zorvane::viewer
