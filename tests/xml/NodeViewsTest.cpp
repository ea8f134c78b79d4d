#include "TreeText.h"

#include "testing/TestMain.h"
#include "xml/KeyPath.h"
#include "xml/NodeViews.h"

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

namespace {

using MaybeTree = std::optional<Dictionary>;
using MaybeValue = std::optional<Value>;
using MaybeText = std::optional<QString>;

} // namespace

class NodeViewsTest : public QObject
{
    Q_OBJECT

private slots:
    void views_data()
    {
        QTest::addColumn<Dictionary>("node");
        QTest::addColumn<MaybeTree>("shownAttributes");
        QTest::addColumn<MaybeTree>("shownChildren");
        const auto row = [](const char *name, const Dictionary &node, const MaybeTree &attributes,
                            const MaybeTree &children) {
            QTest::newRow(name) << node << attributes << children;
        };
        const Dictionary x{{u"x"_s, u"1"_s}};
        const auto none = std::nullopt;
        row("empty", {}, none, none);
        row("reserved keys only",
            {{u"__name"_s, u"n"_s}, {u"__text"_s, u"t"_s}, {u"__comments"_s, Array{u"c"_s}}}, none,
            none);
        row("prefixed", {{u"_x"_s, u"1"_s}, {u"x"_s, u"2"_s}}, x, Dictionary{{u"x"_s, u"2"_s}});
        row("two underlines", {{u"__x"_s, u"1"_s}}, Dictionary{{u"_x"_s, u"1"_s}}, none);
        row("in a dictionary", {{u"_y"_s, u"2"_s}, {u"__attributes"_s, x}}, x, none);
        row("in an empty dictionary", {{u"_y"_s, u"2"_s}, {u"__attributes"_s, Dictionary()}}, none,
            none);
        row("children of all kinds",
            {{u"b"_s, x}, {u"__text"_s, u"t"_s}, {u"a"_s, Array{u"1"_s, u"2"_s}}}, none,
            Dictionary{{u"b"_s, x}, {u"a"_s, Array{u"1"_s, u"2"_s}}});
    }
    void views()
    {
        QFETCH(const Dictionary, node);
        QFETCH(const MaybeTree, shownAttributes);
        QFETCH(const MaybeTree, shownChildren);
        QCOMPARE(attributes(node), shownAttributes);
        QCOMPARE(childNodes(node), shownChildren);
        // The parser asks only whether there are any.
        QCOMPARE(hasAttributes(node), shownAttributes.has_value());
        QCOMPARE(hasChildNodes(node), shownChildren.has_value());
    }

    void nameTextAndComments()
    {
        QCOMPARE(nodeName({{u"name"_s, u"n"_s}}), MaybeText());
        QCOMPARE(nodeName({{u"__name"_s, u"n"_s}}), MaybeText(u"n"_s));
        QCOMPARE(innerText({{u"text"_s, u"t"_s}}), MaybeText());
        QCOMPARE(innerText({{u"__text"_s, u" t "_s}}), MaybeText(u" t "_s));
        QCOMPARE(innerText({{u"__text"_s, Array{u"one"_s, u"two"_s}}}), MaybeText(u"one\ntwo"_s));
        QCOMPARE(innerText({{u"__text"_s, Value(qint64(1))}}), MaybeText());
        QVERIFY(!comments({{u"__text"_s, u"t"_s}}) && !hasComments({}));
        const Dictionary commented{{u"__comments"_s, Array{u"1"_s, u"2"_s}}};
        QVERIFY(comments(commented) == Array({u"1"_s, u"2"_s}) && hasComments(commented));
    }

    void looksUpByKey()
    {
        const Dictionary node{{u"Ab"_s, u"1"_s}, {u"aB"_s, u"2"_s}, {u"c"_s, u"3"_s}};
        QCOMPARE(*noCaseObjectForKey(node, u"ab"), Value(u"1"_s)); // the first one in order
        QCOMPARE(*noCaseObjectForKey(node, u"C"), Value(u"3"_s));
        QVERIFY(!noCaseObjectForKey(node, u"d"));
        QCOMPARE(nonNilString(node, u"aB"), u"2"_s);
        QVERIFY(nonNilString(node, u"ab").isEmpty() && !nonNilString(node, u"ab").isNull());
    }

    void keyPaths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<MaybeValue>("array");
        QTest::addColumn<MaybeValue>("string");
        QTest::addColumn<MaybeValue>("dictionary");
        const auto row = [](const char *path, const MaybeValue &array, const MaybeValue &string,
                            const MaybeValue &dictionary) {
            QTest::newRow(path) << QString::fromLatin1(path) << array << string << dictionary;
        };
        const auto text = [](const QString &string) {
            return Value(Dictionary{{u"__text"_s, string}});
        };
        const Dictionary first{{u"n"_s, u"1"_s}, {u"__text"_s, u"own"_s}}, second{{u"n"_s, u"2"_s}};
        row("none", {}, {}, {});
        row("model.none", {}, {}, {});
        row("model", Array{u"42XX"_s}, u"42XX"_s, text(u"42XX"_s));
        row("DTV.ITEM", Array{first, second}, u"own"_s, first);
        row("DTV.ITEM.n", Array{u"1"_s, u"2"_s}, u"1"_s, text(u"1"_s));
        row("ATV.ITEM", Array{second}, {}, second); // without a text of its own
        row("ATV.ITEM.n", Array{u"2"_s}, u"2"_s, text(u"2"_s));
        row("empty", Array{}, {}, {});
        row("number", Array{Value(qint64(5))}, Value(qint64(5)), Value(qint64(5)));
    }
    void keyPaths()
    {
        const Dictionary first{{u"n"_s, u"1"_s}, {u"__text"_s, u"own"_s}}, second{{u"n"_s, u"2"_s}};
        const Dictionary tree{{u"model"_s, u"42XX"_s},
                              {u"DTV"_s, Dictionary{{u"ITEM"_s, Array{first, second}}}},
                              {u"ATV"_s, Dictionary{{u"ITEM"_s, second}}},
                              {u"empty"_s, Array{}},
                              {u"number"_s, Value(qint64(5))}};
        QFETCH(const QString, path);
        const auto array = arrayValueForKeyPath(tree, path);
        QTEST(array ? MaybeValue(*array) : MaybeValue(), "array");
        QTEST(stringValueForKeyPath(tree, path), "string");
        QTEST(dictionaryValueForKeyPath(tree, path), "dictionary");
    }
};

QUILLET_TEST(NodeViewsTest)

#include "NodeViewsTest.moc"
