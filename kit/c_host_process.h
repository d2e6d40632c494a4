// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QLocale>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <memory>

class QCoreApplication;

namespace VxKit::c_interface {

/// What a caller has set for the next start; what is empty is not set.
struct SessionOptions
{
    QString catalogue;
    QString language;
    QString logFile;
    QString history;
};

/// The locale that a language tag names; without a language, the user's. `*isKnown` says whether
/// there is such a language.
QLocale localeOf(const QString& language, bool* isKnown = nullptr);

/// The parts of a process that an application on Qt has anyway: the application object, its
/// language, and where the library's log goes. When the process has an application object, it is
/// used, and nothing is changed. Belongs to the thread that creates it.
class HostProcess
{
public:
    /// Throws a `std::runtime_error` when an option cannot be followed.
    explicit HostProcess(const SessionOptions& options);
    ~HostProcess();
    Q_DISABLE_COPY_MOVE(HostProcess)

private:
    void loadTexts(const QString& name, const QLocale& locale);

    std::unique_ptr<QCoreApplication> m_application; ///< null when the host has its own
    QLocale m_formerLocale;
};

/// Has a function called when the process ends, before all that exists now is destroyed. Only the
/// first call has an effect. On Windows it is not called: there a library hears of the end only
/// when all other threads are gone.
void callAtExit(void (*function)());

} // namespace VxKit::c_interface
