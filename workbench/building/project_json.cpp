#include "workbench/building/project_json.h"

#include "platform/number_scan.h"
#include "workbench/building/json_fields.h"
#include "workbench/building/json_writer.h"

#include <algorithm>
#include <chrono>
#include <string_view>

namespace workbench {

namespace {

constexpr const char* kProject = "project";

struct CField
{
    const char* name;
    CString CProject::*text;
};

constexpr CField kFields[] = {
    {"client", &CProject::strClient},
    {"designer", &CProject::strDesigner},
    {"number", &CProject::strNumber},
    {"date", &CProject::strDate},
};

/// True for a day of the calendar in ten characters, "2026-03-01".
bool IsDate(const CString& text)
{
    constexpr std::wstring_view kForm = L"0000-00-00";
    const auto fits = [](wchar_t c, wchar_t form) {
        return form == L'0' ? c >= L'0' && c <= L'9' : c == form;
    };
    if (!std::ranges::equal(text, kForm, fits)) {
        return false;
    }
    const auto part = [&text](std::size_t first, std::size_t count) {
        return static_cast<unsigned>(_wtoi(std::wstring_view(text).substr(first, count)));
    };
    const std::chrono::year_month_day day(std::chrono::year(static_cast<int>(part(0, 4))),
                                          std::chrono::month(part(5, 2)),
                                          std::chrono::day(part(8, 2)));
    return day.ok() && day.year() > std::chrono::year(0);
}

} // namespace

CProject ReadProject(CJsonFields& building)
{
    CProject project;
    if (!building.Has(kProject)) {
        return project;
    }
    CJsonFields fields = building.Object(kProject);
    for (const CField& field : kFields) {
        if (fields.Has(field.name)) {
            project.*field.text = fields.Text(field.name);
        }
    }
    fields.RefuseUnknown();
    if (!project.strDate.empty() && !IsDate(project.strDate)) {
        fields.Fail(L"date", L"attesa una data come \"2026-03-01\"");
    }
    return project;
}

void WriteProject(CJsonWriter& writer, const CProject& project)
{
    if (project == CProject()) {
        return;
    }
    writer.BeginObject(kProject);
    for (const CField& field : kFields) {
        if (!(project.*field.text).empty()) {
            writer.Text(field.name, project.*field.text);
        }
    }
    writer.End();
}

} // namespace workbench
