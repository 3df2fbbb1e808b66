#pragma once

#include "workbench/plan/plan_history.h"

#include <QTextBrowser>

#include <optional>
#include <vector>

namespace workbench {

/// Something that the designer is told, in one or several lines of plain text.
struct CNotice
{
    QString strText;
    /// Name of the room that it is about, which goes ahead of the text and leads there; empty for
    /// none.
    QString strRoom = {};
};

/// What the designer was told, a paragraph each. What holds for a state of the building goes when
/// the state is undone, and comes back with it.
class CMessagePane : public QTextBrowser
{
    Q_OBJECT

public:
    explicit CMessagePane(QWidget* parent = nullptr);

    /// With a state the notices hold for that; without one they stay.
    void Add(const std::vector<CNotice>& notices, std::optional<StateId> state);

    /// Shows what holds where the history stands now, and forgets what can hold no more.
    void ShowFor(const CPlanHistory& history);

signals:
    void RoomAsked(const QString& name);

private:
    struct CEntry
    {
        CNotice notice;
        std::optional<StateId> state;
        bool bShown = true;
    };

    QString ParagraphsFrom(std::size_t first) const;
    void Rebuild();
    void ShowLast();
    void Follow(const QUrl& link);

    std::vector<CEntry> m_entries;
};

} // namespace workbench
