#include "document/review/EntryMatching.h"
#include "testing/TestMain.h"
#include "xml/XMLDictionaryParser.h"

#include <QMap>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <functional>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

using Fields = QMap<QString, QString>;

const EntryKeys keys{
    .edited = {u"number"_s, u"name"_s}, .number = u"number"_s, .identity = {u"id"_s}};

/// Few values, so that many are alike; most have no identity.
Fields randomFields(QRandomGenerator &random)
{
    Fields fields{{u"number"_s, QString::number(random.bounded(4))},
                  {u"name"_s, QString(QChar(u'A' + random.bounded(2)))},
                  {u"kind"_s, QString::number(random.bounded(2))}};
    if (random.bounded(3) == 0)
        fields.insert(u"id"_s, QString::number(random.bounded(2)));
    return fields;
}

/// With values of its own, one with a blank that is none in a file.
Dictionary made(const Fields &fields)
{
    Dictionary entry;
    for (auto i = fields.begin(); i != fields.end(); ++i)
        entry.insert(i.key(), i.key() == u"kind"_s ? u' ' + i.value() : i.value());
    return entry;
}

/// Noted in a text.
Dictionary noted(const Fields &fields)
{
    QString text;
    for (auto i = fields.begin(); i != fields.end(); ++i)
        text.prepend(u"<%1>%2</%1>"_s.arg(i.key(), i.value()));
    return *dictionaryWithXMLString(u"<r><i>%1</i></r>"_s.arg(text))->dictionary(u"i");
}

struct Found
{
    std::vector<std::size_t> missing, changed, doubled, places;
    QList<Fields> surplus;
};

/// The same by comparing each with each.
Found slowly(const QList<Fields> &expected, const QList<Fields> &actual)
{
    Found result;
    if (expected == actual)
        return result;
    const auto count = static_cast<std::size_t>(expected.size());
    std::vector<bool> isFound(count), isDoubled(count);
    const auto first = [&](const Fields &entry, const QStringList &without, const auto &isAsked) {
        const auto rest = [&without](Fields fields) {
            for (const QString &key : without)
                fields.remove(key);
            return fields;
        };
        std::size_t i = 0;
        while (i < count && !(isAsked(i) && rest(expected[qsizetype(i)]) == rest(entry)))
            ++i;
        return i;
    };
    result.places.resize(count);
    QList<Fields> others;
    for (qsizetype i = 0; i < actual.size(); ++i) {
        const std::size_t same = first(actual[i], {}, [&](std::size_t at) { return !isFound[at]; });
        if (same == count) {
            others.append(actual[i]);
        } else {
            isFound[same] = true;
            result.places[same] = std::size_t(i);
        }
    }
    const std::vector<bool> wasFound = isFound;
    const auto isMissing = [&](std::size_t at) { return !isFound[at]; };
    const auto isSingle = [&](std::size_t at) { return wasFound[at] && !isDoubled[at]; };
    const std::vector<std::pair<QStringList, std::function<bool(std::size_t)>>> steps{
        {{u"name"_s}, isMissing},
        {{u"number"_s}, isMissing},
        {{}, isSingle},
        {keys.edited, isMissing},
        {keys.edited, isSingle}};
    QList<Fields> unlike;
    QMap<QString, int> numbers;
    for (const Fields &entry : others) {
        std::size_t at = count;
        for (const auto &[without, isAsked] : steps)
            at = at < count ? at : first(entry, without, isAsked);
        if (at == count) {
            unlike.append(entry);
            ++numbers[entry[u"number"_s]];
            continue;
        }
        (wasFound[at] ? isDoubled : isFound)[at] = true;
        (wasFound[at] ? result.doubled : result.changed).push_back(at);
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (!isFound[i])
            (numbers[expected[qsizetype(i)][u"number"_s]]-- > 0 ? result.changed : result.missing)
                .push_back(i);
    }
    for (const Fields &entry : unlike) {
        if (numbers[entry[u"number"_s]]-- > 0)
            result.surplus.append(entry);
    }
    return result;
}

} // namespace

class EntryMatchingTest : public QObject
{
    Q_OBJECT

private slots:
    void findsWhatComparingEachFinds()
    {
        QRandomGenerator random(1);
        for (int round = 0; round < 300; ++round) {
            QList<Fields> expected, actual;
            for (int count = random.bounded(30); count > 0; --count)
                expected.append(randomFields(random));
            for (const Fields &entry : std::as_const(expected)) {
                enum Fate { Lost, Changed, Doubled, Kept };
                const int fate = round % 4 == 0 ? Kept : random.bounded(2 * Kept);
                if (fate != Lost)
                    actual.append(fate == Changed ? randomFields(random) : entry);
                if (fate == Doubled)
                    actual.insert(random.bounded(actual.size()), entry);
            }
            if (random.bounded(2) == 0)
                std::shuffle(actual.begin(), actual.end(), random);

            std::vector<Dictionary> wanted, there, surplus;
            std::transform(expected.begin(), expected.end(), std::back_inserter(wanted), made);
            std::transform(actual.begin(), actual.end(), std::back_inserter(there), noted);
            const EntryMatches matches = matchEntries(wanted, there, keys);
            const Found found = slowly(expected, actual);
            QCOMPARE(matches.missing, found.missing);
            QCOMPARE(matches.changed, found.changed);
            QCOMPARE(matches.doubled, found.doubled);
            std::transform(found.surplus.begin(), found.surplus.end(), std::back_inserter(surplus),
                           noted);
            QCOMPARE(matches.surplus, surplus);
            if (matches.areAll())
                QCOMPARE(matches.places, found.places);
        }
    }
};

QUILLET_TEST(EntryMatchingTest)

#include "EntryMatchingTest.moc"
