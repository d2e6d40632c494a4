// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QtGlobal>

#include <vector>

namespace VxKit {

/// A level as a history keeps it.
struct StoredSample
{
    qint64 time = 0;  ///< in seconds since 1970, UTC
    qint64 level = 0; ///< in the unit of its segment

    bool operator==(const StoredSample&) const = default;
};

/// A time and a level as they were read from a file, which may hold any number.
qint64 possibleTime(qint64 time);
qint64 possibleLevel(qint64 level);

/// How many samples are kept together.
inline constexpr std::size_t samplesInChunk = 256;

/// The keys of the chunks of a segment: from `begin`, and less than `end`.
struct ChunkKeys
{
    qint64 begin;
    qint64 end;
};
inline constexpr int chunkBits = 20;
constexpr ChunkKeys chunkKeysOf(qint64 segment)
{
    return {segment << chunkBits, (segment + 1) << chunkBits};
}
constexpr qint64 segmentOfChunk(qint64 key)
{
    return key >> chunkBits;
}

/// A level in millimetres is so many times one in metres.
inline constexpr double millimetersPerMeter = 1000.0;

/// Samples as bytes: the differences from each sample to the next, in as few bytes as they need.
QByteArray packed(const std::vector<StoredSample>& samples);
/// The samples that `packed` was given. Bytes from elsewhere may end early or have impossible
/// values: the samples in front of these are returned, at most `samplesInChunk`.
std::vector<StoredSample> unpacked(const QByteArray& bytes);

/// The last sample of each hour, day or other period, in seconds, UTC.
std::vector<StoredSample> thinned(const std::vector<StoredSample>& samples, qint64 period);

} // namespace VxKit
