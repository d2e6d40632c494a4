// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A process that adds events to a queue and delivers some of them until it is killed, for
// tst_event_queue. It prints "accepted N" when the event N has been accepted, and "delivered N"
// when it was given away.
#include <event_queue.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    EventQueueOptions options;
    options.folder = QCoreApplication::arguments().value(1);
    EventQueue queue(options);
    QString reason;
    if (!queue.open(&reason)) {
        std::fprintf(stderr, "%s\n", qPrintable(reason));
        return 1;
    }
    for (int number = QCoreApplication::arguments().value(2).toInt();; ++number) {
        queue.add("{\"n\":" + QByteArray::number(number) + '}');
        if (!queue.flush(&reason)) {
            std::fprintf(stderr, "%s\n", qPrintable(reason));
            return 1;
        }
        std::printf("accepted %d\n", number);
        std::fflush(stdout);
        // More come than go, so that something waits at each kill.
        if (number % 3 == 0)
            continue;
        if (const auto entry = queue.next()) {
            const QJsonObject event = QJsonDocument::fromJson(entry->event).object();
            std::printf("delivered %d\n", event[QStringLiteral("n")].toInt());
            std::fflush(stdout);
            queue.done(entry->number);
        }
    }
}
