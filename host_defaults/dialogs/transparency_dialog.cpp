#include "host_defaults/dialogs/transparency_dialog.h"

#include "host/host_prompts.h"
#include "host_defaults/dialogs/dialog_parts.h"
#include "host_defaults/dialogs/qt_application.h"
#include "host_defaults/window_dialogs.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

namespace host_defaults {

namespace {

constexpr int kSliderWidth = 300;
constexpr int kPageStep = 13; // about five percent

int PercentOf(int transparency)
{
    return qRound(transparency * 100.0 / kOpaqueAlpha);
}

} // namespace

CTransparencyDialog::CTransparencyDialog(int alpha, QWidget* window)
    : QDialog(window != nullptr ? window : ParentForDialog()), m_window(window)
{
    setWindowTitle(QStringLiteral("Trasparenza finestra"));
    if (m_window) {
        m_formerOpacity = m_window->windowOpacity();
    }

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 12, 14, 12);
    layout->addWidget(MakeSlider(alpha));
    layout->addSpacing(12);
    layout->addWidget(AddButtons(*this));
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(m_slider, &QSlider::valueChanged, this, [this] {
        ShowPercent();
        Preview();
    });
    ShowPercent();
    m_slider->setFocus();
}

QWidget* CTransparencyDialog::MakeSlider(int alpha)
{
    auto* const part = new QWidget(this);
    // The slider counts what the user asks for, so that right and up mean more of it.
    m_slider = new QSlider(Qt::Horizontal, part);
    m_slider->setRange(0, kOpaqueAlpha - kLeastAlpha);
    m_slider->setValue(kOpaqueAlpha - alpha);
    m_slider->setPageStep(kPageStep);
    m_slider->setMinimumWidth(kSliderWidth);

    auto* const caption = new QLabel(QStringLiteral("&Trasparenza:"), part);
    caption->setBuddy(m_slider);
    m_percent = new QLabel(part);
    auto* const least = new QLabel(QStringLiteral("opaca"), part);
    auto* const most = new QLabel(QStringLiteral("trasparente"), part);
    for (QLabel* const end : {least, most}) {
        end->setForegroundRole(QPalette::PlaceholderText);
    }

    auto* const layout = new QGridLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption, 0, 0);
    layout->addWidget(m_percent, 0, 1, Qt::AlignRight);
    layout->addWidget(m_slider, 1, 0, 1, 2);
    layout->addWidget(least, 2, 0);
    layout->addWidget(most, 2, 1, Qt::AlignRight);
    return part;
}

int CTransparencyDialog::GetAlpha() const
{
    return kOpaqueAlpha - m_slider->value();
}

void CTransparencyDialog::done(int result)
{
    if (result != Accepted && m_window) {
        m_window->setWindowOpacity(m_formerOpacity);
    }
    QDialog::done(result);
}

void CTransparencyDialog::ShowPercent()
{
    m_percent->setText(QStringLiteral("%1 %").arg(PercentOf(m_slider->value())));
}

void CTransparencyDialog::Preview()
{
    if (m_window) {
        m_window->setWindowOpacity(static_cast<qreal>(GetAlpha()) / kOpaqueAlpha);
    }
}

bool ShowTransparencyDialog(int& alpha)
{
    if (!EnsureWindows()) {
        return false;
    }
    const bool inRange = alpha >= kLeastAlpha && alpha <= kOpaqueAlpha;
    CTransparencyDialog dialog(inRange ? alpha : kOpaqueAlpha, QApplication::activeModalWidget());
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    alpha = dialog.GetAlpha();
    return true;
}

} // namespace host_defaults
