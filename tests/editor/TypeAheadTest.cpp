#include "editor/TypeAhead.h"
#include "testing/TestMain.h"

#include <QTest>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

namespace {

StationList stations(const QStringList &names)
{
    StationList list;
    for (const QString &name : names) {
        const QString number = QString::number(10 * (list.size() + 1));
        list.push_back(
            std::make_shared<LGStation>(Dictionary{{u"prNum"_s, number}, {u"vchName"_s, name}}, 0));
    }
    return list;
}

} // namespace

class TypeAheadTest : public QObject
{
    Q_OBJECT

private slots:
    void leadsToNames_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("current");
        QTest::addColumn<QString>("rows"); // one a letter, a blank for none
        QTest::newRow("a letter") << u"z"_s << -1 << u"1"_s;
        QTest::newRow("behind the current row") << u"z"_s << 1 << u"3"_s;
        QTest::newRow("on from the top") << u"z"_s << 3 << u"1"_s;
        QTest::newRow("letter after letter") << u"zdfn"_s << -1 << u"1113"_s;
        QTest::newRow("one letter again") << u"zZz"_s << -1 << u"131"_s;
        QTest::newRow("accents and case") << u"Äü"_s << 0 << u"44"_s;
        QTest::newRow("codes that are not drawn") << u"sk"_s << 0 << u"55"_s;
        QTest::newRow("a blank") << u"das e"_s << -1 << u"00000"_s;
        QTest::newRow("digits") << u"3s"_s << -1 << u"22"_s;
        QTest::newRow("no such name") << u"zx"_s << -1 << u"1 "_s;
    }
    void leadsToNames()
    {
        QFETCH(QString, typed);
        QFETCH(int, current);
        const StationList list = stations(
            {u"Das Erste"_s, u"ZDF"_s, u"3sat"_s, u"ZDFneo"_s, u"äÜ TV"_s, u"\u0005S\u0086ky"_s});
        TypeAhead ahead;
        QString rows;
        qsizetype row = current;
        for (const QChar letter : typed) {
            const auto found = ahead.type(letter, list, row);
            row = found.value_or(row);
            rows += found ? QString::number(*found) : u" "_s;
        }
        QTEST(rows, "rows");
        list[1]->setStationName(u"Renamed"_s);
        ahead.forget();
        QCOMPARE(ahead.type(u"r"_s, list, 0), 1);
        QVERIFY(!ahead.type(u"e"_s, {}, 0));
    }

    void leadsToNumbers()
    {
        const StationList list = stations({u"a"_s, u"b"_s, u"c"_s});
        const std::pair<QString, std::optional<qsizetype>> rows[] = {
            {u"20"_s, 1}, {u"030"_s, 2}, {u"25"_s, {}},
            {u""_s, {}},  {u"2a"_s, {}}, {u"99999999999999999999"_s, {}}};
        for (const auto &[typed, row] : rows) {
            TypeAhead ahead;
            (void)ahead.type(typed, list, 0);
            QVERIFY2(ahead.rowOfNumber(list) == row, qPrintable(typed));
        }
    }
};

QUILLET_TEST(TypeAheadTest)

#include "TypeAheadTest.moc"
