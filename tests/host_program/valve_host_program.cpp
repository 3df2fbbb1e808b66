// A host that fetches valves through the shared library, knowing its headers only. It brings a
// cache of its own, which holds the one valve file that there is and counts how often that is
// searched.

#include "frame/entry_points.h"
#include "frame/ventil_kv.h"
#include "host/host_identity.h"
#include "host/host_prefs.h"

#include <cstdlib>
#include <iostream>
#include <string>

// All but the cache is the reference host's.
RADSEL_HOST_IDENTITY("radsel reference host")

namespace {

/// Key of the valve with this two-digit number; its data set is number 1.
CString Key(const CString& number)
{
    return L"0200010100000000000000000000" + number + L"000100";
}

class CCountingCache : public CSettingsCache
{
public:
    bool IsFileInCache(const CString& path) const override { return path.ends_with(L"ha.tga"); }

    void GetCacheArray(const CString& /*path*/, CStringArray& lines) const override
    {
        ++searches;
        lines.RemoveAll();
        for (const wchar_t* line :
             {L"100;1;Valvole;", L"110;2;Termostatiche;", L"700;1;2;15;0.86;0;0;600;;;;1;;",
              L"710.01;1;2.0;;;1;;;0.10;0.12;", L"710.01;2;2.0;;;2;;;0.25;0.30;"}) {
            lines.Add(line);
        }
        lines.Add(L"800;" + Key(L"01") + L";RA-1;;;Valvola uno;");
        lines.Add(L"800;" + Key(L"02") + L";RA-2;;;Valvola due;");
    }

    void AddFileToCache(const CString& /*path*/, const CStringArray& /*lines*/,
                        bool /*untilProjectChange*/) override
    {
    }

    mutable int searches = 0;
};

CCountingCache cache;
int g_failures = 0;

void Expect(bool holds, const char* what)
{
    if (!holds) {
        std::cerr << "does not hold: " << what << '\n';
        ++g_failures;
    }
}

/// Fetches a pair by numbers and returns how often the file was searched for it.
int Fetch(const CString& number1, const CString& number2, VDI3805_VENTIL_KV& first,
          VDI3805_VENTIL_KV& second)
{
    const int before = cache.searches;
    first.Init();
    second.Init();
    VDI3805GetVentil(L"Prova", number1, L"Prova", number2, first, second);
    return cache.searches - before;
}

void FetchPairs()
{
    VDI3805_VENTIL_KV first;
    VDI3805_VENTIL_KV second;
    Expect(Fetch(Key(L"01"), Key(L"01"), first, second) == 1, "one search serves equal valves");
    Expect(first.Bezeichnung == L"RA-1" && second.Bezeichnung == L"RA-1", "both are filled");
    Expect(first.Gruppe == L"Termostatiche" && first.KvsTab[0] == 0.30F, "with group and table");

    Expect(Fetch(Key(L"01"), Key(L"01"), first, second) == 0, "the first valve is kept");
    Expect(first.AnzahlKv == 2 && second.AnzahlKv == 2, "and answers both records");
    Expect(Fetch(Key(L"01"), Key(L"02"), first, second) == 1, "a second kind is searched");
    Expect(second.Bezeichnung == L"RA-2", "and found");
    Expect(Fetch(Key(L"01"), Key(L"02"), first, second) == 1, "at each call anew");
    Expect(Fetch(Key(L"02"), Key(L"01"), first, second) == 2, "the second valve is not kept");

    Expect(Fetch(Key(L"09"), L"", first, second) == 1, "an unknown valve is searched once");
    Expect(first.AnzahlKv == 0 && first.Bezeichnung.empty(), "its record stays as it came");
    Expect(Fetch(Key(L"09"), L"", first, second) == 0, "and is kept as well");
}

void FetchByRecords()
{
    VDI3805_VENTIL_KV first;
    VDI3805_VENTIL_KV second;
    first.Hersteller = second.Hersteller = L"Prova";
    first.VentilNr = Key(L"01").substr(0, 29);
    second.VentilNr = Key(L"02");
    const int before = cache.searches;
    Expect(!VDI3805GetVentilDaten(first, second), "29 characters are no number");
    first.VentilNr = Key(L"01");
    first.Hersteller.clear();
    Expect(!VDI3805GetVentilDaten(first, second), "a key needs a manufacturer");
    Expect(cache.searches == before && second.AnzahlKv == 0, "the second record is not looked at");
    first.Hersteller = L"Prova";
    second.VentilNr.clear();
    Expect(VDI3805GetVentilDaten(first, second), "the first key alone decides on the result");
    Expect(first.AnzahlKv == 2 && second.AnzahlKv == 0, "the second record stays");
}

} // namespace

CSettingsCache* lmGetCacheObject()
{
    return &cache;
}

int main()
{
    FetchPairs();
    FetchByRecords();
    return g_failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
