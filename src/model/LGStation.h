#pragma once

#include "model/StationKeys.h"
#include "model/TypeFilter.h"
#include "xml/Value.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace quillet {

class Utf8Builder;

/// The record of one station: typed, lenient access to the fields of its entry. Every edit goes
/// into the entry, from which the station's text is written on save; fields the program does not
/// know stay in it untouched. Reading never fails: what is missing or malformed reads as none,
/// false, missingProgNum or an empty text. Owned by the lists of its document.
class LGStation
{
public:
    /// Bits 0 to 13 of the raw program number are the number a person sees, bit 14 marks radio.
    static constexpr qint64 progNumMask = 0x3FFF;
    static constexpr qint64 radioMark = 0x4000;
    /// Stands for a missing number and is the highest a person may give.
    static constexpr qint64 missingProgNum = 9999;
    /// Whether a station that is given the number carries it afterwards: one that is too high for
    /// its bits reads as a low number with the mark of radio.
    [[nodiscard]] static constexpr bool canCarry(qint64 number)
    {
        return number >= 0 && number <= progNumMask;
    }

    /// `origIndex` is the station's index within its section of the file.
    LGStation(Dictionary entry, qint64 origIndex);
    virtual ~LGStation() = default;
    LGStation(const LGStation &) = delete;
    LGStation &operator=(const LGStation &) = delete;

    [[nodiscard]] const Dictionary &entry() const { return m_entry; }
    [[nodiscard]] Dictionary getEntry() const { return m_entry; }
    void setEntry(Dictionary entry);
    /// Exchanges all that was read or edited, name and all, with another station of the same kind.
    /// Each keeps its place in its file.
    void swapContent(LGStation &other);
    [[nodiscard]] qint64 origPos() const { return m_origPos; }
    void setOrigPos(qint64 position) { m_origPos = position; }
    [[nodiscard]] bool isDirty() const { return m_isDirty; }
    void setIsDirty(bool dirty) { m_isDirty = dirty; }
    /// Whether the raw program number carried the radio mark when the record was made.
    [[nodiscard]] bool isRadio() const { return m_isRadio; }
    void setIsRadio(bool radio)
    {
        m_isRadio = radio;
        m_numberState = NumberState::Unknown;
    }
    /// True once a name that is not empty has been read.
    [[nodiscard]] bool usesBinaryDataInUtf8Envelope() const { return m_usesEnvelope; }
    void setUsesBinaryDataInUtf8Envelope(bool uses) { m_usesEnvelope = uses; }
    /// The cached name: empty until stationName() has been asked for.
    [[nodiscard]] const QString &name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    [[nodiscard]] const StationKeys &keys() const { return *m_keys; }

    /// The decoded name, which is read once and then kept, whatever the entry holds later.
    [[nodiscard]] virtual QString stationName() const;
    /// Stores a new name in the entry, as it is; an empty one is ignored. The name that
    /// stationName() has read before stays.
    void setStationName(const QString &name);
    /// Whether the entry holds a name that setStationName() gave it, rather than the one it was
    /// made with.
    [[nodiscard]] bool isRenamed() const;
    /// The name to show: the new one of a renamed station, else stationName().
    [[nodiscard]] QString shownName() const;

    /// What is remembered of the name besides the fields of the entry.
    struct RememberedName
    {
        QString read; ///< as name() gives it
        /// What the entry held as name before it was first given another; none when it never was.
        std::optional<std::optional<QString>> asMade;

        bool operator==(const RememberedName &) const = default;
    };
    [[nodiscard]] RememberedName rememberedName() const;
    void setRememberedName(const RememberedName &name);

    /// The number a person sees, 0 to 16383; missingProgNum when there is none.
    [[nodiscard]] qint64 progNum() const;
    /// The whole stored number; missingProgNum when there is none.
    [[nodiscard]] qint64 getRawProgNum() const;
    [[nodiscard]] QString progNumString() const;
    /// Stores the number, with the radio mark added for a radio station. Not range-checked.
    virtual void setProgramNum(qint64 number);
    /// Whether giving the station the number it has would leave its entry as it is.
    [[nodiscard]] bool hasPlainNumber() const;
    /// The fields that setProgramNum() writes, in the order in which it adds them.
    [[nodiscard]] virtual QStringList numberKeys() const;

    /// What the entry holds under a key; none when there is no such field.
    [[nodiscard]] std::optional<Value> field(const QString &key) const;
    /// Makes the entry hold that under the key, in its place or, where it is new, as the last
    /// field.
    void setField(const QString &key, const std::optional<Value> &content);

