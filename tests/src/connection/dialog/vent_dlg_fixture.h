#pragma once

#include "connection/presets.h"
#include "frame/conn_values.h"
#include "frame/entry_points.h"
#include "frame/ventil_kv.h"
#include "host/drawing_records.h"
#include "platform/format.h"
#include "tests/dialog_support/dialog_driver.h"
#include "tests/dialog_support/empty_drawer.h"
#include "tests/src/valve/ventil_fixture.h"

#include <algorithm>
#include <array>
#include <deque>
#include <filesystem>
#include <tuple>

/// A drawing that lists its blocks and notes what is drawn.
class CTestDrawer : public CEmptyDrawer
{
public:
    void GetBlockNames(const CString& ordner, CStringArray& namen, int art) override
    {
        gefragt = ordner + L"|" + FormatInt(art);
        for (const CString& block : bloecke) {
            namen.Add(block);
        }
    }
    void ClearPreview() override { aufrufe += "C"; }
    void BeginPreview() override { aufrufe += "B"; }
    void EndPreview() override { aufrufe += "E"; }
    void DrawConnectionPoint(const double punkt[3], const double richtung[3], double wert,
                             int farbe, bool ruecklauf) override
    {
        aufrufe += ruecklauf ? "r" : "v";
        punkte.push_back(
            {{punkt[0], punkt[1], punkt[2]}, {richtung[0], richtung[1], richtung[2]}, wert, farbe});
    }

    struct Gezeichnet
    {
        std::array<double, 3> punkt, richtung;
        double wert;
        int farbe;
    };
    std::vector<CString> bloecke;
    CString gefragt;
    std::string aufrufe;
    std::vector<Gezeichnet> punkte;
};

/// The host's list, radiators of one metre beside each other.
class CTestObjekte
{
public:
    explicit CTestObjekte(int count) : m_objects(static_cast<std::size_t>(count))
    {
        for (std::size_t i = 0; i < m_objects.size(); ++i) {
            m_objects[i].Trafo.Ursprung = {2.0 * double(i), 0.0, 0.0};
            m_objects[i].Attribute = new ALIST{L"H_LAENGE", L"1", nullptr};
            m_objects[i].pNext = i + 1 < m_objects.size() ? &m_objects[i + 1] : nullptr;
        }
    }
    ~CTestObjekte()
    {
        for (const TGA_LIST& object : m_objects) {
            for (ALIST* a = object.Attribute; a != nullptr;) {
                delete std::exchange(a, a->pNext);
            }
        }
    }
    CTestObjekte(const CTestObjekte&) = delete;
    CTestObjekte& operator=(const CTestObjekte&) = delete;

    TGA_LIST* Head() { return m_objects.empty() ? nullptr : &m_objects.front(); }
    /// "NAME=value " of all attributes, in order.
    CString Attribute(std::size_t index) const
    {
        CString text;
        for (const ALIST* a = m_objects[index].Attribute; a != nullptr; a = a->pNext) {
            text += a->Name + L"=" + a->Wert + L" ";
        }
        return text;
    }

private:
    std::deque<TGA_LIST> m_objects;
};

/// The connection dialog as its callers open it, over a data root, valves and a working place of
/// the test's own, in a current folder that is empty.
class CVentDlgTest : public CVentilTest
{
protected:
    static constexpr int kDialog = 238;
    using Script = std::function<void(CDialogUser&)>;

