#pragma once

#include <QIcon>
#include <QImage>

/// An icon of a picture, and of another one for where it is selected; without that one the style's
/// shade of the first is taken, as it is for a control that is disabled. The toolkit's own icons
/// stay in its cache of pictures after they are gone, so that a host which opens dialogs all day
/// would grow with each of them.
QIcon MakeImageIcon(const QImage& normal, const QImage& selected = {});
