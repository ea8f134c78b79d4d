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

    void keyPaths()
    {
        const Dictionary first{{u"n"_s, u"1"_s}, {u"__text"_s, u"own"_s}}, second{{u"n"_s, u"2"_s}};
        const Dictionary tree{{u"DTV"_s, Dictionary{{u"ITEM"_s, Array{first, second}}}},
                              {u"model"_s, u"42XX"_s}};
        QCOMPARE(arrayValueForKeyPath(tree, u"DTV.ITEM"), std::optional(Array{first, second}));
        QCOMPARE(arrayValueForKeyPath(tree, u"DTV.ITEM.n"), std::optional(Array{u"1"_s, u"2"_s}));
        QCOMPARE(arrayValueForKeyPath(tree, u"model"), std::optional(Array{u"42XX"_s}));
        QCOMPARE(stringValueForKeyPath(tree, u"DTV.ITEM"), MaybeValue(u"own"_s));
        QCOMPARE(dictionaryValueForKeyPath(tree, u"DTV.ITEM"), MaybeValue(first));
        QVERIFY(!arrayValueForKeyPath(tree, u"model.none"));
        QCOMPARE(*noCaseObjectForKey(tree, u"MODEL"), Value(u"42XX"_s));
    }
};

QUILLET_TEST(NodeViewsTest)

#include "NodeViewsTest.moc"
