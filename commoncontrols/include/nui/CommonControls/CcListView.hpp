#pragma once

#include "CcGlobal.hpp"

#include <QListView>

namespace VoCc {

// A list view with the application's defaults: alternating rows, single selection.
class VOCC_EXPORT ListView : public QListView
{
    Q_OBJECT

public:
    explicit ListView(QWidget *parent = nullptr);
};

} // namespace VoCc
