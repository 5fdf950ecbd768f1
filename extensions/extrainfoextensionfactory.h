#pragma once

#include <QtDesigner/QExtensionFactory>

class QDesignerFormEditorInterface;

// Gives every widget on every form an extra-info extension, whatever its class, so that the
// widget library's form builder writes and reads each widget's extra data. It has no
// meta-object of its own.
class ExtraInfoExtensionFactory : public QExtensionFactory
{
public:
    ExtraInfoExtensionFactory(QExtensionManager *parent, QDesignerFormEditorInterface *core);
    ~ExtraInfoExtensionFactory() override;

    QDesignerFormEditorInterface *core() const { return m_core; }

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;

private:
    QDesignerFormEditorInterface *m_core;
};
