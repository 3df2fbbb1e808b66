#include "tests/dialog_support/widget_look.h"
#include "tests/src/uikit/kit_recorder.h"

#include <QTest>
#include <QTreeWidget>

namespace {

/// A tree of two roots; the first has a child with a child of its own.
class KitTree : public CRecorderTest
{
protected:
    void Fill()
    {
        root = m_dialog.tree.InsertItem(L"r", -1, -1, nullptr);
        child = m_dialog.tree.InsertItem(L"c", -1, -1, root);
        leaf = m_dialog.tree.InsertItem(L"l", -1, -1, child);
        last = m_dialog.tree.InsertItem(L"z", -1, -1, nullptr);
        widget = CNativeAccess::As<QTreeWidget>(m_dialog.tree);
    }
    QPoint Middle(HTREEITEM item) const
    {
        return widget->visualItemRect(reinterpret_cast<QTreeWidgetItem*>(item)).center();
    }
    QPoint Arrow(HTREEITEM item) const
    {
        const int left = widget->visualItemRect(reinterpret_cast<QTreeWidgetItem*>(item)).left();
        return {left - widget->indentation() / 2, Middle(item).y()};
    }
    void Click(const QPoint& at, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(widget->viewport(), Qt::LeftButton, modifiers, at);
    }

    HTREEITEM root = nullptr;
    HTREEITEM child = nullptr;
    HTREEITEM leaf = nullptr;
    HTREEITEM last = nullptr;
    QTreeWidget* widget = nullptr;
};

TEST_F(KitTree, EveryWayToOpenAnItemAsksFirst)
{
    const auto key = [this](Qt::Key pressed) {
        return [this, pressed] {
            m_dialog.tree.SelectItem(root);
            QTest::keyClick(widget, pressed);
        };
    };
    const std::vector<std::pair<const char*, std::function<void()>>> ways = {
        {"arrow", [this] { Click(Arrow(root)); }},
        {"double click",
         [this] {
             Click(Middle(root));
             QTest::mouseDClick(widget->viewport(), Qt::LeftButton, {}, Middle(root));
         }},
        {"right", key(Qt::Key_Right)},
        {"plus", key(Qt::Key_Plus)},
        {"asterisk", key(Qt::Key_Asterisk)},
        {"by code", [this] { m_dialog.tree.Expand(root); }},
        {"hidden child", [this] { m_dialog.tree.SelectItem(child); }},
    };
    Run([&](CDialogUser&) {
        for (const auto& [name, open] : ways) {
            for (const bool refuse : {true, false}) {
                m_dialog.tree.DeleteAllItems();
                Fill();
                Take();
                m_dialog.onExpanding = [&](HTREEITEM) { return refuse ? 1 : 0; };
                open();
                QCoreApplication::processEvents();
                EXPECT_EQ(m_dialog.tree.IsExpanded(root), !refuse) << name;
                Log asked = Take();
                std::erase_if(asked, [](const auto& entry) { return entry[0] == 's'; });
                EXPECT_EQ(asked, Log{"open r"}) << name;
            }
            Click(Arrow(root));
            EXPECT_FALSE(m_dialog.tree.IsExpanded(root)) << name << ", the arrow closes again";
        }
    });
}

TEST_F(KitTree, ChoicesAreToldOnceAndNeverTakenBack)
{
    Run([&](CDialogUser& user) {
        Fill();
        user.Focus(idTree);
        EXPECT_EQ(Take(), Log{}) << "focus chooses nothing";
        m_dialog.tree.SelectItem(last);
        m_dialog.tree.SelectItem(last);
        EXPECT_EQ(Take(), Log{"select z"});
        Click(Middle(last), Qt::ControlModifier);
        Click({Middle(last).x(), widget->viewport()->height() - 2});
        EXPECT_EQ(m_dialog.tree.GetSelectedItem(), last);
        EXPECT_EQ(Take(), Log{});
        Click(Middle(root));
        QTest::keyClick(widget, Qt::Key_Down);
        EXPECT_EQ(Take(), (Log{"select r", "select z"}));
        m_dialog.tree.SelectItem(leaf);
        EXPECT_EQ(Take(), (Log{"open r", "open c", "select l"}));
        m_dialog.tree.DeleteAllItems();
        EXPECT_EQ(Take(), Log{});
        Fill();
        m_dialog.tree.SelectItem(root);
        EXPECT_EQ(Take(), Log{"select r"});
        m_dialog.tree.SelectItem(nullptr);
        EXPECT_EQ(m_dialog.tree.GetSelectedItem(), nullptr);
        EXPECT_EQ(Take(), Log{"select "});
    });
}

TEST_F(KitTree, AnExplorersTreeChoosesWholeRowsAndLightsUpUnderTheMouse)
{
    Run([&](CDialogUser&) {
        Fill();
        m_dialog.tree.SetExplorerLook();
        m_dialog.tree.SelectItem(root);
        QWidget* viewport = widget->viewport();
        const QColor plain = widget->palette().color(QPalette::Base);
        const QColor chosen = widget->palette().color(QPalette::Highlight);
        const auto endOfRow = [&](HTREEITEM item) {
            const QPoint place(viewport->width() - 2, Middle(item).y());
            return QColor(viewport->grab().toImage().pixelColor(place));
        };
        const auto pointAt = [&](QEvent::Type what, const QPointF& place) {
            QHoverEvent hover(what, place, viewport->mapToGlobal(place), QPointF(-1, -1));
            QApplication::sendEvent(viewport, &hover);
        };
        EXPECT_EQ(endOfRow(root), chosen);
        EXPECT_EQ(endOfRow(last), plain);
        pointAt(QEvent::HoverEnter, Middle(last));
        EXPECT_NE(endOfRow(last), plain);
        EXPECT_NE(endOfRow(last), chosen);
        pointAt(QEvent::HoverMove, Middle(root));
        EXPECT_EQ(endOfRow(last), plain);
        EXPECT_EQ(endOfRow(root), chosen) << "no shade on the choice";
        pointAt(QEvent::HoverLeave, QPointF(-1, -1));
        EXPECT_EQ(endOfRow(last), plain);
        EXPECT_TRUE(viewport->testAttribute(Qt::WA_Hover)) << "else a mouse brings no such event";
    });
}

TEST_F(KitTree, PointingAtAnItemThatIsCutTellsTheWhole)
{
    Run([&](CDialogUser&) {
        Fill();
        const std::wstring words(400, L'w');
        const HTREEITEM wide = m_dialog.tree.InsertItem(words, -1, -1, nullptr);
        QCoreApplication::processEvents();
        const auto tip = [&](HTREEITEM item) {
            const int y = Middle(item).y();
            return TipAt(*widget->viewport(), {widget->viewport()->width() / 2, y});
        };
        EXPECT_EQ(tip(last), QString());
        EXPECT_EQ(tip(wide), ToNative(words));
    });
}

} // namespace
