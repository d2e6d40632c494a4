// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A process whose files cannot grow, as on a full disk, until it allows them to: for tst_event_log.
// It prints how the log ends while it is full, and how many events were dropped.
#include <event_log.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <csignal>
#include <cstdio>

#include <sys/resource.h>

namespace {

bool limitFiles(rlim_t size)
{
    rlimit limit = {};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0)
        return false;
    limit.rlim_cur = size;
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    std::signal(SIGXFSZ, SIG_IGN);
    VxKit::EventLogOptions options;
    options.fileName = QCoreApplication::arguments().value(1);
    options.maxQueuedBytes = 65536;
    VxKit::EventLog log(options);
    if (!limitFiles(20011))
        return 1;
    const auto append = [&log](int from, int to) {
        for (int number = from; number < to; ++number) {
            VxKit::PrinterEvent event;
            event.printer = QStringLiteral("Packing");
            event.code = number;
            event.text = QStringLiteral("event %1").arg(number);
            log.append(event);
        }
    };
    append(0, 50);
    const bool isBeginWritten = log.flush(QDeadlineTimer::Forever);
    append(50, 2000);
    const bool isRestWritten = log.flush(QDeadlineTimer::Forever);
    QFile file(options.fileName);
    if (!isBeginWritten || isRestWritten || !file.open(QIODevice::ReadOnly))
        return 1;
    const QByteArray text = file.readAll();
    std::printf("%d %d %lld\n", int(text.size()), int(text.endsWith("}\n")), log.lostEvents());
    if (!limitFiles(RLIM_INFINITY))
        return 1;
    if (!log.flush(QDeadlineTimer::Forever))
        return 1;
    append(2000, 2010);
    return log.flush(QDeadlineTimer::Forever) ? 0 : 1;
}
