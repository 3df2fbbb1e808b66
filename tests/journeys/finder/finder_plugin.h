#pragma once

#include <QGenericPlugin>

/// Brings the finder into a program that a journey drives. The toolkit loads it where the
/// environment says QT_QPA_GENERIC_PLUGINS=finder:FOLDER and QT_PLUGIN_PATH names the folder above
/// "generic".
class CFinderPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "finder.json")

public:
    QObject* create(const QString& name, const QString& folder) override;
};
