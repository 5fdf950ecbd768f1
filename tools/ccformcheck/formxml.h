#pragma once

// The checks that read a form's XML only: object names, the widgets' "id" numbers, and the
// files its icons and resources name.

#include "finding.h"

#include <QByteArray>
#include <QHash>
#include <QString>

class FormXml
{
public:
    // contents: the form file as read; folder: where its relative paths start.
    FormXml(const QByteArray &contents, const QString &folder);

    // Every widget, layout, action, action group and button group has a name no other has:
    // uic makes each a member of the form's class, and Designer renames repeated ones.
    void checkNames(FormResult *result) const;
    // Every CommonControls widget that carries an "id" (all but VoCc::Line and VoCc::Form)
    // has a non-zero one, and no two have the same.
    void checkIds(FormResult *result) const;
    // Resource files the form includes, and icon and pixmap paths: each names a regular file,
    // a relative one from the form's folder; a resource path is in a resource file of the form.
    void checkFiles(FormResult *result) const;

    // The line of the widget a message names by its name in quotes, or 0.
    int lineOfWidgetIn(const QString &message) const;
    // The line of the first widget of that class, or 0.
    int lineOfClass(const QString &className) const;

private:
    struct Named
    {
        QString tag;
        QString className;
        QString name;
        int line = 0;
    };
    struct Id
    {
        QString className;
        QString name;
        int line = 0;
        bool given = false;
        qint64 value = 0;
    };
    struct Reference
    {
        QString path;
        int line = 0;
    };
    QString m_folder;
    QVector<Named> m_named;
    QVector<Id> m_ids;
    QVector<Reference> m_resourceFiles; // <include location=...>
    QVector<Reference> m_paths; // icon and pixmap paths
};
