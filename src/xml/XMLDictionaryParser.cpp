#include "xml/XMLDictionaryParser.h"

#include "xml/PlainScanner.h"
#include "xml/PlainText.h"
#include "xml/TreeBuilder.h"

#include <QFile>
#include <QStringConverter>

namespace quillet {

XMLDictionaryParser &XMLDictionaryParser::sharedInstance()
{
    static XMLDictionaryParser parser;
    return parser;
}

std::optional<Dictionary> XMLDictionaryParser::dictionaryWithParser(EventParser &parser)
{
    TreeBuilder builder(settings, parser.bytes());
    parser.parse(builder);
    m_firstError = parser.error();
    m_openElements = builder.openElements();
    return builder.takeRoot();
}

std::optional<Dictionary> XMLDictionaryParser::dictionaryWithData(const QByteArray &data)
{
    return read(data, PlainScanner::suits(settings) && isPlainText(data));
}

std::optional<Dictionary> XMLDictionaryParser::dictionaryWithPlainData(const QByteArray &data)
{
    return read(data, true);
}

std::optional<Dictionary> XMLDictionaryParser::read(const QByteArray &data, bool isPlain)
{
    if (isPlain && PlainScanner::suits(settings)) {
        if (std::optional<Dictionary> tree = PlainScanner(data).tree(settings)) {
            m_firstError.reset();
            m_openElements.clear();
            return tree;
        }
    }
    EventParser parser(data);
    return dictionaryWithParser(parser);
}

std::optional<Dictionary> XMLDictionaryParser::dictionaryWithString(QStringView string)
{
    QStringEncoder encoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QByteArray data = encoder.encode(string);
    if (encoder.hasError()) {
        m_firstError = ParseError{1, 0, QStringLiteral("The text holds half a surrogate pair")};
        return {};
    }
    return dictionaryWithData(data);
}

std::optional<Dictionary> XMLDictionaryParser::dictionaryWithFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_firstError = ParseError{0, 0, file.errorString()};
        return {};
    }
    return dictionaryWithData(file.readAll());
}

std::optional<Dictionary> dictionaryWithXMLParser(EventParser &parser)
{
    return XMLDictionaryParser(XMLDictionaryParser::sharedInstance()).dictionaryWithParser(parser);
}

std::optional<Dictionary> dictionaryWithXMLData(const QByteArray &data)
{
    return XMLDictionaryParser(XMLDictionaryParser::sharedInstance()).dictionaryWithData(data);
}

std::optional<Dictionary> dictionaryWithXMLString(QStringView string)
{
    return XMLDictionaryParser(XMLDictionaryParser::sharedInstance()).dictionaryWithString(string);
}

std::optional<Dictionary> dictionaryWithXMLFile(const QString &path)
{
    return XMLDictionaryParser(XMLDictionaryParser::sharedInstance()).dictionaryWithFile(path);
}

} // namespace quillet
