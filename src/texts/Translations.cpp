#include "texts/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
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

QString textFolder()
{
    return QStringLiteral(":/i18n");
}

/// Of a file of texts.
QString languageOf(const QString &path)
{
    return QFileInfo(path).completeBaseName().section(u'_', 1);
}

/// The last one's texts come first.
QList<QTranslator *> installedTranslators()
{
    return qApp->findChildren<QTranslator *>(translatorName(), Qt::FindDirectChildrenOnly);
}

void install(std::unique_ptr<QTranslator> translator)
{
    translator->setObjectName(translatorName());
    translator->setParent(qApp);
    QCoreApplication::installTranslator(translator.release());
}

void install(const QLocale &locale, const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(locale, name, QStringLiteral("_"), folder))
        install(std::move(translator));
}

} // namespace

QStringList textLanguages()
{
    QStringList languages;
    const QStringList names = QDir(textFolder()).entryList();
    for (const QString &name : names)
        languages.append(languageOf(name));
    return languages;
}

bool hasTexts(const QString &language)
{
    const QLocale::Language known = QLocale(language).language();
    return known != QLocale::C && textLanguages().contains(QLocale::languageToCode(known));
}

QString ownNameOf(const QString &language)
{
    QTranslator texts;
    return texts.load(QLocale(language), QStringLiteral("quillet"), QStringLiteral("_"),
                      textFolder())
               ? texts.translate("", "kLanguageTitle")
               : QString();
}

void installTranslations(const QString &language)
{
    // A translator that is deleted takes itself out of the application object.
    qDeleteAll(installedTranslators());
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    QLocale::setDefault(locale); // by which names are sorted
    // Texts are looked for in the last one first.
    install(QLocale(QLocale::English), QStringLiteral("quillet"), textFolder());
    const QString qtsFolder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    for (const char *catalogue : {"qtbase", "qtwebengine"})
        install(locale, QLatin1String(catalogue), qtsFolder);
    install(locale, QStringLiteral("quillet"), textFolder());
}

QString shownLanguage()
{
    QString language;
    for (const QTranslator *translator : installedTranslators())
        if (translator->filePath().startsWith(textFolder()))
            language = languageOf(translator->filePath());
    return language;
}

void installEnglishTexts()
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(textFolder() + QLatin1String("/quillet_en.qm")))
        install(std::move(translator));
}

} // namespace quillet
