#pragma once

#include <QIcon>
#include <QPixmap>
#include <functional>

namespace VoCc {

// An icon of one picture that is drawn the first time the icon is drawn or asked for its
// pixels, not when the icon is made. Pickers fill their lists with sample pictures most of
// which are never looked at; from then on the icon is exactly QIcon(picture).
QIcon lazyPixmapIcon(std::function<QPixmap()> draw);

} // namespace VoCc
