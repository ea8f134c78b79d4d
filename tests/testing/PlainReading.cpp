#include "testing/PlainReading.h"

#include "model/LGStation.h"
#include "support/Utf8Builder.h"
#include "xml/PlainScanner.h"
#include "xml/PlainText.h"

#include <algorithm>

namespace quillet::testing {

namespace {

bool isSameInOrder(const Value &a, const Value &b);

/// Asks the first one for its texts without their values, then for these.
bool isSameInOrder(const Dictionary &a, const Dictionary &b)
{
    if (a.count() != b.count() || !(a == b) || !a.hasEqualValues(b))
        return false;
    for (qsizetype i = 0; i < a.count(); ++i) {
        const auto &[key, value] = b.at(i);
        const bool isSameText = !value.string() || (a.text(i) == *value.string() &&
                                                    a.utf8(i) == value.string()->toUtf8());
        if (!isSameText || a.at(i).key != key || !isSameInOrder(a.at(i).value, value))
            return false;
    }
    return true;
}

bool isSameInOrder(const Value &a, const Value &b)
{
    if (const Dictionary *dictionary = a.dictionary())
        return b.dictionary() && isSameInOrder(*dictionary, *b.dictionary());
    const Array *array = a.array();
    if (!array)
        return a == b;
    return b.array() &&
           std::equal(array->begin(), array->end(), b.array()->begin(), b.array()->end(),
                      [](const Value &x, const Value &y) { return isSameInOrder(x, y); });
}

/// As a station, before and after an edit.
QByteArray written(const Dictionary &entry)
{
    Utf8Builder output;
    LGStation station(entry, 0);
    station.appendXMLItem(output);
    station.setProgramNum(7);
    station.setSkipped(true);
    station.appendXMLItem(output);
    return output.take();
}

/// Whether the elements that were noted are written as stations like those that were made.
bool areWrittenAlike(const Value &a, const Value &b)
{
    if (const Dictionary *dictionary = a.dictionary()) {
        if (dictionary->isAsNoted())
            return written(*dictionary) == written(*b.dictionary());
        for (qsizetype i = 0; i < dictionary->count(); ++i) {
            if (!areWrittenAlike(dictionary->at(i).value, b.dictionary()->at(i).value))
                return false;
        }
        return true;
    }
    const Array *array = a.array();
    return !array || std::equal(array->begin(), array->end(), b.array()->begin(), areWrittenAlike);
}

} // namespace

std::optional<Dictionary> scannedTree(const QByteArray &utf8)
{
    return !isPlainText(utf8)
               ? std::nullopt
               : PlainScanner(utf8).tree(XMLDictionaryParser::sharedInstance().settings);
}

const char *faultOfScanning(const QByteArray &utf8)
{
    if (isPlainText(utf8) != isPlainTextBytewise(utf8))
        return "both forms of looking a text over say the same";
    const std::optional<Dictionary> scanned = scannedTree(utf8);
    if (!scanned)
        return nullptr;
    EventParser parser(utf8);
    XMLDictionaryParser reading(XMLDictionaryParser::sharedInstance());
    const std::optional<Dictionary> parsed = reading.dictionaryWithParser(parser);
    if (reading.firstError() || !reading.openElements().isEmpty())
        return "what is plain has no fault";
    if (!parsed || !(*scanned == *parsed))
        return "the trees are the same";
    if (!areWrittenAlike(*scanned, *parsed))
        return "stations are written alike";
    return isSameInOrder(*scanned, *parsed) ? nullptr : "the trees have one order";
}

} // namespace quillet::testing
