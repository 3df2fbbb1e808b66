#pragma once

#include <QApplication>
#include <QFont>

/// Fonts from narrow to wide, which a desktop may have.
inline const QFont kDesktopFonts[] = {
    QFont("DejaVu Serif Condensed", 8), QFont("DejaVu Sans Condensed", 11),
    QFont("DejaVu Serif", 9),           QFont("DejaVu Sans", 13),
    QFont("DejaVu Sans Mono", 13),
};

/// Makes a font that of all windows while it lives.
class CDesktopFont
{
public:
    explicit CDesktopFont(const QFont& font) : m_before(QApplication::font())
    {
        QApplication::setFont(font);
    }
    ~CDesktopFont() { QApplication::setFont(m_before); }
    CDesktopFont(const CDesktopFont&) = delete;
    CDesktopFont& operator=(const CDesktopFont&) = delete;

private:
    QFont m_before;
};
