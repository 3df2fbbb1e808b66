#pragma once

struct CTreeItem;

/// An item of a tree control, owned by it. Null stands for none.
using HTREEITEM = CTreeItem*;
