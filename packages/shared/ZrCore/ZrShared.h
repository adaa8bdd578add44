// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDebug>

#include <atomic>
#include <mutex>
#include <type_traits>
#include <utility>

namespace ZrSharedDetail {

template <class T>
constexpr bool fitsAtomic()
{
    if constexpr (std::is_trivially_copyable_v<T> && sizeof(T) <= 8)
        return std::atomic<T>::is_always_lock_free;
    else
        return false;
}

template <class T, bool Atomic>
class Cell;

template <class T>
class Cell<T, true>
{
public:
    explicit Cell(T value) : m_value(value) {}
    T load() const { return m_value.load(std::memory_order_acquire); }
    T exchange(T value) { return m_value.exchange(value, std::memory_order_acq_rel); }
    bool set(T value) { return !(exchange(value) == value); }

private:
    std::atomic<T> m_value;
};

template <class T>
class Cell<T, false>
{
public:
    explicit Cell(T value) : m_value(std::move(value)) {}
    T load() const
    {
        const std::lock_guard lock(m_mutex);
        return m_value;
    }
    T exchange(T value)
    {
        const std::lock_guard lock(m_mutex);
        std::swap(m_value, value);
        return value;
    }
    bool set(T value)
    {
        const std::lock_guard lock(m_mutex);
        if (m_value == value)
            return false;
        std::swap(m_value, value); // the old value dies with the parameter, outside the lock
        return true;
    }

private:
    mutable std::mutex m_mutex;
    T m_value;
};

} // namespace ZrSharedDetail

/// A member that jobs write and getters on other threads read, used like a plain member of type T.
///
/// Small trivially copyable types are one atomic; strings, lists and hashes are copied under a lock of their
/// own (with Qt's shared data: one reference count). A sequence of operations is not one step: of two threads
/// that read, change and write, one may lose. set() reports a change; two members that belong together need a
/// struct.
template <class T>
class ZrShared
{
public:
    /// Keeps a value alive while its members are used: m_list->size().
    class Snapshot
    {
    public:
        explicit Snapshot(T value) : m_value(std::move(value)) {}
        const T* operator->() const { return &m_value; }

    private:
        T m_value;
    };

    ZrShared() : m_cell(T{}) {}
    ZrShared(T value)
        : m_cell(std::move(value)) {} // NOLINT(google-explicit-constructor): reads like a plain member
    ZrShared(const ZrShared& other) : m_cell(other.get()) {}

    ZrShared& operator=(T value)
    {
        m_cell.exchange(std::move(value));
        return *this;
    }
    ZrShared& operator=(const ZrShared& other)
    {
        m_cell.exchange(other.get());
        return *this;
    }

    /// Stores @p value; true when it differs from what was held.
    bool set(T value) { return m_cell.set(std::move(value)); }
    /// Stores @p value and returns what was held.
    T exchange(T value) { return m_cell.exchange(std::move(value)); }
    T get() const { return m_cell.load(); }
    operator T() const { return get(); } // NOLINT(google-explicit-constructor): reads like a plain member
    Snapshot operator->() const { return Snapshot(get()); }

    template <class U>
    friend bool operator==(const ZrShared& a, const U& b)
    {
        if constexpr (std::is_same_v<U, ZrShared>)
            return a.get() == b.get();
        else
            return a.get() == b;
    }

    friend QDebug operator<<(QDebug debug, const ZrShared& value) { return debug << value.get(); }

private:
    ZrSharedDetail::Cell<T, ZrSharedDetail::fitsAtomic<T>()> m_cell;
};
