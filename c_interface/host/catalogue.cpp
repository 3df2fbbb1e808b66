#include "c_interface/host/catalogue.h"

#include "c_interface/host/answers.h"
#include "c_interface/host/host_table.h"
#include "host/host_catalog.h"
#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "reference_host/catalog/library/catalogue_library.h"

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

using namespace c_interface;

namespace {

/// The catalogues of the process: files of a folder, or what the host hands in.
struct CCatalogues
{
    reference_host::CCatalogueLibrary files;
    reference_host::CCatalogueTree handedIn;
};

std::unique_ptr<CCatalogues>& Place()
{
    static auto catalogues = std::make_unique<CCatalogues>();
    return catalogues;
}

bool AreHandedIn()
{
    return Host().list_makers != nullptr && Host().read_maker != nullptr;
}

HK_VDI3805_HERSTELLER* ListHandedIn()
{
    const radsel_host& host = Host();
    radsel_names makers;
    Succeeded("list_makers", host.list_makers(host.user, &makers));
    std::set<CString> listed;
    std::erase_if(makers.texts, [&](const CString& name) { return !listed.insert(name).second; });
    Place()->handedIn.ListHersteller({}, makers.texts);
    return Place()->handedIn.GetFirst();
}

int ReadHandedIn(const CString& maker, HK_VDI3805_ART** art, double leistungEN442)
{
    const radsel_host& host = Host();
    const std::string name = Utf8FromWide(maker);
    radsel_catalogue answer;
    Succeeded("read_maker", host.read_maker(host.user, name.c_str(), leistungEN442, &answer));
    int rowCount = 0;
    *art = Place()->handedIn.Hang({}, maker, std::move(answer.kinds), rowCount);
    return rowCount;
}

} // namespace

HK_VDI3805_HERSTELLER* ReadHKDaten()
{
    return AreHandedIn() ? ListHandedIn() : Place()->files.List(GetHKDir(false));
}

HK_VDI3805_HERSTELLER* FindHersteller(const CString& name)
{
    HK_VDI3805_HERSTELLER* node =
        AreHandedIn() ? Place()->handedIn.GetFirst() : Place()->files.Find(name);
    while (node != nullptr && node->Name != name) {
        node = node->pNext;
    }
    return node;
}

int ReadVdiFile(const CString& hersteller, HK_VDI3805_ART** art, double leistungEN442)
{
    if (art == nullptr) {
        return -1;
    }
    return AreHandedIn() ? ReadHandedIn(hersteller, art, leistungEN442)
                         : Place()->files.Read(GetHKDir(false), hersteller, art, leistungEN442);
}

namespace c_interface {

std::optional<CFileFault> CatalogueError(const CString& maker)
{
    return AreHandedIn() ? std::nullopt : Place()->files.Error(maker);
}

std::optional<CFileFault> CatalogueFolderError()
{
    // A maker without a name has no folder of his own that could be at fault.
    return CatalogueError({});
}

void ForgetCatalogues()
{
    Place() = std::make_unique<CCatalogues>();
}

} // namespace c_interface
