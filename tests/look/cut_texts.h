#pragma once

#include <QString>
#include <QWidget>

#include <vector>

/// A text that a widget shows without having the room for it.
struct CutText
{
    const QWidget* widget;
    QString text;
    /// Whether pointing at it tells the whole of it.
    bool isTold;
};

/// All texts of a window that are cut or shortened: captions, titles, headings, tabs, items, and
/// what fields show. Names that somebody typed into a field may be longer than it; a number may
/// not.
std::vector<CutText> FindCutTexts(QWidget& window);

/// The items of all drop-down lists of a window, opened one after the other, that are wider than
/// their list.
std::vector<CutText> FindCutListItems(QWidget& window);

/// "QLabel supply "Mandata"" for each.
std::string Describe(const std::vector<CutText>& texts);
