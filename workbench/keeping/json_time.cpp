#include "workbench/keeping/json_time.h"

#include "workbench/building/json_fields.h"
#include "workbench/building/json_writer.h"
#include "workbench/toolkit/qt_text.h"

#include <QDateTime>

namespace workbench {

std::int64_t ReadTime(CJsonFields& fields, const char* name)
{
    const QDateTime time = QDateTime::fromString(ToQt(fields.Text(name)), Qt::ISODate);
    if (!time.isValid()) {
        fields.Fail(FromQt(name), L"attesa una data come \"2026-03-01T14:05:00Z\"");
    }
    return time.toSecsSinceEpoch();
}

void WriteTime(CJsonWriter& writer, const char* name, std::int64_t time)
{
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(time).toUTC();
    writer.Text(name, FromQt(moment.toString(Qt::ISODate)));
}

CString DescribeTime(std::int64_t time)
{
    return FromQt(QDateTime::fromSecsSinceEpoch(time).toString("dd/MM/yyyy HH:mm:ss"));
}

} // namespace workbench
