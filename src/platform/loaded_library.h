#pragma once

#include <filesystem>

/// The shared library or the program that holds a piece of code in this process.
class CLoadedLibrary
{
public:
    /// The one that holds `address`.
    explicit CLoadedLibrary(const void* address);

    /// The one that holds a function's code. Elsewhere the function may have another address, at
    /// which nothing stands but a jump to it.
    template <class Result, class... Arguments>
    explicit CLoadedLibrary(Result (*function)(Arguments...))
        : CLoadedLibrary(CodeOf(reinterpret_cast<const void*>(function)))
    {
    }

    /// Its file, as the system knows it; empty if the address belongs to none.
    const std::filesystem::path& File() const { return m_file; }

    /// Where its own symbol of that name lies, null if it has none. What it merely uses of other
    /// libraries does not count.
    void* Find(const char* symbol) const;

    /// Where the first symbol of that name lies among those that the program and its libraries
    /// offer to each other, null if there is none.
    static void* FindAnywhere(const char* symbol);

private:
    static const void* CodeOf(const void* function);

    std::filesystem::path m_file;
    const void* m_base = nullptr;
};
