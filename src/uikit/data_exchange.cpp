#include "uikit/data_exchange.h"

#include "platform/format.h"
#include "platform/message.h"
#include "platform/number_scan.h"
#include "uikit/button.h"
#include "uikit/combo_box.h"
#include "uikit/dialog.h"
#include "uikit/native/access.h"
#include "uikit/native/dialog_window.h"

#include <QRadioButton>

#include <cmath>
#include <limits>
#include <optional>

namespace {

/// The number that a text is as a whole, blanks around it left aside.
std::optional<double> WholeNumber(const CString& text)
{
    bool isNumber = false;
    const double value = ToNative(text).trimmed().toDouble(&isNumber);
    return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

[[noreturn]] void Fail(CWnd control, const wchar_t* message)
{
    ShowMessage({L"", message, MessageIcon::warning});
    control.SetFocus();
    throw CExchangeFailed();
}

CString ShortestText(double value)
{
    constexpr int kDigits = 15;
    return FromNative(QString::number(value, 'g', kDigits));
}

template <class Value>
void ExchangeCheck(const CDataExchange& dx, int id, Value& value)
{
    CButton button(dx.GetDialog().GetDlgItem(id));
    if (dx.m_bSaveAndValidate) {
        value = static_cast<Value>(button.GetCheck());
    } else {
        button.SetCheck(value != Value());
    }
}

} // namespace

void DDX_Text(CDataExchange* pDX, int id, CString& value)
{
    CWnd control = pDX->GetDialog().GetDlgItem(id);
    if (pDX->m_bSaveAndValidate) {
        value = control.GetWindowText();
    } else {
        control.SetWindowText(value);
    }
}

void DDX_Text(CDataExchange* pDX, int id, double& value)
{
    CWnd control = pDX->GetDialog().GetDlgItem(id);
    const std::optional<double> number = WholeNumber(control.GetWindowText());
    if (!pDX->m_bSaveAndValidate) {
        // A number that is being typed, such as "0.", must not be taken from under the user's
        // hands.
        if (number != value) {
            control.SetWindowText(ShortestText(value));
        }
        return;
    }
    if (!number) {
        Fail(control, L"Inserire un numero.");
    }
    value = *number;
}

void DDX_Text(CDataExchange* pDX, int id, int& value)
{
    CWnd control = pDX->GetDialog().GetDlgItem(id);
    if (!pDX->m_bSaveAndValidate) {
        control.SetWindowText(FormatInt(value));
        return;
    }
    const std::optional<double> number = WholeNumber(control.GetWindowText());
    const bool fits = number && *number == std::trunc(*number) &&
                      std::abs(*number) <= std::numeric_limits<int>::max();
    if (!fits) {
        Fail(control, L"Inserire un numero intero.");
    }
    value = static_cast<int>(*number);
}

void DDX_Check(CDataExchange* pDX, int id, int& value)
{
    ExchangeCheck(*pDX, id, value);
}

void DDX_Check(CDataExchange* pDX, int id, bool& value)
{
    ExchangeCheck(*pDX, id, value);
}

void DDX_Radio(CDataExchange* pDX, int id, int& value)
{
    const CDialogWindow* window = WindowOf(pDX->GetDialog());
    if (window == nullptr) {
        return;
    }
    const auto group = window->RadioGroup(id);
    if (pDX->m_bSaveAndValidate) {
        value = -1;
    }
    for (std::size_t i = 0; i < group.size(); ++i) {
        const int place = static_cast<int>(i);
        if (!pDX->m_bSaveAndValidate) {
            CButton button(pDX->GetDialog().GetDlgItem(GetControlId(*group[i])));
            button.SetCheck(place == value);
        } else if (group[i]->isChecked()) {
            value = place;
        }
    }
}

void DDX_CBIndex(CDataExchange* pDX, int id, int& value)
{
    CComboBox combo;
    CNativeAccess::CopyTo(combo, pDX->GetDialog().GetDlgItem(id));
    if (pDX->m_bSaveAndValidate) {
        value = combo.GetCurSel();
    } else {
        combo.SetCurSel(value);
    }
}

void DDX_Control(CDataExchange* pDX, int id, CWnd& control)
{
    if (!control.IsWindow()) {
        CNativeAccess::CopyTo(control, pDX->GetDialog().GetDlgItem(id));
    }
}
