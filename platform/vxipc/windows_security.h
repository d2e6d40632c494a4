// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <memory>

#include <windows.h>

/// What is asked of Windows about who is who. Users are told by their security identifiers as text.
namespace WindowsSecurity {

struct HandleCloser
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using OwnedHandle = std::unique_ptr<void, HandleCloser>;

/// Null stands for none, also where Windows has another value for that.
OwnedHandle owned(HANDLE handle);

struct LocalMemoryFreer
{
    void operator()(void* memory) const { LocalFree(memory); }
};
template <typename T>
using LocalMemory = std::unique_ptr<T, LocalMemoryFreer>;

/// The user whom this process runs for, elevated or not. Empty when Windows does not tell.
QString userOfProcess();

/// The owner of a pipe that either end is open of. Empty when Windows does not tell.
QString ownerOfPipe(HANDLE pipe);

/// The user at the other end of a pipe's server end. Empty when Windows does not tell, as before
/// the first bytes of a client that lets its identity be looked up for each message.
QString clientOfPipe(HANDLE serverEnd);

/// Describes something that belongs to the user, and that no other user has any right to. Null when
/// it cannot be made.
LocalMemory<void> ownedByUserAlone(const QString& user);

} // namespace WindowsSecurity
