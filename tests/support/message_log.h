#pragma once

#include "platform/message.h"

#include <utility>
#include <vector>

/// Collects the texts of messages for the life of the object instead of showing them.
class CMessageLog
{
public:
    CMessageLog()
        : m_before(SetMessageHandler(
              [this](const MessageBoxText& message) { m_texts.push_back(message.text); }))
    {
    }

    ~CMessageLog() { SetMessageHandler(std::move(m_before)); }

    CMessageLog(const CMessageLog&) = delete;
    CMessageLog& operator=(const CMessageLog&) = delete;

    const std::vector<CString>& Texts() const { return m_texts; }

private:
    std::vector<CString> m_texts;
    MessageHandler m_before;
};
