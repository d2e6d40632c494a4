// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>

namespace VxKit::c_interface {

/// The numbers that callers of the C interface have instead of addresses, for all kinds of handles
/// together. A number is odd, so that it is not the address of an object, and is never used again.
std::uintptr_t nextHandle();

/// The objects of one kind that callers have handles of. May be used on any thread.
template <typename Handle, typename Object>
class Handles
{
public:
    /// Null when there are `most` objects already.
    Handle* add(const std::shared_ptr<Object>& object, std::size_t most)
    {
        const std::lock_guard guard(m_mutex);
        if (m_objects.size() >= most)
            return nullptr;
        const std::uintptr_t number = nextHandle();
        m_objects.emplace(number, object);
        return reinterpret_cast<Handle*>(number);
    }

    /// The object, which exists for as long as the caller holds it; null when there is none.
    std::shared_ptr<Object> find(const Handle* handle) const
    {
        const std::lock_guard guard(m_mutex);
        const auto found = m_objects.find(reinterpret_cast<std::uintptr_t>(handle));
        return found == m_objects.end() ? nullptr : found->second;
    }

    /// The same, and nobody else finds it any more.
    std::shared_ptr<Object> take(const Handle* handle)
    {
        const std::lock_guard guard(m_mutex);
        const auto found = m_objects.find(reinterpret_cast<std::uintptr_t>(handle));
        if (found == m_objects.end())
            return nullptr;
        const std::shared_ptr<Object> object = found->second;
        m_objects.erase(found);
        return object;
    }

    /// Any of the objects; null when there is none.
    std::shared_ptr<Object> first() const
    {
        const std::lock_guard guard(m_mutex);
        return m_objects.empty() ? nullptr : m_objects.begin()->second;
    }

private:
    mutable std::mutex m_mutex;
    std::map<std::uintptr_t, std::shared_ptr<Object>> m_objects;
};

} // namespace VxKit::c_interface
