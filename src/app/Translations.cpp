#include "app/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace quillet {

namespace {

QString translatorName()
{
    return QStringLiteral("texts");
}

void install(const QLocale &locale, const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(locale, name, QStringLiteral("_"), folder))
        return;
    translator->setObjectName(translatorName());
    translator->setParent(qApp);
    QCoreApplication::installTranslator(translator.release());
}

} // namespace

void installTranslations(const QString &language)
{
    // A translator that is deleted takes itself out of the application object.
    qDeleteAll(qApp->findChildren<QTranslator *>(translatorName(), Qt::FindDirectChildrenOnly));
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    const QString texts = QStringLiteral(":/i18n");
    // Texts are looked for in the last one first.
    install(QLocale(QLocale::English), QStringLiteral("quillet"), texts);
    install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(locale, QStringLiteral("quillet"), texts);
}

} // namespace quillet
