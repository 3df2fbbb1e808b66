#pragma once

#include "uikit/tree_item.h"

#include <functional>
#include <initializer_list>
#include <vector>

class CDialog;

/// What a control tells its dialog.
enum class ControlEvent
{
    /// A button was pressed, a check box or radio button chosen by the user, or a label with
    /// styleNotify clicked.
    clicked,
    /// The text of an edit changed, by the user or by a write of a different text.
    textChanged,
    /// The user chose an item of a combo box, the current one again included.
    selectionEnded,
    /// The user changed the text of a comboEdit.
    editChanged,
    /// An edit or combo box gave the focus away.
    focusLost,
    /// The selected item of a tree changed; `item` is the new one or null. Raised by moves made in
    /// code as well, before they return.
    treeSelectionChanged,
    /// A tree item is about to open; a result other than 0 keeps it closed.
    treeItemExpanding,
    /// An arrow of a spin was pressed; `delta` is -1 or 1.
    step,
};

/// An event on its way to a handler.
struct CNotify
{
    int id = 0;
    ControlEvent event = ControlEvent::clicked;
    int delta = 0;
    HTREEITEM item = nullptr;
    int result = 0;
};

/// Binds an event of a control, or of a range of ids, to a member function of a dialog.
struct MessageEntry
{
    ControlEvent event;
    int firstId;
    int lastId;
    std::function<void(CDialog&, CNotify&)> handler;
};

template <class Dialog>
MessageEntry OnRange(ControlEvent event, int firstId, int lastId, void (Dialog::*handler)())
{
    return {event, firstId, lastId,
            [handler](CDialog& dialog, CNotify&) { (static_cast<Dialog&>(dialog).*handler)(); }};
}

template <class Dialog>
MessageEntry OnRange(ControlEvent event, int firstId, int lastId, void (Dialog::*handler)(CNotify&))
{
    return {event, firstId, lastId, [handler](CDialog& dialog, CNotify& notify) {
                (static_cast<Dialog&>(dialog).*handler)(notify);
            }};
}

template <class Handler>
MessageEntry On(ControlEvent event, int id, Handler handler)
{
    return OnRange(event, id, id, handler);
}

/// The events that a dialog class handles. What it does not name is looked up in its base's map.
class CMessageMap
{
public:
    CMessageMap(const CMessageMap* base, std::initializer_list<MessageEntry> entries)
        : m_base(base), m_entries(entries)
    {
    }

    /// The entry for an event; null if none.
    const MessageEntry* Find(int id, ControlEvent event) const;

private:
    const CMessageMap* m_base;
    std::vector<MessageEntry> m_entries;
};
