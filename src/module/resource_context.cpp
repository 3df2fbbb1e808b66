#include "module/resource_context.h"

#include <utility>

namespace {

ResourceOwner currentOwner = ResourceOwner::host;

} // namespace

CResourceContext::CResourceContext()
    : m_previous(std::exchange(currentOwner, ResourceOwner::module))
{
}

CResourceContext::~CResourceContext()
{
    currentOwner = m_previous;
}

ResourceOwner CResourceContext::Current()
{
    return currentOwner;
}
