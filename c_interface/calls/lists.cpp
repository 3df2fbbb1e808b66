// What catalogues hold.

#include "c_interface/calls/guarded_call.h"
#include "c_interface/calls/request.h"
#include "c_interface/host/catalogue.h"
#include "c_interface/records/records.h"
#include "c_interface/records/sized_record.h"
#include "c_interface/records/texts.h"
#include "host/host_catalog.h"
#include "host/host_prefs.h"
#include "module/silent/resource_context.h"
#include "platform/encoding.h"
#include "platform/folder.h"
#include "platform/path.h"
#include "radiator/hk_vdi3805.h"
#include "radiator/leere_antwort.h"
#include "valve/ventil_katalog.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

using namespace c_interface;

struct radsel_list
{
    std::vector<std::string> texts;
};

struct radsel_rows
{
    std::vector<radsel_row> rows;
};

struct radsel_valves
{
    struct CValve
    {
        CString number;
        CString name;
        /// Place of the group among the groups of the list.
        std::size_t group;
    };

    struct CGroup
    {
        CString mainGroup;
        CString group;
    };

    CString maker;
    std::vector<CGroup> groups;
    std::vector<CValve> valves;
};

namespace {

int Nothing(const std::string& reason)
{
    KeepReason({reason, {}, 0});
    return RADSEL_NOTHING;
}

std::string Quoted(const CString& name)
{
    return '"' + Utf8FromWide(name) + '"';
}

/// Makes a list, which the caller gets if the work fills it to the end.
template <class List, class Fill>
int MakeList(List** place, Fill fill)
{
    // Whatever keeps the call from its work: what the caller frees is null.
    if (place != nullptr) {
        *place = nullptr;
    }
    return Guarded([&] {
        Require(place, "list");
        const CResourceContext context;
        auto list = std::make_unique<List>();
        const int result = fill(*list);
        if (result >= 0) {
            *place = list.release();
        }
        return result;
    });
}

template <class Node>
void AddNames(const Node* first, radsel_list& list)
{
    for (const Node* node = first; node != nullptr; node = node->pNext) {
        list.texts.push_back(Utf8FromWide(node->Name));
    }
}

/// The maker with his catalogue read; null, with the reason kept, if there is none of that name.
HK_VDI3805_HERSTELLER* ReadMaker(const CString& name)
{
    ReadHKDaten();
    HK_VDI3805_HERSTELLER* const maker = FindHersteller(name);
    if (maker != nullptr && maker->pArt == nullptr) {
        ReadVdiFile(name, &maker->pArt, 0.0);
    }
    if (maker == nullptr || maker->pArt == nullptr) {
        RequireCatalogue(name);
    }
    if (maker == nullptr) {
        Nothing("There is no maker " + Quoted(name) + ".");
    }
    return maker;
}

/// A folder that is set has to be one that can be listed.
void RequireFolder(const CString& folder)
{
    if (folder.empty()) {
        return;
    }
    const std::filesystem::path path = ResolvePath(folder);
    std::error_code error;
    const std::filesystem::directory_iterator entries(path, error);
    if (error) {
        RefuseFault(CFileFault{0, L"non si può leggere: " + WideFromUtf8(error.message()),
                               TextFromPath(path)});
    }
}

void AddValves(const VENT_VDI3805_HAUPTGRUPPE* first, radsel_valves& list)
{
    for (const auto* main = first; main != nullptr; main = main->Next) {
        for (const auto* group = main->Gruppen; group != nullptr; group = group->Next) {
            list.groups.push_back({main->Name, group->Name});
            for (const VENT_VDI3805_ARTIKEL* valve = group->Artikel; valve != nullptr;
                 valve = valve->Next) {
                list.valves.push_back({valve->TgaNr, valve->Bezeichnung, list.groups.size() - 1});
            }
        }
    }
}

} // namespace

int radsel_list_makers(radsel_list** list)
{
    return MakeList(list, [](radsel_list& names) {
        AddNames(ReadHKDaten(), names);
        RefuseFault(CatalogueFolderError());
        return RADSEL_OK;
    });
}

int radsel_list_kinds(const char* maker, radsel_list** list)
{
    return MakeList(list, [&](radsel_list& names) {
        const HK_VDI3805_HERSTELLER* const found = ReadMaker(ReadText(maker));
        if (found == nullptr) {
            return RADSEL_NOTHING;
        }
        AddNames(found->pArt, names);
        return RADSEL_OK;
    });
}

