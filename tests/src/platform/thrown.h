#pragma once

#include "platform/text.h"

/// The message of the exception with which an action ends; empty if it ends well.
template <class EXCEPTION, class ACTION>
CString MessageOf(ACTION action)
{
    try {
        action();
        return {};
    } catch (const EXCEPTION& exception) {
        return exception.GetErrorMessage();
    }
}
