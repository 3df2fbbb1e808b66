#pragma once

#include "uikit/image_list.h"

#include <QComboBox>

/// A combo box with one picture for an item in the open list and one in the closed one.
class CComboWidget : public QComboBox
{
    Q_OBJECT

public:
    CComboWidget(QWidget* parent, bool editable, bool sorted);

    int AddText(const QString& text);
    int AddItem(const QString& text, int image, int selectedImage);
    void SetImages(const CImageList& images);
    bool DeleteItem(int index);

signals:
    void FocusLost();

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    int Insert(int index, const QString& text);
    void ShowImages(int index);

    bool m_sorted;
    CImageList m_images;
};
