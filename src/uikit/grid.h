#pragma once

#include "platform/color.h"
#include "uikit/dc.h"
#include "uikit/grid_cell.h"
#include "uikit/menu.h"
#include "uikit/wnd.h"

#include <functional>

/// Parts of a grid.
enum class GridSection
{
    grid,
    topHeading,
    sideHeading,
    corner
};

/// What cells of a registered type look like.
enum class GridCellKind
{
    text,
    /// The text and a small arrow at the right, in the direction of the cell's type flag.
    sortArrow,
    /// A push button with the text; a press raises kGridCellPressed.
    button
};

/// Message of OnCellTypeNotify(): a cell of kind button was pressed.
inline constexpr int kGridCellPressed = 1;

/// Keys that mean something to a grid.
enum class GridKey
{
    other,
    up,
    down,
    left,
    right,
    pageUp,
    pageDown,
    home,
    end,
    enter,
    escape
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

/// A grid of text cells under one row of headings. Columns and rows count from 0; row -1 is the row
/// of headings. The user moves the current row by mouse, arrows, page keys, Home and End; Enter and
/// Tab are the dialog's.
///
/// The cells live as long as the window. Before AttachTo() and after the window has gone every call
/// does nothing and answers with empty values.
class CUGCtrl : public CWnd
{
public:
    /// Runs the work it is given and keeps what exceptions that throws.
    using Guard = std::function<void(const std::function<void()>&)>;

    CUGCtrl();
    /// May be destroyed before the window, which then raises nothing any more.
    ~CUGCtrl() override;

    CUGCtrl(const CUGCtrl&) = delete;
    CUGCtrl& operator=(const CUGCtrl&) = delete;

    /// Makes an empty grid that fills a placeholder and is that control from then on: id, place and
    /// place in the Tab order are its. Runs OnSetup(), whose exceptions come to the caller, as
    /// those of OnSortEvaluate() come to the caller of SortBy(). Every other callback is raised by
    /// the toolkit, which no exception may cross: it runs inside `guard`. Where that swallowed an
    /// exception, the default of the callback holds. False, doing nothing, if there is no such
    /// control or a grid is attached already.
    bool AttachTo(const CWnd& placeholder, Guard guard);

    void SetColumnCount(int count);
    int GetColumnCount() const;
    int GetRowCount() const;

    /// Adds a row of empty cells at the end.
    void AppendRow();
    /// False if there is no such row.
    bool DeleteRow(int row);

    /// Copies a cell in or out. False, doing nothing, if there is no such cell.
    bool SetCell(int column, int row, const CUGCell& cell);
    bool GetCell(int column, int row, CUGCell& cell) const;
    /// Text of a cell; empty if there is no such cell.
    CString GetCellText(int column, int row) const;

    /// Registers a type of cells and returns its index for CUGCell::SetCellType().
    int AddCellType(GridCellKind kind);

    /// 0 or 1 rows of headings.
    void SetHeadingRows(int rows);
    /// Height of the headings in pixels at the size for which templates are made; it grows with the
    /// dialogs' font. Lines of a heading are separated by line feeds.
    void SetHeadingHeight(int height);
    /// Width of the row numbers at the left; 0 hides them.
    void SetSideHeadingWidth(int width);

    /// Font of everything in the grid; rows are as high as it needs.
    void SetDefaultFont(const CFont& font);

    /// Whether the contents follow the thumb of a scroll bar while it is dragged.
    void SetScrollTracking(bool horizontal, bool vertical);
    /// Both kinds of GridCurrentCell in a new grid.
    void SetCurrentCellMode(int mode);
    /// Highlights the row of the current cell, not just the cell.
    void SetRowHighlight(bool wholeRow);
    void EnableToolTips(bool enable);

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
    int GetCurrentColumn() const;

    /// Width in pixels; 0 if there is no such column.
    int GetColumnWidth(int column) const;
    void SetColumnWidth(int column, int width);

