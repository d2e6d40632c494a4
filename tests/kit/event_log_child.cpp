// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A process that writes events, for tst_event_log: the first argument says how.
#include <event_log.h>
#include <event_log_reader.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <cstdio>

namespace {

VxKit::PrinterEvent event(const QString& writer, int number)
{
    VxKit::PrinterEvent event;
    event.kind = VxKit::PrinterEvent::Kind::CommandFailed;
    event.printer = writer;
    event.code = number;
    event.text = QStringLiteral("event %1").arg(number);
    event.reason = QString(number % 300, QChar(0x00e9));
    return event;
}

VxKit::EventLogOptions optionsFor(const QString& fileName)
{
    VxKit::EventLogOptions options;
    options.fileName = fileName;
    options.maxFileSize = 131072;
    options.rotatedFiles = 99;
    options.maxQueuedBytes = qsizetype(64) << 20;
    return options;
}

/// Writes so many events, and fails unless all are in the file at the end. Before each part of them
/// it prints a line and waits for one.
int write(const QString& fileName, const QString& writer, int count, int parts)
{
    VxKit::EventLog log(optionsFor(fileName));
    for (int number = 0; number < count; ++number) {
        if (number % (count / parts) == 0) {
            std::puts("ready");
            std::fflush(stdout);
            if (std::getchar() == EOF)
                return 1;
        }
        log.append(event(writer, number));
    }
    if (log.flush(QDeadlineTimer::Forever) && log.lostEvents() == 0)
        return 0;
    std::fprintf(stderr, "%lld lost: %s\n", log.lostEvents(), qPrintable(log.errorString()));
    return 1;
}

/// Writes events until it is killed.
int writeForever(const QString& fileName, const QString& writer)
{
    VxKit::EventLogOptions options = optionsFor(fileName);
    options.maxFileSize = qint64(1) << 30;
    VxKit::EventLog log(options);
    for (int number = 0;; ++number) {
        log.append(event(writer, number));
        if (number % 64 == 63)
            log.flush(QDeadlineTimer::Forever);
    }
}

/// The most memory that this process has used so far, in KiB; negative where that is not known.
long peakMemory()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').value(1).toLong();
    }
    return -1;
}

/// Prints how much memory it took to append a hundred thousand events that cannot be written, and
/// how many of them were dropped.
int appendInVain(const QString& fileName)
{
    VxKit::EventLogOptions options = optionsFor(fileName);
    options.maxQueuedBytes = 1 << 20;
    VxKit::EventLog log(options);
    const long before = peakMemory();
    for (int number = 0; number < 100000; ++number)
        log.append(event(QStringLiteral("vain"), number));
    std::printf("%ld %lld\n", peakMemory() - before, log.lostEvents());
    return 0;
}

/// Prints how much memory it took to read a log, how many events it has, and how many bad lines.
int read(const QString& fileName)
{
    const long before = peakMemory();
    VxKit::EventLogReader log(fileName);
    long events = 0;
    while (log.next())
        ++events;
    std::printf("%ld %ld %lld\n", peakMemory() - before, events, log.badLines());
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString how = arguments.value(1);
    const QString fileName = arguments.value(2);
    if (how == QLatin1String("write"))
        return write(fileName, arguments.value(3), arguments.value(4).toInt(),
                     arguments.value(5).toInt());
    if (how == QLatin1String("write-forever"))
        return writeForever(fileName, arguments.value(3));
    if (how == QLatin1String("append-in-vain"))
        return appendInVain(fileName);
    if (how == QLatin1String("read"))
        return read(fileName);
    return 2;
}