    [[nodiscard]] bool isInvisible() const;
    [[nodiscard]] bool isSkipped() const;
    [[nodiscard]] bool isBlocked() const;
    void setSkipped(bool skipped);
    void setBlocked(bool blocked);

    /// The identifiers' own text; none when absent or not text.
    [[nodiscard]] virtual std::optional<QString> service_id() const;
    [[nodiscard]] virtual std::optional<QString> transport_id() const;
    [[nodiscard]] virtual std::optional<QString> originalNetwork_id() const;

    /// Where the station is broadcast, as a person reads it: text as it is, numbers in decimal.
    /// None where the file tells nothing.
    [[nodiscard]] std::optional<QString> networkIdText() const;
    [[nodiscard]] std::optional<QString> transportStreamIdText() const;
    [[nodiscard]] std::optional<QString> serviceIdText() const;
    /// The set's own word for the satellite; none for stations of other sources. It may be but a
    /// number in the set's table, which still tells stations of one satellite from those of others.
    [[nodiscard]] std::optional<QString> satellite() const;
    /// As the file gives it, above 0: mostly in MHz for satellites, and in kHz for the others.
    [[nodiscard]] std::optional<qint64> frequency() const;
    [[nodiscard]] std::optional<bool> isEncrypted() const;

    /// The index, 0 to 3, of the source the station is filed under; 3 when it names none or an
    /// unknown one.
    [[nodiscard]] virtual int mappedSourceIndex() const;
    /// Both are false for an unknown service type and when there is none.
    [[nodiscard]] bool isTVStation() const;
    [[nodiscard]] bool isRadioStation() const;
    [[nodiscard]] QString channelType() const;
    /// The text of the type column in the list of that source index.
    [[nodiscard]] QString channelTypeForDisplay(int sourceIndex) const;
    /// Whether the station passes the type filter in the list of that source index. A station
    /// without service type counts as digital television. A filter outside TypeFilter's values is a
    /// programming error.
    [[nodiscard]] bool matchesType(int filter, int sourceIndex) const;

    /// The station's complete ITEM element, every line ended by CR LF. Text is written as it
    /// is, without escaping.
    [[nodiscard]] QString getXMLItem() const;
    /// Appends the same text to a Utf8Builder.
    void appendXMLItem(Utf8Builder &output) const;

    /// One line for logs.
    [[nodiscard]] QString description() const;
    /// Appends the same text to a Utf8Builder.
    void appendDescription(Utf8Builder &output) const;

protected:
    void setKeys(const StationKeys &keys);
    /// The value as a signed 64-bit decimal number; none when absent, malformed or too large.
    [[nodiscard]] virtual std::optional<qint64> getIntValue(const QString &key) const;
    [[nodiscard]] virtual std::optional<bool> getBoolValue(const QString &key) const;
    virtual void setBoolValue(bool value, const QString &key);
    void setValue(const QString &key, Value value);
    /// Says what getIntValue() will find as program number, which was just stored, and whether it
    /// is a plain one: that saves reading it again.
    void keepRawNumber(qint64 raw, bool isPlain);
    /// What hasPlainNumber() tells of a number that was read.
    [[nodiscard]] virtual bool readsPlainNumber() const;
    /// The name as the entry tells it, whatever was read before.
    [[nodiscard]] virtual QString readName() const;
    /// Keeps the name that was read.
    void keepName(const QString &name) const { m_name = name; }
    /// What the description calls it.
    [[nodiscard]] virtual QLatin1String className() const;

private:
    [[nodiscard]] std::optional<qint64> intValueAt(qsizetype position) const;
    [[nodiscard]] std::optional<QString> textValue(const QString &key) const;
    [[nodiscard]] std::optional<QString> shownText(const QString &key) const;
    [[nodiscard]] std::optional<qint64> rawNumber() const;

    const StationKeys *m_keys;
    Dictionary m_entry;
    mutable QString m_name;
    /// What the entry held as name before the first renaming; null before that.
    std::unique_ptr<const std::optional<QString>> m_nameAsMade;
    /// What the entry holds as program number, read once after each change: whole lists are walked
    /// for it.
    mutable std::optional<qint64> m_rawNumber;
    enum class NumberState { Unknown, Read, Plain };
    mutable NumberState m_numberState = NumberState::Unknown;
    qint64 m_origPos;
    bool m_isDirty = false;
    bool m_isRadio = false;
    mutable bool m_usesEnvelope = false;
};

using StationPtr = std::shared_ptr<LGStation>;
using StationList = std::vector<StationPtr>;
/// A list that is shared, not copied, so that it stays alive for whoever still holds it.
using StationListPtr = std::shared_ptr<StationList>;

} // namespace quillet
