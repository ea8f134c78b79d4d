#include "document/DocumentState.h"

#include "model/StationSource.h"

#include <QDataStream>
#include <QIODevice>

#include <array>

namespace quillet {

namespace {

constexpr std::array counts{&Mending::ampersands, &Mending::brackets, &Mending::controls,
                            &Mending::tags, &Mending::strays};
constexpr std::array marks{&Mending::endWasMissing, &Mending::keptStation,
                           &Mending::droppedStation};

QDataStream &operator<<(QDataStream &stream, const Repair &repair)
{
    for (const auto count : counts)
        stream << static_cast<qint64>(repair.mending.*count);
    for (const auto mark : marks)
        stream << repair.mending.*mark;
    return stream << repair.fileName;
}

QDataStream &operator>>(QDataStream &stream, Repair &repair)
{
    for (const auto count : counts) {
        qint64 read = 0;
        stream >> read;
        repair.mending.*count = static_cast<qsizetype>(read);
    }
    for (const auto mark : marks)
        stream >> repair.mending.*mark;
    return stream >> repair.fileName;
}

} // namespace

QByteArray DocumentState::encodedWith(const QByteArray &edits) const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << usesTV << static_cast<qint32>(source) << savesRepaired << repair.has_value();
    if (repair)
        stream << *repair;
    stream << edits;
    return bytes;
}

std::optional<DocumentState> DocumentState::decoded(const QByteArray &bytes, QByteArray &edits)
{
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_0);
    DocumentState state;
    qint32 source = 0;
    bool isRepaired = false;
    stream >> state.usesTV >> source >> state.savesRepaired >> isRepaired;
    if (isRepaired)
        stream >> state.repair.emplace();
    stream >> edits;
    const bool isSource = source >= 0 && source < static_cast<qint32>(stationSources.size());
    if (stream.status() != QDataStream::Ok || !stream.atEnd() || !isSource)
        return {};
    state.source = source;
    return state;
}

} // namespace quillet