    /// Fits the columns `first` to `count` minus 1 to their first `rows` rows and, if asked, their
    /// headings: the widest cell and 2 pixels more, not less than 3, not more than the width inside
    /// the frame less the side heading, or than 300 while the control has no width.
    void BestFit(int first, int count, int rows, bool headings);

    /// Sorts the rows by a column as OnSortEvaluate() decides, which is given the flags. Every row
    /// in turn is put in front of the first sorted row that is greater, so rows that compare equal
    /// keep their order. The current cell keeps its row number and hence changes its contents,
    /// which the user's next pick of a row tells by OnRowChange().
    void SortBy(int column, int flags);

protected:
    friend class CGridView;
    friend class CGridHeader;

    /// The grid has its window: columns, headings and modes are set here.
    virtual void OnSetup();

    /// A cell of a registered type tells something; `type` is the type's index.
    virtual bool OnCellTypeNotify(int type, int column, int row, int message, long parameter);

    /// Whether the user may drag a size. The side heading has an edge to drag while it shows.
    virtual bool OnMaySizeColumn(int column);
    virtual bool OnMaySizeRow(int row);
    virtual bool OnMaySizeHeadingHeight();
    virtual bool OnMaySizeSideHeading();

    /// The user drags the size of a heading, or has done so. The size may be changed; false keeps
    /// the one before.
    virtual bool OnHeadingHeightSizing(int* height);
    virtual bool OnHeadingHeightSized(int* height);
    virtual bool OnSideHeadingSizing(int* width);
    virtual bool OnSideHeadingSized(int* width);

    /// The user made another row the current one, -1 for none before, or picked any row for the
    /// first time after a sort, which may have put other contents under the same number.
    virtual void OnRowChange(int oldRow, int newRow);

    /// A mouse button went down or up on a cell.
    virtual void OnLeftClick(int column, int row, bool down);
    virtual void OnRightClick(int column, int row, bool down);
    virtual void OnDoubleClick(int column, int row);
    /// The left button went down on a heading, or up again on the same one. Dragging a column's
    /// edge is no click.
    virtual void OnHeadingClick(int column, int row, bool down);

    /// A key went down. It acts as what `key` is changed to, and not at all if `processed` is set.
    virtual void OnKeyDown(GridKey* key, bool& processed);
    /// A character was typed that moves nothing, 27 for Esc and 13 for Enter. The dialog gets it
    /// unless `processed` is set.
    virtual void OnCharTyped(wchar_t* character, bool& processed);

    /// Raised by cell types that open an editor, which none of GridCellKind does. All accept.
    virtual bool OnEditStart(int column, int row);
    virtual bool OnEditVerify(int column, int row, CString& text);
    virtual bool OnEditFinish(int column, int row, CString& text, bool cancelled);
    /// The cell to edit next; a column outside is brought to the next or previous row, a row
    /// outside to the other end of the grid.
    virtual bool OnEditContinue(int oldColumn, int oldRow, int* newColumn, int* newRow);

    /// A context menu is asked for: what is added to `menu` shows if the result is true. Nothing
    /// is added by default.
    virtual bool OnMenuStart(int column, int row, GridSection section, CMenu& menu);
    virtual void OnMenuCommand(int column, int row, GridSection section, unsigned id);

    /// The tooltip of a cell as small HTML; false for none, the default.
    virtual bool OnToolTip(int column, int row, GridSection section, CString& html);

    /// Below 0, 0, or above 0 if the first cell belongs behind the second. By default numbers by
    /// value and everything else by its text, the other way round for kSortDescending.
    virtual int OnSortEvaluate(const CUGCell& first, const CUGCell& second, int flags);

    /// By default white for the cells and a light grey for headings.
    virtual COLORREF OnDefaultBackColor(GridSection section);

    /// The current cell, or its row, has the keyboard's focus.
    virtual void OnDrawFocusRect(CDC& dc, const CRect& rect);

private:
    class CGridView* View() const;

    /// What fills the placeholder.
    CWnd m_inner;
};
