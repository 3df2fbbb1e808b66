// The dialog that asks for the heating system of a building.

#include "tests/workbench/window/workbench_fixture.h"
#include "workbench/window/system_dialog.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

namespace workbench {

namespace {

/// Brings the locale of the process back to what it was.
class CLocale
{
public:
    explicit CLocale(const QLocale& locale) { QLocale::setDefault(locale); }
    ~CLocale() { QLocale::setDefault(m_before); }
    CLocale(const CLocale&) = delete;
    CLocale& operator=(const CLocale&) = delete;

private:
    QLocale m_before;
};

class SystemDialog : public WorkbenchWindow
{
protected:
    /// What the user types, key by key, into a temperature.
    static void Type(QDialog& dialog, const char* name, const QString& text)
    {
        auto& field = *dialog.findChild<QDoubleSpinBox*>(name)->findChild<QLineEdit*>();
        field.selectAll();
        QTest::keyClicks(&field, text);
        QTest::keyClick(&field, Qt::Key_Tab);
    }

    static QString Shown(QDialog& dialog)
    {
        return dialog.findChild<QComboBox*>("systems")->currentText();
    }
};

} // namespace

TEST_F(SystemDialog, ReadsCommaAndPointAlikeWhateverTheLocale)
{
    for (const char* const name : {"C", "it_IT", "en_US", "de_CH"}) {
        const CLocale locale{QLocale(name)};
        for (const char* const text : {"52,5", "52.5"}) {
            CSystemDialog dialog(m_document.Building());
            Type(dialog, "supply", text);
            EXPECT_EQ(dialog.GetSystem().vorlauf, 52.5) << name << " " << text;
            EXPECT_EQ(dialog.findChild<QDoubleSpinBox*>("supply")->text(), "52,5 °C") << name;
        }
    }
}

TEST_F(SystemDialog, OffersWhatIsUsualAndWhatTheUserStoredAndShowsWhatIsTyped)
{
    const std::string folder = Utf8FromWide(m_folder.Path());
    const CEnvironmentVariable root("TGA_DATA_SINGLE", folder.c_str());
    m_folder.WriteBytes("HEIZUNG/CmbData.txt",
                        "[Altro]\r\nx (1/2)|\r\n[VDI6030_HS]\r\n"
                        "Standard (75/65)|Pompa di calore (47/40)*|Strano|\r\n");
    CSystemDialog dialog(m_document.Building());
    auto& systems = *dialog.findChild<QComboBox*>("systems");
    EXPECT_EQ(Shown(dialog), "70/55 °C");
    for (const char* const text :
         {"Standard (75/65)", "Pompa di calore (47/40)", "45/35 °C", "50/40 °C", "35/28 °C"}) {
        EXPECT_GE(systems.findText(text), 0) << text;
    }
    for (const char* const text : {"75/65 °C", "x (1/2)", "Strano"}) {
        EXPECT_LT(systems.findText(text, Qt::MatchStartsWith), 0) << text;
    }

    Type(dialog, "return", "54");
    EXPECT_EQ(systems.currentIndex(), -1) << "no system of the list has 70/54";
    systems.setCurrentText("Pompa di calore (47/40)");
    emit systems.activated(systems.currentIndex());
    EXPECT_EQ(dialog.GetSystem(), (CHeatingSystem{47.0, 40.0}));
    Type(dialog, "supply", "45");
    Type(dialog, "return", "35");
    EXPECT_EQ(Shown(dialog), "45/35 °C");
}

TEST_F(SystemDialog, WhatIsNotTouchedStaysAsItIs)
{
    CBuilding building = m_document.Building();
    building.system = {52.554, 40.125};
    building.ueberschussMax = 12.345;
    CSystemDialog dialog(building);
    EXPECT_EQ(dialog.GetSystem(), building.system);
    EXPECT_EQ(dialog.GetExcessMax(), 12.345);
    Type(dialog, "supply", "52,55");
    EXPECT_EQ(dialog.GetSystem(), building.system) << "as it was shown";
    Type(dialog, "supply", "52,5");
    EXPECT_EQ(dialog.GetSystem(), (CHeatingSystem{52.5, 40.125}));
}

} // namespace workbench
