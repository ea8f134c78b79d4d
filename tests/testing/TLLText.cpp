#include "testing/TLLText.h"

#include <QFile>

namespace quillet::testing {

namespace {

QString orUsual(const QString &text, const QString &usual)
{
    return text.isNull() ? usual : text;
}

QString makeSection(const QString &name, const std::vector<Item> &items, const TLLOptions &options)
{
    if (items.empty())
        return {};
    QString text = QStringLiteral("<%1>").arg(name);
    text += orUsual(options.beforeFirstItem, options.lineEnd);
    for (const Item &item : items)
        text += makeItem(item, options.lineEnd);
    return text + QStringLiteral("</%1>").arg(name);
}

} // namespace

Item makeStation(int number, const QString &name, FileSource source, int serviceType)
{
    return {{QStringLiteral("prNum"), QString::number(number)},
            {QStringLiteral("sourceIndex"), QString::number(static_cast<int>(source))},
            {QStringLiteral("serviceType"), QString::number(serviceType)},
            {QStringLiteral("vchName"), name}};
}

QString makeItem(const Item &fields, const QString &lineEnd)
{
    QString text = QStringLiteral("<ITEM>") + lineEnd;
    for (const auto &[name, value] : fields)
        text += QStringLiteral("<%1>%2</%1>").arg(name, value) + lineEnd;
    return text + QStringLiteral("</ITEM>") + lineEnd;
}

QString makeTLL(const std::vector<Item> &atvItems, const std::vector<Item> &dtvItems,
                const TLLOptions &options)
{
    const QString usualHeader = QStringList{
        QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"),
        QStringLiteral("<TLLDATA>"),
        QStringLiteral("<ModelInfo>"),
        QStringLiteral("<ModelName type=\"0\">42XX</ModelName>"),
        QStringLiteral("</ModelInfo>"),
        QStringLiteral("<CHANNEL>"),
        {}}.join(options.lineEnd);
    const QString usualEnd =
        QStringList{{}, QStringLiteral("</CHANNEL>"), QStringLiteral("</TLLDATA>"), {}}.join(
            options.lineEnd);

    QString text = orUsual(options.header, usualHeader);
    text += makeSection(QStringLiteral("ATV"), atvItems, options);
    if (!atvItems.empty() && !dtvItems.empty())
        text += orUsual(options.betweenSections, options.lineEnd);
    text += makeSection(QStringLiteral("DTV"), dtvItems, options);
    return text + orUsual(options.end, usualEnd);
}

QByteArray makeChannel(const QByteArray &name, const QByteArray &number,
                       const ChannelOptions &options)
{
    return "{\"channelName\":\"" + name + "\",\"majorNumber\":" + number + ",\"sourceIndex\":\"" +
           options.source + "\",\"serviceType\":" + QByteArray::number(options.serviceType) +
           options.more + '}';
}

QByteArray readSample(const QString &name)
{
    QFile file(QStringLiteral(QUILLET_SAMPLES "/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace quillet::testing
