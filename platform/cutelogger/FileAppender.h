// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "AbstractAppender.h"

#include <QtCore/QFile>

/// Appends records to a file in UTF-8, a line each, which are in the file when the call returns. A
/// file that cannot be written loses them, with one warning.
class CUTELOGGERSHARED_EXPORT FileAppender : public AbstractAppender
{
public:
    explicit FileAppender(const QString& fileName = QString());
    ~FileAppender() override;
    Q_DISABLE_COPY_MOVE(FileAppender)

    QString fileName() const;
    /// Closes the file and goes on in another.
    void setFileName(const QString& fileName);

protected:
    void append(const QDateTime& timeStamp, Logger::LogLevel logLevel, const char* file, int line,
                const char* function, const QString& category, const QString& message) override;

private:
    mutable QMutex m_fileMutex;
    QFile m_file;
    bool m_hasWarned = false;
};
