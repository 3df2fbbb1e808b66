#pragma once

#include "platform/exception.h"
#include "platform/text.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

/// Growing array with checked access: reading or writing an element outside 0 to size - 1 throws
/// CInvalidArgException. A value; elements are copied by assignment. `ARG` is the type by which
/// elements are handed in.
template <class T, class ARG = const T&>
class CArray
{
public:
    int GetSize() const { return static_cast<int>(m_items.size()); }
    bool IsEmpty() const { return m_items.empty(); }

    T& operator[](int index) { return m_items[Checked(index)]; }
    const T& operator[](int index) const { return m_items[Checked(index)]; }
    T& ElementAt(int index) { return (*this)[index]; }
    const T& GetAt(int index) const { return (*this)[index]; }
    void SetAt(int index, ARG value) { (*this)[index] = value; }

    /// Appends an element and returns its index.
    int Add(ARG value)
    {
        m_items.push_back(value);
        return GetSize() - 1;
    }

    /// Appends an element that the caller no longer needs and returns its index.
    int AddMoved(T&& value)
    {
        m_items.push_back(std::move(value));
        return GetSize() - 1;
    }

    /// Appends all elements of another array (which may be this one); returns the index of the
    /// first one appended.
    int Append(const CArray& other)
    {
        const int first = GetSize();
        const std::size_t count = other.m_items.size();
        m_items.reserve(m_items.size() + count);
        for (std::size_t i = 0; i < count; ++i) {
            m_items.push_back(other.m_items[i]);
        }
        return first;
    }

    /// Inserts before `index`, which may be the size.
    void InsertAt(int index, ARG value)
    {
        if (index < 0 || index > GetSize()) {
            throw CInvalidArgException();
        }
        m_items.insert(m_items.begin() + index, value);
    }

    /// Removes `count` elements from `index` on; all of them must exist.
    void RemoveAt(int index, int count = 1)
    {
        if (index < 0 || count < 0 || index > GetSize() || count > GetSize() - index) {
            throw CInvalidArgException();
        }
        m_items.erase(m_items.begin() + index, m_items.begin() + index + count);
    }

    void RemoveAll() { m_items.clear(); }

    /// Shrinks, or grows with default elements.
    void SetSize(int size)
    {
        if (size < 0) {
            throw CInvalidArgException();
        }
        m_items.resize(static_cast<std::size_t>(size));
    }

    void Reserve(int size) { m_items.reserve(static_cast<std::size_t>(std::max(size, 0))); }

    /// Exchanges the contents of two arrays without copying an element.
    void Swap(CArray& other) noexcept { m_items.swap(other.m_items); }

    /// The elements in one block, GetSize() of them.
    T* GetData() { return m_items.data(); }
    const T* GetData() const { return m_items.data(); }

    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

    friend bool operator==(const CArray& a, const CArray& b) { return a.m_items == b.m_items; }

private:
    std::size_t Checked(int index) const
    {
        if (index < 0 || index >= GetSize()) {
            throw CInvalidArgException();
        }
        return static_cast<std::size_t>(index);
    }

    std::vector<T> m_items;
};

using CStringArray = CArray<CString>;
using CPtrArray = CArray<void*, void*>;
