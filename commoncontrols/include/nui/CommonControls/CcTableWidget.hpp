#pragma once

#include "CcGlobal.hpp"

#include <QTableWidget>

namespace VoCc {

// A table widget with the application's defaults: alternating rows, whole-row selection,
// the last column stretched.
class VOCC_EXPORT TableWidget : public QTableWidget
{
    Q_OBJECT

public:
    explicit TableWidget(QWidget *parent = nullptr);
};

} // namespace VoCc
