#pragma once

#include <QApplication>
#include <QPalette>

/// Colours like those of dark desktops.
inline QPalette DarkPalette()
{
    QPalette colors(QColor(49, 54, 59));
    colors.setColor(QPalette::Base, QColor(35, 38, 41));
    colors.setColor(QPalette::AlternateBase, QColor(49, 54, 59));
    colors.setColor(QPalette::Highlight, QColor(61, 174, 233));
    colors.setColor(QPalette::HighlightedText, QColor(252, 252, 252));
    return colors;
}

/// Gives all windows other colours while it lives.
class CColors
{
public:
    explicit CColors(const QPalette& colors) : m_before(QApplication::palette())
    {
        QApplication::setPalette(colors);
    }
    ~CColors() { QApplication::setPalette(m_before); }
    CColors(const CColors&) = delete;
    CColors& operator=(const CColors&) = delete;

private:
    QPalette m_before;
};
