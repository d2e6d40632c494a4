// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A process that writes a history until it is killed, for tst_usage_history. It prints a number
// when everything up to it has been written.
#include "usage_printers.h"

#include <QtCore/QCoreApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    VxKit::UsageHistoryOptions options;
    options.fileName = QCoreApplication::arguments().value(1);
    options.resolution = std::chrono::seconds(0);
    const QDateTime start = QDateTime::fromSecsSinceEpoch(1780000000, Qt::UTC);
    options.clock = [start] {
        return start;
    };
    VxKit::UsageHistory history(options);
    const int begin = QCoreApplication::arguments().value(2).toInt();
    // Each roll lasts for 100 changes.
    for (int number = begin;; ++number) {
        const int used = number % 100;
        history.record(
            usage_printers::readingOf(
                QStringLiteral("Packing"),
                usage_printers::levelOf(QString::number(number / 100), 30000 - used * 100)),
            start.addSecs(number));
        if (number % 7 == 6) {
            if (!history.flush(QDeadlineTimer::Forever)) {
                std::fprintf(stderr, "%s\n", qPrintable(history.errorString()));
                return 1;
            }
            std::printf("%d\n", number);
            std::fflush(stdout);
        }
    }
}
