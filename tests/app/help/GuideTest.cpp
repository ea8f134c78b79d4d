#include "testing/TestMain.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSet>
#include <QTest>
#include <QUrl>
#include <QXmlStreamReader>

#include <map>

namespace {

struct Element
{
    QString name;
    QXmlStreamAttributes attributes;
};

struct Page
{
    QList<Element> elements;
    QString problem; ///< why it is not well-formed; empty when it is
};

/// A link or source that a page names, and what it leads to.
struct Reference
{
    QString page;
    QString address;
};

Page readPage(const QString &path)
{
    Page page;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        page.problem = file.errorString();
        return page;
    }
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement())
            page.elements.append({xml.name().toString(), xml.attributes()});
    }
    if (xml.hasError())
        page.problem = QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
    return page;
}

QString described(const Reference &reference)
{
    return reference.page + QLatin1String(": ") + reference.address;
}

} // namespace

/// Reads the pages of the user guide as XML, which a page that a browser merely forgives is not.
class GuideTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_folder.exists());
        for (const QString &name : m_folder.entryList({QStringLiteral("*.html")}, QDir::Files)) {
            const Page page = readPage(m_folder.filePath(name));
            QVERIFY2(page.problem.isEmpty(), qPrintable(name + u' ' + page.problem));
            m_pages.emplace(name, page);
        }
        QVERIFY(m_pages.contains(QStringLiteral("index.html")));
        QVERIFY(m_pages.size() > 10);
    }

    void leadsSomewhere()
    {
        int checked = 0;
        for (const Reference &reference : references()) {
            const QUrl url(reference.address);
            const QString target = url.path().isEmpty() ? reference.page : url.path();
            QVERIFY2(QFileInfo(m_folder.filePath(target)).isFile(),
                     qPrintable(described(reference)));
            if (url.hasFragment())
                QVERIFY2(ids(target).contains(url.fragment()), qPrintable(described(reference)));
            ++checked;
        }
        QVERIFY(checked > 0);
    }

    void staysInItsFolder()
    {
        for (const Reference &reference : references()) {
            const QUrl url(reference.address);
            const QString text = described(reference);
            QVERIFY2(url.isValid() && url.isRelative() && url.host().isEmpty(), qPrintable(text));
            const QString inside = QDir::cleanPath(url.path());
            QVERIFY2(!inside.startsWith(QLatin1String("..")) && !inside.startsWith(u'/'),
                     qPrintable(text));
        }
        QFile styles(m_folder.filePath(QStringLiteral("guide.css")));
        QVERIFY(styles.open(QIODevice::ReadOnly));
        const QByteArray rules = styles.readAll();
        QVERIFY(!rules.isEmpty());
        QVERIFY(!rules.contains("@import"));
        QVERIFY(!rules.contains("url("));
    }

    void runsNoScript()
    {
        const QSet<QString> refused{QStringLiteral("script"), QStringLiteral("iframe"),
                                    QStringLiteral("object"), QStringLiteral("embed"),
                                    QStringLiteral("base"),   QStringLiteral("form")};
        for (const auto &[name, page] : m_pages) {
            for (const Element &element : page.elements) {
                QVERIFY2(!refused.contains(element.name.toLower()),
                         qPrintable(name + u' ' + element.name));
                for (const QXmlStreamAttribute &attribute : element.attributes) {
                    const bool isHandler =
                        attribute.name().startsWith(QLatin1String("on"), Qt::CaseInsensitive);
                    QVERIFY2(!isHandler, qPrintable(name + u' ' + attribute.name().toString()));
                }
            }
        }
    }

    void reachesEveryPageFromEveryPage()
    {
        for (const auto &[name, page] : m_pages) {
            QSet<QString> reached;
            QStringList current;
            for (const Element &element : page.elements) {
                if (element.name != QLatin1String("a"))
                    continue;
                const QString target = element.attributes.value(QLatin1String("href")).toString();
                reached.insert(target);
                if (element.attributes.hasAttribute(QLatin1String("aria-current")))
                    current.append(target);
            }
            for (const auto &other : m_pages)
                QVERIFY2(reached.contains(other.first),
                         qPrintable(name + QLatin1String(" -> ") + other.first));
            QCOMPARE(current, QStringList{name});
        }
    }

    void saysWhatItIs()
    {
        for (const auto &[name, page] : m_pages) {
            QCOMPARE(page.elements.constFirst().name, QStringLiteral("html"));
            QCOMPARE(page.elements.constFirst().attributes.value(QLatin1String("lang")).toString(),
                     QStringLiteral("en"));
            QCOMPARE(count(page, QStringLiteral("h1")), 1);
            QCOMPARE(count(page, QStringLiteral("title")), 1);
            QSet<QString> seen;
            bool hasViewport = false;
            for (const Element &element : page.elements) {
                const QString id = element.attributes.value(QLatin1String("id")).toString();
                QVERIFY2(id.isEmpty() || !seen.contains(id), qPrintable(name + u'#' + id));
                seen.insert(id);
                hasViewport |=
                    element.name == QLatin1String("meta") &&
                    element.attributes.value(QLatin1String("name")) == QLatin1String("viewport");
            }
            QVERIFY2(hasViewport, qPrintable(name));
        }
    }

    void describesEveryPicture()
    {
        for (const auto &[name, page] : m_pages) {
            for (const Element &element : page.elements) {
                if (element.name != QLatin1String("img"))
                    continue;
                const QString source = element.attributes.value(QLatin1String("src")).toString();
                const QString what = name + u' ' + source;
                QVERIFY2(element.attributes.hasAttribute(QLatin1String("alt")), qPrintable(what));
                // Only the icon beside the guide's name says nothing of its own.
                const bool isDecoration = source.endsWith(QLatin1String(".svg"));
                const bool isEmpty =
                    element.attributes.value(QLatin1String("alt")).trimmed().isEmpty();
                QVERIFY2(isEmpty == isDecoration, qPrintable(what));
            }
        }
    }

    void usesEveryFile()
    {
        QSet<QString> used;
        for (const Reference &reference : references())
            used.insert(QDir::cleanPath(QUrl(reference.address).path()));
        for (const auto &page : m_pages)
            used.insert(page.first);
        QDirIterator files(m_folder.path(), QDir::Files, QDirIterator::Subdirectories);
        int found = 0;
        while (files.hasNext()) {
            const QString file = m_folder.relativeFilePath(files.next());
            QVERIFY2(used.contains(file), qPrintable(file));
            ++found;
        }
        QVERIFY(found > int(m_pages.size()));
    }

    void hasADarkVariantOfEveryPicture()
    {
        for (const auto &[name, page] : m_pages) {
            for (qsizetype i = 0; i < page.elements.size(); ++i) {
                const QXmlStreamAttributes &attributes = page.elements[i].attributes;
                QString source = attributes.value(QLatin1String("src")).toString();
                if (!source.endsWith(QLatin1String(".png")))
                    continue;
                QVERIFY2(i > 0 && page.elements[i - 1].name == QLatin1String("source"),
                         qPrintable(name + u' ' + source));
                const QXmlStreamAttributes &dark = page.elements[i - 1].attributes;
                QCOMPARE(dark.value(QLatin1String("media")).toString(),
                         QStringLiteral("(prefers-color-scheme: dark)"));
                source.insert(source.size() - 4, QLatin1String("-dark"));
                QCOMPARE(dark.value(QLatin1String("srcset")).toString(), source);
            }
        }
    }

private:
    [[nodiscard]] QList<Reference> references() const
    {
        QList<Reference> all;
        for (const auto &[name, page] : m_pages) {
            for (const Element &element : page.elements) {
                for (const char *attribute : {"href", "src", "srcset", "poster", "data"}) {
                    const QLatin1String key(attribute);
                    if (element.attributes.hasAttribute(key))
                        all.append({name, element.attributes.value(key).toString()});
                }
            }
        }
        return all;
    }

    [[nodiscard]] QSet<QString> ids(const QString &page) const
    {
        QSet<QString> found;
        const auto known = m_pages.find(page);
        if (known == m_pages.end())
            return found;
        for (const Element &element : known->second.elements)
            found.insert(element.attributes.value(QLatin1String("id")).toString());
        return found;
    }

    static int count(const Page &page, const QString &name)
    {
        int found = 0;
        for (const Element &element : page.elements)
            found += element.name == name ? 1 : 0;
        return found;
    }

    const QDir m_folder{QStringLiteral(QUILLET_GUIDE)};
    std::map<QString, Page> m_pages;
};

QUILLET_TEST(GuideTest)
#include "GuideTest.moc"
