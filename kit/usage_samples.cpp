// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "usage_samples.h"

#include <algorithm>

namespace VxKit {

namespace {

/// What lies outside is none of ours: the year 10000, and what 32 bits hold.
constexpr qint64 lastTime = 253402300800;
constexpr qint64 largestLevel = 0xffffffff;

constexpr int bitsInByte = 7;
constexpr quint64 moreFollows = 0x80;

/// Small numbers of either sign become small numbers.
quint64 folded(qint64 number)
{
    return (static_cast<quint64>(number) << 1) ^ static_cast<quint64>(number >> 63);
}

qint64 unfolded(quint64 number)
{
    return static_cast<qint64>(number >> 1) ^ -static_cast<qint64>(number & 1);
}

void append(QByteArray& bytes, qint64 number)
{
    quint64 rest = folded(number);
    while (rest >= moreFollows) {
        bytes.append(static_cast<char>(rest | moreFollows));
        rest >>= bitsInByte;
    }
    bytes.append(static_cast<char>(rest));
}

/// Takes the next number. False at the end, and for a number that is too long.
bool take(const QByteArray& bytes, qsizetype& place, qint64& number)
{
    quint64 value = 0;
    for (int shift = 0; shift < 8 * bitsInByte && place < bytes.size(); shift += bitsInByte) {
        const auto byte = static_cast<quint8>(bytes.at(place++));
        value |= (byte & (moreFollows - 1)) << shift;
        if (byte < moreFollows) {
            number = unfolded(value);
            return true;
        }
    }
    return false;
}

} // namespace

qint64 possibleTime(qint64 time)
{
    return std::clamp(time, -lastTime, lastTime);
}

qint64 possibleLevel(qint64 level)
{
    return std::clamp<qint64>(level, 0, largestLevel);
}

QByteArray packed(const std::vector<StoredSample>& samples)
{
    QByteArray bytes;
    StoredSample last;
    for (const StoredSample& sample : samples) {
        append(bytes, sample.time - last.time);
        append(bytes, sample.level - last.level);
        last = sample;
    }
    return bytes;
}

std::vector<StoredSample> unpacked(const QByteArray& bytes)
{
    std::vector<StoredSample> samples;
    StoredSample sample;
    qsizetype place = 0;
    while (samples.size() < samplesInChunk) {
        qint64 time = 0;
        qint64 level = 0;
        if (!take(bytes, place, time) || !take(bytes, place, level))
            break;
        sample.time += time;
        sample.level += level;
        if (sample.time != possibleTime(sample.time) || sample.level != possibleLevel(sample.level))
            break;
        samples.push_back(sample);
    }
    return samples;
}

std::vector<StoredSample> thinned(const std::vector<StoredSample>& samples, qint64 period)
{
    const auto periodOf = [period](qint64 time) {
        return time / period - (time % period < 0 ? 1 : 0);
    };
    std::vector<StoredSample> kept;
    for (const StoredSample& sample : samples) {
        if (!kept.empty() && periodOf(kept.back().time) == periodOf(sample.time))
            kept.back() = sample;
        else
            kept.push_back(sample);
    }
    return kept;
}

} // namespace VxKit
