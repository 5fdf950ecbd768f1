#include "ccgridcells.h"

#include <QWidget>

namespace VoCc {

int gridDimension(const QWidget *grid, const char *property, int requested)
{
    if (requested <= maximumGridDimension)
        return qMax(0, requested);
    qWarning("%s \"%s\": property \"%s\" is %d, more than the %d rows or columns a grid can "
             "have; limited to %d",
             grid->metaObject()->className(), qPrintable(grid->objectName()), property, requested,
             maximumGridDimension, maximumGridDimension);
    return maximumGridDimension;
}

} // namespace VoCc
