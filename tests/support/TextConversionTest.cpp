#include "support/TextConversion.h"
#include "support/LenientNumber.h"
#include "support/ShortText.h"
#include "support/Utf8Builder.h"
#include "testing/TestMain.h"

#include <QTest>

#include <limits>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

class TextConversionTest : public QObject
{
    Q_OBJECT

private slots:
    void decodes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::addColumn<TextEncoding>("encoding");
        const auto utf8 = TextEncoding::Utf8, utf16 = TextEncoding::Utf16;
        const auto latin1 = TextEncoding::Latin1;
        // clang-format off
        QTest::newRow("UTF-8") << "a\r\n\xC3\xA4\xF0\x9F\x93\xBA"_ba << u"a\r\nä\U0001F4FA"_s << utf8;
        QTest::newRow("UTF-8 mark") << "\xEF\xBB\xBF<a/>"_ba << u"\uFEFF<a/>"_s << utf8;
        QTest::newRow("inner null") << "a\0b"_ba << u"a\0b"_s << utf8;
        QTest::newRow("one bad byte") << "\xC3\xA4\xE4"_ba << u"\u00C3\u00A4\u00E4"_s << latin1;
        QTest::newRow("surrogate") << "\xED\xA0\x80"_ba << u"\u00ED\u00A0\u0080"_s << latin1;
        QTest::newRow("cut end") << "ab\xE2\x82"_ba << u"ab\u00E2\u0082"_s << latin1;
        QTest::newRow("UTF-16 mark") << "\xFF\xFE<\0\xE4\0"_ba << u"<ä"_s << utf16;
        QTest::newRow("two UTF-16 marks") << "\xFF\xFE\xFF\xFE<\0"_ba << u"\uFEFF<"_s << utf16;
        QTest::newRow("null first") << "\0A"_ba << u"\u4100"_s << utf16;
        QTest::newRow("odd UTF-16") << "\xFF\xFE<"_ba << u"\u00FF\u00FE<"_s << latin1;
        QTest::newRow("big-endian mark") << "\xFE\xFF\0<"_ba << u"\u00FE\u00FF\0<"_s << latin1;
        // clang-format on
    }

    void decodes()
    {
        QFETCH(const QByteArray, bytes);
        const auto decoded = decodeText(bytes);
        QVERIFY(decoded && !decodeText(QByteArray()));
        QTEST(decoded->text, "text");
        QTEST(decoded->encoding, "encoding");
        QCOMPARE(getAsString(bytes), std::optional(decoded->text));
    }

    void encodes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        // clang-format off
        QTest::newRow("empty") << QString() << QByteArray();
        QTest::newRow("UTF-8") << u"aä€\U0001F4FA"_s << "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x93\xBA"_ba;
        QTest::newRow("mark kept") << u"\uFEFF<"_s << "\xEF\xBB\xBF<"_ba;
        QTest::newRow("high alone") << u"<"_s + QChar(0xD83D) + u'>' << "\xFF\xFE<\0\x3D\xD8>\0"_ba;
        QTest::newRow("low alone") << u"<"_s + QChar(0xDCFA) << "\xFF\xFE<\0\xFA\xDC"_ba;
        QTest::newRow("high at the end") << u"<"_s + QChar(0xD83D) << "\xFF\xFE<\0\x3D\xD8"_ba;
        // clang-format on
    }

    void encodes()
    {
        QFETCH(const QString, text);
        QFETCH(const QByteArray, bytes);
        QCOMPARE(getAsData(text), bytes);
        Utf8Builder builder;
        builder.append(QStringView(text));
        builder.append(QLatin1String("/"));
        const bool isUtf16 = bytes.startsWith('\xFF');
        QCOMPARE(builder.hasError(), isUtf16);
        QVERIFY(isUtf16 || builder.take() == bytes + '/');
    }

    void builderGrows()
    {
        Utf8Builder builder;
        builder.append(QLatin1String(""));
        QString expected;
        for (int i = 0; i < 3000; ++i) { // beyond any room made beforehand
            const QString piece = QString(i % 50, u'x') + QString(i % 3, u'€');
            builder.append(QStringView(piece));
            builder.append(QLatin1String("\r\n"));
            expected += piece + u"\r\n"_s;
        }
        QCOMPARE(builder.take(), expected.toUtf8());
        QString letters;
        for (char16_t letter = 1; letter < 0xFFFF; ++letter) {
            if (!QChar::isSurrogate(letter))
                letters += letter;
        }
        builder.append(QStringView(letters));
        QCOMPARE(builder.take(), letters.toUtf8());
    }

    void shortensBetweenCharacters()
    {
        const QString accents = u"a"_s + QString(500'000, QChar(0x301));
        const std::pair<QString, QString> rows[] = {
            {u"four"_s, u"four"_s},
            {u"fives"_s, u"five…"_s},
            {u"abce\u0301\u0302f"_s, u"abc…"_s},     // an accent of the letter before
            {u"abc\U0001F4FA"_s, u"abc…"_s},         // half a surrogate pair
            {u"ab\U0001F44D\U0001F3FD"_s, u"ab…"_s}, // a sign and its colour
            {accents, accents.first(4) + u"…"_s},    // one character
        };
        for (const auto &[text, shown] : rows)
            QCOMPARE(shortened(text, 4), shown);
        QCOMPARE(shortened(u"\U0001F4FA\u0301"_s, 1), u"…"_s);
    }

    void lenientIntegers()
    {
        constexpr auto highest = std::numeric_limits<qint64>::max();
        constexpr auto lowest = std::numeric_limits<qint64>::min();
        // clang-format off
        const std::pair<QStringView, qint64> rows[] = {
            {u"", 0}, {u" \t\n+7", 7}, {u"-42 km", -42}, {u"12.9", 12}, {u"1 2", 1}, {u"- 3", 0},
            {u"--3", 0}, {u"x3", 0}, {u"0x10", 0}, {u"٣", 0}, {u"9223372036854775807", highest},
            {u"9223372036854775808", highest}, {u"-9223372036854775807", -highest},
            {u"-99999999999999999999", lowest}};
        // clang-format on
        for (const auto &[text, number] : rows)
            QCOMPARE(lenientInteger(text), number);
    }
};

QUILLET_TEST(TextConversionTest)

#include "TextConversionTest.moc"
