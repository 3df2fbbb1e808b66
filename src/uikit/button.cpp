#include "uikit/button.h"

#include "uikit/native/access.h"
#include "uikit/native/image_icon.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QIcon>

bool CButton::GetCheck() const
{
    const auto* button = CNativeAccess::As<QAbstractButton>(*this);
    return button != nullptr && button->isChecked();
}

void CButton::SetCheck(bool check)
{
    auto* button = CNativeAccess::As<QAbstractButton>(*this);
    if (button == nullptr) {
        return;
    }
    QButtonGroup* group = button->group();
    // A group of radio buttons lets no choice be taken back while it watches over it.
    if (group != nullptr && !check) {
        group->setExclusive(false);
        button->setChecked(false);
        group->setExclusive(true);
        return;
    }
    button->setChecked(check);
}

void CButton::SetIcon(const CBitmap& icon)
{
    if (auto* button = CNativeAccess::As<QAbstractButton>(*this)) {
        button->setIcon(MakeImageIcon(ToNative(icon)));
        button->setIconSize({icon.GetWidth(), icon.GetHeight()});
    }
}
