// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QtGlobal>

#include <csignal>

#include <sys/resource.h>

/// Interrupts writes like a full disk for as long as it lives: no file may become larger.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        m_isSet = getrlimit(RLIMIT_FSIZE, &m_before) == 0;
        const rlimit small{.rlim_cur = bytes, .rlim_max = m_before.rlim_max};
        m_isSet = m_isSet && setrlimit(RLIMIT_FSIZE, &small) == 0;
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

    bool isSet() const { return m_isSet; }

private:
    void (*m_handler)(int);
    rlimit m_before = {};
    bool m_isSet = false;
};
