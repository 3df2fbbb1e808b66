#pragma once

#include <QObject>
#include <QRectF>

namespace workbench {

class CPlanView;

/// As long as it lives, modal dialogs that would open over a view open beside it, so that they do
/// not hide what changes in it. Where the screen has no room for both, the view makes some.
class CBesideWindow : public QObject
{
public:
    /// `inSight` is what of the plan has to stay in sight, in its metres; nothing if that is empty.
    /// The view outlives the object.
    explicit CBesideWindow(CPlanView& view, const QRectF& inSight = {});
    ~CBesideWindow() override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    int PlaceFor(const QWidget& dialog);

    CPlanView& m_view;
    QRectF m_inSight;
    /// The view has made room.
    bool m_bNarrowed = false;
};

} // namespace workbench