int radsel_list_products(const char* maker, const char* kind, radsel_list** list)
{
    return MakeList(list, [&](radsel_list& names) {
        HK_VDI3805_HERSTELLER* const found = ReadMaker(ReadText(maker));
        if (found == nullptr) {
            return RADSEL_NOTHING;
        }
        const HK_VDI3805_ART* const art = FindArt(found, ReadText(kind));
        if (art == nullptr) {
            Nothing("The maker " + Quoted(found->Name) + " has no kind " + Quoted(ReadText(kind)) +
                    ".");
            return RADSEL_NOTHING;
        }
        AddNames(art->pProdukt, names);
        return RADSEL_OK;
    });
}

int radsel_list_valve_makers(radsel_list** list)
{
    return MakeList(list, [](radsel_list& names) {
        const CString folder = GetVEDir(false);
        RequireFolder(folder);
        for (const CString& maker : ListFolders(folder)) {
            std::error_code error;
            if (std::filesystem::exists(ResolvePath(VentilDateiPfad(folder, maker)), error)) {
                names.texts.push_back(Utf8FromWide(maker));
            }
        }
        return RADSEL_OK;
    });
}

size_t radsel_list_count(const radsel_list* list)
{
    return list == nullptr ? 0 : list->texts.size();
}

const char* radsel_list_text(const radsel_list* list, size_t index)
{
    return index < radsel_list_count(list) ? list->texts[index].c_str() : nullptr;
}

void radsel_list_free(radsel_list* list)
{
    delete list;
}

int radsel_list_rows(radsel_request* request, int all, radsel_rows** rows)
{
    return MakeList(rows, [&](radsel_rows& list) {
        CRequest call(request);
        CHKVdi3805 katalog(&call.Data());
        katalog.SetLeistungFilter(0);
        katalog.SetAlleAnzeigen(all != 0 ? 1 : 0);
        katalog.Filtern();
        for (const auto* row = katalog.GetErgebnis(); row != nullptr; row = row->pNext) {
            list.rows.push_back(ToC(*row));
        }
        if (katalog.GetProdukt() != nullptr) {
            return call.Finish(RADSEL_OK);
        }
        ErklaereFehlendeZeilen(katalog);
        return call.Finish(RADSEL_NOTHING);
    });
}

size_t radsel_rows_count(const radsel_rows* rows)
{
    return rows == nullptr ? 0 : rows->rows.size();
}

int radsel_rows_get(const radsel_rows* rows, size_t index, radsel_row* row)
{
    return Guarded([&] {
        if (index >= radsel_rows_count(rows)) {
            return Nothing("The list has no row of that number.");
        }
        Require(row, "row");
        Store(row, rows->rows[index]);
        return static_cast<int>(RADSEL_OK);
    });
}

void radsel_rows_free(radsel_rows* rows)
{
    delete rows;
}

int radsel_list_valves(const char* maker, radsel_valves** valves)
{
    return MakeList(valves, [&](radsel_valves& list) {
        list.maker = ReadText(maker);
        CVentVdiKatalog katalog;
        if (!katalog.LadeHersteller(list.maker)) {
            return Nothing("There is no valve file of " + Quoted(list.maker) +
                           " that can be read.");
        }
        AddValves(katalog.ErsteHauptgruppe, list);
        return static_cast<int>(RADSEL_OK);
    });
}

size_t radsel_valves_count(const radsel_valves* valves)
{
    return valves == nullptr ? 0 : valves->valves.size();
}

int radsel_valves_get(const radsel_valves* valves, size_t index, radsel_valve* valve)
{
    return Guarded([&] {
        if (index >= radsel_valves_count(valves)) {
            return Nothing("The list has no valve of that number.");
        }
        Require(valve, "valve");
        const radsel_valves::CValve& listed = valves->valves[index];
        radsel_valve record = DefaultValve();
        WriteField(record.maker, valves->maker);
        WriteField(record.number, listed.number);
        WriteField(record.name, listed.name);
        WriteField(record.main_group, valves->groups[listed.group].mainGroup);
        WriteField(record.group, valves->groups[listed.group].group);
        Store(valve, record);
        return static_cast<int>(RADSEL_OK);
    });
}

void radsel_valves_free(radsel_valves* valves)
{
    delete valves;
}
