#include "workbench/building/valve_keys_json.h"

#include "platform/format.h"
#include "workbench/building/json_fields.h"
#include "workbench/building/json_writer.h"

namespace workbench {

namespace {

/// The module never searches for shorter valve numbers.
constexpr std::size_t kShortestVentilNr = 30;

using ReadKey = CValveKey (*)(CJsonFields fields);

CValveKey ReadWantedKey(CJsonFields fields)
{
    CValveKey key;
    key.strHersteller = fields.Text("maker");
    key.strVentilNr = fields.Text("number");
    fields.RefuseUnknown();
    if (key.strVentilNr.size() < kShortestVentilNr) {
        fields.Fail(L"number", L"ha " + FormatInt(static_cast<long long>(key.strVentilNr.size())) +
                                   L" caratteri, ne servono almeno " +
                                   FormatInt(kShortestVentilNr));
    }
    return key;
}

CValveKey ReadChosenKey(CJsonFields fields)
{
    CValveKey key;
    key.strHersteller = fields.ForeignText("maker");
    key.strVentilNr = fields.ForeignText("number");
    fields.RefuseUnknown();
    return key;
}

/// Changes `key` if the object says anything about that valve.
void ReadKeyOver(CJsonFields& valves, const char* name, ReadKey read, std::optional<CValveKey>& key)
{
    if (valves.TakeNull(name)) {
        key.reset();
    } else if (valves.Has(name)) {
        key = read(valves.Object(name));
    }
}

CValveKeys Read(CJsonFields& owner, ReadKey read, CValveKeys keys)
{
    if (owner.Has("valves")) {
        CJsonFields valves = owner.Object("valves");
        ReadKeyOver(valves, "supply", read, keys.vorlauf);
        ReadKeyOver(valves, "return", read, keys.ruecklauf);
        valves.RefuseUnknown();
    }
    return keys;
}

bool IsSame(const std::optional<CValveKey>& a, const std::optional<CValveKey>& b)
{
    return a.has_value() == b.has_value() &&
           (!a || (a->strHersteller == b->strHersteller && a->strVentilNr == b->strVentilNr));
}

void WriteKey(CJsonWriter& writer, const char* name, const std::optional<CValveKey>& key,
              const std::optional<CValveKey>& fallback)
{
    if (IsSame(key, fallback)) {
        return;
    }
    if (!key) {
        writer.Null(name);
        return;
    }
    writer.BeginObject(name, CJsonWriter::Layout::line);
    writer.Text("maker", key->strHersteller);
    writer.Text("number", key->strVentilNr);
    writer.End();
}

} // namespace

CValveKeys ReadValveKeys(CJsonFields& owner, CValveKeys fallback)
{
    return Read(owner, &ReadWantedKey, std::move(fallback));
}

void WriteValveKeys(CJsonWriter& writer, const CValveKeys& keys, const CValveKeys& fallback)
{
    if (IsSame(keys.vorlauf, fallback.vorlauf) && IsSame(keys.ruecklauf, fallback.ruecklauf)) {
        return;
    }
    writer.BeginObject("valves");
    WriteKey(writer, "supply", keys.vorlauf, fallback.vorlauf);
    WriteKey(writer, "return", keys.ruecklauf, fallback.ruecklauf);
    writer.End();
}

CValveKeys ReadChosenValveKeys(CJsonFields& owner)
{
    return Read(owner, &ReadChosenKey, {});
}

} // namespace workbench
