#pragma once

#include "platform/bitmap.h"

#include <vector>

/// Pictures by index for trees and lists. A value.
class CImageList
{
public:
    /// Appends a picture and returns its index.
    int Add(const CBitmap& bitmap)
    {
        m_images.push_back(bitmap);
        return static_cast<int>(m_images.size()) - 1;
    }

    int GetImageCount() const { return static_cast<int>(m_images.size()); }

    /// The picture at an index; an empty one outside the list.
    CBitmap Get(int index) const
    {
        const auto place = static_cast<std::size_t>(index);
        return index >= 0 && place < m_images.size() ? m_images[place] : CBitmap();
    }

private:
    std::vector<CBitmap> m_images;
};
