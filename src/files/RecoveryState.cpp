#include "files/RecoveryState.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>

namespace quillet {

namespace {

constexpr quint32 mark = 0x51524543; // "QREC"
constexpr quint32 currentVersion = 1;
constexpr auto checkMethod = QCryptographicHash::Sha256;

void setUp(QDataStream &stream)
{
    stream.setVersion(QDataStream::Qt_6_0);
}

} // namespace

QByteArray RecoveryState::encoded() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    setUp(stream);
    stream << mark << currentVersion << path << suggested << untouched << fileType
           << changedAt.toMSecsSinceEpoch() << changes << static_cast<quint8>(known) << content;
    return bytes + QCryptographicHash::hash(bytes, checkMethod);
}

RecoveryState::Reading RecoveryState::decode(const QByteArray &bytes)
{
    const qsizetype length = bytes.size() - QCryptographicHash::hashLength(checkMethod);
    if (length < 0)
        return Reading::Damaged;
    const QByteArray body = bytes.first(length);
    if (QCryptographicHash::hash(body, checkMethod) != QByteArrayView(bytes).sliced(length))
        return Reading::Damaged;
    QDataStream stream(body);
    setUp(stream);
    quint32 foundMark = 0;
    quint32 version = 0;
    stream >> foundMark >> version;
    if (foundMark != mark || version == 0)
        return Reading::Damaged;
    if (version > currentVersion)
        return Reading::Newer;
    RecoveryState read;
    qint64 time = 0;
    quint8 knownAs = 0;
    stream >> read.path >> read.suggested >> read.untouched >> read.fileType >> time >>
        read.changes >> knownAs >> read.content;
    read.changedAt = QDateTime::fromMSecsSinceEpoch(time);
    if (stream.status() != QDataStream::Ok || !stream.atEnd() || read.changes < 0 ||
        knownAs > static_cast<quint8>(Known::Own) ||
        read.changedAt.toMSecsSinceEpoch() != time) // out of the range of dates
        return Reading::Damaged;
    read.known = static_cast<Known>(knownAs);
    *this = std::move(read);
    return Reading::Done;
}

} // namespace quillet
