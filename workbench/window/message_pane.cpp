#include "workbench/window/message_pane.h"

#include <QGuiApplication>
#include <QScrollBar>
#include <QUrl>

#include <algorithm>
#include <cstdlib>

namespace workbench {

namespace {

/// Older ones go: nobody reads so many, and each keeps its lines. A good many go at once, since the
/// others are written anew then.
constexpr std::size_t kMostMessages = 5000;
constexpr std::size_t kMostKept = 4500;

QString PlainLines(const QString& text)
{
    return text.toHtmlEscaped().replace('\n', "<br>");
}

/// The link's own colour where it stands out from the ground: dark desktops may leave it a dark
/// blue.
QColor LinkColor(const QPalette& palette)
{
    constexpr int kLeastContrast = 60;
    const QColor link = palette.color(QPalette::Link);
    const int ground = qGray(palette.color(QPalette::Base).rgb());
    return std::abs(qGray(link.rgb()) - ground) < kLeastContrast ? palette.color(QPalette::Text)
                                                                 : link;
}

/// The name of its room is a link to `target`.
QString ParagraphOf(const CNotice& notice, std::size_t target, const QColor& link)
{
    QString html = "<p style=\"margin: 0\">";
    if (!notice.strRoom.isEmpty()) {
        html += QString("<a href=\"%1\" style=\"color: %2\">%3</a>: ")
                    .arg(QString::number(target), link.name(), notice.strRoom.toHtmlEscaped());
    }
    return html + PlainLines(notice.strText) + "</p>";
}

} // namespace

CMessagePane::CMessagePane(QWidget* parent) : QTextBrowser(parent)
{
    setPlaceholderText("Nessun avviso.");
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    connect(this, &QTextBrowser::anchorClicked, this, &CMessagePane::Follow);
}

void CMessagePane::Add(const std::vector<CNotice>& notices, std::optional<StateId> state)
{
    const std::size_t first = m_entries.size();
    for (const CNotice& notice : notices) {
        m_entries.push_back({notice, state});
    }
    if (m_entries.size() > kMostMessages) {
        m_entries.erase(m_entries.begin(), m_entries.end() - std::ptrdiff_t(kMostKept));
        Rebuild();
    } else if (!notices.empty()) {
        append(ParagraphsFrom(first));
        ShowLast();
    }
}

void CMessagePane::ShowFor(const CPlanHistory& history)
{
    bool changed = std::erase_if(m_entries, [&](const CEntry& entry) {
                       return entry.state && !history.Has(*entry.state);
                   }) > 0;
    for (CEntry& entry : m_entries) {
        const bool holds = !entry.state || history.IsReached(*entry.state);
        changed = changed || holds != entry.bShown;
        entry.bShown = holds;
    }
    if (changed) {
        Rebuild();
    }
}

QString CMessagePane::ParagraphsFrom(std::size_t first) const
{
    const QColor link = LinkColor(QGuiApplication::palette());
    QString html;
    for (std::size_t i = first; i < m_entries.size(); ++i) {
        if (m_entries[i].bShown) {
            html += ParagraphOf(m_entries[i].notice, i, link);
        }
    }
    return html;
}

void CMessagePane::Rebuild()
{
    setHtml(ParagraphsFrom(0));
    ShowLast();
}

void CMessagePane::ShowLast()
{
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void CMessagePane::Follow(const QUrl& link)
{
    const std::size_t entry = link.toString().toUInt();
    if (entry < m_entries.size()) {
        emit RoomAsked(m_entries[entry].notice.strRoom);
    }
}

} // namespace workbench
