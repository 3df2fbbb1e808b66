#pragma once

#include <QFile>
#include <QObject>

/// Tells a journey where the controls of this program stand and what they show, so that it can
/// press real keys and real buttons of the mouse there. It presses nothing itself.
///
/// Questions and answers are lines in two pipes, "ask" and "answer", that the journey has made:
///   SERIAL NAME           a control by its object name or id, a button also by its text; "window"
///                         is the window that takes the input, "focus" the control with the keys
///   SERIAL NAME > ITEM    an item of a list, tree or table: a row by its number from 1 or by the
///                         text of a cell; trees go on with "> ITEM" from level to level
///   SERIAL NAME @ X,Y     a place of a drawing in its own units
/// The answer is SERIAL|WINDOW|X|Y|STATES|NAME|TEXT: the window's number, the point of the screen
/// to click, a list like ",visible,enabled,focused,checked,", and the name and text of what was
/// found; STATES is empty if there is no such thing. Controls behind a modal window are none.
class CFinder : public QObject
{
public:
    explicit CFinder(const QString& folder);

private:
    void Answer();

    QFile m_ask;
    QFile m_answer;
};
