#pragma once

#include <QtDesigner/QExtensionFactory>

// Makes the container extension of every page group on a form.
class DrawbackBoxGroupExtensionFactory : public QExtensionFactory
{
    Q_OBJECT
public:
    explicit DrawbackBoxGroupExtensionFactory(QExtensionManager *parent = nullptr);
    ~DrawbackBoxGroupExtensionFactory() override;

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;
};
