// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "internals.h"

namespace virtualwindows {

namespace {

constexpr quintptr firstHandle = 0x10000;
constexpr quintptr handleStep = 4; // the two low bits of a handle are zero on Windows

const char* kindName(Object::Kind kind)
{
    switch (kind) {
    case Object::Kind::Event:
        return "an event";
    case Object::Kind::ChangeNotification:
        return "a change notification";
    case Object::Kind::Printer:
        return "a printer";
    case Object::Kind::ServiceManager:
        return "a service manager";
    case Object::Kind::Service:
        return "a service";
    }
    return "";
}

bool isClosing(Function function)
{
    switch (function) {
    case Function::CloseHandle:
    case Function::ClosePrinter:
    case Function::CloseServiceHandle:
    case Function::FindClosePrinterChangeNotification:
        return true;
    default:
        return false;
    }
}

/// Handles of the service manager and of services are closed by the same function.
bool accepts(Object::Kind wanted, Object::Kind kind, Function function)
{
    if (wanted == kind)
        return true;
    return function == Function::CloseServiceHandle && kind == Object::Kind::Service;
}

} // namespace

HANDLE Machine::Private::open(const std::shared_ptr<Object>& object)
{
    const quintptr value = nextHandle;
    nextHandle += handleStep; // never reused, so that uses after closing can be recognised
    objects.emplace(value, object);
    return reinterpret_cast<HANDLE>(value);
}

void Machine::Private::recordMisuse(HandleMisuse::Kind kind, HANDLE handle, const ApiCall& call,
                                    const char* what)
{
    const QString name = nameOf(call.function());
    misuses.append({kind, reinterpret_cast<quintptr>(handle), name,
                    QStringLiteral("%1 was called with %2, %3")
                        .arg(name, textOf(handle), QLatin1String(what))});
}

std::shared_ptr<Object> Machine::Private::findObject(HANDLE handle, Object::Kind kind,
                                                     const ApiCall& call)
{
    const auto value = reinterpret_cast<quintptr>(handle);
    const auto found = objects.find(value);
    if (found != objects.end() && accepts(kind, found->second->kind, call.function()))
        return found->second;

    SetLastError(ERROR_INVALID_HANDLE);
    // Programs use this value for "no handle" and may close it. That fails, but harms no other
    // handle.
    if (handle == INVALID_HANDLE_VALUE)
        return {};

    if (found != objects.end()) {
        recordMisuse(HandleMisuse::Kind::NotAHandle, handle, call, kindName(found->second->kind));
        return {};
    }
    const bool wasOpened = value >= firstHandle && value < nextHandle && value % handleStep == 0;
    if (!wasOpened)
        recordMisuse(HandleMisuse::Kind::NotAHandle, handle, call, "which was never opened");
    else if (isClosing(call.function()))
        recordMisuse(HandleMisuse::Kind::ClosedTwice, handle, call, "which is already closed");
    else
        recordMisuse(HandleMisuse::Kind::UsedAfterClose, handle, call, "which is closed");
    return {};
}

std::shared_ptr<Object> Machine::Private::closeObject(HANDLE handle, Object::Kind kind,
                                                      const ApiCall& call)
{
    std::shared_ptr<Object> object = findObject(handle, kind, call);
    if (object)
        objects.erase(reinterpret_cast<quintptr>(handle));
    return object;
}

int Machine::openHandles() const
{
    const std::lock_guard guard(d->lock);
    return static_cast<int>(d->objects.size());
}

QList<HandleMisuse> Machine::misuses() const
{
    const std::lock_guard guard(d->lock);
    return d->misuses;
}

QList<HandleMisuse> Machine::settle() const
{
    const std::lock_guard guard(d->lock);
    QList<HandleMisuse> entries = d->misuses;
    for (const auto& [value, object] : d->objects) {
        const QString function = nameOf(object->openedBy);
        entries.append({HandleMisuse::Kind::Leaked, value, function,
                        QStringLiteral("%1, %2 that %3 opened, was never closed")
                            .arg(textOf(reinterpret_cast<HANDLE>(value)),
                                 QString::fromLatin1(kindName(object->kind)), function)});
    }
    return entries;
}

} // namespace virtualwindows
