#include "uikit/combo_box.h"

#include "uikit/native/access.h"
#include "uikit/native/combo_widget.h"

#include <QSignalBlocker>

namespace {

CComboWidget* Widget(const CWnd& wnd)
{
    return CNativeAccess::As<CComboWidget>(wnd);
}

} // namespace

int CComboBox::AddString(const CString& text)
{
    CComboWidget* combo = Widget(*this);
    return combo != nullptr ? combo->AddText(ToNative(text)) : -1;
}

int CComboBox::AddItem(const CString& text, int image, int selectedImage)
{
    CComboWidget* combo = Widget(*this);
    return combo != nullptr ? combo->AddItem(ToNative(text), image, selectedImage) : -1;
}

void CComboBox::SetImageList(const CImageList& images)
{
    if (CComboWidget* combo = Widget(*this)) {
        combo->SetImages(images);
    }
}

bool CComboBox::DeleteString(int index)
{
    CComboWidget* combo = Widget(*this);
    return combo != nullptr && combo->DeleteItem(index);
}

void CComboBox::ResetContent()
{
    if (CComboWidget* combo = Widget(*this)) {
        const QSignalBlocker quiet(combo);
        combo->clear();
        combo->update();
    }
}

int CComboBox::GetCount() const
{
    const CComboWidget* combo = Widget(*this);
    return combo != nullptr ? combo->count() : 0;
}

CString CComboBox::GetItemText(int index) const
{
    const CComboWidget* combo = Widget(*this);
    return combo != nullptr ? FromNative(combo->itemText(index)) : CString();
}

int CComboBox::GetCurSel() const
{
    const CComboWidget* combo = Widget(*this);
    return combo != nullptr ? combo->currentIndex() : -1;
}

void CComboBox::SetCurSel(int index)
{
    if (CComboWidget* combo = Widget(*this)) {
        const int wanted = index < combo->count() ? index : -1;
        if (combo->currentIndex() == wanted) {
            return;
        }
        const QSignalBlocker quiet(combo);
        combo->setCurrentIndex(wanted);
        combo->update();
    }
}

int CComboBox::FindString(int start, const CString& prefix) const
{
    const int count = GetCount();
    const QString wanted = ToNative(prefix);
    for (int i = 0; i < count; ++i) {
        const int place = (start + i) % count;
        if (Widget(*this)->itemText(place).startsWith(wanted, Qt::CaseInsensitive)) {
            return place;
        }
    }
    return -1;
}
