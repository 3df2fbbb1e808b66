#pragma once

#include "platform/text.h"

/// Where the text of a cell stands.
enum class GridAlign : unsigned char
{
    left,
    center,
    right
};

/// What the text of a cell means to a sort.
enum class GridDataType : unsigned char
{
    text,
    number,
    other
};

/// Cell type of every new cell; its text is all that it shows.
inline constexpr int kGridTextType = 0;
/// Cell type that shows a small arrow to the right of its text, in the direction that the cell's
/// type flag tells.
inline constexpr int kGridSortArrowType = 1;

/// Directions that a sort arrow shows.
inline constexpr int kSortArrowAscending = 34;
inline constexpr int kSortArrowDescending = 18;

/// One cell of a grid. A value; it holds no number but only the text of one, so that what the user
/// reads is what sorts and choices work on.
class CUGCell
{
public:
    /// Makes it as good as new; the memory of its text stays for the next one.
    void Clear();

    /// Makes it a cell of data type text.
    void SetText(const CString& text);
    const CString& GetText() const { return m_text; }
    /// The text, to be written in place. The data type stays as it is.
    CString& EditText() { return m_text; }

    /// Decimals of SetNumber(), 0 to 9; 0 in a new cell.
    void SetDecimals(int decimals) { m_decimals = decimals; }

    /// Makes it a cell of data type number that shows the number rounded to its decimals.
    void SetNumber(double number);
    /// The number at the start of the text; 0.0 if there is none.
    double GetNumber() const;

    void SetDataType(GridDataType type) { m_dataType = type; }
    GridDataType GetDataType() const { return m_dataType; }

    void SetAlignment(GridAlign align) { m_align = align; }
    GridAlign GetAlignment() const { return m_align; }

    /// kGridTextType or kGridSortArrowType.
    void SetCellType(int type) { m_cellType = type; }
    int GetCellType() const { return m_cellType; }

    /// A value that means something to the cell type: kSortArrowAscending or kSortArrowDescending.
    void SetTypeFlag(int flag) { m_typeFlag = flag; }
    int GetTypeFlag() const { return m_typeFlag; }

    bool operator==(const CUGCell& other) const = default;

private:
    CString m_text;
    int m_decimals = 0;
    int m_cellType = kGridTextType;
    int m_typeFlag = 0;
    GridDataType m_dataType = GridDataType::text;
    GridAlign m_align = GridAlign::left;
};
