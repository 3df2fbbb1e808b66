#include "workbench/window/room_list.h"

#include "workbench/window/room_table.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace workbench {

CRoomList::CRoomList(QWidget* parent)
    : QWidget(parent), m_pFind(new QLineEdit),
      m_pOpenOnly(new QCheckBox("Solo i locali &da sistemare")), m_pPages(new QStackedWidget),
      m_pHint(new QLabel), m_pView(new QTableView), m_pTable(new CRoomTable(this))
{
    m_pView->setModel(m_pTable);
    m_pView->setSelectionBehavior(QTableView::SelectRows);
    m_pView->setSelectionMode(QTableView::ExtendedSelection);
    m_pView->setSortingEnabled(true);
    m_pView->sortByColumn(-1, Qt::AscendingOrder);
    m_pView->setTabKeyNavigation(false);
    // A name that is too long loses its end, and not the word that does not fit.
    m_pView->setWordWrap(false);
    m_pView->setShowGrid(false);
    m_pView->setAlternatingRowColors(true);
    m_pView->verticalHeader()->hide();
    m_pView->verticalHeader()->setDefaultSectionSize(m_pView->fontMetrics().height() * 3 / 2);
    m_pView->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_pView->horizontalHeader()->setSectionResizeMode(CRoomRows::room, QHeaderView::Stretch);
    // The names give way to the figures, but not with their heading, which is bold above marks.
    QFont bold = m_pView->horizontalHeader()->font();
    bold.setBold(true);
    constexpr int kGap = 8;
    m_pView->horizontalHeader()->setMinimumSectionSize(
        QFontMetrics(bold).horizontalAdvance(
            m_pTable->headerData(CRoomRows::room, Qt::Horizontal).toString()) +
        kGap);
    m_pView->setObjectName("rooms");
    m_pView->setContextMenuPolicy(Qt::CustomContextMenu);
    m_pOpenOnly->setObjectName("openOnly");
    m_pFind->setObjectName("find");
    m_pFind->setPlaceholderText("Trova locale");
    m_pFind->setClearButtonEnabled(true);
    m_pHint->setObjectName("hint");
    m_pHint->setAlignment(Qt::AlignCenter);
    m_pHint->setWordWrap(true);
    m_pPages->addWidget(m_pView);
    m_pPages->addWidget(m_pHint);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_pFind);
    layout->addWidget(m_pOpenOnly);
    layout->addWidget(m_pPages);

    connect(m_pOpenOnly, &QCheckBox::toggled, this, &CRoomList::Refilter);
    connect(m_pView->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!m_bMarking) {
            emit MarkChanged();
        }
    });
    connect(m_pView, &QTableView::activated, this, [this](const QModelIndex& index) {
        emit RoomActivated(m_pTable->Rows().RefOf(m_pTable->mapToSource(index).row()));
    });
    connect(m_pView, &QWidget::customContextMenuRequested, this, [this](const QPoint& place) {
        emit MenuAsked(m_pView->viewport()->mapToGlobal(place));
    });
    connect(m_pFind, &QLineEdit::textEdited, this, [this] { FindRoom(false); });
    connect(m_pFind, &QLineEdit::returnPressed, this, [this] { FindRoom(true); });
}

void CRoomList::ShowBuilding(const CBuilding& building)
{
    m_bMarking = true;
    m_pTable->Show(building);
    m_bMarking = false;
    ShowHint();
}

void CRoomList::MarkRooms(const std::vector<CRoomRef>& rooms)
{
    m_bMarking = true;
    QItemSelection selection;
    QModelIndex first;
    for (int row = 0; row < m_pTable->rowCount(); ++row) {
        const QModelIndex index = m_pTable->index(row, 0);
        const CRoomRef& ref = m_pTable->Rows().RefOf(m_pTable->mapToSource(index).row());
        if (std::ranges::binary_search(rooms, ref)) {
            selection.select(index, m_pTable->index(row, CRoomRows::columns - 1));
            first = first.isValid() ? first : index;
        }
    }
    m_pView->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (first.isValid()) {
        m_pView->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        m_pView->scrollTo(first);
    }
    m_bMarking = false;
}

std::vector<CRoomRef> CRoomList::GetMarkedRooms() const
{
    std::vector<CRoomRef> rooms;
    for (const QModelIndex& index : m_pView->selectionModel()->selectedRows()) {
        rooms.push_back(m_pTable->Rows().RefOf(m_pTable->mapToSource(index).row()));
    }
    std::ranges::sort(rooms);
    return rooms;
}

void CRoomList::ShowOpenOnly(bool openOnly)
{
    const QSignalBlocker quiet(m_pOpenOnly);
    m_pOpenOnly->setChecked(openOnly);
    Refilter();
}

void CRoomList::Refilter()
{
    m_bMarking = true;
    m_pView->clearSelection();
    m_pTable->ShowOpenOnly(m_pOpenOnly->isChecked());
    m_bMarking = false;
    ShowHint();
    emit FilterChanged();
}

void CRoomList::StartFinding()
{
    m_pFind->setFocus();
    m_pFind->selectAll();
}

void CRoomList::FindRoom(bool behind)
{
    const CRoomRows& rows = m_pTable->Rows();
    const QString wanted = m_pFind->text().trimmed();
    const int count = rows.rowCount();
    bool found = wanted.isEmpty();
    for (int i = behind ? 1 : 0; i <= count && !found; ++i) {
        const int row = (m_nFound + i) % std::max(count, 1);
        const QString name = rows.index(row, CRoomRows::room).data().toString();
        if (row < count && name.contains(wanted, Qt::CaseInsensitive)) {
            found = true;
            m_nFound = row;
            emit RoomFound(rows.RefOf(row));
        }
    }
    m_pFind->setToolTip(found ? QString() : "Nessun locale con questo nome.");
    // Colours of its own only as long as nothing is found, so that those of the desktop hold.
    QPalette colors;
    if (!found) {
        colors.setColor(QPalette::Text, palette().color(QPalette::PlaceholderText));
    }
    m_pFind->setPalette(colors);
}

void CRoomList::ShowHint()
{
    m_pHint->setText(m_pTable->Rows().rowCount() == 0 ? "Qui compaiono i locali dell'edificio."
                                                      : "Nessun locale da sistemare.");
    m_pPages->setCurrentIndex(m_pTable->rowCount() == 0 ? 1 : 0);
}

} // namespace workbench
