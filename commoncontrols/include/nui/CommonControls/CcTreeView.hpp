#pragma once

#include "CcGlobal.hpp"

#include <QTreeView>

namespace VoCc {

// A tree view with the application's defaults: alternating rows, whole-row selection.
class VOCC_EXPORT TreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit TreeView(QWidget *parent = nullptr);
};

} // namespace VoCc
