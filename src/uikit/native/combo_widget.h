#pragma once

#include "uikit/image_list.h"

#include <QComboBox>

/// A combo box with one picture for an item in the open list and one in the closed one.
class CComboWidget : public QComboBox
{
    Q_OBJECT

public:
    CComboWidget(QWidget* parent, bool editable, bool sorted);

    bool IsSorted() const { return m_sorted; }
    void SetImages(const CImageList& images);
    void SetImagesOf(int index, int image, int selectedImage);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void ShowImages(int index);

    bool m_sorted;
    CImageList m_images;
};
