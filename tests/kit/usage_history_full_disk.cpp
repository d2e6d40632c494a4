// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A process whose files cannot grow beyond a size, as on a full disk, until it allows them to: for
// tst_usage_history. It prints "failed" and "resumed" when it is told so, then how many changes it
// has recorded in all and how many of them were dropped.
#include "../platform/file_size_limit.h"
#include "usage_printers.h"

#include <QtCore/QCoreApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    VxKit::UsageHistoryOptions options;
    options.fileName = QCoreApplication::arguments().value(1);
    options.resolution = std::chrono::seconds(0);
    options.maxQueuedSamples = 500;
    const QDateTime start = QDateTime::fromSecsSinceEpoch(1780000000, Qt::UTC);
    options.clock = [start] {
        return start;
    };
    VxKit::UsageHistory history(options);
    QObject::connect(&history, &VxKit::UsageHistory::writingFailed,
                     [](const QString&) { std::puts("failed"); });
    QObject::connect(&history, &VxKit::UsageHistory::writingResumed, [] { std::puts("resumed"); });
    int number = 0;
    // Each change is another roll, so that the file grows.
    const auto record = [&](int count) {
        for (int i = 0; i < count; ++i, ++number)
            history.record(usage_printers::readingOf(
                               QStringLiteral("Packing"),
                               usage_printers::levelOf(QString::number(number), 30000 - number)),
                           start.addSecs(100 * qint64(number)));
        const bool isWritten = history.flush(QDeadlineTimer::Forever);
        QCoreApplication::processEvents();
        return isWritten;
    };
    if (!record(100))
        return 1;
    {
        const FileSizeLimit limit(QCoreApplication::arguments().value(2).toULong());
        if (!limit.isSet())
            return 1;
        for (int round = 0; round < 30; ++round)
            record(100);
        if (record(100))
            return 1;
    }
    if (!record(10))
        return 1;
    std::printf("%d %lld\n", number, history.lostSamples());
    return 0;
}
