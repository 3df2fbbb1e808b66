#include "uikit/message_map.h"

const MessageEntry* CMessageMap::Find(int id, ControlEvent event) const
{
    for (const MessageEntry& entry : m_entries) {
        if (entry.event == event && id >= entry.firstId && id <= entry.lastId) {
            return &entry;
        }
    }
    return m_base != nullptr ? m_base->Find(id, event) : nullptr;
}
