// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_file.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>

#include <algorithm>
#include <utility>

namespace VxKit {

namespace {

/// More than three hundred years.
constexpr double longestTime = 1e10;

QString translated(const char* text)
{
    return QCoreApplication::translate("VxKit::CaseFile", text);
}

/// The numbers of "1.0"; without a value when it is something else.
std::optional<std::pair<int, int>> versionOf(const QJsonValue& value)
{
    const QStringList parts = value.toString().split(u'.');
    if (parts.size() != 2)
        return std::nullopt;
    bool isMajor = false;
    bool isMinor = false;
    const std::pair version(parts.first().toUShort(&isMajor), parts.last().toUShort(&isMinor));
    return isMajor && isMinor ? std::optional<std::pair<int, int>>(version) : std::nullopt;
}

} // namespace

class CaseFile::Private
{
public:
    void open(const QString& fileName);
    std::optional<CaseLine> read();
    void checkHeader(const CaseLine& line);

    QString error;
    std::optional<CaseLine> first; ///< until `next` has returned it
    QJsonObject header;
    bool isEnded = false;

private:
    void refuse(const QString& reason);
    std::optional<QByteArrayView> readLine();
    bool isRestBlank();

    QFile m_file;
    /// Room for a line, one more byte and the zero that QIODevice puts behind it. Without a buffer
    /// of one's own, QIODevice allocates that much for each line.
    QByteArray m_buffer{longestLine + 2, Qt::Uninitialized};
    qint64 m_number = 0;
    qint64 m_bytes = 0;
    double m_time = 0;
};

void CaseFile::Private::refuse(const QString& reason)
{
    //: %1 is a file, %2 the number of a line in it, %3 what is wrong.
    error = translated(QT_TRANSLATE_NOOP("VxKit::CaseFile", "%1: line %2: %3"))
                .arg(m_file.fileName(), QString::number(m_number), reason);
}

void CaseFile::Private::open(const QString& fileName)
{
    m_file.setFileName(fileName);
    if (!m_file.open(QIODevice::ReadOnly))
        error = QStringLiteral("%1: %2").arg(fileName, m_file.errorString());
}

/// A whole line without its line feed, valid until the next call. Empty at the end, where an
/// incomplete line is skipped, and after an error.
std::optional<QByteArrayView> CaseFile::Private::readLine()
{
    if (!error.isEmpty())
        return std::nullopt;
    const qint64 length = m_file.readLine(m_buffer.data(), m_buffer.size());
    QByteArrayView line(m_buffer.constData(), std::max<qint64>(length, 0));
    const bool isWhole = line.endsWith('\n');
    if (line.isEmpty()) {
        if (m_file.error() != QFileDevice::NoError)
            error = QStringLiteral("%1: %2").arg(m_file.fileName(), m_file.errorString());
        return std::nullopt;
    }
    ++m_number;
    m_bytes += line.size();
    if (line.size() > longestLine || (line.size() == longestLine && !isWhole)) {
        refuse(translated(QT_TRANSLATE_NOOP("VxKit::CaseFile", "it is longer than %1 bytes"))
                   .arg(longestLine));
        return std::nullopt;
    }
    if (m_bytes > largestFile) {
        refuse(translated(QT_TRANSLATE_NOOP("VxKit::CaseFile", "the file is larger than %1 bytes"))
                   .arg(largestFile));
        return std::nullopt;
    }
    if (!isWhole)
        return std::nullopt;
    line.chop(1);
    return line;
}

/// Whether nothing but zeros and white space follows, as after a power cut.
bool CaseFile::Private::isRestBlank()
{
    constexpr qint64 most = 65536;
    const QByteArray rest = m_file.read(most);
    return rest.size() < most && std::all_of(rest.begin(), rest.end(), [](char byte) {
               return byte == '\0' || byte == '\n' || byte == '\r' || byte == ' ';
           });
}

std::optional<CaseLine> CaseFile::Private::read()
{
    const std::optional<QByteArrayView> bytes = readLine();
    if (!bytes)
        return std::nullopt;
    QJsonParseError parseError;
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray::fromRawData(bytes->data(), bytes->size()), &parseError);
    const QJsonObject object = document.object();
    const QString kind = object.value(QLatin1String("kind")).toString();
    if (kind.isEmpty()) {
        // The last line may be damaged: the recording was cut there.
        const qint64 number = m_number;
        if (number > 1 && isRestBlank())
            return std::nullopt;
        refuse(
            document.isObject()
                ? translated(QT_TRANSLATE_NOOP("VxKit::CaseFile", "the member \"kind\" is missing"))
                : translated(QT_TRANSLATE_NOOP("VxKit::CaseFile", "it is not a JSON object")));
        return std::nullopt;
    }
    if (isEnded) {
        refuse(translated(
            QT_TRANSLATE_NOOP("VxKit::CaseFile", "there is a line behind the end of the case")));
        return std::nullopt;
    }
    const QJsonValue time = object.value(QLatin1String("t"));
    const double seconds = time.toDouble(m_time);
    if ((!time.isUndefined() && !time.isDouble()) || !(seconds >= 0 && seconds <= longestTime)) {
        refuse(translated(QT_TRANSLATE_NOOP("VxKit::CaseFile",
                                            "\"t\" is not a number of seconds since the start")));
        return std::nullopt;
    }
    m_time = seconds;
    isEnded = kind == QLatin1String("end");
    return CaseLine{m_number, kind, seconds, object};
}

void CaseFile::Private::checkHeader(const CaseLine& line)
{
    const std::optional<std::pair<int, int>> version =
        versionOf(line.object.value(QLatin1String("version")));
    if (line.kind != QLatin1String("case") || !version) {
        refuse(translated(QT_TRANSLATE_NOOP("VxKit::CaseFile", "this is not a case file")));
    } else if (version->first != majorVersion) {
        refuse(translated(QT_TRANSLATE_NOOP(
                              "VxKit::CaseFile",
                              "the case file has version %1, but this program reads version %2"))
                   .arg(QStringLiteral("%1.%2").arg(version->first).arg(version->second))
                   .arg(majorVersion));
    } else {
        header = line.object;
    }
}

CaseFile::CaseFile(const QString& fileName)
    : d(std::make_unique<Private>())
{
    d->open(fileName);
    d->first = d->read();
    if (d->first)
        d->checkHeader(*d->first);
    else if (d->error.isEmpty())
        d->error = QStringLiteral("%1: %2").arg(
            fileName, translated(QT_TRANSLATE_NOOP("VxKit::CaseFile", "this is not a case file")));
    if (!d->error.isEmpty())
        d->first.reset();
}

CaseFile::~CaseFile() = default;

std::optional<CaseLine> CaseFile::next()
{
    return d->first ? std::exchange(d->first, std::nullopt) : d->read();
}

QJsonObject CaseFile::header() const
{
    return d->header;
}

bool CaseFile::isCut() const
{
    return !d->isEnded;
}

QString CaseFile::errorString() const
{
    return d->error;
}

} // namespace VxKit
