#include "document/compare/StationPairing.h"

#include <QStringList>

#include <array>
#include <utility>

namespace quillet {

namespace {

/// Adds a text so that no other texts give the same.
void add(const QString &text, QString &all)
{
    all += QChar(static_cast<char16_t>(text.size()));
    all += QChar(static_cast<char16_t>(text.size() >> 16));
    all += text;
}

QString joined(std::initializer_list<QString> texts)
{
    QString all;
    for (const QString &text : texts)
        add(text, all);
    return all;
}

/// By which a broadcast tells its services apart (ETSI EN 300 468, 5.2.3); none unless all three
/// are told.
std::optional<QString> identityOf(const LGStation &station)
{
    const StationKeys &keys = station.keys();
    QString all;
    for (const QString &key :
         {keys.keyOriginalNetwork_id, keys.keyTransport_id, keys.keyService_id}) {
        const Value *part = station.entry().find(key);
        const QString text = part ? part->description() : QString();
        if (text.isEmpty())
            return {};
        add(text, all);
    }
    return all;
}

QString textOf(const LGStation &station, const QStringList &without)
{
    QString all;
    for (const auto &[key, value] : station.entry()) {
        if (without.contains(key))
            continue;
        add(key, all);
        const QString *text = value.string();
        add(text ? *text : value.description(), all);
    }
    return all;
}

std::optional<QString> everything(const LGStation &station)
{
    return textOf(station, {});
}

std::optional<QString> unedited(const LGStation &station)
{
    return textOf(station, editedKeys(station));
}

std::optional<QString> uneditedAndName(const LGStation &station)
{
    return joined({textOf(station, editedKeys(station)), station.shownName()});
}

std::optional<QString> uneditedAndNumber(const LGStation &station)
{
    return joined({textOf(station, editedKeys(station)), station.progNumString()});
}

std::optional<QString> identityAndName(const LGStation &station)
{
    return joined({identityOf(station).value_or(QString()), station.shownName()});
}

std::optional<QString> identityAndNumber(const LGStation &station)
{
    return joined({identityOf(station).value_or(QString()), station.progNumString()});
}

/// How stations are told to be the same, the surest way first.
struct Way
{
    std::optional<QString> (*key)(const LGStation &);
    bool isUnique; ///< it must be the only one in both lists; else they are matched in order
};

constexpr std::array ways{
    Way{identityOf, true},        Way{everything, false}, Way{uneditedAndName, false},
    Way{uneditedAndNumber, true}, Way{unedited, true},    Way{identityAndName, false},
    Way{identityAndNumber, true},
};

} // namespace

QStringList editedKeys(const LGStation &station)
{
    const StationKeys &keys = station.keys();
    return station.numberKeys() +
           QStringList{keys.keyStationName, keys.keySkipped, keys.keyBlocked};
}

std::vector<std::optional<std::size_t>> pairStations(const StationList &first,
                                                     const StationList &second)
{
    using Found = StationIndex::Found;
    StationList left = first, right = second; // null where one was matched
    std::size_t unmatched = std::min(left.size(), right.size());
    std::vector<std::optional<std::size_t>> pairs(first.size());
    for (const auto &[key, isUnique] : ways) {
        if (unmatched == 0)
            break;
        StationIndex inLeft(left, key), inRight(right, key);
        for (std::size_t i = 0; i < left.size(); ++i) {
            const std::optional<QString> text = left[i] ? key(*left[i]) : std::nullopt;
            if (!text)
                continue;
            const StationIndex::Match match = inRight.find(*text, right);
            if (match.found == Found::None ||
                (isUnique &&
                 (match.found != Found::One || inLeft.find(*text, left).found != Found::One)))
                continue;
            pairs[i] = match.index;
            left[i].reset();
            right[match.index].reset();
            --unmatched;
        }
    }
    return pairs;
}

} // namespace quillet
