// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What a recorder is told, before it becomes lines.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <array>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

#include <windows.h>

namespace VxKit {

class CaseSink;

/// The values that the library reads.
inline constexpr std::array libraryValues{
    "SupplyIdentifier", "Ribbon1Identifier", "Ribbon2Identifier", "StatusCode",
    "SoftwareVersion",  "EthernetConfig",    "Mileage",           "Ribbon1Mileage",
    "Ribbon2Mileage",   "UpdateProgress",    "UpdateError"};
/// Their places, counted from one.
enum KnownValue
{
    SupplyIdentifier = 1,
    Ribbon1Identifier,
    Ribbon2Identifier,
    StatusCode,
    SoftwareVersion,
    EthernetConfig,
    Mileage,
    Ribbon1Mileage,
    Ribbon2Mileage,
    UpdateProgress,
    UpdateError,
};
static_assert(UpdateError == libraryValues.size());

/// A number for bytes that is hardly ever the same for others of the same size, and never when they
/// are at most eight. Cheap for those that the library reads, unlike Qt's.
inline quint64 fingerprint(const void* bytes, std::size_t size, quint64 seed)
{
    constexpr quint64 multiplier = 0x9E3779B97F4A7C15U;
    const auto* place = static_cast<const char*>(bytes);
    quint64 result = seed * multiplier;
    const auto mix = [&result](quint64 word) {
        result = (result ^ word) * multiplier;
        result ^= result >> 32;
    };
    // Not together with the seed: a type of 4 with 4 bytes is not a type of 1 with one byte.
    mix(size);
    quint64 word = 0;
    for (; size > sizeof(word); size -= sizeof(word), place += sizeof(word)) {
        std::memcpy(&word, place, sizeof(word));
        mix(word);
    }
    word = 0;
    if (size > 0)
        std::memcpy(&word, place, size);
    mix(word);
    return result;
}

/// Values that a driver publishes, one after the other in a block.
class PublishedValues
{
public:
    struct Value
    {
        QByteArrayView name;
        DWORD type = 0;
        DWORD size = 0;
        QByteArrayView bytes; ///< null when only the size is known
        bool isMissing = false;
        int known = 0; ///< the place among those that the library reads, from 1; 0: another one
    };

    PublishedValues() = default;
    explicit PublishedValues(QByteArray block)
        : m_block(std::move(block))
    {}

    bool isEmpty() const { return m_block.isEmpty(); }
    const QByteArray& block() const { return m_block; }
    /// Keeps the memory.
    void clear() { m_block.resize(0); }
    qsizetype size() const { return m_block.size(); }

    /// The place of a value among those that the library reads, from 1; 0 for another one.
    static int placeOf(QByteArrayView name);

    /// `bytes` may be null when they are not known.
    void add(QByteArrayView name, DWORD type, DWORD size, const BYTE* bytes)
    {
        add(placeOf(name), name, type, size, bytes);
    }
    /// The same with the value's place, which has not to be found again.
    void add(int known, QByteArrayView name, DWORD type, DWORD size, const BYTE* bytes);
    /// A value that is not published any more.
    void addMissing(QByteArrayView name);
    template <typename Use>
    void forEach(Use use) const
    {
        for (const char* place = m_block.constData();
             place != m_block.constData() + m_block.size();)
            use(next(place));
    }
    /// Null when there is none with that name.
    bool find(QByteArrayView name, Value& value) const;
    /// Gives back memory that more values would need.
    void squeeze() { m_block.squeeze(); }
    /// Takes over values; those that are missing are left out.
    void merge(const PublishedValues& changed);

private:
    void append(const Value& value);
    bool mergeInPlace(const PublishedValues& changed);
    static Value next(const char*& place);

    QByteArray m_block;
};

/// A value as a member of a line.
QJsonObject valueObject(const PublishedValues::Value& value);

/// Something that happened, in the order of the lines.
struct CaseItem
{
    enum class Kind : quint8
    {
        Line,   ///< `object` is the line
        Values, ///< of the printer `text`, in `block`; `object` has the failures, if any
        Signal,
        Log,
        Records,   ///< the controller's, in `object`
        SinkAdded, ///< the records in `object`
        SinkRemoved,
        Catalogue, ///< it is the file `text`
        Flush,     ///< everything up to the number in `step`
        Reset,     ///< everything has been read again
        Lost,      ///< as many as `step` says
    };
    Kind kind = Kind::Line;
    bool isSeenByLook = false;
    bool isForWorldAlone = false; ///< it has to be known, but not written
    quint8 signal = 0;            ///< its index among the controller's signals
    int level = 0;                ///< of a line of the log; the status of a signal
    int line = 0;                 ///< of a line of the log
    int step = -1;                ///< its number; negative: it is none
    int at = -1;                  ///< the step at which it was already so; negative: none
    int waitingSize = 0;          ///< of a block that waits with others for the writer
    qint64 time = 0;              ///< in milliseconds
    QString text;
    QByteArray block;
    QJsonObject object;
    const char* file = nullptr;
    const char* function = nullptr;
    std::shared_ptr<CaseSink> sink;

    qsizetype bytes() const
    {
        return static_cast<qsizetype>(sizeof(CaseItem)) + block.size() + waitingSize +
               2 * text.size() + (object.isEmpty() ? 0 : 512);
    }
};

} // namespace VxKit
