#include "platform/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace platform {

bool installTranslators(const QLocale& locale)
{
    auto* own = new QTranslator(qApp);
    if (!own->load(locale, QStringLiteral("frostel32"), QStringLiteral("_"),
                   QStringLiteral(":/i18n"))) {
        delete own;
        return false;
    }
    QCoreApplication::installTranslator(own);
    // Qt's own texts where the system has them; without, its buttons stay English.
    auto* qt = new QTranslator(qApp);
    if (qt->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    else delete qt;
    return true;
}

bool isGerman(const QLocale& locale) { return locale.language() == QLocale::German; }

} // namespace platform
