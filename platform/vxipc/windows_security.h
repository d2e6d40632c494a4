// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <memory>

#include <windows.h>

/// Users and access rights in Windows. A user is given by the security identifier as text.
namespace windows_security {

struct HandleCloser
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using OwnedHandle = std::unique_ptr<void, HandleCloser>;

/// INVALID_HANDLE_VALUE becomes null.
OwnedHandle owned(HANDLE handle);

struct LocalMemoryFreer
{
    void operator()(void* memory) const { LocalFree(memory); }
};
template <typename T>
using LocalMemory = std::unique_ptr<T, LocalMemoryFreer>;

/// The user whom this process runs as, elevated or not. Empty when Windows does not say.
QString userOfProcess();

/// The owner of a pipe, by a handle of either end. Empty when Windows does not say.
QString ownerOfPipe(HANDLE pipe);

/// The user of the client that is connected to a pipe's server end. Empty when Windows does not
/// say, as for a client with dynamic identity tracking before its first bytes are read.
QString clientOfPipe(HANDLE serverEnd);

/// A security descriptor for what belongs to the user, with no rights for anybody else. Null on
/// failure.
LocalMemory<void> ownedByUserAlone(const QString& user);

} // namespace windows_security
