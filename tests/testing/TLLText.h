#pragma once

#include <QByteArray>
#include <QString>

#include <utility>
#include <vector>

/// Channel lists made up by tests.
namespace quillet::testing {

/// The fields of one ITEM, in order.
using Item = std::vector<std::pair<QString, QString>>;

/// What a file's sourceIndex says.
enum class FileSource { Antenna = 1, Analogue = 2, Cable = 3, Satellite = 7 };

/// A station with the four fields that decide where it is filed and how it is shown.
[[nodiscard]] Item makeStation(int number, const QString &name,
                               FileSource source = FileSource::Cable, int serviceType = 1);

/// Everything of a file that is not a station. The line end is used throughout; what is null
/// becomes the usual text, between two tags a line end: "\n" in the other texts stands as it is.
struct TLLOptions
{
    QString lineEnd = QStringLiteral("\r\n");
    QString header = {};          ///< up to and including <CHANNEL> and a line end
    QString beforeFirstItem = {}; ///< between a section's tag and its first ITEM
    QString betweenSections = {}; ///< between </ATV> and <DTV>
    QString end = {};             ///< all that follows the last section's closing tag
};

/// The ITEM element, one line a field.
[[nodiscard]] QString makeItem(const Item &fields, const QString &lineEnd = QStringLiteral("\r\n"));

/// A whole file. A section without stations is left out.
[[nodiscard]] QString makeTLL(const std::vector<Item> &atvItems, const std::vector<Item> &dtvItems,
                              const TLLOptions &options = {});

/// What a channel of the JSON variant says besides its name and number.
struct ChannelOptions
{
    QByteArray source = "CABLE DIGITAL";
    int serviceType = 1;
    QByteArray more = {}; ///< further members, each behind a comma
};

/// A channel of the JSON variant; the number stands as it is given.
[[nodiscard]] QByteArray makeChannel(const QByteArray &name, const QByteArray &number,
                                     const ChannelOptions &options = {});

/// The bytes of a file in the folder of samples.
[[nodiscard]] QByteArray readSample(const QString &name);

} // namespace quillet::testing
