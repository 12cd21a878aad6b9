#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/texts/Catalogue.h"

// In a file of its own, so that a program that does not call it does not carry the catalogues.

/// Outside every namespace, as Qt asks for.
static void MakeCataloguesKnown() {
#ifdef ZORVANE_HAS_CATALOGUES
    Q_INIT_RESOURCE(zorvane);
#endif
}

namespace zorvane {

bool PlateWidget::installTranslation(const QLocale& locale) {
    MakeCataloguesKnown();
    return InstallCatalogue(QStringLiteral("zorvane"), QStringLiteral(":/zorvane/translations"),
                            locale);
}

} // namespace zorvane
