#include "app/Translations.h"

#include <QCoreApplication>
#include <QTranslator>

namespace quillet {

void installTranslations()
{
    auto *english = new QTranslator(qApp);
    if (english->load(QStringLiteral(":/i18n/quillet_en.qm")))
        QCoreApplication::installTranslator(english);
}

} // namespace quillet
