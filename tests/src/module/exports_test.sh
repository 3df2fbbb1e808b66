#!/usr/bin/env bash
# The module offers exactly these functions with exactly these signatures, and nothing else, on every
# system.
#   exports_test.sh LIBRARY DEF-FILE FOLDER-OF-HEADERS
set -euo pipefail
export LC_ALL=C

string='std::__cxx11::basic_string<wchar_t, std::char_traits<wchar_t>, std::allocator<wchar_t> >'
expected=$(sed "s/CString/$string/g" <<'END' | sort
CLumoError::operator=(CLumoError const&)
DummyCall()
GetHK_Inhalt(HK_DATEN_VDI3805_UEBERGABE&, double, double, double)
HKGetMaxTiefe(HK_DATEN_VDI3805_UEBERGABE&)
HKGetMinTiefe(HK_DATEN_VDI3805_UEBERGABE&)
HeizkoerperauswahlVDI3805(CDrawer*, HK_DATEN_VDI3805_UEBERGABE*, CString&, int&, bool, bool)
HeizkoerperauswahlVDI3805Tree(HK_DATEN_VDI3805_UEBERGABE*)
Read_HK_Masse(HK_DATEN_VDI3805_UEBERGABE&, OCArray<double>&, OCArray<double>&)
Read_HK_Masse(HK_DATEN_VDI3805_UEBERGABE&, short*, short*, short*, double*, int)
ShowVentDlg(ConnValues&, VDI3805_VENTIL_KV&, VDI3805_VENTIL_KV&, bool&, bool&, bool&, bool&, TGA_LIST*, CDrawer*)
ShowVentVDI3805Dlg(CString const&, CString const&, VDI3805_VENTIL_KV&)
VDI3805GetVentil(CString const&, CString const&, CString const&, CString const&, VDI3805_VENTIL_KV&, VDI3805_VENTIL_KV&)
VDI3805GetVentilDaten(VDI3805_VENTIL_KV&, VDI3805_VENTIL_KV&)
END
)
found=$(nm -D --defined-only --extern-only -C "$1" | sed -E 's/^[0-9a-f]+ [A-Za-z] //' | sort)

# The sanitizers' own marks of instrumented code are no export of ours.
found=$(grep -vE '^(__asan_|__odr_asan|__ubsan_)' <<<"$found" || true)
diff <(echo "$expected") <(echo "$found")

# What another system's linker is told is the same.
listed=$(sed '1,/^EXPORTS/d; s/^ *//' "$2" | sort)
named=$(nm -D --defined-only --extern-only "$1" | sed -E 's/^[0-9a-f]+ [A-Za-z] //' | sort)
diff <(echo "$listed") <(grep -vE '^(__asan_|__odr_asan|__ubsan_)' <<<"$named")

# So is what the headers mark.
marked=$(tr '\n' ' ' <"$3/entry_points.h" | cat - <(tr '\n' ' ' <"$3/lumo_error.h") |
    grep -oE 'RADSEL_API [^(;]*\(' | sed -E 's/.*[ &*]([A-Za-z_0-9]+=?)\($/\1/' | sort)
diff <(sed -E 's/\(.*//; s/.*:://' <<<"$expected" | sort) <(echo "$marked")
