#pragma once

/// Whose resources (texts, templates, icons) a look-up by number finds.
enum class ResourceOwner
{
    host,
    module
};

/// Makes the module's own resources current for the life of the object and puts back what was
/// current before, on every way out. Every export that opens a dialog or works on a catalogue holds
/// one. Scopes nest.
class CResourceContext
{
public:
    CResourceContext();
    ~CResourceContext();

    CResourceContext(const CResourceContext&) = delete;
    CResourceContext& operator=(const CResourceContext&) = delete;

    static ResourceOwner Current();

private:
    ResourceOwner m_previous;
};
