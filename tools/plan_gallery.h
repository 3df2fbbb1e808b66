#pragma once

#include <QDir>

/// Writes pictures of plans, "plan-*.png", into a folder: of the sample building with its
/// radiators, near and far and with rooms and radiators marked, and of a large floor. False if one
/// cannot be written.
bool WritePlanPictures(const QString& data, const QDir& folder);
