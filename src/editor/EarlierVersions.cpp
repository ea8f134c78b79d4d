#include "editor/EarlierVersions.h"

#include "document/TLLDocument.h"
#include "document/read/ListReading.h"
#include "editor/ViewController.h"
#include "texts/DifferenceTexts.h"

#include <QFileInfo>
#include <QLocale>
#include <QMutex>
#include <QMutexLocker>
#include <QThreadPool>

#include <algorithm>
#include <new>
#include <utility>

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

QString shortText(const QDateTime &time, bool hasSeconds)
{
    const QLocale locale;
    QString format = locale.dateTimeFormat(QLocale::ShortFormat);
    const auto minutes = format.indexOf(QLatin1String("mm"));
    const bool canAdd = minutes > 0 && !format.contains(QLatin1String("ss"));
    if (hasSeconds && canAdd) // behind the sign that stands before the minutes
        format.insert(minutes + 2, format[minutes - 1] + QLatin1String("ss"));
    return locale.toString(time.toLocalTime(), format);
}

bool lookAlike(const std::vector<Row> &rows)
{
    QStringList times;
    for (const Row &row : rows) {
        if (row.version.time.isValid())
            times.append(shortText(row.version.time, false));
    }
    return times.removeDuplicates() > 0;
}

} // namespace

/// What the thread knows of the object, which may go first.
struct EarlierVersions::Link
{
    QMutex mutex;
    EarlierVersions *target; ///< null: nobody wants to hear any more

    [[nodiscard]] bool isWanted()
    {
        const QMutexLocker lock(&mutex);
        return target;
    }
    void tell(std::size_t i, const Row &row)
    {
        const QMutexLocker lock(&mutex);
        const auto take = [versions = target, i, row] {
            versions->m_rows[i] = row;
            emit versions->rowRead(static_cast<int>(i));
        };
        if (target)
            QMetaObject::invokeMethod(target, take, Qt::QueuedConnection);
    }
};

EarlierVersions::EarlierVersions(const TLLDocument &document, QObject *parent)
    : QObject(parent), m_document(document), m_store(document.versionStore())
{
    if (!m_store)
        return;
    for (const KeptVersion &version : m_store->versionsOf(pathOf(document)))
        m_rows.push_back({.version = version});
    m_showsSeconds = lookAlike(m_rows);
    m_link = std::make_shared<Link>();
    m_link->target = this;
    readAll();
}

EarlierVersions::~EarlierVersions()
{
    if (!m_link)
        return;
    const QMutexLocker lock(&m_link->mutex);
    m_link->target = nullptr;
}

bool EarlierVersions::hasAny(const TLLDocument &document)
{
    const VersionStore *store = document.versionStore();
    return store && !document.fileUrl().isEmpty() && !store->versionsOf(pathOf(document)).empty();
}

/// The thread has everything that it reads for itself.
void EarlierVersions::readAll()
{
    auto read = [link = m_link, store = *m_store, rows = m_rows, now = copyOf(m_document.lists()),
                 isLegacyFormat = m_document.isLegacyFormat()] {
        for (std::size_t i = 0; i < rows.size() && link->isWanted(); ++i)
            link->tell(i, readRow(store, rows[i], now, isLegacyFormat));
    };
    QThreadPool::globalInstance()->start(std::move(read)); // whose end the program waits for
}

QString EarlierVersions::timeText(std::size_t row) const
{
    const QDateTime &time = m_rows[row].version.time;
    return time.isValid() ? shortText(time, m_showsSeconds) : qtTrId("kVersionTimeUnknown");
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
    try {
        return m_store->read(m_rows[row].version, bytes, error);
    } catch (const std::bad_alloc &) {
        error = {QStringLiteral("EarlierVersions"), 1, qtTrId("kNoMemoryReason"), {}};
    }
    return false;
}

QString EarlierVersions::putBack(std::size_t row, ViewController &controller) const
{
    QByteArray bytes;
    Error error;
    if (!readBytes(row, bytes, error))
        return error.text();
    try {
        const std::optional<ChannelList> list = channelListFromBytes(bytes);
        if (!list)
            return qtTrId("kContentUnknownReason");
        return controller.putBack(*list, timeText(row)) ? QString() : qtTrId("kPutBackOthers");
    } catch (const std::bad_alloc &) {
        return qtTrId("kNoMemoryReason");
    }
}

QString EarlierVersions::suggestedPath(std::size_t row) const
{
    const QFileInfo file(pathOf(m_document));
    const QDateTime time = m_rows[row].version.time.toLocalTime();
    QString path = file.path() + u'/' + file.completeBaseName();
    if (time.isValid())
        path += time.toString(QStringLiteral("-yyyy-MM-dd-HHmmss"));
    return file.suffix().isEmpty() ? path : path + u'.' + file.suffix();
}

} // namespace quillet
