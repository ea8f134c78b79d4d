#include "TreeText.h"

#include "testing/TestMain.h"
#include "xml/XMLDictionaryParser.h"

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

class ValueTest : public QObject
{
    Q_OBJECT

private slots:
    void dictionaryKeepsItsOrder()
    {
        Dictionary dictionary{{u"b"_s, u"1"_s}, {u"a"_s, u"2"_s}, {u"c"_s, u"3"_s}};
        dictionary.insert(u"a"_s, u"4"_s); // keeps its place
        dictionary.remove(u"b");
        dictionary.remove(u"none");
        dictionary.insert(u"b"_s, u"5"_s); // stands last now
        QString text;
        for (const auto &[key, value] : dictionary)
            text += key + value.description();
        QCOMPARE(text, u"a4c3b5"_s);
        QCOMPARE(dictionary, (Dictionary{{u"c"_s, u"3"_s}, {u"b"_s, u"5"_s}, {u"a"_s, u"4"_s}}));
        QVERIFY(!(dictionary == Dictionary{{u"c"_s, u"3"_s}, {u"b"_s, u"5"_s}, {u"x"_s, u"4"_s}}));
        QVERIFY(!(dictionary == Dictionary{{u"c"_s, u"3"_s}, {u"b"_s, u"5"_s}}));
    }

    void copiesAreApart()
    {
        const Dictionary inner{{u"x"_s, Array{u"1"_s}}};
        Value value(inner), copy = value;
        Dictionary changed = *copy.dictionary();
        changed.find(u"x")->array()->append(u"2"_s);
        changed.insert(u"y"_s, Value(true));
        QCOMPARE(*value.dictionary(), inner);
        QCOMPARE(changed, (Dictionary{{u"x"_s, Array{u"1"_s, u"2"_s}}, {u"y"_s, Value(true)}}));

        Array array{u"1"_s, u"2"_s}, other = array;
        other.replaceLast(u"3"_s);
        array.removeLast();
        QVERIFY(array == Array{u"1"_s} && other == (Array{u"1"_s, u"3"_s}));
        array.append(array);
        QVERIFY(array == (Array{u"1"_s, Array{u"1"_s}}));
    }

    /// Elements with the same fields share their keys until one of them is changed.
    void siblingsAreApart()
    {
        const auto tree =
            dictionaryWithXMLString(u"<r><i><x>1</x><y>2</y></i><i><x>3</x><y>4</y></i></r>");
        const Array items = *tree->find(u"i")->array();
        Dictionary first = *items.at(0).dictionary(), second = *items.at(1).dictionary();
        first.remove(u"x");
        first.insert(u"z"_s, u"7"_s);
        second.insert(u"y"_s, u"8"_s);
        QCOMPARE(first, (Dictionary{{u"y"_s, u"2"_s}, {u"z"_s, u"7"_s}}));
        QCOMPARE(second, (Dictionary{{u"x"_s, u"3"_s}, {u"y"_s, u"8"_s}}));
        QCOMPARE(*items.at(0).dictionary(), (Dictionary{{u"x"_s, u"1"_s}, {u"y"_s, u"2"_s}}));
        QCOMPARE(*items.at(1).dictionary(), (Dictionary{{u"x"_s, u"3"_s}, {u"y"_s, u"4"_s}}));
    }

    /// What was read from equal bytes is equal without a look, until it is changed.
    void changesTellFromWhatWasRead()
    {
        const auto text =
            u"<r><a t=\"0\"><b><c>1</c></b><b><c>2</c></b></a><d><e>3</e><f/></d></r>"_s;
        const auto read = dictionaryWithXMLString(text);
        using Change = void (*)(Dictionary &);
        static constexpr Change changes[]{
            [](Dictionary &tree) { tree.insert(u"g"_s, u"4"_s); },
            [](Dictionary &tree) { tree.insert(u"d"_s, u"3"_s); },
            [](Dictionary &tree) { tree.remove(u"d"); },
            [](Dictionary &tree) { *tree.find(u"a") = Value(u"0"_s); },
            [](Dictionary &tree) {
                Dictionary a = *tree.dictionary(u"a");
                a.insert(u"_t"_s, u"1"_s);
                tree.insert(u"a"_s, a);
            },
            [](Dictionary &tree) {
                Dictionary a = *tree.dictionary(u"a");
                a.find(u"b")->array()->removeLast();
                tree.insert(u"a"_s, a);
            },
        };
        const auto inner = dictionaryWithXMLString(u"<x>"_s + text + u"</x>"_s);
        QVERIFY(!(*read == *inner->dictionary(u"r"))); // a root has its name in it, too
        for (const Change change : changes) {
            auto shared = read, own = dictionaryWithXMLString(text);
            QVERIFY(own == read);
            change(*shared);
            change(*own);
            QVERIFY(!(shared == read) && !(read == own) && shared == own);
        }
    }

    void formatsTrees()
    {
        QCOMPARE(formattedDescription(Dictionary{{u"b"_s, u"x"_s}, {u"A"_s, Value(qint64(1))}}),
                 u"<NSDictionary>:\n    <A> = <NSNumber> 1\n    <b> = x"_s);
        QCOMPARE(formattedDescription(
                     Array{Dictionary{{u"k"_s, Array{Value(qint64(2)), u"y"_s}}}, u"z"_s}),
                 u"<NSArray>\n    [0] = <NSDictionary>:\n        <k> = <NSArray>\n"
                 "            [0] = <NSNumber> 2\n            [1] = y\n    [1] = z"_s);
        QCOMPARE(formattedDescription(Array{u"a"_s}, 1), u"<NSArray>\n        [0] = a"_s);
    }
};

QUILLET_TEST(ValueTest)

#include "ValueTest.moc"