    CVentDlgTest()
    {
        std::filesystem::create_directory(m_root.Root() / "cwd");
        std::filesystem::current_path(m_root.Root() / "cwd");
        Kurzliste("[Sinistra]\r\nV" + P(0) + "\r\nR" + P(1) + "\r\n[Diagonale]\r\nV" + P(0) +
                  "\r\nR" + P(15) + "\r\n[Dal basso]\r\nV" + P(3) + "\r\nR" + P(5) + "\r\n");
        // Diagonale, with everything that a record can hold.
        m_anschluss.Name = L"Mio";
        SetzePunkte({{{-0.5, 0, 0.5}, {0, 0, -0.03}, {180, 0, 0}, {0.5, 0, -0.5}, {0, 0, 0.03}}});
        m_anschluss.AnschlussAN = AnschlussPreset(0);
        m_anschluss.AnschlussRI = AnschlussPreset(15);
        m_anschluss.SeitAbstandAN = 0.2;
        m_anschluss.SeitAbstandRI = 0.1;
        m_anschluss.GrafikAN = L"ANGOLO";
        m_anschluss.GrafikRI = L"DIRITTO";
    }
    ~CVentDlgTest() override { std::filesystem::current_path(m_vorher); }

    static std::string P(int row) { return Utf8FromWide(AnschlussPreset(row)); }
    void Kurzliste(const std::string& text) { m_root.WriteBytes("HEIZUNG/Vent.txt", text); }
    using Punkte = std::array<ConnVector, 6>;
    static Punkte PunkteVon(const ConnValues& a)
    {
        return {a.PosAN, a.OffsetAN, a.WinkelAN, a.PosRI, a.OffsetRI, a.WinkelRI};
    }
    void SetzePunkte(const Punkte& punkte)
    {
        ConnValues& a = m_anschluss;
        std::tie(a.PosAN, a.OffsetAN, a.WinkelAN, a.PosRI, a.OffsetRI, a.WinkelRI) =
            std::tuple_cat(punkte);
    }

    /// Opens the dialog on the members and leaves it by the button.
    bool Oeffne(const Script& script, int button = kIdOk)
    {
        m_driver.WhenOpens(kDialog, [&](CDialogUser& user) {
            script(user);
            user.Click(button);
        });
        const bool ok = ShowVentDlg(m_anschluss, m_an, m_ri, m_bGruppen, m_bVentile, m_bTyp,
                                    m_bFanCoil, m_pListe, m_pDrawer);
        EXPECT_EQ(ok, button == kIdOk);
        return ok;
    }
    /// The same for a superuser who has expanded the dialog.
    bool OeffneErweitert(const Script& script, int button = kIdOk)
    {
        const CSettingOverride super(reference_host::kSettingSuperUser, L"1");
        return Oeffne(
            [&](CDialogUser& user) {
                user.Click(18074);
                script(user);
            },
            button);
    }
    static void ExpectEnabled(const CDialogUser& user, const std::vector<int>& ids, bool enabled)
    {
        for (const int id : ids) {
            EXPECT_EQ(user.IsEnabled(id), enabled) << "control " << id;
        }
    }
    /// The checked one of radio buttons; -1 if none is.
    static int Chosen(const CDialogUser& user, const std::vector<int>& ids)
    {
        const auto found = std::ranges::find_if(ids, [&](int id) { return user.IsChecked(id); });
        return found != ids.end() ? *found : -1;
    }

    std::filesystem::path m_vorher = std::filesystem::current_path();
    CTempFolder m_root;
    CTempFolder m_platz;
    CSettingOverride m_server{reference_host::kSettingServerPath, m_root.Path()};
    CSettingOverride m_local{reference_host::kSettingLocalPath, m_platz.Path()};
    CSettingOverride m_fenster{reference_host::kSettingWinposFile, L"fenster.txt"};
    CSettingOverride m_super{reference_host::kSettingSuperUser, L"0"};
    CSettingOverride m_einheit{reference_host::kSettingUserUnit, L"1"};
    CSettingOverride m_block{reference_host::kSettingHKBlock, L""};
    CSettingOverride m_zeichnung{reference_host::kSettingValveBlockFolder, L"valvole.dxf"};
    CDialogDriver m_driver;

    ConnValues m_anschluss;
    VDI3805_VENTIL_KV m_an;
    VDI3805_VENTIL_KV m_ri;
    bool m_bGruppen = true;
    bool m_bVentile = false;
    bool m_bTyp = false;
    bool m_bFanCoil = false;
    TGA_LIST* m_pListe = nullptr;
    CDrawer* m_pDrawer = nullptr;
};
