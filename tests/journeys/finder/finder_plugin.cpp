#include "tests/journeys/finder/finder_plugin.h"

#include "tests/journeys/finder/finder.h"

QObject* CFinderPlugin::create(const QString& /*name*/, const QString& folder)
{
    return new CFinder(folder);
}
