#include "uikit/combo_box.h"

#include "uikit/native/access.h"
#include "uikit/native/combo_widget.h"

#include <QSignalBlocker>
#include <QStringList>

#include <set>

namespace {

CComboWidget* Widget(const CWnd& wnd)
{
    return CNativeAccess::As<CComboWidget>(wnd);
}

/// The toolkit chooses an item by itself where none is; a list here shows nothing until an item is
/// chosen, and an edit keeps its text.
void ChooseNone(CComboWidget& combo, const QString& edited)
{
    combo.setCurrentIndex(-1);
    if (combo.isEditable()) {
        combo.setEditText(edited);
    }
}

/// Changes the items without an event.
template <class Change>
void ChangeQuietly(CComboWidget& combo, Change change)
{
    const QSignalBlocker quiet(&combo);
    const bool nothingChosen = combo.currentIndex() < 0;
    const QString edited = combo.currentText();
    change();
    if (nothingChosen && combo.currentIndex() >= 0) {
        ChooseNone(combo, edited);
    }
    combo.update();
}

bool ComesBefore(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) < 0;
}

/// Where a new text goes: in a sorted list behind all that are not greater.
int PlaceOf(const CComboWidget& combo, const QString& text)
{
    if (!combo.IsSorted()) {
        return combo.count();
    }
    int first = 0;
    int behind = combo.count();
    while (first < behind) {
        const int middle = (first + behind) / 2;
        if (ComesBefore(text, combo.itemText(middle))) {
            behind = middle;
        } else {
            first = middle + 1;
        }
    }
    return first;
}

} // namespace

int CComboBox::AddString(const CString& text)
{
    CComboWidget* combo = Widget(*this);
    if (combo == nullptr) {
        return -1;
    }
    const int place = PlaceOf(*combo, ToNative(text));
    ChangeQuietly(*combo, [&] { combo->insertItem(place, ToNative(text)); });
    return place;
}

void CComboBox::FillWith(const CStringArray& texts)
{
    CComboWidget* combo = Widget(*this);
    if (combo == nullptr) {
        return;
    }
    QStringList items;
    for (const CString& text : texts) {
        items.append(ToNative(text));
    }
    if (combo->IsSorted()) {
        // Equal texts stay in their order.
        const std::multiset<QString, decltype(&ComesBefore)> sorted(items.begin(), items.end(),
                                                                    ComesBefore);
        items = QStringList(sorted.begin(), sorted.end());
    }
    const QSignalBlocker quiet(combo);
    const QString edited = combo->currentText();
    combo->clear();
    combo->addItems(items);
    ChooseNone(*combo, edited);
    combo->update();
}

int CComboBox::AddItem(const CString& text, int image, int selectedImage)
{
    CComboWidget* combo = Widget(*this);
    if (combo == nullptr) {
        return -1;
    }
    const int place = combo->count();
    ChangeQuietly(*combo, [&] { combo->addItem(ToNative(text)); });
    combo->SetImagesOf(place, image, selectedImage);
    return place;
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
    if (combo == nullptr || index < 0 || index >= combo->count()) {
        return false;
    }
    const QSignalBlocker quiet(combo);
    const QString edited = combo->currentText();
    if (index == combo->currentIndex()) {
        combo->setCurrentIndex(-1);
        combo->setEditText(edited);
    }
    ChangeQuietly(*combo, [&] { combo->removeItem(index); });
    return true;
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
