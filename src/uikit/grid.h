#pragma once

#include "platform/color.h"
#include "uikit/dc.h"
#include "uikit/grid_cell.h"
#include "uikit/wnd.h"

#include <functional>
#include <memory>
#include <span>

/// Parts of a grid.
enum class GridSection
{
    grid,
    topHeading
};

/// How the current cell shows, joined by |.
enum GridCurrentCell : int
{
    currentCellFocusRect = 1,
    currentCellHighlight = 2,
};

/// Flags of a sort.
inline constexpr int kSortAscending = 1;
inline constexpr int kSortDescending = 2;

/// Width in pixels below which no column falls.
inline constexpr int kGridMinColumnWidth = 3;

/// A grid of text cells under one row of headings. Columns and rows count from 0; row -1 is the row
/// of headings. The user moves the current row by mouse, arrows, page keys, Home and End; Enter and
/// Tab are the dialog's. The whole current row is highlighted, there is no heading at the side, and
/// the contents follow the thumb of a scroll bar while it is dragged.
///
/// The cells are the object's. What concerns the screen does nothing, and answers with empty
/// values, before AttachTo() and after the window has gone.
class CUGCtrl : public CWnd
{
public:
    /// Runs the work it is given and keeps what exceptions that throws.
    using Guard = std::function<void(const std::function<void()>&)>;

    CUGCtrl();
    /// Takes the grid off the screen if its window still lives.
    ~CUGCtrl() override;

    CUGCtrl(const CUGCtrl&) = delete;
    CUGCtrl& operator=(const CUGCtrl&) = delete;

    /// Begins an empty grid that fills a placeholder and is that control from then on: id, place
    /// and place in the Tab order are its. Runs OnSetup(), whose exceptions come to the caller, as
    /// those of OnMaySizeColumn() and OnSortEvaluate() come to the callers of SetColumnCount() and
    /// SortBy(). Every other callback is raised by the toolkit, which no exception may cross: it
    /// runs inside `guard`. Where that swallowed an exception, the default of the callback holds.
    /// False, doing nothing, if there is no such control or a grid is attached already.
    bool AttachTo(const CWnd& placeholder, Guard guard);

    /// Sets the number of columns, which takes all rows away.
    void SetColumnCount(int count);
    int GetColumnCount() const;
    int GetRowCount() const;

    /// Adds a row at the end with copies of these cells from the left; further ones are empty, and
    /// what is too much is left out.
    void AppendRow(std::span<const CUGCell> cells = {});
    /// False if there is no such row.
    bool DeleteRow(int row);

    /// Copies a cell in or out. False, doing nothing, if there is no such cell.
    bool SetCell(int column, int row, const CUGCell& cell);
    bool GetCell(int column, int row, CUGCell& cell) const;
    /// Text of a cell; empty if there is no such cell.
    CString GetCellText(int column, int row) const;

    /// Height of the headings in pixels at the size for which templates are made; it grows with the
    /// dialogs' font. Lines of a heading are separated by line feeds.
    void SetHeadingHeight(int height);

    /// Font of everything in the grid; rows are as high as it needs.
    void SetDefaultFont(const CFont& font);

    /// Both kinds of GridCurrentCell in a new grid.
    void SetCurrentCellMode(int mode);

    /// Suspends all work for the screen during bulk changes; true makes up for it at once. Takes
    /// the place of CWnd::SetRedraw(), which would only hold the painting back.
    void SetRedraw(bool redraw);
    /// Paints all cells anew. Headings show every change of theirs by themselves.
    void RedrawAll();

    /// Makes a cell the current one, highlights it and scrolls to it. A place outside is brought to
    /// the nearest cell. Raises no OnRowChange(), which tells of the user's choices.
    void GotoCell(int column, int row);
    /// Nothing is highlighted until the next move.
    void ClearSelection();
    /// -1 if there is none.
    int GetCurrentRow() const;

    /// Width in pixels; 0 if there is no such column.
    int GetColumnWidth(int column) const;
    void SetColumnWidth(int column, int width);

    /// The width in pixels below which the user cannot drag a column; 3 unless set.
    void SetNarrowestColumn(int width);

    /// Fits the columns `first` to `count` minus 1 to their headings and their first `rows` rows:
    /// the widest cell and 2 pixels more, not more than the width inside the frame, or than 300
    /// while the control has no width, but in any case not less than `narrowest`.
    void BestFit(int first, int count, int rows, int narrowest = kGridMinColumnWidth);

