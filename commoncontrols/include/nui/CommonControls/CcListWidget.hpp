#pragma once

#include "CcGlobal.hpp"

#include <QListWidget>

namespace VoCc {

// A list widget with the application's defaults: alternating rows, single selection.
class VOCC_EXPORT ListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit ListWidget(QWidget *parent = nullptr);
};

} // namespace VoCc
