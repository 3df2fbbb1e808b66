#pragma once

#include "uikit/image_list.h"

#include <QComboBox>

/// A combo box with one picture for an item in the open list and one in the closed one. The open
/// list is as wide as its longest item; the closed one shortens what it cannot show and tells the
/// whole as its tooltip.
class CComboWidget : public QComboBox
{
    Q_OBJECT

public:
    CComboWidget(QWidget* parent, bool editable, bool sorted);

    bool IsSorted() const { return m_sorted; }
    void SetImages(const CImageList& images);
    void SetImagesOf(int index, int image, int selectedImage);

    void showPopup() override;

protected:
    void initStyleOption(QStyleOptionComboBox* option) const override;
    bool event(QEvent* event) override;

private:
    int RoomForText(const QStyleOptionComboBox& option) const;
    void ShowImages(int index);

    bool m_sorted;
    CImageList m_images;
};
