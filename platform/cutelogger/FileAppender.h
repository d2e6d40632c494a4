// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "AbstractAppender.h"

#include <QtCore/QFile>

/// Appends each record to a file as one line in UTF-8, and flushes the file before it returns. If
/// the file cannot be written, records are lost, with one warning.
class CUTELOGGERSHARED_EXPORT FileAppender : public AbstractAppender
{
public:
    explicit FileAppender(const QString& fileName = QString());
    ~FileAppender() override;
    Q_DISABLE_COPY_MOVE(FileAppender)

    QString fileName() const;
    /// Closes the file and continues with another one.
    void setFileName(const QString& fileName);

protected:
    void append(const QDateTime& timeStamp, Logger::LogLevel logLevel, const char* file, int line,
                const char* function, const QString& category, const QString& message) override;

private:
    mutable QMutex m_fileMutex;
    QFile m_file;
    bool m_hasWarned = false;
};
