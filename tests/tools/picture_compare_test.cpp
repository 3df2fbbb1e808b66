#include "tools/picture_compare.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

#include <functional>

namespace {

/// A window with a text and a button, as something changes it.
CWindowPicture Take(const std::function<void(QWidget&)>& change = {})
{
    QWidget window;
    window.resize(300, 120);
    auto* const label = new QLabel("Temperatura di ritorno", &window);
    label->setObjectName("label");
    label->setGeometry(10, 10, 280, 20);
    auto* const button = new QPushButton("Annulla", &window);
    button->setObjectName("button");
    button->setGeometry(100, 80, 90, 26);
    if (change) {
        change(window);
    }
    window.show();
    return TakePicture(window);
}

QStringList ChangesBy(const std::function<void(QWidget&)>& change)
{
    return FindChanges(Take(change), Take().image);
}

TEST(PictureCompare, BearsLettersThatAreSmoothedOtherwise)
{
    const auto hinted = [](QFont::HintingPreference preference) {
        return Take([preference](QWidget& window) {
            QFont font = window.font();
            font.setHintingPreference(preference);
            window.setFont(font);
        });
    };
    const CWindowPicture with = hinted(QFont::PreferVerticalHinting);
    const CWindowPicture without = hinted(QFont::PreferNoHinting);
    EXPECT_NE(with.image, without.image);
    EXPECT_EQ(FindChanges(with, without.image), QStringList());
}

TEST(PictureCompare, TellsWhereAControlHasComeMovedOrChanged)
{
    EXPECT_EQ(ChangesBy({}), QStringList());

    const auto addBox = [](QWidget& window) {
        (new QCheckBox(&window))->setGeometry(20, 50, 14, 14);
    };
    const QStringList come = ChangesBy(addBox);
    ASSERT_EQ(come.size(), 1);
    EXPECT_TRUE(come[0].startsWith("differs at 18,48 (")) << qPrintable(come[0]);
    EXPECT_EQ(FindChanges(Take(), Take(addBox).image).size(), 1) << "one that has gone";

    const QStringList moved =
        ChangesBy([](QWidget& window) { window.findChild<QPushButton*>()->move(108, 80); });
    ASSERT_FALSE(moved.empty());
    EXPECT_TRUE(moved.join('\n').contains("in button \"Annulla\"")) << qPrintable(moved[0]);

    const QStringList otherText = ChangesBy(
        [](QWidget& window) { window.findChild<QLabel*>()->setText("Temperatura di ritorna"); });
    ASSERT_EQ(otherText.size(), 1);
    EXPECT_TRUE(otherText[0].contains("in label ")) << qPrintable(otherText[0]);

    EXPECT_EQ(ChangesBy([](QWidget& window) { window.resize(301, 120); }),
              QStringList("301 x 120 pixels instead of 300 x 120"));
}

} // namespace
