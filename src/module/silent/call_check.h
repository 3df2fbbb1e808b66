#pragma once

/// Finds hosts that call from several threads at once, which the module does not bear: one call at
/// a time, and only calls of the same thread nest. Only builds with RADSEL_CHECKS look.
class CCallCheck
{
public:
    /// Raises std::logic_error while a check of another thread lives.
    CCallCheck();
    ~CCallCheck();

    CCallCheck(const CCallCheck&) = delete;
    CCallCheck& operator=(const CCallCheck&) = delete;
};
