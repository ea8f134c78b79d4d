#include "TreeText.h"

#include "testing/TestMain.h"
#include "xml/JSON.h"
#include "xml/QuickJSON.h"
#include "xml/StrictJSON.h"

#include <cmath>
#include <limits>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

namespace {

std::optional<Value> parsed(const QByteArray &text)
{
    JSONError error;
    return valueFromJSON(text, error);
}

/// About 200 KB of channels, one a line.
QByteArray longList()
{
    QByteArray text = "{\"channelList\": [\n";
    for (int i = 0; text.size() < 200'000; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += (i > 0 ? ",\n" : "") + ("{\"channelName\": \"S\xC3\xA4nder \\u00e4" + number) +
                "\", \"majorNumber\": " + number + ", \"skipped\": false, \"part\": [1.5e3, null]}";
    }
    return text + "\n], \"end\": {}}";
}

} // namespace

class JSONTest : public QObject
{
    Q_OBJECT

private slots:
    void values_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<Value>("value");
        const auto row = [](const QByteArray &text, const Value &value) {
            QTest::newRow(text.constData()) << text << value;
        };
        using Signed = std::numeric_limits<qint64>;
        using Double = std::numeric_limits<double>;
        row("null", Value());
        row("true", Value(true));
        row("0", Value(qint64(0)));
        row("-9223372036854775808", Value(Signed::min()));
        row("9223372036854775807", Value(Signed::max()));
        row("9223372036854775808", Value(quint64(Signed::max()) + 1));
        row("18446744073709551615", Value(std::numeric_limits<quint64>::max()));
        row("18446744073709551616", Value(std::ldexp(1.0, 64))); // no integer holds it
        row("3.0", Value(3.0));
        row("-0.1", Value(-0.1));
        row("1e30", Value(1e30));
        row("1.7976931348623157e308", Value(Double::max()));
        row("5e-324", Value(Double::denorm_min()));
        row("\"\"", u""_s);
        row("\"\\u0000\\u001f\\\"\\\\\\/\\b\\f\\n\\r\\t\"",
            QString(QChar(u'\0')) + u"\x1F\"\\/\b\f\n\r\t"_s);
        row("\"\\u00e4\\ud83d\\udcfa \xC3\xA4\xF0\x9F\x93\xBA\"", u"ä📺 ä📺"_s);
        row(" [ ] ", Array());
        row("[[], {}, [null, {\"\": [1]}]]",
            Array{Array(), Dictionary(),
                  Array{Value(), Dictionary{{QString(), Array{Value(qint64(1))}}}}});
        row("{\"a\": 1, \"b\": 2, \"a\": 3}", // the later counts
            Dictionary{{u"a"_s, Value(qint64(3))}, {u"b"_s, Value(qint64(2))}});
    }
    void values()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const Value, value);
        const std::optional<Value> read = parsed(text);
        QVERIFY(read);
        QCOMPARE(*read, value);
        const std::optional<QByteArray> written = toJSON(value);
        QVERIFY(written);
        QCOMPARE(parsed(*written), std::optional(value));
        qsizetype unused = 0;
        QByteArray element = '[' + text + ']';
        QCOMPARE(quickValueFromJSON(element, unused), std::optional<Value>(Array{value}));
    }

    void compactAndInOrder()
    {
        const QByteArray text = "{\"z\":1,\"a\":{\"y\":true,\"b\":null},\"__name\":[2,\"x\"],\"\":"
                                "18446744073709551615,\"n\":-1}";
        QCOMPARE(toJSON(*parsed(text)), std::optional(text));
        // A member named again keeps its first place.
        QCOMPARE(toJSON(*parsed("{\"a\":1,\"b\":2,\"a\":3,\"c\":4,\"b\":5}")),
                 std::optional("{\"a\":3,\"b\":5,\"c\":4}"_ba));
    }

    /// Objects with the same members share their keys, never their values.
    void objectsAreApart()
    {
        const QByteArrayList texts{"{\"a\":1,\"b\":2}",
                                   "{\"a\":3,\"b\":4}",
                                   "{\"b\":5,\"a\":6}",
                                   "{\"a\":7}",
                                   "{}",
                                   "{\"a\":8,\"b\\\":\\\"c\":9}",
                                   "{\"a\":8,\"b\":\"c\"}",
                                   "{\"a\":8,\"b\\\\\":9}",
                                   "{\"a\":8,\"b\\\":9}\":9}",
                                   "{\"a\":8,\"b\":9,\"a\":10}",
                                   "{\"a\":11,\"b\":12,\"c\":{\"a\":13,\"b\":14}}",
                                   "{\"a\":{\"a\":15,\"b\":16},\"b\":{\"a\":17,\"b\":18}}"};
        Array alone;
        for (const QByteArray &text : texts)
            alone.append(*parsed(text));
        const std::optional<Value> list = parsed('[' + texts.join(',') + ']');
        QCOMPARE(list, std::optional<Value>(alone));
        Dictionary changed = *list->array()->at(0).dictionary();
        changed.insert(u"b"_s, u"99"_s);
        changed.insert(u"new"_s, u"100"_s);
        QCOMPARE(list, std::optional<Value>(alone));
        QCOMPARE(*alone.at(10).dictionary()->dictionary(u"c")->find(u"b"), Value(qint64(14)));
    }

    void nesting()
    {
        const auto nested = [](int depth, const QByteArray &open, const QByteArray &close) {
            return open.repeated(depth) + close.repeated(depth);
        };
        QVERIFY(parsed(nested(512, "[", "]")));
        QVERIFY(!parsed(nested(513, "[", "]")));
        QVERIFY(parsed("{\"x\":" + nested(511, "[", "]") + "}"));
        QVERIFY(!parsed("{\"x\":" + nested(512, "[", "]") + "}"));
        QVERIFY(!parsed(nested(1'000'000, "[", "")));
        QVERIFY(!parsed(nested(1'000'000, "{\"a\":", "")));
        // Neighbours do not add up.
        QVERIFY(parsed("[" + QByteArray("[[]],").repeated(2000) + "0]"));
        const std::optional<QByteArray> written = toJSON(*parsed(nested(512, "[", "]")));
        QCOMPARE(written, std::optional(nested(512, "[", "]")));
    }

    void broken_data()
    {
        QTest::addColumn<QByteArray>("text");
        // clang-format off
        const char *const rows[] = {
            "", " ", "{", "[1,]", "{\"a\":1,}", "{\"a\"}", "{a:1}", "'a'", "nul", "01", "1 2", "[1]x", "+1",
            "NaN", "1e400", "\"a", "\"\\ud800\"", "\"\\udc00\"", "\"\\ud800x\"", "\"\\x\"", "\"\n\"",
            "\"\xFF\"", "\"\xED\xA0\x80\"", "/**/1"};
        // clang-format on
        for (const char *text : rows)
            QTest::newRow(text) << QByteArray(text);
        QTest::newRow("null behind") << "{}\0{}"_ba;
        QTest::newRow("null inside") << "[1,\0"_ba;
    }
    void broken()
    {
        QFETCH(const QByteArray, text);
        JSONError error;
        QVERIFY(!valueFromJSON(text, error));
        QVERIFY(!error.message.isEmpty() && error.line >= 1);
    }

    void brokenInside_data()
    {
        QTest::addColumn<QByteArray>("text");
        // clang-format off
        const char *const rows[] = {
            "[1 2]", "[1,]", "[,1]", "[1,,2]", "[\"a\":1]", "[\"a\" \"b\"]", "[\"a\"b]", "[1]]", "[1],", "[[1,2]",
            "{\"a\" 1}", "{1:2}", "{\"a\":1 \"b\":2}", "{\"a\":1,,\"b\":2}", "{\"a\":1]", "{\"a\":{\"b\":1}",
            "{:1}", "{\"a\":}", "{\"a\":\"b\":1}", "{\"\\ud800\":1}", "[01]", "[-]", "[1.]", "[.5]", "[1e]", "[1e+]",
            "[1x]", "[0x1]", "[- 1]", "[-01]", "[Infinity]", "[truex]", "[nul]", "[null1]", "[\"\\ud800\\ue000\"]",
            "[\"\\udc00\"]", "[\"\\u12g4\"]", "[\"\\a\"]", "[\"\x01\"]", "[\"\xC0\x80\"]", "[1]\x0B"};
        // clang-format on
        for (const char *text : rows)
            QTest::newRow(text) << QByteArray(text);
        QTest::newRow("null inside") << "[1\0]"_ba;
    }
    /// What both ways of decoding could get to see.
    void brokenInside()
    {
        QFETCH(QByteArray, text);
        JSONError error;
        qsizetype unused = 0;
        QVERIFY(!quickValueFromJSON(text, unused));
        QVERIFY(!strictValueFromJSON(text, error, unused));
    }

    void forms_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<qsizetype>("rewritten");
        const auto row = [](const char *text, qsizetype rewritten) {
            QTest::newRow(text) << QByteArray(text) << rewritten;
        };
        row("[0,-1,18446744073709551615,1.5,-0.0,1e+16,100000.0,5e-324]", 0);
        row("[\"\\u0041\", { } , \"\\/\"]", 0); // text is not meant
        row("[18446744073709551616,-9223372036854775809]", 2);
        row("[-0,1.50,1e5,1E+16,1e16,0.1000000000000000055]", 6);
        row("[1.5,[{\"x\":[-0]}],{\"a\":1,\"b\":2,\"a\":1.0,\"a\":3e0}]", 4);
    }
    void forms()
    {
        QFETCH(QByteArray, text);
        JSONError error;
        qsizetype quick = 0, strict = 0;
        QVERIFY(quickValueFromJSON(text, quick));
        QVERIFY(strictValueFromJSON(text, error, strict));
        QTEST(quick, "rewritten");
        QTEST(strict, "rewritten");
    }

    /// It does not make the others unreadable, and comes back as nothing.
    void numbersBeyondAllDoubles()
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        JSONError error;
        qsizetype rewritten = 0;
        const std::optional<Value> read =
            valueFromJSON("{\"a\":[1E400,-1e400],\"b\":1}", error, &rewritten);
        QCOMPARE(read,
                 std::optional<Value>(Dictionary{{u"a"_s, Array{Value(infinity), Value(-infinity)}},
                                                 {u"b"_s, Value(qint64(1))}}));
        QCOMPARE(rewritten, 2);
        QCOMPARE(toJSON(*read), std::optional("{\"a\":[null,null],\"b\":1}"_ba));
    }

    void tellsWhereItBreaks()
    {
        const QByteArray whole = longList();
        QVERIFY(parsed(whole));
        for (qsizetype at = 500; at < whole.size(); at += 4999) {
            JSONError cut, broken;
            const QByteArray before = whole.first(at);
            QVERIFY(!valueFromJSON(before, cut));
            QVERIFY(!valueFromJSON(before + '\x01' + whole.sliced(at + 1), broken));
            QCOMPARE(cut.line, before.count('\n') + 1);
            QCOMPARE(broken.line, cut.line);
            QCOMPARE(broken.column, at - before.lastIndexOf('\n'));
        }
    }
};

QUILLET_TEST(JSONTest)

#include "JSONTest.moc"
