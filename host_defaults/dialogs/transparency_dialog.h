#pragma once

#include <QDialog>
#include <QPointer>

class QLabel;
class QSlider;

namespace host_defaults {

/// The choice of how transparent a window is, shown on that window while the user tries values.
class CTransparencyDialog : public QDialog
{
public:
    /// Opens on `alpha`, 100 to 255. `window` may be null: then there is nothing to show it on.
    CTransparencyDialog(int alpha, QWidget* window);

    int GetAlpha() const;

    /// Ends the dialog; any result but Accepted gives the window its former opacity back.
    void done(int result) override;

private:
    QWidget* MakeSlider(int alpha);
    void ShowPercent();
    void Preview();

    QPointer<QWidget> m_window;
    qreal m_formerOpacity = 1.0;
    QSlider* m_slider;
    QLabel* m_percent;
};

} // namespace host_defaults
