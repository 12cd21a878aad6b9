#include "hosts/qt/texts/Catalogue.h"

#include <QCoreApplication>
#include <QTranslator>

#include <memory>

namespace zorvane {

namespace {

std::unique_ptr<QTranslator> Find(const QString& name, const QString& folder,
                                  const QLocale& locale) {
    auto catalogue = std::make_unique<QTranslator>();
    for (const QString& language : locale.uiLanguages()) {
        if (QLocale(language).language() == QLocale::English) break;
        const QString file = QString(language).replace(QLatin1Char('-'), QLatin1Char('_'));
        // Shortens "de_AT" to "de", too.
        if (catalogue->load(name + QLatin1Char('_') + file, folder)) return catalogue;
    }
    return nullptr;
}

} // namespace

bool InstallCatalogue(const QString& name, const QString& folder, const QLocale& locale) {
    QCoreApplication& program = *QCoreApplication::instance();
    delete program.findChild<QTranslator*>(name);
    auto catalogue = Find(name, folder, locale);
    if (!catalogue) return false;
    catalogue->setObjectName(name);
    catalogue->setParent(&program);
    return QCoreApplication::installTranslator(catalogue.release());
}

} // namespace zorvane
