#include "workbench/building/project_json.h"

#include "workbench/building/json_fields.h"
#include "workbench/building/json_writer.h"
#include "workbench/building/qt_text.h"

#include <QDate>

namespace workbench {

namespace {

constexpr const char* kProject = "project";
constexpr const char* kDate = "date";

struct CField
{
    const char* name;
    CString CProject::*text;
};

constexpr CField kFields[] = {
    {"client", &CProject::strClient},
    {"designer", &CProject::strDesigner},
    {"number", &CProject::strNumber},
    {kDate, &CProject::strDate},
};

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
    const QString date = ToQt(project.strDate);
    if (!date.isEmpty() && QDate::fromString(date, Qt::ISODate).toString(Qt::ISODate) != date) {
        fields.Fail(FromQt(kDate), L"attesa una data come \"2026-03-01\"");
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
