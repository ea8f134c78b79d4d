#include "editor/EarlierVersions.h"

#include "document/TLLDocument.h"
#include "document/read/ListReading.h"
#include "editor/ComparisonTexts.h"

#include <QFileInfo>
#include <QLocale>
#include <QThread>

#include <new>

namespace quillet {

namespace {

using Row = EarlierVersions::Row;

QString obstacleOf(const ListComparison &comparison, bool isSameFormat)
{
    if (!isSameFormat || !comparison.isOneToOne())
        return qtTrId("kPutBackOthers");
    return comparison.isEmpty() ? qtTrId("kPutBackSame") : QString();
}

/// The row with what the version is found to hold. The lists are those of now.
Row readRow(const VersionStore &store, Row row, const StationLists &now, bool isLegacyFormat)
{
    row.state = Row::State::Damaged;
    try {
        QByteArray bytes;
        Error unused;
        if (!store.read(row.version, bytes, unused))
            return row;
        const std::optional<ChannelList> list = channelListFromBytes(bytes);
        row.state = list ? Row::State::Read : Row::State::NoList;
        if (!list)
            return row;
        const ListComparison comparison = compare(now, list->lists);
        row.stations = list->stationCount();
        row.difference = textOf(comparison);
        row.obstacle = obstacleOf(comparison, list->isLegacyFormat == isLegacyFormat);
    } catch (const std::bad_alloc &) {
        row.state = Row::State::NoList;
    }
    return row;
}

QString pathOf(const TLLDocument &document)
{
    return document.fileUrl().toLocalFile();
}

} // namespace

EarlierVersions::EarlierVersions(const TLLDocument &document, QObject *parent)
    : QObject(parent), m_document(document), m_store(document.versionStore())
{
    if (!m_store)
        return;
    for (const KeptVersion &version : m_store->versionsOf(pathOf(document)))
        m_rows.push_back({.version = version});
    readAll();
}

EarlierVersions::~EarlierVersions()
{
    if (!m_reader)
        return;
    m_reader->requestInterruption();
    m_reader->wait();
}

bool EarlierVersions::hasAny(const TLLDocument &document)
{
    const VersionStore *store = document.versionStore();
    return store && !document.fileUrl().isEmpty() && !store->versionsOf(pathOf(document)).empty();
}

/// The thread has everything that it reads for itself.
void EarlierVersions::readAll()
{
    const auto read = [this, store = *m_store, rows = m_rows, now = copyOf(m_document.lists()),
                       isLegacyFormat = m_document.isLegacyFormat()] {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (QThread::currentThread()->isInterruptionRequested())
                return;
            const auto take = [this, i, row = readRow(store, rows[i], now, isLegacyFormat)] {
                m_rows[i] = row;
                emit rowRead(static_cast<int>(i));
            };
            QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
        }
    };
    m_reader.reset(QThread::create(read));
    m_reader->start(QThread::LowPriority);
}

QString EarlierVersions::timeText(std::size_t row) const
{
    const QDateTime &time = m_rows[row].version.time;
    return time.isValid() ? QLocale().toString(time.toLocalTime(), QLocale::ShortFormat)
                          : qtTrId("kVersionTimeUnknown");
}

QString EarlierVersions::differenceText(std::size_t row) const
{
    switch (m_rows[row].state) {
    case Row::State::Reading:
        return qtTrId("kVersionReading");
    case Row::State::Read:
        return m_rows[row].difference;
    case Row::State::Damaged:
        return qtTrId("kVersionDamaged");
    case Row::State::NoList:
        return qtTrId("kVersionNoList");
    }
    return {};
}

bool EarlierVersions::canBeOpened(std::size_t row) const
{
    const Row::State state = m_rows[row].state;
    return state == Row::State::Read || state == Row::State::Reading;
}

QString EarlierVersions::reasonAgainstPuttingBack(std::size_t row) const
{
    return m_rows[row].state == Row::State::Read ? m_rows[row].obstacle : differenceText(row);
}

bool EarlierVersions::readBytes(std::size_t row, QByteArray &bytes, Error &error) const
{
    return m_store->read(m_rows[row].version, bytes, error);
}

std::optional<ChannelList> EarlierVersions::readList(std::size_t row) const
{
    QByteArray bytes;
    Error unused;
    if (!readBytes(row, bytes, unused))
        return {};
    return channelListFromBytes(bytes);
}

QString EarlierVersions::suggestedPath(std::size_t row) const
{
    const QFileInfo file(pathOf(m_document));
    const QDateTime time = m_rows[row].version.time.toLocalTime();
    QString path = file.path() + u'/' + file.completeBaseName();
    if (time.isValid())
        path += u'-' + time.date().toString(Qt::ISODate);
    return file.suffix().isEmpty() ? path : path + u'.' + file.suffix();
}

} // namespace quillet
