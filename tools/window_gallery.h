#pragma once

#include <QDir>

/// Writes pictures of the workbench's window, empty, sized and with faults, at several sizes, and
/// of the dialogs that the host lends, all in light and in dark colours, as "finestra-*.png" and
/// "ospite-*.png"; false if one cannot be written. `data` is the folder of the sample data.
bool WriteWindowPictures(const QString& data, const QDir& folder);
