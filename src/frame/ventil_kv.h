#pragma once

#include "platform/archive.h"
#include "platform/export.h"
#include "platform/text.h"

#include <array>

/// One valve as the host gets it: identity, nominal data and up to 50 rows of its kv table. A value
/// without any link to the catalogue. Constructor, assignment and archive form live in HostPrefs.
class HOST_API VDI3805_VENTIL_KV
{
public:
    static constexpr int kMaxKv = 50;
    using Table = std::array<float, kMaxKv>;

    /// As Init().
    VDI3805_VENTIL_KV();
    VDI3805_VENTIL_KV(const VDI3805_VENTIL_KV&);
    VDI3805_VENTIL_KV& operator=(const VDI3805_VENTIL_KV&);
    virtual ~VDI3805_VENTIL_KV();

    /// Empties all texts and sets all numbers to 0.
    void Init();

    /// The whole record, with the version of its form in front; AnzahlKv outside 0 to 50 raises
    /// CArchiveException.
    void Serialize(CArchive& archive);

    /// Fetched by its key, a valve has the names of its group and its main group here, and its
    /// order number in Bezeichnung. Picked in the dialog, it has the two names the other way round
    /// and its display name in Bezeichnung. Hosts tell the two roads apart by this.
    CString Gruppe;
    CString Hauptgruppe;
    /// Empty: the record holds no valve.
    CString Bezeichnung;
    /// The key: name of the manufacturer's folder, and the article's ident of 36 digits.
    CString Hersteller;
    CString VentilNr;
    /// 1 if the valve can be preset, else 0.
    int Einstellbar;
    /// Nominal diameter.
    double DN;
    /// Valve kind code as the catalogue states it; 1 to 11 are known.
    int VentilArt;
    /// 1 marks a valve with a bypass.
    int VentilTyp;
    /// kvs in m³/h.
    float Kvs;
    /// Fields 5 and 6 of the data set, carried for the host.
    float Wert5;
    float Wert6;
    /// Largest pressure in mbar.
    float DruckMax;
    /// A text of the data set, carried for the host.
    CString Zusatz;

    /// Count of valid rows in the tables, which run in parallel; the places behind are not valid
    /// and may hold what stood there before.
    int AnzahlKv;
    Table Xp;
    /// Bypass valves only, else 0: kv of the bypass and through the radiator in m³/h, and the share
    /// of the latter in whole percent.
    Table KvBypass;
    Table KvHK;
    Table AnteilHK;
    /// kv and kvs of the row in m³/h.
    Table Kv;
    Table KvsTab;
    /// Presetting that the row stands for.
    Table Einstellung;

    float Reserve1;
    int Reserve2;
};
