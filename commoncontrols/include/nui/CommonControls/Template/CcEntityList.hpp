#pragma once

#include "CcTemplateField.hpp"

#include <QStringList>

class QListWidget;
class QToolButton;

namespace VoCc {

// Several picked model entities: their names in a list, and buttons to pick more or to
// remove the highlighted one.
class VOCC_EXPORT EntityList : public TemplateField
{
    Q_OBJECT
    Q_PROPERTY(QStringList entityNames READ entityNames WRITE setEntityNames)

public:
    explicit EntityList(QWidget *parent = nullptr);

    QStringList entityNames() const;
    void setEntityNames(const QStringList &names);
    QListWidget *listWidget() const;

signals:
    void pickRequested();

private:
    void removeHighlighted();

    QListWidget *m_list = nullptr;
    QToolButton *m_pickButton = nullptr;
    QToolButton *m_removeButton = nullptr;
};

} // namespace VoCc
