// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "FileAppender.h"

#include <cstdio>

FileAppender::FileAppender(const QString& fileName)
{
    setFileName(fileName);
}

FileAppender::~FileAppender() = default;

QString FileAppender::fileName() const
{
    const QMutexLocker guard(&m_fileMutex);
    return m_file.fileName();
}

void FileAppender::setFileName(const QString& fileName)
{
    const QMutexLocker guard(&m_fileMutex);
    m_file.close();
    m_file.setFileName(fileName);
    m_hasWarned = false;
}

void FileAppender::append(const QDateTime& timeStamp, Logger::LogLevel logLevel, const char* file,
                          int line, const char* function, const QString& category,
                          const QString& message)
{
    const QMutexLocker guard(&m_fileMutex);
    const QByteArray text =
        formatted(timeStamp, logLevel, file, line, function, category, message).toUtf8();
    const bool isOpen =
        m_file.isOpen() || m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text);
    if (isOpen && m_file.write(text) == text.size() && m_file.flush())
        return;
    if (m_hasWarned)
        return;
    m_hasWarned = true;
    std::fprintf(stderr, "log: cannot write to \"%s\": %s\n", qPrintable(m_file.fileName()),
                 qPrintable(m_file.errorString()));
}
