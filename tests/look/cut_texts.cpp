#include "tests/look/cut_texts.h"

#include "tests/dialog_support/widget_look.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QTabBar>
#include <QTreeView>

namespace {

/// Looks at widgets one by one and keeps what it finds.
class CCutTextFinder
{
public:
    void Look(QWidget& widget)
    {
        if (auto* label = qobject_cast<QLabel*>(&widget)) {
            LookAt(*label);
        } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
            LookAt(*button);
        } else if (auto* group = qobject_cast<QGroupBox*>(&widget)) {
            /// What the two ends of a frame's title line take.
            constexpr int kEnds = 22;
            Fit(widget, group->title(), group->size() - QSize(kEnds, 0));
        } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
            LookAt(*combo);
        } else if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
            LookAt(*edit);
        } else if (auto* header = qobject_cast<QHeaderView*>(&widget)) {
            LookAt(*header);
        } else if (auto* view = qobject_cast<QAbstractItemView*>(&widget)) {
            LookAt(*view);
        } else if (auto* tabs = qobject_cast<QTabBar*>(&widget)) {
            for (int i = 0; i < tabs->count(); ++i) {
                Fit(widget, tabs->tabText(i), tabs->tabRect(i).size());
            }
        } else if (auto* menus = qobject_cast<QMenuBar*>(&widget)) {
            for (QAction* action : menus->actions()) {
                Fit(widget, action->text(), (menus->actionGeometry(action) & menus->rect()).size());
            }
        } else if (auto* dock = qobject_cast<QDockWidget*>(&widget)) {
            const int buttons = 2 * dock->style()->pixelMetric(QStyle::PM_SmallIconSize);
            Fit(widget, dock->windowTitle(), dock->size() - QSize(buttons, 0));
        }
    }

    std::vector<CutText> found;

private:
    static QSize SizeOf(const QWidget& widget, const QString& text)
    {
        return widget.fontMetrics().size(Qt::TextShowMnemonic, text);
    }

    void Fit(QWidget& widget, const QString& text, const QSize& room)
    {
        const QSize needed = SizeOf(widget, text);
        if (!text.isEmpty() && (needed.width() > room.width() || needed.height() > room.height())) {
            Add(widget, text, widget.rect().center());
        }
    }

    void Add(QWidget& widget, const QString& text, const QPoint& place)
    {
        found.push_back({&widget, text, TipAt(widget, place) == text});
    }

    void LookAt(QLabel& label)
    {
        if (label.wordWrap()) {
            if (label.heightForWidth(label.width()) > label.height()) {
                Add(label, label.text(), label.rect().center());
            }
            return;
        }
        // Words over columns stand where those are, with whatever room is between them.
        const bool inColumns = label.text().contains("   ");
        Fit(label, inColumns ? label.text().simplified() : label.text(),
            label.contentsRect().size());
    }

    void LookAt(QAbstractButton& button)
    {
        const bool isCheck = qobject_cast<QCheckBox*>(&button) != nullptr;
        const auto element = isCheck ? QStyle::SE_CheckBoxContents
                             : qobject_cast<QRadioButton*>(&button) != nullptr
                                 ? QStyle::SE_RadioButtonContents
                                 : QStyle::SE_PushButtonContents;
        QStyleOptionButton option;
        option.initFrom(&button);
        const QSize room = button.style()->subElementRect(element, &option, &button).size();
        // A check box that has no room for a letter has its words in the controls around it.
        if (!isCheck || room.width() >= button.fontMetrics().averageCharWidth()) {
            Fit(button, button.text(), room);
        }
    }

    void LookAt(QComboBox& combo)
    {
        if (combo.isEditable()) {
            return; // its edit is a widget of its own
        }
        QStyleOptionComboBox option;
        option.initFrom(&combo);
        constexpr int kMargins = 2;
        constexpr int kIconGap = 4;
        const bool hasIcon = !combo.itemIcon(combo.currentIndex()).isNull();
        const QRect room = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                         QStyle::SC_ComboBoxEditField, &combo);
        Fit(combo, combo.currentText(),
            room.size() - QSize(kMargins + (hasIcon ? combo.iconSize().width() + kIconGap : 0), 0));
    }

    void LookAt(QLineEdit& edit)
    {
        constexpr int kMargins = 4;
        QStyleOptionFrame option;
        option.initFrom(&edit);
        option.lineWidth = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit);
        const QRect room =
            edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
        bool isNumber = false;
        edit.text().toDouble(&isNumber);
        isNumber = isNumber || qobject_cast<QAbstractSpinBox*>(edit.parentWidget()) != nullptr;
        const QString text = edit.text().isEmpty() ? edit.placeholderText() : edit.text();
        if (isNumber || edit.text().isEmpty() || edit.isReadOnly()) {
            Fit(edit, text, room.size() - QSize(kMargins, 0));
        }
    }

    void LookAt(QHeaderView& header)
    {
        if (header.orientation() != Qt::Horizontal) {
            return;
        }
        for (int i = 0; i < header.count(); ++i) {
            const QString text =
                header.model()->headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
            const QSize room(header.sectionSize(i), header.height());
            if (!header.isSectionHidden(i)) {
                Fit(header, text, room);
            }
        }
    }

    /// What of a tree's item is left or right of the view counts as cut.
    void LookAt(QAbstractItemView& view)
    {
        const auto* tree = qobject_cast<const QTreeView*>(&view);
        const int columns = view.model() != nullptr ? view.model()->columnCount() : 0;
        QModelIndex index = view.indexAt({1, 1});
        for (; index.isValid() && view.visualRect(index).top() < view.viewport()->height();
             index = tree != nullptr ? tree->indexBelow(index)
                                     : index.siblingAtRow(index.row() + 1)) {
            for (int column = 0; column < columns; ++column) {
                LookAt(view, index.siblingAtColumn(column), tree != nullptr);
            }
        }
    }

    void LookAt(QAbstractItemView& view, const QModelIndex& index, bool inTree)
    {
        const QRect rect = view.visualRect(index);
        const QString text = index.data().toString();
        const int needed = inTree ? view.sizeHintForIndex(index).width()
                                  : view.fontMetrics().horizontalAdvance(text);
        const QRect shown = rect & view.viewport()->rect();
        // What is beside a table can be scrolled to, column by column.
        const bool isCut =
            inTree ? needed > shown.width() || rect.left() < 0 : needed > rect.width();
        if (!text.isEmpty() && isCut) {
            Add(*view.viewport(), text, shown.center());
        }
    }
};

} // namespace

std::vector<CutText> FindCutTexts(QWidget& window)
{
    CCutTextFinder finder;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible()) {
            finder.Look(*widget);
        }
    }
    return finder.found;
}

std::vector<CutText> FindCutListItems(QWidget& window)
{
    std::vector<CutText> found;
    for (QComboBox* const combo : window.findChildren<QComboBox*>()) {
        if (!combo->isVisible() || combo->count() == 0) {
            continue;
        }
        combo->showPopup();
        const QAbstractItemView& list = *combo->view();
        for (int i = 0; i < combo->count(); ++i) {
            const QModelIndex index = combo->model()->index(i, combo->modelColumn());
            if (list.sizeHintForIndex(index).width() > list.viewport()->width()) {
                found.push_back({combo, combo->itemText(i), false});
            }
        }
        combo->hidePopup();
    }
    return found;
}

std::string Describe(const std::vector<CutText>& texts)
{
    QString all;
    for (const CutText& cut : texts) {
        all += QString("%1 %2 \"%3\"\n")
                   .arg(cut.widget->metaObject()->className(), cut.widget->objectName(), cut.text);
    }
    return all.toStdString();
}
