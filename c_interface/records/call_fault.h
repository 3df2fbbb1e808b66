#pragma once

#include "platform/exception.h"

#include <exception>
#include <string>
#include <utility>

namespace c_interface {

/// Why a call fails, in UTF-8, and where if that lies in a file.
struct CReason
{
    std::string text;
    std::string file;
    int line = 0;
};

/// Ends a call with one of the codes of radsel_result.
class CCallFault : public std::exception
{
public:
    CCallFault(int code, std::string text) : m_code(code), m_reason{std::move(text), {}, 0} {}
    CCallFault(int code, CReason reason) : m_code(code), m_reason(std::move(reason)) {}

    const char* what() const noexcept override { return m_reason.text.c_str(); }
    int GetCode() const { return m_code; }
    const CReason& GetReason() const { return m_reason; }

private:
    int m_code;
    CReason m_reason;
};

/// A callback has failed. An exception of the framework's, so that dialogs show it and stay open.
class CHostFailure : public CException
{
public:
    explicit CHostFailure(CReason reason);

    const CReason& GetReason() const { return m_reason; }

private:
    CReason m_reason;
};

/// What radsel_last_error() and its companions tell on this thread.
const CReason& LastReason();
void KeepReason(CReason reason) noexcept;

} // namespace c_interface