    /// Sorts the rows by a column as OnSortEvaluate() decides, which is given the flags. Every row
    /// in turn is put in front of the first sorted row that is greater, so rows that compare equal
    /// keep their order. The current cell keeps its row number and hence changes its contents,
    /// which the user's next pick of a row tells by OnRowChange().
    void SortBy(int column, int flags);

protected:
    friend class CGridView;
    friend class CGridHeader;

    /// The grid has its window: columns, headings and modes are set here.
    virtual void OnSetup() {}

    /// Whether the user may drag the width of a column; asked when the columns are set.
    virtual bool OnMaySizeColumn(int /*column*/) { return true; }

    /// The user made another row the current one, -1 for none before, or picked any row for the
    /// first time after a sort, which may have put other contents under the same number.
    virtual void OnRowChange(int /*oldRow*/, int /*newRow*/) {}

    virtual void OnDoubleClick(int /*column*/, int /*row*/) {}
    /// The left button went down on a heading, or up again on the same one. Dragging a column's
    /// edge is no click.
    virtual void OnHeadingClick(int /*column*/, int /*row*/, bool /*down*/) {}

    /// A character was typed that moves nothing, 27 for Esc and 13 for Enter. The dialog gets it
    /// unless `processed` is set.
    virtual void OnCharTyped(wchar_t* /*character*/, bool& /*processed*/) {}

    /// The tooltip of a cell as small HTML; false for none, the default.
    virtual bool OnToolTip(int /*column*/, int /*row*/, GridSection /*section*/, CString& /*html*/)
    {
        return false;
    }

    /// Below 0, 0, or above 0 if the first cell belongs behind the second. By default all cells are
    /// equal.
    virtual int OnSortEvaluate(const CUGCell& /*first*/, const CUGCell& /*second*/, int /*flags*/)
    {
        return 0;
    }

    /// By default white for the cells and a light grey for headings.
    virtual COLORREF OnDefaultBackColor(GridSection section)
    {
        return section == GridSection::grid ? RGB(255, 255, 255) : RGB(243, 244, 246);
    }

    /// The current row has the keyboard's focus and currentCellFocusRect is set.
    virtual void OnDrawFocusRect(CDC& dc, const CRect& rect) { dc.DrawFocusRect(rect); }

    // Callbacks that belong to a grid of this kind but that nothing raises yet: cells of these
    // types tell nothing and open no editor or menu, rows and headings are of fixed height, and
    // keys and clicks act as this class says. A derived class may override them all the same.
    virtual bool OnCellTypeNotify(int /*type*/, int /*column*/, int /*row*/, int /*message*/,
                                  long /*parameter*/)
    {
        return true;
    }
    virtual bool OnMaySizeRow(int /*row*/) { return false; }
    virtual bool OnMaySizeHeadingHeight() { return false; }
    virtual bool OnMaySizeSideHeading() { return true; }
    virtual bool OnHeadingHeightSizing(int* /*height*/) { return true; }
    virtual bool OnHeadingHeightSized(int* /*height*/) { return true; }
    virtual bool OnSideHeadingSizing(int* /*width*/) { return true; }
    virtual bool OnSideHeadingSized(int* /*width*/) { return true; }
    virtual void OnLeftClick(int /*column*/, int /*row*/, bool /*down*/) {}
    virtual void OnRightClick(int /*column*/, int /*row*/, bool /*down*/) {}
    virtual void OnKeyDown(unsigned* /*key*/, bool& /*processed*/) {}
    virtual bool OnEditStart(int /*column*/, int /*row*/) { return true; }
    virtual bool OnEditVerify(int /*column*/, int /*row*/, CString& /*text*/) { return true; }
    virtual bool OnEditFinish(int /*column*/, int /*row*/, CString& /*text*/) { return true; }
    /// The cell to edit next: a column outside is brought to the next or previous row, a row
    /// outside to the other end of the grid.
    virtual bool OnEditContinue(int oldColumn, int oldRow, int* newColumn, int* newRow);
    virtual void OnMenuStart(int /*column*/, int /*row*/, GridSection /*section*/) {}
    virtual void OnMenuCommand(int /*column*/, int /*row*/, unsigned /*id*/) {}

private:
    class CGridView* View() const;

    std::unique_ptr<class CGridModel> m_cells;
    /// What fills the placeholder.
    CWnd m_inner;
};
