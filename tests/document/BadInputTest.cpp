#include "ListText.h"

#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QRandomGenerator>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

/// Files that are no channel lists or only half of one: nothing in them stops the program.
class BadInputTest : public QObject
{
    Q_OBJECT

private slots:
    void emptyFile()
    {
        TLLDocument document;
        Error error;
        QVERIFY(!document.readFromData({}, TLLDocument::typeName(), error) && error.isEmpty());
        QVERIFY(written(document).isEmpty());
    }

    void noStations_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QByteArray random(1 << 20, '\0'), wide;
        QRandomGenerator generator(20240305);
        for (char &byte : random)
            byte = static_cast<char>(generator.generate());
        for (const char byte : makeTLL({}, {makeStation(1, u"A"_s)}).toUtf8())
            wide.append(byte).append('\0');
        for (const char first : {'\x00', '<', '\xEF', '\xFE', '\xFF'})
            QTest::addRow("random, first %02x", static_cast<uchar>(first)) << first + random;
        QTest::newRow("nulls") << QByteArray(4096, '\0');
        QTest::newRow("one byte") << "\xFF"_ba;
        QTest::newRow("only a mark") << "\xEF\xBB\xBF"_ba;
        QTest::newRow("UTF-16 without a mark") << wide;
        QTest::newRow("big-endian UTF-16") << QByteArray("\xFE\xFF\0", 3) + wide.chopped(1);
        QTest::newRow("text") << "<ITEM> & so on"_ba;
    }

    void noStations()
    {
        QFETCH(const QByteArray, bytes);
        TLLDocument document;
        QVERIFY(read(document, bytes) && document.list().parseError);
        QCOMPARE(listText(document), QStringList());
        QCOMPARE(document.modelName(), std::nullopt);
        QCOMPARE(written(document), QByteArray());
    }

    void cutSample_data()
    {
        QTest::addColumn<QByteArray>("whole");
        for (const char *name : {"cable.tll", "satellite.tll", "antenna.tll"})
            QTest::newRow(name) << readSample(QString::fromLatin1(name));
    }

    void cutSample()
    {
        QFETCH(const QByteArray, whole);
        // A cut station without a single field is as good as none.
        const auto stations = [](const TLLDocument &document) {
            QStringList text = listText(document);
            text.removeAll(u"Radio3 9999 "_s);
            return text;
        };
        int readable = 0;
        for (qsizetype size = 997; size < whole.size(); size += 997) {
            const QByteArray cut = whole.first(size);
            TLLDocument document, again;
            const bool isReadable = read(document, cut);
            QVERIFY(document.list().parseError);
            QCOMPARE(listText(document).size(), cut.count("<ITEM"));
            if (!isReadable) {
                // The cut station has lost its source, which makes it analogue, and the empty
                // analogue section has its first ITEM too far away.
                QCOMPARE(document.analogStations(), 1);
                continue;
            }
            ++readable;
            QCOMPARE(read(again, written(document)), !listText(document).isEmpty());
            if (!listText(document).isEmpty())
                QCOMPARE(stations(again), stations(document));
        }
        QVERIFY(readable > whole.size() / 997 / 3);
    }

    void oddFields()
    {
        const QString huge = u"99999999999999999999999"_s;
        const auto item = [](const QString &number, const QString &source, const QString &type) {
            return Item{{u"prNum"_s, number}, {u"sourceIndex"_s, source}, {u"serviceType"_s, type}};
        };
        TLLDocument document;
        QVERIFY(read(document, makeTLL({}, {item(huge, u"3"_s, u"1"_s), item(u"1"_s, huge, huge),
                                            item(u"-5"_s, u"3"_s, u"1"_s),
                                            item(u"<x>1</x>"_s, u"7"_s, u"25"_s)})));
        // The lower 14 bits of -5 are 16379; a missing number is 9999.
        QCOMPARE(listText(document),
                 (QStringList{u"TV0 9999 "_s, u"TV0 -5 "_s, u"TV1 9999 "_s, u"Radio3 1 "_s}));
        QVERIFY(written(document).contains(huge.toLatin1())); // it stays as it was read
    }
};

QUILLET_TEST(BadInputTest)

#include "BadInputTest.moc"
